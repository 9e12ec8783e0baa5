#pragma once

#include "core/game.h"

// Plays the move again that Undo took back. Runs only while its command is enabled.
void mnuUndoRedo_Click(Game& game);
