#pragma once

#include "core/game.h"

// One level. Runs only while its command is enabled, but for the Undo of the end-of-game dialog.
void mnuUndoUndo_Click(Game& game);
