#include "core/placement_steps.h"

#include <utility>

#include "core/column_totals.h"
#include "core/player_texts.h"
#include "core/show.h"

void TakeTips(Game& game) {
    for (int row = 0; row < rowCount; ++row) {
        game.session.HintSnapshot[row] = TextValue(game.table.tips[row]);
        SetTipText(game, row, "");
    }
}

void HideOfferedDownAndUp(Game& game) {
    const GameSession& session = game.session;
    if (IsRow(session.NextUpRow)) ShowBoxButton(game, ScoreColumn::Up, session.NextUpRow, false);
    if (IsRow(session.NextDownRow)) ShowBoxButton(game, ScoreColumn::Down, session.NextDownRow, false);
}

void FreeDice(Game& game) {
    DiceSet& dice = game.dice;
    for (int i = 0; i <= dice.LastDieIndex; ++i) {
        EnableDie(game, i, false);
        ShowDieFree(game, i);
        dice.RollFlags[i] = true;
        dice.UndoDiceValues[i] = dice.DiceValues[i];
    }
}

void SumTotal(Game& game) {
    GameSession& session = game.session;
    session.PrevTotal2 = session.PrevTotal;
    session.PrevTotal = session.Total;
    session.Total = GrandTotal(game);
}

void PlayPlacementSound(Game& game) {
    const GameSession& session = game.session;
    if (!session.SoundOn || session.RedoInProgress) return;
    const bool lastBox = session.BoxesFilled == BoardSize(game.settings) - 1;
    if (session.RowScore != 0)
        game.effects.PlayEffectWait("score");
    else if (lastBox)
        game.effects.PlayEffectWait("scoreZero");
    else
        game.effects.PlayEffect("scoreZero");
}

void ShowTotalsOrOfferUndo(Game& game) {
    if (TwoPlayers(game.settings))
        ShowBothTotals(game);
    else
        SetPanelText(game, 2, "Roll the dice or undo last move");
}

void EndHover(Game& game) {
    game.session.RowHighlighted = false;
    ResetRowLabel(game, game.session.CurrentRow);
}

void ResetTurn(Game& game) {
    ShowColumnButtons(game, ScoreColumn::Oblg, false);
    ShowColumnButtons(game, ScoreColumn::Rand, false);
    HideOfferedDownAndUp(game);
    SetLamps(game, 0);
    game.session.PrevRollCount = std::exchange(game.session.RollCount, 0);
    for (int i = 0; i <= game.dice.LastDieIndex; ++i) game.dice.HeldMirror[i] = game.dice.RollFlags[i];
    FreeDice(game);
}

void ShowBothTotals(Game& game) {
    const std::string table = std::to_string(game.session.Total);
    const std::string other = std::to_string(game.session.OtherTotal);
    const bool secondPlayers = TitleNames(game, game.settings.Player2);
    SetPanelText(game, 3, secondPlayers ? other + " : " + table : table + " : " + other);
}
