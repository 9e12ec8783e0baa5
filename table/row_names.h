#pragma once

#include "core/scorecard.h"

// The columns and rows as the table writes them and a screen reader says them.

inline constexpr Indexed<const char*, 5, ScoreColumn> columnNames{{"", "Down", "Up", "Rand", "Oblg"}};
inline constexpr ByRow<const char*> rowNames{{"Ones", "Twos", "Threes", "Fours", "Fives", "Sixes", "Max", "Min",
                                              "3 of a Kind", "Full House", "Straight", "4 of a Kind", "Lucky Cup"}};

inline const char* ColumnName(ScoreColumn column) { return columnNames[column]; }
inline const char* RowName(int row) { return rowNames[row]; }
