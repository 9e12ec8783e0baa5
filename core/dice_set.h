#pragma once

#include "core/indexed.h"

inline constexpr int maxDice = 6;
inline constexpr int facesOfADie = 6;

template <typename T>
using ByDie = Indexed<T, maxDice>;

// Arrays always have six places; all die loops run from 0 to LastDieIndex.
struct DiceSet {
    ByDie<int> DiceValues{};                                      // 1 to 6; 0 before the first roll of a game
    ByDie<bool> RollFlags{{true, true, true, true, true, true}};  // True: free, the next roll changes it
    ByDie<bool> HeldMirror{};     // the hold state that Undo gives back, in the sense of RollFlags
    ByDie<int> UndoDiceValues{};  // the dice as they lay when the last move was made
    int LastDieIndex = 0;         // 4 with five dice, 5 with six
};
