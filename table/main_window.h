#pragma once

#include "core/game.h"

// The life of frmLuckyCup.
void Form_Load(Game& game);                    // once, before anything else
bool Form_QueryUnload(Game& game);             // false: the player wants to stay
void Form_Unload(Game& game);                  // what the other does when the player may leave: nothing is asked
void Form_Resize(Game& game, bool minimized);  // minimised, or brought back
