#pragma once

#include <string>

#include "core/indexed.h"

// The thirteen rows of the board, from the top. Used as an index 0 to 12.
enum ScoreRow : int {
    rowOnes,
    rowTwos,
    rowThrees,
    rowFours,
    rowFives,
    rowSixes,
    rowMax,
    rowMin,
    rowThreeOfAKind,
    rowFullHouse,
    rowStraight,
    rowFourOfAKind,
    rowLuckyCup,
    rowCount
};

constexpr bool IsRow(int row) { return row >= 0 && row < rowCount; }

template <typename T>
using ByRow = Indexed<T, rowCount>;

// None stands for "no box is concerned". The others count from 1, as they do in the two-player record and the hints.
enum class ScoreColumn { None, Down, Up, Rand, Oblg };
inline constexpr std::array allColumns{ScoreColumn::Down, ScoreColumn::Up, ScoreColumn::Rand, ScoreColumn::Oblg};

inline constexpr int columnCount = static_cast<int>(allColumns.size());

// Addressed by its column, which must not be None.
template <typename T>
using ByColumn = Indexed<T, allColumns.size(), ScoreColumn, 1>;

inline constexpr int boxCount = rowCount * columnCount;  // of a four-column board

enum class TotalRow { SubTotal, Product, ColumnTotal };
inline constexpr std::array allTotalRows{TotalRow::SubTotal, TotalRow::Product, TotalRow::ColumnTotal};

template <typename T>
using ByTotalRow = Indexed<T, allTotalRows.size(), TotalRow>;

// A box or total is a text: empty means not written, anything else is a decimal integer, possibly negative.
// "0" is a written box.
struct ColumnCard {
    ByRow<std::string> boxes;
    ByTotalRow<std::string> totals;
    ByRow<bool> offered{};  // the box button is visible
    ByRow<bool> enabled{};  // the box button takes clicks while it is visible

    bool operator==(const ColumnCard&) const = default;
};

using Scorecard = ByColumn<ColumnCard>;

bool RowOffered(const Scorecard& card, int row);  // in any column

// The number that a box or total text stands for; an empty text counts as 0.
int TextValue(const std::string& text);
