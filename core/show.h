#pragma once

#include <string>

#include "core/game.h"

// The one way in which the game changes what the table shows: each routine writes the record and tells the view, so
// that the two cannot drift. Ranges and units are those of TableView.

void SetRollPicture(Game& game, RollPicture kind);
void SetRollEnabled(Game& game, bool on);
void SetRollVisible(Game& game, bool on);
void SetRollReady(Game& game);  // enabled, picture up
void SetRollOff(Game& game);    // disabled, picture off

void ShowDieFace(Game& game, int i, int face);
void ShowDieFree(Game& game, int i);
void ShowDieHeld(Game& game, int i);
void HideDie(Game& game, int i);
void EnableDie(Game& game, int i, bool on);
void SetLamps(Game& game, int n);

void ShowBoxButton(Game& game, ScoreColumn column, int row, bool on);
void EnableBoxButton(Game& game, ScoreColumn column, int row, bool on);
void ShowColumnButtons(Game& game, ScoreColumn column, bool on);    // all thirteen
void EnableColumnButtons(Game& game, ScoreColumn column, bool on);  // all thirteen
void SetBoxText(Game& game, ScoreColumn column, int row, std::string text);
void SetTotalText(Game& game, ScoreColumn column, TotalRow row, std::string text);
void ClearBoxTexts(Game& game);  // boxes and tips
void ClearColumnTotals(Game& game);

void SetTipText(Game& game, int row, std::string text);
void ClearTips(Game& game);
void ShowTipColumn(Game& game, bool on);
void HighlightRowLabel(Game& game, int row);
void ResetRowLabel(Game& game, int row);

void SetTitle(Game& game, std::string text);
void SetTitleFor(Game& game, const std::string& player);
void SetWindowHeight(Game& game, int twips);
void SetPanelText(Game& game, int k, std::string text);
void SetPanelLayout(Game& game, int k, int width, bool visible);
void SetStatusBarVisible(Game& game, bool on);

void SetUndoEnabled(Game& game, bool on);
void SetRedoEnabled(Game& game, bool on);
void SetHintButtonEnabled(Game& game, bool on);
void ShowNextPlayer(Game& game, bool on);
void ShowNextBoardButton(Game& game, bool visible, bool enabled);
void SetShowBoardCaption(Game& game, const std::string& player);

void ShowCounterPicture(Game& game, CounterPicture picture);  // in the place of picScore
