#include "kit/held_keys.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace {
// How X11 begins to tell of a key, and the numbers that it has for both Enters of a keyboard.
struct XKey {
    quint8 type, key;
    quint16 count;
    quint32 time;  // ms
};
constexpr quint8 pressed = 2, released = 3, sentByOthers = 0x80, enter = 36, keypadEnter = 104;
}  // namespace

HeldKeys::HeldKeys() {
    QCoreApplication::instance()->installEventFilter(this);
    QCoreApplication::instance()->installNativeEventFilter(this);
}

// A key that is held down is released and pressed at the same moment.
bool HeldKeys::nativeEventFilter(const QByteArray& type, void* event, qintptr*) {
    if (type != "xcb_generic_event_t") return false;
    const auto& key = *static_cast<const XKey*>(event);
    if (key.key != enter && key.key != keypadEnter) return false;
    const int kind = key.type & ~sentByOthers;
    if (kind == released) releasedAt_ = key.time;
    return kind == pressed && key.time == releasedAt_;
}

bool HeldKeys::eventFilter(QObject*, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return false;
    const auto& key = static_cast<const QKeyEvent&>(*event);
    return key.isAutoRepeat() && (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter);
}
