#pragma once

#include "core/message.h"

struct Game;

// The windows of the program. What a window decides it writes into the records.
class Dialogs {
public:
    virtual ~Dialogs() = default;
    // These are modal: the call returns when the window has closed.
    virtual Answer ShowMessage(const Message& message) = 0;
    virtual void frmWelcome(Game& game) = 0;
    virtual void frmEndGame(Game& game) = 0;
    virtual void frmTheWinerIs(Game& game) = 0;
    virtual void frmScores2(Game& game) = 0;
    virtual void frmOptions(Game& game) = 0;
    // These return at once; frmQuickStart does once OpenedFromGame is set, and is modal before.
    virtual void frmQuickStart(Game& game) = 0;
    virtual void frmAbout(Game& game) = 0;
    virtual void frmSplash(Game& game) = 0;    // opens frmLuckyCup when it ends
    virtual void frmLuckyCup(Game& game) = 0;  // loads the main window and shows it; once
    virtual void UnloadQuickStart() = 0;
    virtual void UnloadSplash() = 0;
};
