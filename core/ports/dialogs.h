#pragma once

#include "core/message.h"

struct Game;

// Modal but for frmQuickStart and frmAbout: each call returns when its window has closed. What a window decides it
// writes into the records.
class Dialogs {
public:
    virtual ~Dialogs() = default;
    virtual Answer ShowMessage(const Message& message) = 0;
    virtual void frmEndGame(Game& game) = 0;
    virtual void frmTheWinerIs(Game& game) = 0;
    virtual void frmScores2(Game& game) = 0;
    virtual void frmOptions(Game& game) = 0;
    virtual void frmQuickStart(Game& game) = 0;
    virtual void frmAbout(Game& game) = 0;
};
