#pragma once

#include <array>

inline constexpr int maxDice = 6;
inline constexpr int facesOfADie = 6;

// Arrays always have six places; all die loops run from 0 to LastDieIndex.
struct DiceSet {
    std::array<int, maxDice> DiceValues{};  // 1 to 6; 0 before the first roll of a game
    std::array<bool, maxDice> RollFlags{true, true, true, true, true, true};  // True: free, the next roll changes it
    std::array<bool, maxDice> HeldMirror{};     // the hold state that Undo gives back, in the sense of RollFlags
    std::array<int, maxDice> UndoDiceValues{};  // the dice as they lay when the last move was made
    int LastDieIndex = 0;                       // 4 with five dice, 5 with six
};
