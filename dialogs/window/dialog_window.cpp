#include "dialogs/window/dialog_window.h"

#include <QEvent>
#include <QScreen>
#include <utility>

#include "kit/controls.h"
#include "kit/pointers.h"
#include "kit/sized_widgets.h"

DialogWindow::DialogWindow(QWidget* owner, const char* name, const char* caption, int widthInTwips, int heightInTwips)
    : QDialog(owner) {
    setObjectName(name);
    setWindowTitle(caption);
    FixSize(*this, widthInTwips, heightInTwips);
    SetLetters(*this, TableFont(false));
}

void DialogWindow::PlaceOver(const QWidget& window, int twipsBelow, double share) {
    // Its own frame is not known before it is shown; it is as thick as that of the other window.
    const QRect outer = window.frameGeometry();
    const QSize frame = size() + outer.size() - window.size();
    const QPoint place(outer.left() + (outer.width() - frame.width()) / 2,
                       outer.top() + static_cast<int>((outer.height() - frame.height()) * share) + Pixels(twipsBelow));
    move(IntoView({place, frame}, window.screen()->availableGeometry()));
}

void DialogWindow::SetPointers(const Game& game, Art& art, std::vector<QWidget*> clickable) {
    const QString folder = QString::fromStdString(game.session.AppPath);
    setPointers_ = [this, folder, &art, clickable = std::move(clickable)] {
        SetBasePointer(*this, folder);
        for (QWidget* widget : clickable) widget->setCursor(HandPointer(art, devicePixelRatioF()));
    };
    setPointers_();
}

void DialogWindow::changeEvent(QEvent* event) {
    QDialog::changeEvent(event);
    if (event->type() == QEvent::StyleChange && setPointers_) setPointers_();
}

void BringToFront(QWidget& window) {
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    window.activateWindow();
}

QString FittedText(const QString& text, const QString& tail, const QFont& font, int width) {
    const QFontMetrics metrics(font);
    if (!text.endsWith(tail)) return metrics.elidedText(text, Qt::ElideRight, width);
    const int room = width - metrics.horizontalAdvance(tail);
    return metrics.elidedText(text.chopped(tail.size()), Qt::ElideRight, room) + tail;
}
