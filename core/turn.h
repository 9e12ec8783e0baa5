#pragma once

#include "core/game.h"

// The press of Roll, holding and releasing, and the two keys of the table. Callers make sure that the control is
// visible and enabled.
void picRollDices_MouseDown(Game& game);
void picRollDices_MouseUp(Game& game);
void CancelRollPress(Game& game);  // a press that a modal window has cut off
void cmdNextPlayer_MouseUp(Game& game);
void picDice_Click(Game& game, int i);     // holds a free die
void PicDiceOff_Click(Game& game, int i);  // releases a held die

inline constexpr int keyEnter = 13;
inline constexpr int keySpace = 32;

// Every other code is ignored. Returns whether the key did anything.
bool Form_KeyPress(Game& game, int code);
