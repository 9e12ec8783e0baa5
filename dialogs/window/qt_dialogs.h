#pragma once

#include <QWidget>

#include "core/ports/dialogs.h"
#include "kit/art.h"
#include "kit/event_gate.h"

// The windows around the main one. Each stands modal over its owner while the timers of the table go on. The owner is
// the main window once the dialog was opened from it, before that the first window.
class QtDialogs final : public Dialogs {
public:
    QtDialogs(QWidget& mainWindow, EventGate& gate, Art& art) : mainWindow_(mainWindow), gate_(gate), art_(art) {}

    void SetFirstWindow(QWidget* window) { firstWindow_ = window; }  // null when it has closed

    Answer ShowMessage(const Message& message) override;
    void frmEndGame(Game& game) override;
    void frmTheWinerIs(Game& game) override;
    void frmScores2(Game& game) override;
    void frmOptions(Game& game) override;
    void frmQuickStart(Game&) override {}  // these two open nothing yet
    void frmAbout(Game&) override {}

private:
    QWidget& Owner(const Game& game) const;

    QWidget& mainWindow_;
    QWidget* firstWindow_ = nullptr;
    EventGate& gate_;
    Art& art_;
};
