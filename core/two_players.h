#pragma once

#include "core/game.h"

// Gives the table to the other player. Returns the choice for ShowCurrentPlayer: 2 or 3.
int HandOver(Game& game);

void SwapCounters(Game& game);
void SwapTotals(Game& game);
void SwapBoards(Game& game);
void SwapBoardOneColumn(Game& game);

void cmdShowNextBoard_Click(Game& game);  // the other board, after the game

bool FirstPlayerOnTable(const Game& game);  // title and panel 1 both name Player1
