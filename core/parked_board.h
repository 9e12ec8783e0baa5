#pragma once

#include "core/scorecard.h"

// A parked value of 2000 or more stands for an empty text.
inline constexpr int parkedEmpty = 2000;

struct ParkedColumn {
    ByRow<int> rows{};
    ByTotalRow<int> totals{};
};

// The board of the player who is not on the table.
struct ParkedBoard {
    ByColumn<ParkedColumn> columns;
    int BoxesFilled = 0;
    int NextDownRow = 0;
    int NextUpRow = 0;
    int RandUpperCount = 0;
    int OblgUpperCount = 0;
    ByColumn<bool> BonusGiven;
    int PrevTotal = 0;
    int PrevTotal2 = 0;
};
