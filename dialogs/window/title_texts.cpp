#include "dialogs/window/title_texts.h"

#include "core/links.h"
#include "kit/controls.h"
#include "kit/sized_widgets.h"

namespace {
constexpr int titleFont = 21;
constexpr QColor titleInk(0x1D, 0x3A, 0x7A);

QLabel* AddLabel(QWidget& window, const char* name, const char* text, const Place& place, Qt::Alignment alignment) {
    auto* label = new QLabel(text, &window);
    label->setObjectName(name);
    label->setAlignment(alignment);
    Put(*label, place);
    return label;
}
}  // namespace

void AddTitle(QWidget& window, const Place& place, Qt::Alignment alignment) {
    QLabel* title = AddLabel(window, "lblTitle", "L u c k y  C u p", place, alignment | Qt::AlignVCenter);
    title->setAccessibleName("Lucky Cup");
    SetLetters(*title, TableFont(true), titleFont);
    QPalette ink = title->palette();
    ink.setColor(QPalette::WindowText, titleInk);
    title->setPalette(ink);
}

void AddVersion(QWidget& window, const Place& place, Qt::Alignment alignment) {
    AddLabel(window, "lblVersion", "Version 2.3", place, alignment | Qt::AlignVCenter);
}

Links AddLinks(QWidget& window, Game& game, const Place& place) {
    const Place below{place.left, place.top + place.height, place.width, place.height};
    const auto beside = [](const Place& line) {
        return Place{line.left + line.width, line.top, line.width, line.height};
    };
    AddLabel(window, "Label1", "Web site:", place, Qt::AlignLeft | Qt::AlignVCenter);
    AddLabel(window, "Label2", "E-Mail:", below, Qt::AlignLeft | Qt::AlignVCenter);
    const Links links{new LinkLabel("lblWebSite", &window, webSite, webSite, beside(place)),
                      new LinkLabel("lblemail", &window, contactAddress, MailTarget(), beside(below))};
    QObject::connect(links.webSite, &LinkLabel::clicked, &window, [&game] { OpenWebSite(game.shell); });
    QObject::connect(links.email, &LinkLabel::clicked, &window, [&game] { OpenMailClient(game.shell); });
    return links;
}
