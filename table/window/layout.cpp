#include "table/window/layout.h"

#include "table/status_bar.h"

namespace {
constexpr ByDie<int> leftsOfSix{{245, 1150, 2070, 245, 1150, 2070}};
constexpr ByDie<int> leftsOfFive{{245, 1150, 2070, 697, 1602, 2070}};
}  // namespace

int SizeAtStart(int wanted, QSize screen) {
    constexpr int height = tallestWindow - frameAndMenuHeight + menuBarHeight;
    constexpr QSize inside((windowWidth + 14) / 15, (height + 14) / 15);  // twips to pixels, none of them cut off
    return FittingSize(IsSize(wanted) ? wanted : normalSize, inside, screen);
}

Place BoxPlace(ScoreColumn column, int top, int height, int columns) {
    if (columns == 1) return {boardLeft, top, boardWidth, height};
    return {boardLeft + (static_cast<int>(column) - 1) * boxWidth, top, boxWidth, height};
}

Place DiePlace(int i, int columns, int lastDieIndex) {
    const int left = lastDieIndex == 4 ? leftsOfFive[i] : leftsOfSix[i];
    const int top = (i < 3 ? 5655 : 6575) + (columns == 1 ? shiftUp : 0);
    return {left, top, dieSize, dieSize};
}

Place DieFramePlace(int i, int columns, int lastDieIndex) {
    Place place = DiePlace(i, columns, lastDieIndex);
    if (i == 3 && lastDieIndex == 5) place.left = 247;
    return {place.left, place.top, dieFrameSize, dieFrameSize};
}
