#include "core/new_game.h"

#include "core/effects.h"
#include "core/hints.h"
#include "core/music.h"
#include "core/show.h"
#include "core/timing.h"

namespace {

// Phase 1. Returns whether the table may be cleared.
bool MayQuitGame(Game& game) {
    GameSession& session = game.session;
    Answer answer = Answer::Ok;
    if (session.NewGameAnswer != 1 && game.settings.ConfirmQuitGame && !session.GameOverShown)
        answer =
            game.dialogs.ShowMessage({"Confirm", "Quit this Game?", MessageIcon::Question, MessageButtons::OkCancel});
    session.GameOverShown = false;
    session.NewGameAnswer = 0;
    return answer == Answer::Ok;
}

// What is not named here keeps its value until the next roll or placement sets it.
void ResetSession(GameSession& session) {
    session.Total = 0;
    session.PrevTotal = 0;
    session.NextDownRow = 0;
    session.CurrentRow = 0;
    session.CurrentColumn = ScoreColumn::None;
    session.PrevColumn = ScoreColumn::None;
    session.BoxesFilled = 0;
    session.RollCount = 0;
    session.PrevRollCount = 0;
    session.RowScore = 0;
    session.RandUpperCount = 0;
    session.OblgUpperCount = 0;
    session.NextUpRow = rowLuckyCup;
    session.Announced = false;
    session.AnnounceWriting = false;
    session.AnnounceResume = false;
    session.RedoAnnounceTwice = false;
    session.RedoInProgress = false;
    session.ComputeOnly = false;
    session.HintsRequested = false;
    session.HintsOn = false;
    session.MayHint = false;  // a hint before the first roll would score dice of 0
    session.EndGameSeen = false;
    session.RowHighlighted = false;
    session.SecondBoardReady = false;
    session.RollAllowed = true;
}

void ResetDice(Game& game) {
    for (int i = 0; i <= game.dice.LastDieIndex; ++i) {
        game.dice.DiceValues[i] = 0;
        game.dice.UndoDiceValues[i] = 0;
        game.dice.HeldMirror[i] = false;
        game.dice.RollFlags[i] = true;
        EnableDie(game, i, false);
        ShowDieFree(game, i);
    }
}

void ResetPlayers(Game& game) {
    game.session.OtherTotal = 0;
    game.parked.PrevTotal = 0;
    game.parked.PrevTotal2 = 0;
    if (!TwoPlayers(game.settings)) return;
    ShowNextBoardButton(game, false, false);
    ShowNextPlayer(game, false);
    SetPanelText(game, 1, game.settings.Player1);
    SetPanelText(game, 3, "0 : 0");
    SetTitleFor(game, game.settings.Player1);
}

void TurnHintsOnAgain(Game& game) {
    if (!game.settings.hintAllways) return;
    game.session.HintsOn = true;
    game.view.EnableCheckedHintEntries(true, false);
}

void ShowAndDisable(Game& game, ScoreColumn column, bool shown) {
    ShowColumnButtons(game, column, shown);
    EnableColumnButtons(game, column, false);
}

// A pattern that takes the buttons away before it brings them back starts with all of them shown.
void PrepareButtons(Game& game, int animKind) {
    if (FourColumns(game.settings)) {
        for (ScoreColumn column : allColumns) ShowAndDisable(game, column, animKind == 1);
        return;
    }
    const bool shown = animKind >= 3;
    ShowAndDisable(game, ScoreColumn::Rand, shown);
    if (!shown) ShowAndDisable(game, ScoreColumn::Oblg, false);
}

void MakeReady(Game& game) {
    game.session.FirstRollPending = true;
    SetRollEnabled(game, true);
    SetUndoEnabled(game, false);
    SetRedoEnabled(game, false);
    EnableTimer(game, Timer::tmrRollDice);
    DisableTimer(game, Timer::tmrGameOver);
    game.parts.ResetGameOverMessage();
    if (game.settings.BGMusicEnabled) EnableTimer(game, Timer::Timer3);
}

// Phase 2.
void ClearTable(Game& game) {
    GameSession& session = game.session;
    ResetSession(session);
    ResetDice(game);
    session.BonusGiven = {};
    session.SecondPlayerOnMove = {};
    PlayEffect(game, "newGame");  // the window stands whenever its command can be run, be it minimised
    ClearColumnTotals(game);
    for (int panel : {2, 3, 4}) SetPanelText(game, panel, "");
    SetLamps(game, 0);
    SetRollVisible(game, true);
    SetRollPicture(game, RollPicture::Up);
    session.GameInProgress = false;
    ResetPlayers(game);
    TurnHintsOnAgain(game);
    const int animKind = game.parts.StartTableAnimation(game);
    game.dice.LastDieIndex = game.settings.NumberOfDice;
    PrepareButtons(game, animKind);
    MakeReady(game);
}

// Phase 3, which also follows a New Game that had nothing to clear.
void CloseLastGame(Game& game) {
    CloseSong(game);
    game.media.Send("close Intro");
    DisableTimer(game, Timer::Timer4);
    ShowHintColumn(game);
    game.view.BlankScoreCounter(CounterPicture::picScore);
    if (!TwoPlayers(game.settings)) return;
    game.view.BlankScoreCounter(CounterPicture::picPlayer1Score);
    game.view.BlankScoreCounter(CounterPicture::picPlayer2Score);
    SetShowBoardCaption(game, game.settings.Player1);
}

bool SameVariant(const GameSettings& a, const GameSettings& b) {
    return a.NumberOfColumns == b.NumberOfColumns && a.NumberOfDice == b.NumberOfDice &&
           a.NumberOfPlayers == b.NumberOfPlayers;
}

Answer AskToStartNewGame(Game& game) {
    const Answer answer = game.dialogs.ShowMessage(
        {"Start a New Game?",
         "Click OK to start a new game or click Cancel to discard changes and return to current game.",
         MessageIcon::Question, MessageButtons::OkCancel});
    game.session.NewGameAnswer = static_cast<int>(answer);
    return answer;
}

}  // namespace

void mnuNewGame_Click(Game& game) {
    if (game.session.GameInProgress) {
        if (!MayQuitGame(game)) return;
        ClearTable(game);
    }
    CloseLastGame(game);
}

void mnuOptions_Click(Game& game) {
    GameSession& session = game.session;
    GameSettings& settings = game.settings;
    const GameSettings before = settings;
    session.OpenedFromGame = true;
    session.SettingsChanged = false;
    session.NewGameAnswer = 0;
    game.dialogs.frmOptions(game);
    if (!SameVariant(before, settings)) {
        if (!session.GameInProgress) {
            game.parts.SetControls(game);
        } else if (AskToStartNewGame(game) == Answer::Ok) {
            // The reset runs under the old layout with the new variant; only then is the window laid out anew.
            mnuNewGame_Click(game);
            game.parts.SetControls(game);
            return;
        }
    }
    if (session.NewGameAnswer == static_cast<int>(Answer::Cancel)) {
        settings.NumberOfColumns = before.NumberOfColumns;
        settings.NumberOfDice = before.NumberOfDice;
        settings.NumberOfPlayers = before.NumberOfPlayers;
    }
    if (settings.ShowStatusBar != before.ShowStatusBar) game.parts.SetStatusBar(game);
    game.dice.LastDieIndex = settings.NumberOfDice;
}
