#include <algorithm>
#include <numeric>

#include "core/show.h"
#include "tests/state_differences.h"

namespace {

// Writes some boxes of a column, and its totals as they follow from them. Returns the Column Total.
int FillColumn(Game& game, ScoreColumn name, std::mt19937& random, bool rich) {
    std::array<int, rowCount> rows{};
    std::iota(rows.begin(), rows.end(), 0);
    if (name == ScoreColumn::Up) std::ranges::reverse(rows);
    if (name > ScoreColumn::Up) std::ranges::shuffle(rows, random);
    ColumnCard& column = game.card[name];
    column = {.enabled = column.enabled};
    std::array<int, rowCount> points{};
    int uppers = 0, sub = 0, lower = 0;
    const int written = static_cast<int>(random() % rowCount);
    for (int i = 0; i < written; ++i) {
        const int row = rows[i];
        const int dice = static_cast<int>(rich ? 3 + random() % 3 : random() % 3);
        points[row] = row <= rowSixes ? dice * (row + 1) : static_cast<int>(5 + random() % 26);
        if (row > rowMin && !rich) points[row] = 0;
        column.boxes[row] = std::to_string(points[row]);
        uppers += row <= rowSixes;
        (row <= rowSixes ? sub : lower) += row == rowMax || row == rowMin ? 0 : points[row];
    }
    const bool bonus = uppers == 6 && sub >= 63;
    ...
}
