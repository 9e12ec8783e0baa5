#pragma once

#include <array>
#include <string>

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

// None stands for "no box is concerned". The others count from 1, as they do in the two-player record and the hints.
enum class ScoreColumn { None, Down, Up, Rand, Oblg };
inline constexpr std::array allColumns{ScoreColumn::Down, ScoreColumn::Up, ScoreColumn::Rand, ScoreColumn::Oblg};

enum class TotalRow { SubTotal, Product, ColumnTotal };
inline constexpr std::array allTotalRows{TotalRow::SubTotal, TotalRow::Product, TotalRow::ColumnTotal};

// One value for each column, addressed by its ScoreColumn (which must not be None).
template <typename T>
struct ByColumn {
    std::array<T, 4> values{};

    T& operator[](ScoreColumn column) { return values[static_cast<std::size_t>(column) - 1]; }
    const T& operator[](ScoreColumn column) const { return values[static_cast<std::size_t>(column) - 1]; }
    bool operator==(const ByColumn&) const = default;
};

// A box or total is a text: empty means not written, anything else is a decimal integer, possibly negative.
// "0" is a written box.
struct ColumnCard {
    std::array<std::string, rowCount> boxes;
    std::array<std::string, 3> totals;
    std::array<bool, rowCount> offered{};  // the box button is visible
    std::array<bool, rowCount> enabled{};  // the box button takes clicks while it is visible

    std::string& Total(TotalRow row) { return totals[static_cast<std::size_t>(row)]; }
    const std::string& Total(TotalRow row) const { return totals[static_cast<std::size_t>(row)]; }
    bool operator==(const ColumnCard&) const = default;
};

using Scorecard = ByColumn<ColumnCard>;

// The number that a box or total text stands for; an empty text counts as 0.
int TextValue(const std::string& text);
