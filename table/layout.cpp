#include "table/layout.h"

#include <algorithm>
#include <cmath>

namespace {
constexpr int twipsPerPixel = 15;
constexpr std::array<int, maxDice> leftsOfSix{245, 1150, 2070, 245, 1150, 2070};
constexpr std::array<int, maxDice> leftsOfFive{245, 1150, 2070, 697, 1602, 2070};
}  // namespace

int Pixels(int twips) { return static_cast<int>(std::lround(static_cast<double>(twips) / twipsPerPixel)); }

QRect Pixels(const Place& place) {
    const int left = Pixels(place.left);
    const int top = Pixels(place.top);
    return {left, top, std::max(1, Pixels(place.left + place.width) - left),
            std::max(1, Pixels(place.top + place.height) - top)};
}

Place BoxPlace(ScoreColumn column, int top, int height, int columns) {
    if (columns == 1) return {boardLeft, top, boardWidth, height};
    return {boardLeft + (static_cast<int>(column) - 1) * boxWidth, top, boxWidth, height};
}

Place DiePlace(int i, int columns, int lastDieIndex) {
    const auto die = static_cast<std::size_t>(i);
    const int left = lastDieIndex == 4 ? leftsOfFive[die] : leftsOfSix[die];
    const int top = (i < 3 ? 5655 : 6575) + (columns == 1 ? shiftUp : 0);
    return {left, top, dieSize, dieSize};
}

Place DieFramePlace(int i, int columns, int lastDieIndex) {
    Place place = DiePlace(i, columns, lastDieIndex);
    if (i == 3 && lastDieIndex == 5) place.left = 247;
    return {place.left, place.top, dieFrameSize, dieFrameSize};
}
