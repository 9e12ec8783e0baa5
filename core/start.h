#pragma once

#include "core/game.h"

// Loads the settings and opens the window that they choose: frmWelcome, frmSplash or the table. Returns once it stands,
// or once frmWelcome has closed. False: the player has left, and no window is open.
bool Start(Game& game);
