#include "table/table_parts.h"

#include "table/set_controls.h"

void TableParts::ScoreCounter(Game& game) { ::ScoreCounter(game, counter_); }
void TableParts::ResetScoreCounter() { counter_ = {}; }

int TableParts::StartTableAnimation(Game& game) {
    ::StartTableAnimation(game, animation_);
    return animation_.AnimKind;
}

void TableParts::SetControls(Game& game) { ::SetControls(game); }
void TableParts::SetStatusBar(Game& game) { ::SetStatusBar(game); }
void TableParts::ShowCurrentPlayer(Game& game, int choice) { ::ShowCurrentPlayer(game, choice); }
void TableParts::ResetGameOverMessage() { status_.gameOverRunning = false; }

void TableParts::Tick(Game& game, Timer timer) {
    switch (timer) {
        case Timer::tmrRollDice:
            return tmrRollDice_Timer(game, status_);
        case Timer::tmrTimeElapsed:
            return tmrTimeElapsed_Timer(game);
        case Timer::tmrGameOver:
            return tmrGameOver_Timer(game, status_);
        case Timer::tmrAnimation:
            return tmrAnimation_Timer(game, animation_);
        case Timer::tmrCounter:
            return tmrCounter_Timer(game, counter_);
        case Timer::Timer3:
        case Timer::Timer4:
            return;
    }
}
