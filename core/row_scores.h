#pragma once

#include "core/game.h"

// One routine a row. Each sets RowScore; with ComputeOnly clear it sorts the dice first and writes the box of
// CurrentRow in CurrentColumn together with the totals of that column (nothing when the column is None).
// With ComputeOnly set the dice lie as they lay.
void ScoreUpperRow(Game& game, int face);
void ScoreMax(Game& game);
void ScoreMin(Game& game);
void ScoreThreeOfAKind(Game& game);
void ScoreFullHouse(Game& game);
void ScoreStraight(Game& game);
void ScoreFourOfAKind(Game& game);
void ScoreFiveOfAKind(Game& game);

void ScoreRowOf(Game& game, int row);  // the routine of row 0 to 12

// What each row would be given for the dice, in whatever order they lie.
ByRow<int> RowValues(const DiceSet& dice);

inline constexpr int luckyCupPoints = 100;

void SortDice(DiceSet& dice);  // DiceValues 0 to LastDieIndex, ascending
