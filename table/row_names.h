#pragma once

#include "core/scorecard.h"

// The columns and rows as the controls are named after them, and as a screen reader says them.

inline constexpr Indexed<const char*, 5, ScoreColumn> columnNames{{"", "Down", "Up", "Rand", "Oblg"}};
inline constexpr ByColumn<const char*> spokenColumnNames{
    {"Down column", "Up column", "Rand column", "Announce column"}};
inline constexpr ByRow<const char*> rowNames{{"Ones", "Twos", "Threes", "Fours", "Fives", "Sixes", "Max", "Min",
                                              "3 of a Kind", "Full House", "Straight", "4 of a Kind", "Lucky Cup"}};

inline const char* ColumnName(ScoreColumn column) { return columnNames[column]; }
inline const char* SpokenColumnName(ScoreColumn column) { return spokenColumnNames[column]; }
inline const char* RowName(int row) { return rowNames[row]; }
