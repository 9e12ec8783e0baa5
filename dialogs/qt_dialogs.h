#pragma once

#include <QWidget>

#include "core/ports.h"
#include "table/art.h"
#include "table/event_gate.h"

// The windows around the main one. Each stands modal over it while the timers of the table go on.
class QtDialogs final : public Dialogs {
public:
    QtDialogs(QWidget& mainWindow, EventGate& gate, Art& art) : mainWindow_(mainWindow), gate_(gate), art_(art) {}

    Answer ShowMessage(const Message& message) override;
    void frmEndGame(Game& game) override;
    void frmTheWinerIs(Game& game) override;
    void frmScores2(Game&) override {}  // these three open nothing yet
    void frmOptions(Game& game) override;
    void frmQuickStart(Game&) override {}
    void frmAbout(Game&) override {}

private:
    QWidget& mainWindow_;
    EventGate& gate_;
    Art& art_;
};
