#pragma once

#include "core/ports.h"

// Ports that do nothing. Tests, tools and the headless table derive from them and answer only what they care for.

struct SilentView : TableView {
    void SetRollPicture(RollPicture) override {}
    void SetRollEnabled(bool) override {}
    void SetRollVisible(bool) override {}
    void ShowDieFace(int, int) override {}
    void ShowRollingFace(int, int) override {}
    void ShowDieFree(int) override {}
    void ShowDieHeld(int) override {}
    void HideDie(int) override {}
    void EnableDie(int, bool) override {}
    void SetLamps(int) override {}
    void ShowBoxButton(ScoreColumn, int, bool) override {}
    void EnableBoxButton(ScoreColumn, int, bool) override {}
    void SetBoxPicture(int, bool) override {}
    void SetBoxText(ScoreColumn, int, const std::string&) override {}
    void SetTotalText(ScoreColumn, TotalRow, const std::string&) override {}
    void SetTipText(int, const std::string&) override {}
    void ShowTipColumn(bool) override {}
    void HighlightRowLabel(int) override {}
    void ResetRowLabel(int) override {}
    void SetFrameHeight(int) override {}
    void LayOut(int, int) override {}
    void SetTitle(std::string_view) override {}
    void SetWindowHeight(int) override {}
    void MinimizeWindow() override {}
    void SetPanelText(int, std::string_view) override {}
    void SetPanelLayout(int, int, bool) override {}
    void SetStatusBarVisible(bool) override {}
    void SetUndoEnabled(bool) override {}
    void SetRedoEnabled(bool) override {}
    void SetHintButtonEnabled(bool) override {}
    void ShowChoice(MenuChoice, bool) override {}
    void EnableCheckedHintEntries(bool, bool) override {}
    void ShowNextPlayer(bool) override {}
    void ShowNextBoardButton(bool, bool) override {}
    void SetShowBoardCaption(std::string_view) override {}
    void CopyPicture(CounterPicture, CounterPicture) override {}
    void DrawDigit(CounterPicture, int, int) override {}
    void DrawMinus(CounterPicture, int) override {}
    void EraseDigit(int) override {}
    void RefreshCounter() override {}
    void BlankScoreCounter(CounterPicture) override {}
};

struct SilentTimers : Timers {  // nothing ticks by itself
    void Start(Timer, int) override {}
    void Stop(Timer) override {}
};

struct SilentClock : Clock {  // waits are over at once
    void Wait(int) override {}
    double TimeOfDay() override { return 0; }
    std::string ShortDate() override { return "2026-01-01"; }
};

struct SilentEffects : SoundEffects {
    void PlayEffect(std::string_view) override {}
    void PlayEffectWait(std::string_view) override {}
};

struct SilentMedia : MediaService {
    std::string Send(const std::string&) override { return ""; }
};

struct SilentDialogs : Dialogs {  // every window closes as it opens, every question is answered with OK
    Answer ShowMessage(const Message&) override { return Answer::Ok; }
    void frmWelcome(Game&) override {}
    void frmEndGame(Game&) override {}
    void frmTheWinerIs(Game&) override {}
    void frmScores2(Game&) override {}
    void frmOptions(Game&) override {}
    void frmQuickStart(Game&) override {}
    void frmAbout(Game&) override {}
    void frmSplash(Game&) override {}
    void frmLuckyCup(Game&) override {}
    void UnloadQuickStart() override {}
    void UnloadSplash() override {}
};

struct SilentScores : TopScores {  // no file, and no score gets in
    int Record(int, const ScoreRecord&) override { return -1; }
    bool TopScoreFileExists(int) override { return false; }
    ScoreTable LoadTopScores(int) override { return {}; }
    void DeleteTopScores(int) override {}
};

struct SilentShell : Shell {
    void Open(const std::string&) override {}
    void ShowHelpContents() override {}
    void CloseHelp() override {}
};

struct SilentStore : SettingsStore {
    GameSettings LoadSettings() override { return {}; }
    void SaveSettings(const GameSettings&) override {}
};
