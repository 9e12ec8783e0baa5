#pragma once

#include <array>

#include "core/dice_set.h"
#include "core/scorecard.h"
#include "kit/size.h"
#include "kit/twips.h"

// Where the controls of the main window stand, in twips. Every place is worked out from the variant alone and never
// from where a control stands now, so no shift can happen twice.

// A control that stands still or moves with the number of columns.
struct ControlPlace {
    const char* name;
    Place fourColumns;
    int moves = 0;  // added to Top in the one-column layout
    int grows = 0;  // added to Height in the one-column layout

    constexpr Place In(int columns) const {
        if (columns == 4) return fourColumns;
        return {fourColumns.left, fourColumns.top + moves, fourColumns.width, fourColumns.height + grows};
    }
};

// The size given for the window is that of its whole frame; these are what the frame and the menu bar take off.
inline constexpr Place windowFrame{0, 0, 4900, 8100};
inline constexpr int windowWidth = windowFrame.width - 90;
inline constexpr int frameAndMenuHeight = 690;
inline constexpr int menuBarHeight = 330;  // at the normal size of its letters
inline constexpr int toolbarHeight = 450;
inline constexpr int statusBarHeight = 270;

// The size of the program at its start: the wanted one, or the largest below it at which the screen holds the table.
int SizeAtStart(int wanted, QSize screen);

inline constexpr int shiftUp = -250;

// The lines of a frame are its left, top, right and bottom. The row label panel and the lines around it follow
// SetFrameHeight, everything else LayOut.
inline constexpr ControlPlace rowPanelPlace{"Picture2", {142, 587, 1655, 4740}, 0, -235};
inline constexpr std::array<ControlPlace, 4> rowFrameLines{{
    {"Line1", {82, 520, 0, 4894}, 0, shiftUp},
    {"Line2", {82, 520, 1958, 0}},
    {"Line3", {2040, 520, 0, 4894}, 0, shiftUp},
    {"Line4", {82, 5414, 1958, 0}, shiftUp},
}};

inline constexpr std::array<ControlPlace, 4> boxFrameLines{{
    {"Line9", {2100, 520, 0, 4894}, 0, shiftUp},
    {"Line11", {2100, 520, 2625, 0}},
    {"Line10", {4725, 520, 0, 4894}, 0, shiftUp},
    {"Line12", {2100, 5414, 2625, 0}, shiftUp},
}};
inline constexpr std::array<ControlPlace, 4> trayFrameLines{{
    {"Line5", {82, 5490, 0, 2050}, shiftUp},
    {"Line6", {82, 5490, 4650, 0}, shiftUp},
    {"Line7", {4732, 5490, 0, 2050}, shiftUp},
    {"Line8", {82, 7540, 4650, 0}, shiftUp},
}};

inline constexpr ControlPlace boxGroundPlace{"Shape10", {2160, 585, 2505, 4770}, 0, shiftUp};
inline constexpr ControlPlace trayPlace{"Shape9", {142, 5550, 4530, 1930}, shiftUp};
inline constexpr ControlPlace rollFramePlace{"Shape1", {2995, 5640, 1575, 1740}, shiftUp};
inline constexpr ControlPlace rollPlace{"picRollDices", {3010, 5655, 1545, 1710}, shiftUp};
inline constexpr ControlPlace scorePlace{"picScore", {2205, 4985, 2400, 330}, -270};
inline constexpr Place arrowsFourPlace{1800, 600, 225, 4725};
inline constexpr Place arrowsOnePlace{1800, 585, 225, 4485};

// The board. Buttons are 260 high over labels of 255.
inline constexpr int boxWidth = 600;
inline constexpr int boxLabelHeight = 255;
inline constexpr int boxButtonHeight = 260;
inline constexpr int boardLeft = 2205;
inline constexpr int boardWidth = 4 * boxWidth;
inline constexpr ByRow<int> boxTops{{630, 885, 1140, 1395, 1650, 1905, 2520, 2775, 3390, 3645, 3900, 4155, 4410}};
inline constexpr ByTotalRow<int> totalTops{{2200, 3080, 4690}};

Place BoxPlace(ScoreColumn column, int top, int height, int columns);

// Within the row label panel.
inline constexpr int rowLabelHeight = 220;
inline constexpr int rowLabelLeft = 30;
inline constexpr int rowLabelWidth = 1570;
inline constexpr int rowLabelWidthWithTips = 1250;
inline constexpr int tipLeft = 1300;
inline constexpr int tipWidth = 300;
inline constexpr ByRow<int> rowLabelTops{{15, 280, 550, 810, 1080, 1350, 1920, 2195, 2785, 3055, 3325, 3595, 3870}};

constexpr ControlPlace TotalPlace(TotalRow row) {
    return {"", {boardLeft, totalTops[row], boardWidth, boxLabelHeight}};
}

struct SumRow {
    const char* label;
    const char* frame;
    const char* text;
    int top;
    ControlPlace beside;  // what it labels; the top and the height count
    int moves = 0;
    bool onlyFourColumns = false;
};
inline constexpr std::array<SumRow, 4> sumRows{{
    {"Label4", "shpLabel4", "Sub Total ", 1630, TotalPlace(TotalRow::SubTotal)},
    {"Label3", "shpLabel3", "(Max-Min)xOnes", 2490, TotalPlace(TotalRow::Product)},
    {"Label13", "shpLabel13", "Column Total ", 4125, TotalPlace(TotalRow::ColumnTotal), 0, true},
    {"Label2", "shpLabel2", "Grand Total ", 4425, scorePlace, shiftUp},
}};

// The dice. The frame of a die is 10 twips larger than the die.
inline constexpr int dieSize = 800;
inline constexpr int dieFrameSize = 810;
inline constexpr ByDie<const char*> dieFrameNames{{"Shape6", "Shape7", "Shape8", "Shape3", "Shape4", "Shape5"}};
Place DiePlace(int i, int columns, int lastDieIndex);
Place DieFramePlace(int i, int columns, int lastDieIndex);

// The place of a control that stands at `inner` within `outer`.
constexpr Place Within(const Place& outer, const Place& inner) {
    return {outer.left + inner.left, outer.top + inner.top, inner.width, inner.height};
}

// Within the Roll button.
inline constexpr int lampCount = 3;
template <typename T>
using ByLamp = Indexed<T, lampCount>;
inline constexpr ByLamp<int> lampLefts{{465, 720, 960}};
inline constexpr int lampTop = 1530;
inline constexpr int lampSize = 165;
inline constexpr Place nextPlayerPlace{270, 370, 975, 900};
inline constexpr Place showBoardPlace{0, 0, 1550, 1720};
