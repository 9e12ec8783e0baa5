#pragma once

#include "core/game.h"

// The steps that all placements share; what differs between columns stands with the column.

void TakeTips(Game& game);   // copies the tips into HintSnapshot and empties them
void ResetTurn(Game& game);  // closes the boxes on offer and frees the dice, whose hold state is kept for Undo
void HideOfferedDownAndUp(Game& game);
void FreeDice(Game& game);  // every die free, drawn free and not clickable, its value kept for Undo
void SumTotal(Game& game);  // keeps the two earlier totals and adds up the new one
void PlayPlacementSound(Game& game);
void ShowTotalsOrOfferUndo(Game& game);
void ShowBothTotals(Game& game);  // "Player 1's total : Player 2's total" into panel 3
void EndHover(Game& game);
