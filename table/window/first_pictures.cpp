#include "table/window/first_pictures.h"

#include "table/window/layout.h"
#include "table/window/tool_bar.h"

std::vector<Art::Wanted> FirstPictures(qreal devicePixelRatio) {
    std::vector<Art::Wanted> wanted;
    const auto want = [&](const QString& name, const Place& place) {
        wanted.push_back(Art::WantedOver(name, Pixels(place), devicePixelRatio));
    };
    want("roll_up", rollPlace.fourColumns);
    want("arrows_4", arrowsFourPlace);
    for (int i = 0; i < maxDice; ++i) want(QString("die_free_%1").arg(i + 1), DiePlace(i, 4, maxDice - 1));
    want("counter_blank", scorePlace.fourColumns);
    want("box_empty", {0, 0, boxWidth, boxButtonHeight});
    want("lamp_dark", {0, 0, lampSize, lampSize});
    for (const QString& name : FirstKeyPictures())
        wanted.push_back(Art::WantedOver(name, QRect({}, KeyPictureSize()), devicePixelRatio));
    return wanted;
}
