#pragma once

#include "core/game.h"

// One level. Both run only while their command is enabled, but for the Undo of the end-of-game dialog.
void mnuUndoUndo_Click(Game& game);
void mnuUndoRedo_Click(Game& game);
