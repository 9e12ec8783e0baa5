#pragma once

#include "core/game.h"

// A click on the open box of a row, 0 to 12. Being clicked proves that the box is on offer.
void cmdDown_Click(Game& game, int row);
void cmdUp_Click(Game& game, int row);
void cmdRand_Click(Game& game, int row);
void cmdOblg_Click(Game& game, int row);  // announces the box, or writes the announced one
void ClickBox(Game& game, ScoreColumn column, int row);

void ResetTurn(Game& game);

// Steps that all placements share, with what differs between columns told apart where it matters.
namespace placement {
void TakeTips(Game& game);  // copies the tips into HintSnapshot and empties them
void FreeDice(Game& game);  // every die free, drawn free and not clickable, its value kept for Undo
void SumTotal(Game& game);  // keeps the two earlier totals and adds up the new one
void PlayPlacementSound(Game& game);
void ShowTotalsOrOfferUndo(Game& game);
void EndHover(Game& game);
void HideOfferedDownAndUp(Game& game);
}  // namespace placement

// "Player 1's total : Player 2's total" into panel 3.
void ShowBothTotals(Game& game);
