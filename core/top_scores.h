#pragma once

#include <string>

#include "core/game.h"

// The file of a variant, 1 to 4.
int ScoreFileNumber(const GameSettings& settings);

// Places the score in the file of the present variant and sets LastFinalScore and LastScorePosition. Returns false
// when the file failed: LastScorePosition then keeps its value.
bool RecordTopScore(Game& game, int finalScore, const std::string& playerName);

bool ReachedTopScores(const GameSession& session);  // LastScorePosition is a place of the table, 1 to 20

// Tells the player of a file that was not found; every other failure passes in silence.
void ShowScoreFileError(Game& game, const ScoreFileError& error);
