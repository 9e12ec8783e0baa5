#include "table/window/first_pictures.h"

#include "table/window/layout.h"

namespace {
// Neighbours share their edges in device pixels too.
QSize DeviceSize(const QRect& area, qreal ratio) {
    const auto device = [ratio](int edge) { return qRound(edge * ratio); };
    return {device(area.left() + area.width()) - device(area.left()),
            device(area.top() + area.height()) - device(area.top())};
}
}  // namespace

std::vector<Art::Wanted> FirstPictures(qreal devicePixelRatio) {
    std::vector<Art::Wanted> wanted;
    const auto want = [&](const QString& name, const Place& place) {
        wanted.push_back({name, DeviceSize(Pixels(place), devicePixelRatio)});
    };
    want("roll_up", rollPlace.fourColumns);
    want("arrows_4", arrowsFourPlace);
    for (int i = 0; i < maxDice; ++i) want(QString("die_free_%1").arg(i + 1), DiePlace(i, 4, maxDice - 1));
    return wanted;
}
