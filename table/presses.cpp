#include "table/presses.h"

#include "core/box_click.h"
#include "core/redo.h"
#include "core/turn.h"
#include "core/two_players.h"
#include "core/undo.h"
#include "table/commands.h"

namespace {
bool PressIf(bool open, Game& game, void (*handler)(Game&)) {
    if (open) handler(game);
    return open;
}
}  // namespace

bool PressDie(Game& game, int i) {
    const DieState& die = game.table.dice[i];
    if (!die.shown || !die.enabled) return false;
    if (die.held)
        PicDiceOff_Click(game, i);
    else
        picDice_Click(game, i);
    return true;
}

bool PressBox(Game& game, ScoreColumn column, int row) {
    if (!BoxOpen(game, column, row)) return false;
    ClickBox(game, column, row);
    return true;
}

bool PressNextPlayer(Game& game) { return PressIf(game.table.nextPlayer, game, cmdNextPlayer_MouseUp); }

bool PressShowBoard(Game& game) {
    const ShowBoardState& button = game.table.showBoard;
    return PressIf(button.visible && button.enabled, game, cmdShowNextBoard_Click);
}

bool PressUndo(Game& game) { return PressIf(game.table.undo, game, mnuUndoUndo_Click); }
bool PressRedo(Game& game) { return PressIf(game.table.redo, game, mnuUndoRedo_Click); }
bool PressHint(Game& game) { return PressIf(game.table.hintButton, game, tbHint_Click); }

bool RollOpen(const Game& game) { return game.table.roll.visible && game.table.roll.enabled; }

bool BoxOpen(const Game& game, ScoreColumn column, int row) {
    return game.card[column].offered[row] && game.card[column].enabled[row];
}
