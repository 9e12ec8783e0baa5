#pragma once

#include <string_view>

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
bool RowOffered(const Game& game, int row);                         // in any column
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
void SetTitleFor(Game& game, const std::string& player);  // "Lucky Cup - " and the name
bool TitleNames(const Game& game, const std::string& player);
void SetWindowHeight(Game& game, int twips);
void SetPanelText(Game& game, int k, std::string text);
void SetPanelLayout(Game& game, int k, int width, bool visible);
void SetStatusBarVisible(Game& game, bool on);

void SetUndoEnabled(Game& game, bool on);
void SetRedoEnabled(Game& game, bool on);
void SetHintButtonEnabled(Game& game, bool on);
void ShowNextPlayer(Game& game, bool on);
void ShowNextBoardButton(Game& game, bool visible, bool enabled);
void SetShowBoardCaption(Game& game, const std::string& name);
std::string ShowBoardCaption(const std::string& name);

void EnableTimer(Game& game, Timer timer);  // a running timer just runs on
void DisableTimer(Game& game, Timer timer);
void SetTimerInterval(Game& game, Timer timer, int ms);

void PlayEffect(Game& game, std::string_view name);  // if SoundOn is set
