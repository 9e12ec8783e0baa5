#include "core/hints.h"

#include "core/row_scores.h"
#include "core/show.h"

void ShowHints(Game& game) {
    GameSession& session = game.session;
    // The announced box always keeps a tip, be it the value worked out last, which may be another row's.
    if (game.card[ScoreColumn::Oblg].offered[session.CurrentRow] && session.RollCount > 1)
        SetTipText(game, session.CurrentRow, std::to_string(session.RowScore));
    const ByRow<int> values = RowValues(game.dice);
    for (int row = 0; row < rowCount; ++row)
        if (values[row] > 0 && RowOffered(game.card, row)) SetTipText(game, row, std::to_string(values[row]));
    session.RowScore = values[rowLuckyCup];
}

void ShowHintColumn(Game& game) { ShowTipColumn(game, game.settings.hintAllways || game.session.HintsRequested); }

void cmdBox_MouseMove(Game& game, ScoreColumn column, int row, bool onButton) {
    bool& highlighted = game.session.RowHighlighted;
    if (highlighted == onButton) return;
    highlighted = onButton;
    if (onButton)
        HighlightRowLabel(game, row);
    else
        ResetRowLabel(game, row);
    if (column == ScoreColumn::Rand && !FourColumns(game.settings)) game.view.SetBoxPicture(row, !onButton);
}
