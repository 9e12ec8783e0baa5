#include "core/end_of_game.h"

#include <string>

#include "core/effects.h"
#include "core/music.h"
#include "core/show.h"
#include "core/timing.h"
#include "core/top_scores.h"
#include "core/undo.h"

namespace {

bool SecondPlayerOnMove(const Game& game) { return game.session.SecondPlayerOnMove[0]; }

// Asks a player who had rolls left. Returns whether the last box stays written.
bool AskToFinish(Game& game) {
    game.dialogs.frmEndGame(game);
    if (game.session.EndGameFinish) {
        GameOver(game);
        return true;
    }
    mnuUndoUndo_Click(game);
    return false;
}

AfterCheck EndOnePlayer(Game& game) {
    AfterCheck after;
    if (game.session.PrevRollCount == rollsPerTurn) {
        game.parts.ScoreCounter(game);
        GameOver(game);
        after.handlerEnds = true;
        return after;
    }
    if (FourColumns(game.settings))
        game.parts.ScoreCounter(game);
    else
        EnableTimer(game, Timer::tmrCounter);
    after.handlerEnds = AskToFinish(game);
    after.takenBack = !after.handlerEnds;
    return after;
}

AfterCheck EndOneOfTwo(Game& game) {
    AfterCheck after;
    const bool second = SecondPlayerOnMove(game);
    after.runCounter = false;
    after.offerNextPlayer = !second;
    if (game.session.PrevRollCount == rollsPerTurn) {
        game.parts.ScoreCounter(game);
        GameOver(game);
        if (second)
            after.handlerEnds = true;
        else
            game.session.EndGameSeen = true;
        return after;
    }
    EnableTimer(game, Timer::tmrCounter);
    after.takenBack = !AskToFinish(game);
    if (after.takenBack) after.offerNextPlayer = false;
    return after;
}

const std::string& PlayerOnMove(const Game& game) {
    const GameSettings& settings = game.settings;
    const bool first = !TwoPlayers(settings) || game.table.panels[1].text == settings.Player1;
    return first ? settings.Player1 : settings.Player2;
}

enum class Result { GoesOn, IsOver };

Result ShowResultOfTwo(Game& game) {
    GameSession& session = game.session;
    if (ReachedTopScores(session)) game.dialogs.frmScores2(game);
    if (!SecondPlayerOnMove(game)) {
        session.FinalScore1 = session.Total;
        return Result::GoesOn;
    }
    session.FinalScore2 = session.Total;
    game.dialogs.frmTheWinerIs(game);
    ShowNextBoardButton(game, true, true);
    return Result::IsOver;
}

Result ShowResult(Game& game) {
    if (TwoPlayers(game.settings)) return ShowResultOfTwo(game);
    game.dialogs.frmScores2(game);
    return Result::IsOver;
}

void StartGameOverMessage(Game& game) {
    game.session.GameOverText = std::string(50, ' ') + "G a m e  O v e r !" + std::string(28, ' ') +
                                "To begin a new game click the 'New Game' button or press F2";
    SetTimerInterval(game, Timer::tmrGameOver, 1);
    EnableTimer(game, Timer::tmrGameOver);
}

std::string TrimmedEnd(const std::string& name) { return name.substr(0, name.find_last_not_of(' ') + 1); }

}  // namespace

AfterCheck EndGameCheck(Game& game) {
    if (game.session.BoxesFilled < BoardSize(game.settings)) return {};
    return TwoPlayers(game.settings) ? EndOneOfTwo(game) : EndOnePlayer(game);
}

void GameOver(Game& game) {
    GameSession& session = game.session;
    session.GameInProgress = false;
    if (game.settings.BGMusicEnabled) {
        StopMusic(game);
        DisableTimer(game, Timer::Timer3);
    }
    SetPanelText(game, 2, " ");
    if (!RecordTopScore(game, session.Total, PlayerOnMove(game))) {
        // The board stays full; New Game must be able to clear it.
        session.GameInProgress = true;
        return;
    }
    session.OpenedFromGame = true;
    session.ShowScoreResult = true;
    SetPanelText(game, 2, "");
    if (ShowResult(game) == Result::GoesOn) return;

    if (!TwoPlayers(game.settings)) SetRollEnabled(game, false);
    SetRollPicture(game, RollPicture::Off);
    SetUndoEnabled(game, false);
    SetRedoEnabled(game, false);
    session.GameInProgress = true;
    session.GameOverShown = true;
    StartGameOverMessage(game);
    if (game.settings.BGMusicEnabled) EnableTimer(game, Timer::Timer4);
}

void frmEndGame_Load(Game& game) { game.session.EndGameSeen = true; }
void cmdFinish_Click(Game& game) { game.session.EndGameFinish = true; }
void cmdUndo_Click(Game& game) { game.session.EndGameFinish = false; }

WinnerTexts frmTheWinerIs_Load(Game& game) {
    const GameSettings& settings = game.settings;
    const int first = game.session.FinalScore1;
    const int second = game.session.FinalScore2;
    WinnerTexts texts;
    texts.lblPlayer1 = TrimmedEnd(settings.Player1) + "'s Total Score:";
    texts.lblPlayer2 = TrimmedEnd(settings.Player2) + "'s Total Score:";
    texts.lblScore1 = std::to_string(first);
    texts.lblScore2 = std::to_string(second);
    texts.lblWiner =
        first == second ? "It's a Draw!" : (first > second ? settings.Player1 : settings.Player2) + " Wins!";
    PlayEffect(game, first == second ? "draw" : "applause");
    return texts;
}
