#pragma once

#include "core/game.h"

void ShowHints(Game& game);       // fills the tips for the present dice
void ShowHintColumn(Game& game);  // shows or hides the tip column as the flags say

// The mouse moves on an enabled box button, or off it.
void cmdBox_MouseMove(Game& game, ScoreColumn column, int row, bool onButton);
