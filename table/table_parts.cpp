#include "table/table_parts.h"

#include "table/score_counter.h"
#include "table/set_controls.h"

void TableParts::ScoreCounter(Game& game) { ::ScoreCounter(game); }

int TableParts::StartTableAnimation(Game& game) {
    ::StartTableAnimation(game, animation);
    return animation.AnimKind;
}

void TableParts::SetControls(Game& game) { ::SetControls(game); }
void TableParts::SetStatusBar(Game& game) { ::SetStatusBar(game); }
void TableParts::ShowCurrentPlayer(Game& game, int choice) { ::ShowCurrentPlayer(game, choice); }
void TableParts::ResetGameOverMessage() { status.gameOverRunning = false; }
