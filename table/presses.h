#pragma once

#include "core/game.h"

// A press on a control of the table, be it by mouse, key, script or screen reader. A control that is hidden or disabled
// takes none. Each returns whether it did anything.

bool PressDie(Game& game, int i);  // holds a free die, releases a held one
bool PressBox(Game& game, ScoreColumn column, int row);
bool PressNextPlayer(Game& game);
bool PressShowBoard(Game& game);
bool PressUndo(Game& game);
bool PressRedo(Game& game);
bool PressHint(Game& game);

// Whether the Roll button or a box takes presses.
bool RollOpen(const Game& game);
bool BoxOpen(const Game& game, ScoreColumn column, int row);
