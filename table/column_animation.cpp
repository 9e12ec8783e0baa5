#include "table/column_animation.h"

#include <utility>

#include "core/show.h"
#include "core/timing.h"

namespace {

using State = ColumnAnimationState;
using enum ScoreColumn;

constexpr int lastRow = rowCount - 1;

void ShowAll(Game& game, int row, bool on) {
    for (ScoreColumn column : allColumns) ShowBoxButton(game, column, row, on);
}

void Show(Game& game, std::initializer_list<ScoreColumn> columns, int row) {
    for (ScoreColumn column : columns) ShowBoxButton(game, column, row, true);
}

void ShowEverySecond(Game& game, ScoreColumn column, int firstRow) {
    for (int row = firstRow; row < rowCount; row += 2) ShowBoxButton(game, column, row, true);
}

ScoreColumn ColumnOf(int place) { return static_cast<ScoreColumn>(place + 1); }  // from 0

void ShowCell(Game& game, int cell) { ShowBoxButton(game, ColumnOf(cell / rowCount), cell % rowCount, true); }

void End(Game& game) {
    SetRollEnabled(game, true);
    DisableTimer(game, Timer::tmrAnimation);
}

void NextStage(State& state, int index) {
    ++state.AnimStage;
    state.AnimIndex = index;
}

// Kind 1: the rows go away from the edges inwards and come back from the middle outwards.
void CloseAndOpen(Game& game, State& state) {
    int& i = state.AnimIndex;
    const bool opening = state.AnimStage == 1;
    if (!opening) SetRollEnabled(game, false);
    ShowAll(game, i, opening);
    ShowAll(game, lastRow - i, opening);
    if (!opening && ++i == 7)
        NextStage(state, 6);
    else if (opening && --i == -1)
        End(game);
}

// Kind 2: the left half rises while the right half falls.
void HalvesPassEachOther(Game& game, State& state) {
    SetRollEnabled(game, false);
    Show(game, {Down, Up}, lastRow - state.AnimIndex);
    Show(game, {Rand, Oblg}, state.AnimIndex);
    if (++state.AnimIndex == rowCount) End(game);
}

// Kind 3: every second row, column by column, there and back.
void EverySecondRow(Game& game, State& state) {
    static constexpr Indexed<std::pair<ScoreColumn, int>, 8> frames{
        {{{Down, 0}, {Up, 0}, {Rand, 0}, {Oblg, 0}, {Oblg, 1}, {Rand, 1}, {Up, 1}, {Down, 1}}}};
    if (state.AnimStage == 0) {
        SetRollEnabled(game, false);
        SetTimerInterval(game, Timer::tmrAnimation, 50);
    }
    // Nothing sets it back: the animations after this one run at this pace.
    if (state.AnimStage == 5) SetTimerInterval(game, Timer::tmrAnimation, 5);
    const auto& [column, firstRow] = frames[state.AnimStage];
    ShowEverySecond(game, column, firstRow);
    if (++state.AnimStage == static_cast<int>(frames.size())) End(game);
}

// Kind 4: along the top and the bottom edge, then both halves inwards.
void EdgesThenHalves(Game& game, State& state) {
    if (state.AnimStage == 0) SetRollEnabled(game, false);
    if (state.AnimStage < 4) {
        ShowBoxButton(game, ColumnOf(state.AnimStage), 0, true);
        ShowBoxButton(game, ColumnOf(3 - state.AnimStage), lastRow, true);
        ++state.AnimStage;
        return;
    }
    Show(game, {Oblg, Rand}, state.AnimIndex);
    Show(game, {Down, Up}, lastRow - state.AnimIndex);
    if (++state.AnimIndex == rowCount) End(game);
}

// Kind 5: the outer columns fall while the inner ones rise.
void OuterAndInner(Game& game, State& state) {
    SetRollEnabled(game, false);
    Show(game, {Down, Oblg}, state.AnimIndex);
    Show(game, {Rand, Up}, lastRow - state.AnimIndex);
    if (++state.AnimIndex == rowCount) End(game);
}

// Kind 6: every cell once in shuffled order, three to a frame and one in the last.
void Scatter(Game& game, State& state) {
    SetRollEnabled(game, false);
    int& i = state.AnimIndex;
    const auto cell = [&] { return state.BoxOrder[i]; };
    ShowCell(game, cell());
    ++i;
    if (i != boxCount) {
        ShowCell(game, cell());
        ++i;
        ShowCell(game, cell());
    }
    if (++i == boxCount + 1) End(game);
}

// Kind 7: the inner columns rise, then the outer ones fall.
void InnerThenOuter(Game& game, State& state) {
    SetRollEnabled(game, false);
    if (state.AnimStage == 0) {
        Show(game, {Up, Rand}, lastRow - state.AnimIndex);
        if (++state.AnimIndex == rowCount) NextStage(state, 0);
        return;
    }
    Show(game, {Down, Oblg}, state.AnimIndex);
    if (++state.AnimIndex == rowCount) End(game);
}

// Kind 8: from the bottom up along the outer columns, and down again between them.
void UpAndDown(Game& game, State& state) {
    SetRollEnabled(game, false);
    int& i = state.AnimIndex;
    switch (state.AnimStage) {
        case 0:
            Show(game, {Up, Rand}, lastRow);
            return NextStage(state, i);
        case 1:
            Show(game, {Down, Oblg}, lastRow);
            return NextStage(state, 1);
        case 2:
            Show(game, {Down, Oblg}, lastRow - i);
            if (++i == rowCount) NextStage(state, 1);
            return;
        case 3:
            Show(game, {Up, Rand}, 0);
            return NextStage(state, i);
        default:
            Show(game, {Up, Rand}, i);
            if (++i == lastRow) End(game);
    }
}

// Two rows of one column in a frame, the second only while it lies before the bound.
void TwoRowsDown(Game& game, State& state, ScoreColumn column, int bound) {
    ShowBoxButton(game, column, ++state.AnimIndex, true);
    if (++state.AnimIndex < bound) ShowBoxButton(game, column, state.AnimIndex, true);
}

void TwoRowsUp(Game& game, State& state, ScoreColumn column) {
    ShowBoxButton(game, column, --state.AnimIndex, true);
    if (--state.AnimIndex > 0) ShowBoxButton(game, column, state.AnimIndex, true);
}

// Kind 9: round the edge of the table and on inwards, two cells to a frame.
void Spiral(Game& game, State& state) {
    SetRollEnabled(game, false);
    int& i = state.AnimIndex;
    switch (state.AnimStage) {
        case 0:
            ShowAll(game, i, true);
            return NextStage(state, -1);
        case 1:
            TwoRowsDown(game, state, Oblg, rowCount);
            if (i >= rowCount) NextStage(state, rowCount);
            return;
        case 2:
            Show(game, {Rand, Up}, lastRow);
            TwoRowsUp(game, state, Down);
            if (i > 0) return;
            ShowBoxButton(game, Up, 1, true);
            return NextStage(state, 0);
        case 3:
            TwoRowsDown(game, state, Rand, lastRow);
            if (i >= lastRow) NextStage(state, lastRow);
            return;
        default:
            TwoRowsUp(game, state, Up);
            if (i <= 0) End(game);
    }
}

// One column, kinds 1 and 2: row by row, from the top or from the bottom.
void RowByRow(Game& game, State& state) {
    SetRollEnabled(game, false);
    const int i = state.AnimIndex;
    ShowBoxButton(game, Rand, state.AnimKind == 1 ? i : lastRow - i, true);
    if (++state.AnimIndex == rowCount) End(game);
}

void ShowRandPair(Game& game, int i, bool on) {
    ShowBoxButton(game, Rand, i, on);
    ShowBoxButton(game, Rand, lastRow - i, on);
}

// One column, kind 3: away from the edges inwards and back from the middle outwards.
void RandInAndOut(Game& game, State& state) {
    int& i = state.AnimIndex;
    if (state.AnimStage == 0) {
        SetRollEnabled(game, false);
        ShowRandPair(game, i, false);
        if (++i == 7) NextStage(state, 6);
        return;
    }
    ShowRandPair(game, i, true);
    if (--i == -1) End(game);
}

// One column, kind 4: away from the middle outwards and back from the edges inwards.
void RandOutAndIn(Game& game, State& state) {
    int& i = state.AnimIndex;
    switch (state.AnimStage) {
        case 0:
            return NextStage(state, 6);
        case 1:
            SetRollEnabled(game, false);
            ShowRandPair(game, i, false);
            if (--i == -1) NextStage(state, 0);
            return;
        default:
            ShowRandPair(game, i, true);
            if (++i == 7) End(game);
    }
}

using Frame = void (*)(Game&, State&);
constexpr Indexed<Frame, 9, int, 1> fourColumnFrames{{CloseAndOpen, HalvesPassEachOther, EverySecondRow,
                                                      EdgesThenHalves, OuterAndInner, Scatter, InnerThenOuter,
                                                      UpAndDown, Spiral}};
constexpr Indexed<Frame, 4, int, 1> oneColumnFrames{{RowByRow, RowByRow, RandInAndOut, RandOutAndIn}};

}  // namespace

void StartTableAnimation(Game& game, State& state) {
    ClearBoxTexts(game);
    game.random.Reseed(game.clock.TimeOfDay());
    const auto kinds = FourColumns(game.settings) ? fourColumnFrames.size() : oneColumnFrames.size();
    state.AnimKind = static_cast<int>(game.random.Next() * static_cast<double>(kinds)) + 1;
    state.AnimIndex = 0;
    state.AnimStage = 0;
    if (FourColumns(game.settings) && state.AnimKind == 6) ShuffleBoxOrder(game, state);
    EnableTimer(game, Timer::tmrAnimation);
}

void ShuffleBoxOrder(Game& game, State& state) {
    auto& order = state.BoxOrder;
    for (int i = 0; i < boxCount; ++i) order[i] = i;
    game.random.Reseed(game.clock.TimeOfDay());
    const auto exchange = [&](int i) { std::swap(order[i], order[static_cast<int>(game.random.Next() * i) + 1]); };
    for (int pass = 0; pass < 3; ++pass) {
        for (int i = boxCount - 1; i >= 0; --i) exchange(i);
        for (int i = 0; i < boxCount; ++i) exchange(i);
    }
}

void tmrAnimation_Timer(Game& game, State& state) {
    const bool fourColumns = FourColumns(game.settings);
    // A change of the variant hands a running pattern to the other layout, which may not have it or stand at no row.
    const bool inBoth = state.AnimKind <= static_cast<int>(oneColumnFrames.size());
    if (inBoth ? !IsRow(state.AnimIndex) : !fourColumns) return End(game);
    if (fourColumns)
        fourColumnFrames[state.AnimKind](game, state);
    else
        oneColumnFrames[state.AnimKind](game, state);
}
