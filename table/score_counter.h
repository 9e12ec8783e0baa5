#pragma once

#include "core/game.h"

// Shows Total in picScore, counting up point by point from PrevTotal where it can. Leaves Total as it found it.
void ScoreCounter(Game& game);

void tmrCounter_Timer(Game& game);
