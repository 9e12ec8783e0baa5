#include "core/placement.h"

#include "core/column_totals.h"
#include "core/end_of_game.h"
#include "core/placement_steps.h"
#include "core/row_scores.h"
#include "core/show.h"
#include "core/timing.h"

namespace {

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

void cmdDown_Click(Game& game, int row) { PlaceInColumn(game, ScoreColumn::Down, row); }
void cmdUp_Click(Game& game, int row) { PlaceInColumn(game, ScoreColumn::Up, row); }
void cmdRand_Click(Game& game, int row) { PlaceInColumn(game, ScoreColumn::Rand, row); }
