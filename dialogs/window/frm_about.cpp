#include "dialogs/window/frm_about.h"

#include <QPushButton>

#include "dialogs/window/title_texts.h"
#include "kit/controls.h"
#include "kit/sized_widgets.h"

namespace {
constexpr int innerWidth = 4950, margin = 360;
constexpr Place picturePlace{1275, 1230, 2400, 2250};
constexpr Place closePlace{1695, 4500, 1560, 480};
}  // namespace

frmAbout::frmAbout(QWidget& mainWindow, Game& game, Art& art)
    : DialogWindow(mainWindow, "frmAbout", "About LuckyCup 2.2.2", innerWidth, 5280), mainWindow_(mainWindow) {
    mainWindow_.setEnabled(false);
    setEnabled(true);  // a child of the window that has just been disabled
    AddTitle(*this, {margin, 300, innerWidth - 2 * margin, 420}, Qt::AlignHCenter);
    AddVersion(*this, {margin, 750, innerWidth - 2 * margin, 255}, Qt::AlignHCenter);
    Put(*new Picture("Image1", this, art, "about"), picturePlace);
    const Links links = AddLinks(*this, game, {960, 3705, 900, 255});
    auto* close = new QPushButton("&Close", this);
    close->setObjectName("cmdClose");
    Put(*close, closePlace);
    close->setDefault(true);
    close->setFocus();
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    Equip(game, art, {close, links.webSite, links.email});
    PlaceOverOwner();
}

// First the table, so that the desktop can hand it the focus.
void frmAbout::done(int result) {
    mainWindow_.setEnabled(true);
    DialogWindow::done(result);
}
