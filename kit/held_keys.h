#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>

// Sees to it that Enter, which rolls, writes, hands over and answers, acts once however long it is held down, in all
// windows of the program. The windows can't tell by themselves: a dialog takes a repeated Enter for a new one, and so
// does Qt when it comes while dice roll.
class HeldKeys final : public QObject, public QAbstractNativeEventFilter {
public:
    HeldKeys();  // from now on, for the application that runs

    // Of X11. True: the event is a repetition and goes no further.
    bool nativeEventFilter(const QByteArray& type, void* event, qintptr* result) override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;  // of the application

private:
    quint32 releasedAt_ = 0;  // ms; an Enter
};
