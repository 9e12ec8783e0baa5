#pragma once

#include "core/game.h"

void mnuNewGame_Click(Game& game);
void mnuOptions_Click(Game& game);
