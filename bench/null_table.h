#pragma once

#include <random>

#include "core/end_of_game.h"
#include "core/game.h"
#include "table/main_window.h"
#include "table/table_parts.h"

// A whole game table that shows nothing, waits for nothing and is silent. The moving parts are the real ones.

struct NullView final : TableView {
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

struct NullTimers final : Timers {
    void Start(Timer, int) override {}
    void Stop(Timer) override {}
};

struct NullClock final : Clock {
    void Wait(int) override {}
    double TimeOfDay() override { return 0.5; }
    std::string ShortDate() override { return "1/1/2000"; }
};

// Keeps its sequence when the game re-seeds, so that every run plays the same games.
struct SteadyRandom final : RandomSource {
    explicit SteadyRandom(unsigned seed) : engine(seed) {}
    void Reseed(double) override {}
    double Next() override { return uniform(engine); }

    std::minstd_rand engine;
    std::uniform_real_distribution<double> uniform{0.0, 1.0};
};

struct NullEffects final : SoundEffects {
    void PlayEffect(std::string_view) override {}
    void PlayEffectWait(std::string_view) override {}
};

struct NullMedia final : MediaService {
    std::string Send(const std::string&) override { return {}; }
};

// Finishes at the end of the game.
struct NullDialogs final : Dialogs {
    Answer ShowMessage(const Message&) override { return Answer::Ok; }
    void frmEndGame(Game& game) override { cmdFinish_Click(game); }
    void frmTheWinerIs(Game&) override {}
    void frmScores2(Game&) override {}
    void frmOptions(Game&) override {}
    void frmQuickStart(Game&) override {}
    void frmAbout(Game&) override {}
};

struct NullScores final : TopScores {
    int Record(int, const ScoreRecord&) override { return -1; }
    bool TopScoreFileExists(int) override { return false; }
    std::array<ScoreRecord, scoreRecords> LoadTopScores(int) override { return {}; }
    void DeleteTopScores(int) override {}
};

struct NullShell final : Shell {
    void Open(const std::string&) override {}
    void ShowHelpContents() override {}
    void CloseHelp() override {}
};

struct NullStore final : SettingsStore {
    GameSettings LoadSettings() override { return {}; }
    void SaveSettings(const GameSettings&) override {}
};

struct NullTable {
    explicit NullTable(unsigned seed = 1) : random(seed) { Form_Load(game); }

    NullView view;
    NullTimers timers;
    NullClock clock;
    SteadyRandom random;
    NullEffects effects;
    NullMedia media;
    NullDialogs dialogs;
    NullScores scores;
    NullShell shell;
    NullStore store;
    TableParts parts;
    Game game{{view, timers, clock, random, effects, media, dialogs, scores, shell, store, parts}};
};
