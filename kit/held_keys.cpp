#include "kit/held_keys.h"

#include <QCoreApplication>
#include <QKeyEvent>

HeldKeys::HeldKeys() { QCoreApplication::instance()->installEventFilter(this); }

// X11 repeats a key by a release and a press of the same moment.
bool HeldKeys::eventFilter(QObject*, QEvent* event) {
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease) return false;
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (event->type() == QEvent::KeyRelease) {
        released_ = key.nativeScanCode();
        releasedAt_ = key.timestamp();
        return false;
    }
    if (key.isAutoRepeat()) return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    return key.nativeScanCode() && key.nativeScanCode() == released_ && key.timestamp() == releasedAt_;
}
