#include "core/announce.h"

#include <string>
#include <utility>

#include "core/effects.h"
#include "core/end_of_game.h"
#include "core/placement_steps.h"
#include "core/row_scores.h"
#include "core/show.h"
#include "core/timing.h"

// One click handler does both jobs: it announces a box between the first and the second roll, and it writes the
// announced box.

namespace {

void GiveRollBackAfterReminder(Game& game) {
    if (game.session.RollAllowed) return;
    SetRollReady(game);
    game.session.RollAllowed = true;
}

void KeepOwnTip(Game& game, int row) {
    TakeTips(game);
    SetTipText(game, row, std::to_string(game.session.HintSnapshot[row]));
}

void KeepDiceForUndo(DiceSet& dice) {
    for (int i = 0; i <= dice.LastDieIndex; ++i) {
        dice.HeldMirror[i] = dice.RollFlags[i];
        dice.UndoDiceValues[i] = dice.DiceValues[i];
    }
}

void Announce(Game& game, int row) {
    GameSession& session = game.session;
    KeepDiceForUndo(game.dice);
    SetUndoEnabled(game, true);
    SetRedoEnabled(game, false);
    if (!session.RedoInProgress) PlayEffect(game, "announce");
    ShowColumnButtons(game, ScoreColumn::Oblg, false);
    ShowColumnButtons(game, ScoreColumn::Rand, false);
    ShowBoxButton(game, ScoreColumn::Oblg, row, true);
    HideOfferedDownAndUp(game);
    // A move of the player's own overwrites what Undo kept for Redo.
    if (!session.RedoInProgress) session.RedoAnnounceTwice = false;
    session.Announced = true;
    session.RollCount = 1;
    session.PrevRollCount = 1;
    session.RedoInProgress = false;
}

// Unlike the turn reset of the other columns this leaves the hold state that the announcement kept.
void CloseTurn(Game& game, int row) {
    GameSession& session = game.session;
    SetTipText(game, row, "");
    session.AnnounceResume = false;
    ShowBoxButton(game, ScoreColumn::Oblg, row, false);
    session.PrevRollCount = std::exchange(session.RollCount, 0);
    SetLamps(game, 0);
    SetRollOff(game);
    session.AnnounceWriting = true;
    FreeDice(game);
}

void OfferUndoBelowThreeRolls(Game& game) {
    if (game.session.PrevRollCount == rollsPerTurn) {
        SetPanelText(game, 2, "Roll the dice");
        return;
    }
    SetUndoEnabled(game, true);
    SetRedoEnabled(game, false);
    SetPanelText(game, 2, "Roll the dice or undo last move");
}

AfterCheck WriteAnnounced(Game& game, int row) {
    GameSession& session = game.session;
    CloseTurn(game, row);
    ScoreRowOf(game, row);
    SumTotal(game);
    PlayPlacementSound(game);
    SetRollReady(game);
    ShowTotalsOrOfferUndo(game);
    OfferUndoBelowThreeRolls(game);
    if (session.PrevRollCount == 2) session.AnnounceResume = true;
    ++session.BoxesFilled;
    session.Announced = false;
    session.RedoAnnounceTwice = false;
    session.RedoInProgress = false;

    const AfterCheck after = EndGameCheck(game);
    if (after.takenBack && session.PrevRollCount == 1) session.Announced = true;
    if (!after.handlerEnds && TwoPlayers(game.settings) && after.offerNextPlayer) ShowNextPlayer(game, true);
    return after;
}

}  // namespace

void cmdOblg_Click(Game& game, int row) {
    GameSession& session = game.session;
    session.CurrentColumn = ScoreColumn::Oblg;
    session.CurrentRow = row;
    GiveRollBackAfterReminder(game);
    KeepOwnTip(game, row);
    AfterCheck after;
    if (session.Announced || session.AnnounceResume)
        after = WriteAnnounced(game, row);
    else
        Announce(game, row);
    if (!after.handlerEnds) {
        if (!session.Announced) EnableTimer(game, Timer::tmrCounter);
        if (session.EndGameSeen) SetRedoEnabled(game, false);
    }
    EndHover(game);
}
