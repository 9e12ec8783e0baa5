#pragma once

#include "core/game.h"

inline constexpr int tallestWindow = 8530;  // twips, of the whole frame: Yamb with a status bar

struct StatusBarState {
    int rollDiceTicks = 0;
    bool gameOverRunning = false;  // the pause before the moving message is over
};

void SetStatusBar(Game& game);
void ShowCurrentPlayer(Game& game, int choice);  // 2: Player2, 3: Player1, else nothing

void tmrTimeElapsed_Timer(Game& game);
void tmrRollDice_Timer(Game& game, StatusBarState& state);
void tmrGameOver_Timer(Game& game, StatusBarState& state);
