#include "core/redo.h"

#include "core/box_click.h"
#include "core/effects.h"
#include "core/show.h"

namespace {

void ReplaySilently(Game& game, ScoreColumn column) {
    game.session.RedoInProgress = true;
    game.session.CounterSkip = true;
    ClickBox(game, column, game.session.CurrentRow);
}

// Returns true when the one click was all there was to put back: an announcement, or the writing of a box whose
// announcement had stood.
bool RedoneByOneClick(Game& game) {
    GameSession& session = game.session;
    if (session.PrevColumn != ScoreColumn::Oblg || session.RedoAnnounceTwice) return false;
    PlayEffect(game, "redo");
    if (session.AnnounceResume)
        ShowCounterPicture(game, CounterPicture::picBuffer0);
    else
        session.CounterSkip = false;
    return true;
}

}  // namespace

void mnuUndoRedo_Click(Game& game) {
    GameSession& session = game.session;
    session.MayHint = !session.MayHint;
    if (TwoPlayers(game.settings) && session.AnnounceResume) ShowNextPlayer(game, true);
    SetRedoEnabled(game, false);
    ReplaySilently(game, session.PrevColumn);
    if (RedoneByOneClick(game)) return;
    if (session.PrevColumn == ScoreColumn::Oblg) ReplaySilently(game, ScoreColumn::Oblg);
    PlayEffect(game, "redo");
    SetUndoEnabled(game, true);
    ShowCounterPicture(game, CounterPicture::picBuffer0);
}
