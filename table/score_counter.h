#pragma once

#include <array>

#include "core/game.h"

using CounterDigits = std::array<int, 4>;  // units first

struct ScoreCounterState {
    CounterDigits digits{};
    int digitCount = 0;  // digits shown, 1 to 4; 0 before the first run
};

// Shows Total in picScore, counting up point by point from PrevTotal where it can. Leaves Total as it found it.
void ScoreCounter(Game& game, ScoreCounterState& state);

void tmrCounter_Timer(Game& game, ScoreCounterState& state);
