#include "core/scorecard.h"

#include <algorithm>
#include <charconv>

bool RowOffered(const Scorecard& card, int row) {
    return std::ranges::any_of(card, [row](const ColumnCard& column) { return column.offered[row]; });
}

int TextValue(const std::string& text) {
    int value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}
