#pragma once

#include "core/game.h"

// The three total rows of a column, read by value and rewritten as text.
int TotalValue(const Game& game, ScoreColumn column, TotalRow row);
void AddToTotal(Game& game, ScoreColumn column, TotalRow row, int points);

// Writes (Max-Min)xOnes and adds it to the Column Total. Of rows 0, 6 and 7 an empty box counts 0.
void CompleteProduct(Game& game, ScoreColumn column);

inline constexpr int bonusPoints = 35;
void GiveBonusIfEarned(Game& game, ScoreColumn column);  // the column's sixth upper box has been written

// The count of upper rows written while the bonus of the column is open; null in Down and Up, where the last upper
// row is known by its place.
int* UpperCount(GameSession& session, ScoreColumn column);

// The four Column Totals added, or that of Rand alone in a one-column game.
int GrandTotal(const Game& game);
