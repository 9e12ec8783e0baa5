#pragma once

#include "core/game.h"

// A click on the open box of a row, 0 to 12, of the announce column: announces the box, or writes the announced one.
void cmdOblg_Click(Game& game, int row);
