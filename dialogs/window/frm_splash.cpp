#include "dialogs/window/frm_splash.h"

#include <QPainter>
#include <QScreen>

#include "kit/size.h"

namespace {
constexpr QSize pictureSize(378, 210);
constexpr int shownFor = 600;  // ms

// The place is worked out in twips, with the picture in pixels on its way; so it stands left of the middle.
QPoint PlaceOn(const QRect& screen) {
    constexpr int twipsPerPixel = 15;
    const QSize size = Sized(pictureSize);
    const int left = (screen.width() * twipsPerPixel - size.width()) / 3;
    const int top = (screen.height() * twipsPerPixel - size.height() * 16) / 2;
    return screen.topLeft() + QPoint(left, top) / twipsPerPixel;
}
}  // namespace

frmSplash::frmSplash(Art& art, std::function<void()> end)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint),
      art_(art),
      end_(std::move(end)) {
    setObjectName("frmSplash");
    setAccessibleName("Lucky Cup");
    setAttribute(Qt::WA_QuitOnClose, false);  // the table follows
    setFixedSize(Sized(pictureSize));
    move(PlaceOn(screen()->geometry()));
    tmrUnload_.setSingleShot(true);
    tmrUnload_.setTimerType(Qt::PreciseTimer);  // a coarse one may come too early
    tmrUnload_.setInterval(shownFor);
    tmrUnload_.callOnTimeout(this, &frmSplash::End);
}

void frmSplash::ShowSplash() {
    tmrUnload_.start();
    show();
    activateWindow();  // for the keys
}

void frmSplash::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    art_.Draw(painter, rect(), "splash");
}

void frmSplash::keyPressEvent(QKeyEvent*) { End(); }
void frmSplash::mousePressEvent(QMouseEvent*) { End(); }
void frmSplash::closeEvent(QCloseEvent*) { End(); }

void frmSplash::End() {
    tmrUnload_.stop();
    if (const auto end = std::exchange(end_, nullptr)) {
        close();
        end();
    }
}
