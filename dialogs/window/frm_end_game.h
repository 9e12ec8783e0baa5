#pragma once

#include "dialogs/window/dialog_window.h"

// "Finish Game?" Its two buttons are the only way out: the answer stands in EndGameFinish when the window has closed.
class frmEndGame final : public DialogWindow {
public:
    frmEndGame(QWidget& owner, Game& game, Art& art);

    void reject() override {}  // Escape and the window manager's close give no answer
};
