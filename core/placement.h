#pragma once

#include "core/game.h"

// A click on the open box of a row, 0 to 12. Being clicked proves that the box is on offer.
void cmdDown_Click(Game& game, int row);
void cmdUp_Click(Game& game, int row);
void cmdRand_Click(Game& game, int row);
