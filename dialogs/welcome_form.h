#pragma once

#include "core/game.h"

// The controls of frmWelcome that have a state, free of any window.
struct WelcomeForm {
    bool Check1 = false;  // "Don't show this dialog next time"
};

// A change of the box, whoever makes it, replaces what the settings held for the next start.
void Check1_Change(Game& game, WelcomeForm& form, bool checked);
void cmdPlay_Click(Game& game);
void cmdOptions_Click(Game& game, WelcomeForm& form);
void frmWelcome_Unload(Game& game);
