#pragma once

#include <QObject>

// Sees to it, in all windows of the program, that a key which is held down does once what can't be taken back. Qt tells
// most repetitions itself, but not those that come while dice roll, and a dialog takes a repeated Enter for a new one.
class HeldKeys final : public QObject {
public:
    HeldKeys();  // from now on, for the application that runs

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;  // of the application

private:
    quint32 released_ = 0;          // the key, as its keyboard numbers it
    unsigned long releasedAt_ = 0;  // ms
};
