#include "core/show.h"

#include <utility>

#include "core/player_texts.h"

void SetRollPicture(Game& game, RollPicture kind) {
    game.table.roll.picture = kind;
    game.view.SetRollPicture(kind);
}

void SetRollEnabled(Game& game, bool on) {
    game.table.roll.enabled = on;
    game.view.SetRollEnabled(on);
}

void SetRollVisible(Game& game, bool on) {
    game.table.roll.visible = on;
    game.view.SetRollVisible(on);
}

void SetRollReady(Game& game) {
    SetRollEnabled(game, true);
    SetRollPicture(game, RollPicture::Up);
}

void SetRollOff(Game& game) {
    SetRollEnabled(game, false);
    SetRollPicture(game, RollPicture::Off);
}

void ShowDieFace(Game& game, int i, int face) {
    game.table.dice[i].face = face;
    game.view.ShowDieFace(i, face);
}

void ShowDieFree(Game& game, int i) {
    game.table.dice[i].shown = true;
    game.table.dice[i].held = false;
    game.view.ShowDieFree(i);
}

void ShowDieHeld(Game& game, int i) {
    game.table.dice[i].shown = true;
    game.table.dice[i].held = true;
    game.view.ShowDieHeld(i);
}

void HideDie(Game& game, int i) {
    game.table.dice[i].shown = false;
    game.view.HideDie(i);
}

void EnableDie(Game& game, int i, bool on) {
    game.table.dice[i].enabled = on;
    game.view.EnableDie(i, on);
}

void SetLamps(Game& game, int n) {
    game.table.lamps = n;
    game.view.SetLamps(n);
}

void ShowBoxButton(Game& game, ScoreColumn column, int row, bool on) {
    game.card[column].offered[row] = on;
    game.view.ShowBoxButton(column, row, on);
}

void EnableBoxButton(Game& game, ScoreColumn column, int row, bool on) {
    game.card[column].enabled[row] = on;
    game.view.EnableBoxButton(column, row, on);
}

void ShowColumnButtons(Game& game, ScoreColumn column, bool on) {
    for (int row = 0; row < rowCount; ++row) ShowBoxButton(game, column, row, on);
}

void EnableColumnButtons(Game& game, ScoreColumn column, bool on) {
    for (int row = 0; row < rowCount; ++row) EnableBoxButton(game, column, row, on);
}

void SetBoxText(Game& game, ScoreColumn column, int row, std::string text) {
    std::string& box = game.card[column].boxes[row];
    box = std::move(text);
    game.view.SetBoxText(column, row, box);
}

void SetTotalText(Game& game, ScoreColumn column, TotalRow row, std::string text) {
    std::string& total = game.card[column].totals[row];
    total = std::move(text);
    game.view.SetTotalText(column, row, total);
}

void ClearBoxTexts(Game& game) {
    for (ScoreColumn column : allColumns)
        for (int row = 0; row < rowCount; ++row) SetBoxText(game, column, row, "");
    ClearTips(game);
}

void ClearColumnTotals(Game& game) {
    for (ScoreColumn column : allColumns)
        for (TotalRow row : allTotalRows) SetTotalText(game, column, row, "");
}

void SetTipText(Game& game, int row, std::string text) {
    std::string& tip = game.table.tips[row];
    tip = std::move(text);
    game.view.SetTipText(row, tip);
}

void ClearTips(Game& game) {
    for (int row = 0; row < rowCount; ++row) SetTipText(game, row, "");
}

void ShowTipColumn(Game& game, bool on) {
    game.table.tipColumn = on;
    game.view.ShowTipColumn(on);
}

void HighlightRowLabel(Game& game, int row) {
    game.table.highlighted[row] = true;
    game.view.HighlightRowLabel(row);
}

void ResetRowLabel(Game& game, int row) {
    game.table.highlighted[row] = false;
    game.view.ResetRowLabel(row);
}

void SetTitle(Game& game, std::string text) {
    game.table.title = std::move(text);
    game.view.SetTitle(game.table.title);
}

void SetTitleFor(Game& game, const std::string& player) { SetTitle(game, TitleFor(player)); }

void SetWindowHeight(Game& game, int twips) {
    game.table.height = twips;
    game.view.SetWindowHeight(twips);
}

void SetPanelText(Game& game, int k, std::string text) {
    std::string& panel = game.table.panels[k].text;
    panel = std::move(text);
    game.view.SetPanelText(k, panel);
}

void SetPanelLayout(Game& game, int k, int width, bool visible) {
    game.table.panels[k].width = width;
    game.table.panels[k].visible = visible;
    game.view.SetPanelLayout(k, width, visible);
}

void SetStatusBarVisible(Game& game, bool on) {
    game.table.statusBar = on;
    game.view.SetStatusBarVisible(on);
}

void SetUndoEnabled(Game& game, bool on) {
    game.table.undo = on;
    game.view.SetUndoEnabled(on);
}

void SetRedoEnabled(Game& game, bool on) {
    game.table.redo = on;
    game.view.SetRedoEnabled(on);
}

void SetHintButtonEnabled(Game& game, bool on) {
    game.table.hintButton = on;
    game.view.SetHintButtonEnabled(on);
}

void ShowNextPlayer(Game& game, bool on) {
    game.table.nextPlayer = on;
    game.view.ShowNextPlayer(on);
}

void ShowNextBoardButton(Game& game, bool visible, bool enabled) {
    game.table.showBoard.visible = visible;
    game.table.showBoard.enabled = enabled;
    game.view.ShowNextBoardButton(visible, enabled);
}

void SetShowBoardCaption(Game& game, const std::string& player) {
    game.table.showBoard.caption = ShowBoardCaption(player);
    game.view.SetShowBoardCaption(game.table.showBoard.caption);
}

void ShowCounterPicture(Game& game, CounterPicture picture) {
    game.view.CopyPicture(picture, CounterPicture::picScore);
    game.view.RefreshCounter();
}
