#include "core/undo.h"

#include <algorithm>
#include <string>
#include <utility>

#include "core/column_totals.h"
#include "core/effects.h"
#include "core/placement_steps.h"
#include "core/show.h"

// Undo keeps no snapshot of the board: it takes the last value out of its column by arithmetic. Redo plays the
// placement again.

namespace {

void ShowTipsAgain(Game& game) {
    if (!game.settings.hintAllways) return;
    if (std::exchange(game.session.TipsDirty, false)) game.TipRestore = game.session.HintSnapshot;
    for (int row = 0; row < rowCount; ++row)
        if (game.TipRestore[row] > 0) SetTipText(game, row, std::to_string(game.TipRestore[row]));
}

void TakeBackBoxCount(GameSession& session) {
    if (std::exchange(session.AnnounceWriting, false)) session.RedoAnnounceTwice = true;
    if (session.BoxesFilled > 0) --session.BoxesFilled;
}

void ShowTurnAgain(Game& game) {
    if (game.session.RollCount != rollsPerTurn) {
        SetPanelText(game, 2, "Place your score or roll the dice");
        return;
    }
    SetRollOff(game);
    SetPanelText(game, 2, "Place your score");
}

void GiveDiceBack(Game& game) {
    DiceSet& dice = game.dice;
    for (int i = 0; i <= dice.LastDieIndex; ++i) dice.DiceValues[i] = dice.UndoDiceValues[i];
    if (game.session.RollCount >= rollsPerTurn) return;
    for (int i = 0; i <= dice.LastDieIndex; ++i) {
        dice.RollFlags[i] = dice.HeldMirror[i];
        EnableDie(game, i, true);
        if (dice.RollFlags[i])
            ShowDieFree(game, i);
        else
            ShowDieHeld(game, i);
    }
}

int StepPointerBack(GameSession& session) {
    switch (session.CurrentColumn) {
        case ScoreColumn::Down:
            return --session.NextDownRow;
        case ScoreColumn::Up:
            return ++session.NextUpRow;
        default:
            return session.CurrentRow;
    }
}

void SetTotalOrEmpty(Game& game, ScoreColumn column, TotalRow row, int value) {
    SetTotalText(game, column, row, value == 0 ? std::string() : std::to_string(value));
}

void TakeOutOfUpperSection(Game& game, ScoreColumn column, int points) {
    if (int* count = UpperCount(game.session, column)) --*count;
    SetTotalOrEmpty(game, column, TotalRow::SubTotal,
                    std::max(TotalValue(game, column, TotalRow::SubTotal) - points, 0));
    if (!game.session.BonusGiven[column]) return;
    AddToTotal(game, column, TotalRow::SubTotal, -bonusPoints);
    AddToTotal(game, column, TotalRow::ColumnTotal, -bonusPoints);
    game.session.Total -= bonusPoints;
    game.session.BonusGiven[column] = false;
}

void TakeOutWithProduct(Game& game, ScoreColumn column, int points) {
    const int taken = TotalValue(game, column, TotalRow::Product) + points;
    SetTotalOrEmpty(game, column, TotalRow::ColumnTotal, TotalValue(game, column, TotalRow::ColumnTotal) - taken);
    game.session.Total -= taken;
    SetTotalText(game, column, TotalRow::Product, "");
}

// The total of the column may go below 0 here; the repair at the end puts it right.
void TakeOutOfTotals(Game& game, ScoreColumn column, int points) {
    SetTotalOrEmpty(game, column, TotalRow::ColumnTotal, TotalValue(game, column, TotalRow::ColumnTotal) - points);
    game.session.Total = std::max(game.session.Total - points, 0);
}

void TakeBoxOut(Game& game) {
    const ScoreColumn column = game.session.CurrentColumn;
    const int row = StepPointerBack(game.session);
    // A roll ahead of the opening animation leaves boxes on offer out of their order, and the pointer astray.
    if (!IsRow(row)) return;
    const int points = TextValue(game.card[column].boxes[row]);
    SetBoxText(game, column, row, "");
    if (row <= rowSixes) TakeOutOfUpperSection(game, column, points);
    if (row == rowOnes)
        TakeOutWithProduct(game, column, points);
    else if (row == rowMax || row == rowMin) {
        if (!game.card[column].totals[TotalRow::Product].empty()) TakeOutWithProduct(game, column, 0);
    } else
        TakeOutOfTotals(game, column, points);
}

void OpenBox(Game& game, ScoreColumn column, int row) {
    ShowBoxButton(game, column, row, true);
    EnableBoxButton(game, column, row, true);
}

void OpenEmptyBoxes(Game& game, ScoreColumn column) {
    for (int row = 0; row < rowCount; ++row)
        if (game.card[column].boxes[row].empty()) OpenBox(game, column, row);
}

void OpenFreeColumns(Game& game) {
    const GameSession& session = game.session;
    if (session.AnnounceResume) return;
    if (FourColumns(game.settings)) {
        if (IsRow(session.NextDownRow)) OpenBox(game, ScoreColumn::Down, session.NextDownRow);
        if (IsRow(session.NextUpRow)) OpenBox(game, ScoreColumn::Up, session.NextUpRow);
    }
    OpenEmptyBoxes(game, ScoreColumn::Rand);
}

void OpenAnnounceColumn(Game& game) {
    GameSession& session = game.session;
    if (FourColumns(game.settings) && session.RollCount == 1) {
        OpenEmptyBoxes(game, ScoreColumn::Oblg);
        SetRollReady(game);
        session.Announced = false;
    }
    if (session.AnnounceResume) OpenBox(game, ScoreColumn::Oblg, session.CurrentRow);
}

int RebuiltColumnTotal(const Game& game, ScoreColumn column) {
    int sum = TotalValue(game, column, TotalRow::SubTotal) + TotalValue(game, column, TotalRow::Product);
    for (int row = rowThreeOfAKind; row <= rowLuckyCup; ++row) sum += TextValue(game.card[column].boxes[row]);
    return sum;
}

// Where the total fell or is negative the arithmetic above is not to be trusted: totals stop at 0 there.
void RepairTotals(Game& game, int oldTotal, ScoreColumn column) {
    GameSession& session = game.session;
    if (oldTotal >= session.PrevTotal && oldTotal >= 0 && session.PrevTotal >= 0) return;
    session.Total = session.PrevTotal;
    session.PrevTotal = session.PrevTotal2;
    SetTotalOrEmpty(game, column, TotalRow::ColumnTotal, RebuiltColumnTotal(game, column));
    if (TwoPlayers(game.settings)) ShowBothTotals(game);
}

}  // namespace

void mnuUndoUndo_Click(Game& game) {
    GameSession& session = game.session;
    const int oldTotal = session.Total;
    const ScoreColumn oldColumn = session.CurrentColumn;
    const bool announcedOnly = session.Announced;
    session.MayHint = !session.MayHint;
    ShowNextPlayer(game, false);
    SetUndoEnabled(game, false);
    SetLamps(game, session.PrevRollCount);
    ShowTipsAgain(game);
    session.RollCount = session.PrevRollCount;
    if (!announcedOnly) TakeBackBoxCount(session);
    ShowTurnAgain(game);
    GiveDiceBack(game);
    if (!announcedOnly) TakeBoxOut(game);
    OpenFreeColumns(game);
    OpenAnnounceColumn(game);
    session.PrevColumn = std::exchange(session.CurrentColumn, ScoreColumn::None);
    SetRedoEnabled(game, true);
    PlayEffect(game, "undo");
    if (TwoPlayers(game.settings)) ShowBothTotals(game);
    session.CounterSkip = false;
    if (announcedOnly) return;
    ShowCounterPicture(game, CounterPicture::picBuffer1);
    RepairTotals(game, oldTotal, oldColumn);
}
