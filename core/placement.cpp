#include "core/placement.h"

#include <utility>

#include "core/column_totals.h"
#include "core/end_of_game.h"
#include "core/row_scores.h"
#include "core/show.h"

namespace placement {

void TakeTips(Game& game) {
    for (int row = 0; row < rowCount; ++row) {
        game.session.HintSnapshot[row] = TextValue(game.table.tips[row]);
        SetTipText(game, row, "");
    }
}

void HideOfferedDownAndUp(Game& game) {
    const GameSession& session = game.session;
    if (IsRow(session.NextUpRow)) ShowBoxButton(game, ScoreColumn::Up, session.NextUpRow, false);
    if (IsRow(session.NextDownRow)) ShowBoxButton(game, ScoreColumn::Down, session.NextDownRow, false);
}

void FreeDice(Game& game) {
    DiceSet& dice = game.dice;
    for (int i = 0; i <= dice.LastDieIndex; ++i) {
        EnableDie(game, i, false);
        ShowDieFree(game, i);
        dice.RollFlags[i] = true;
        dice.UndoDiceValues[i] = dice.DiceValues[i];
    }
}

void SumTotal(Game& game) {
    GameSession& session = game.session;
    session.PrevTotal2 = session.PrevTotal;
    session.PrevTotal = session.Total;
    session.Total = GrandTotal(game);
}

void PlayPlacementSound(Game& game) {
    const GameSession& session = game.session;
    if (!session.SoundOn || session.RedoInProgress) return;
    const bool lastBox = session.BoxesFilled == BoardSize(game.settings) - 1;
    if (session.RowScore != 0)
        game.effects.PlayEffectWait("score");
    else if (lastBox)
        game.effects.PlayEffectWait("scoreZero");
    else
        game.effects.PlayEffect("scoreZero");
}

void ShowTotalsOrOfferUndo(Game& game) {
    if (TwoPlayers(game.settings))
        ShowBothTotals(game);
    else
        SetPanelText(game, 2, "Roll the dice or undo last move");
}

void EndHover(Game& game) {
    game.session.RowHighlighted = false;
    ResetRowLabel(game, game.session.CurrentRow);
}

}  // namespace placement

namespace {

using namespace placement;

// The bonus of Down and Up falls due on the last upper row of the column. Rand and Oblg count their upper rows.
bool IsLastUpperRow(ScoreColumn column, int row) {
    return (column == ScoreColumn::Down && row == rowSixes) || (column == ScoreColumn::Up && row == rowOnes);
}

void CountBox(GameSession& session, ScoreColumn column) {
    if (column == ScoreColumn::Down) ++session.NextDownRow;
    if (column == ScoreColumn::Up) --session.NextUpRow;
    ++session.BoxesFilled;
}

void WriteScore(Game& game, ScoreColumn column, int row) {
    ScoreRowOf(game, row);
    if (IsLastUpperRow(column, row)) GiveBonusIfEarned(game, column);
    SumTotal(game);
}

void OfferUndo(Game& game) {
    const GameSession& session = game.session;
    if (!session.GameOverShown && !session.EndGameSeen) SetUndoEnabled(game, true);
    if (!session.GameOverShown || session.EndGameSeen) SetRedoEnabled(game, false);
}

void StartCounter(Game& game) {
    if (game.session.RowScore != 0)
        EnableTimer(game, Timer::tmrCounter);
    else
        game.parts.ScoreCounter(game);
}

void PlaceInColumn(Game& game, ScoreColumn column, int row) {
    GameSession& session = game.session;
    session.CurrentColumn = column;
    session.CurrentRow = row;
    TakeTips(game);
    ShowBoxButton(game, column, row, false);
    ResetTurn(game);
    WriteScore(game, column, row);

    // Up gives the Roll button back before its sound, the others after it.
    if (column == ScoreColumn::Up) SetRollReady(game);
    if (!FourColumns(game.settings)) game.view.SetBoxPicture(row, true);
    PlayPlacementSound(game);
    CountBox(session, column);
    if (column != ScoreColumn::Up) SetRollReady(game);
    ShowTotalsOrOfferUndo(game);

    const AfterCheck after = EndGameCheck(game);
    if (after.handlerEnds) {
        EndHover(game);
        return;
    }
    session.RedoInProgress = false;
    if (TwoPlayers(game.settings) && after.offerNextPlayer) ShowNextPlayer(game, true);
    session.MayHint = false;
    OfferUndo(game);
    EndHover(game);
    if (after.runCounter) StartCounter(game);
}

}  // namespace

void ResetTurn(Game& game) {
    ShowColumnButtons(game, ScoreColumn::Oblg, false);
    ShowColumnButtons(game, ScoreColumn::Rand, false);
    placement::HideOfferedDownAndUp(game);
    SetLamps(game, 0);
    game.session.PrevRollCount = std::exchange(game.session.RollCount, 0);
    for (int i = 0; i <= game.dice.LastDieIndex; ++i) game.dice.HeldMirror[i] = game.dice.RollFlags[i];
    placement::FreeDice(game);
}

void cmdDown_Click(Game& game, int row) { PlaceInColumn(game, ScoreColumn::Down, row); }
void cmdUp_Click(Game& game, int row) { PlaceInColumn(game, ScoreColumn::Up, row); }
void cmdRand_Click(Game& game, int row) { PlaceInColumn(game, ScoreColumn::Rand, row); }

void ClickBox(Game& game, ScoreColumn column, int row) {
    switch (column) {
        case ScoreColumn::Down:
            return cmdDown_Click(game, row);
        case ScoreColumn::Up:
            return cmdUp_Click(game, row);
        case ScoreColumn::Rand:
            return cmdRand_Click(game, row);
        case ScoreColumn::Oblg:
            return cmdOblg_Click(game, row);
        case ScoreColumn::None:
            return;
    }
}

void ShowBothTotals(Game& game) {
    const std::string table = std::to_string(game.session.Total);
    const std::string other = std::to_string(game.session.OtherTotal);
    const bool secondPlayers = TitleNames(game, game.settings.Player2);
    SetPanelText(game, 3, secondPlayers ? other + " : " + table : table + " : " + other);
}
