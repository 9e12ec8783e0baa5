#pragma once

#include "core/scorecard.h"

// The columns and rows as the table writes them and a screen reader says them.

inline constexpr std::array<const char*, 5> columnNames{"", "Down", "Up", "Rand", "Oblg"};
inline constexpr std::array<const char*, rowCount> rowNames{
    "Ones", "Twos",        "Threes",     "Fours",    "Fives",       "Sixes",    "Max",
    "Min",  "3 of a Kind", "Full House", "Straight", "4 of a Kind", "Lucky Cup"};

inline const char* ColumnName(ScoreColumn column) { return columnNames[static_cast<std::size_t>(column)]; }
inline const char* RowName(int row) { return rowNames[static_cast<std::size_t>(row)]; }
