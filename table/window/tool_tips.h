#pragma once

#include "core/scorecard.h"

// What a newcomer can't guess, told under a resting mouse.

inline constexpr ByRow<const char*> rowTips{{
    "All ones added up: 1 1 1 4 6 scores 3.",
    "All twos added up: 2 2 4 5 6 scores 4.",
    "All threes added up: 3 3 3 3 1 scores 12.",
    "All fours added up: 4 4 4 2 6 scores 12.",
    "All fives added up: 5 5 5 5 1 scores 20.",
    "All sixes added up: 6 6 6 1 3 scores 18.",
    "Five dice added up, to be as high as can be: 6 6 5 5 4 counts 26.",
    "Five dice added up, to be as low as can be: 1 1 2 2 3 counts 9.",
    "Three equal dice: all five added up and 10 more. 5 5 5 2 1 scores 28.",
    "Three equal dice and two others that are equal: all five added up and 20 more. 5 5 5 2 2 scores 39.",
    "1 2 3 4 5 scores 50, 2 3 4 5 6 scores 60.",
    "Four equal dice: all five added up and 30 more. 6 6 6 6 2 scores 56.",
    "Five equal dice score 100.",
}};

inline constexpr std::array<const char*, 4> sumTips{
    "The upper six rows added up. 63 or more earn 35 on top.",
    "Max less Min, times the Ones: from 26, 9 and 3 come (26 - 9) x 3 = 51. Max and Min count only so.",
    "All that this column is worth.",
    "All columns together: your score.",
};

inline constexpr ByColumn<const char*> columnTips{{
    "Column 1: filled downwards, from Ones to Lucky Cup.",
    "Column 2: filled upwards, from Lucky Cup to Ones.",
    "Column 3: filled in any order.",
    "Column 4: filled in any order, but each box must be announced after the first roll.",
}};
inline constexpr const char* oneColumnTip = "Filled in any order.";

inline constexpr const char* lampsTip = "How often you have rolled in this turn: three times at the most.";
inline constexpr const char* counterTip = "The score of the player on the table.";
inline constexpr const char* nextPlayerTip = "Hands the table over: rolls the dice for the other player.";
inline constexpr const char* showBoardTip = "Shows the other player's board.";
