#pragma once

#include <string>

#include "core/game.h"

// What frmScores2 tells of the game that has just ended, and how it sounds.
std::string ScoreResultText(const Game& game);  // two lines, parted by CR and LF
void PlayScoreResultJingle(Game& game);
