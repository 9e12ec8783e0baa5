#pragma once

#include "core/game.h"

// A click on the open box of a column, which must not be None, and a row, 0 to 12.
void ClickBox(Game& game, ScoreColumn column, int row);
