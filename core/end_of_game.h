#pragma once

#include "core/game.h"

// What a placement does after the check for a full board.
struct AfterCheck {
    bool handlerEnds = false;     // only the end of the hover is left to do
    bool offerNextPlayer = true;  // in a two-player game
    bool runCounter = true;       // false: the counter has been dealt with
    bool takenBack = false;       // the player took the last box back
};

AfterCheck EndGameCheck(Game& game);
void GameOver(Game& game);

// The two small windows of the end of a game.
void frmEndGame_Load(Game& game);
void cmdFinish_Click(Game& game);
void cmdUndo_Click(Game& game);

struct WinnerTexts {
    std::string lblPlayer1, lblScore1, lblPlayer2, lblScore2, lblWiner;
};
WinnerTexts frmTheWinerIs_Load(Game& game);  // plays the sound of the verdict
