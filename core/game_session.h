#pragma once

#include <array>
#include <string>

#include "core/scorecard.h"

inline constexpr int rollsPerTurn = 3;

// The live state of the process. The initial values are those at process start; nothing here reaches the disk.
struct GameSession {
    // The application, across games.
    std::string AppPath;  // the program's folder, ending in the platform's separator
    bool SoundOn = false;
    bool GameInProgress = false;
    bool RedoInProgress = false;
    bool OpenedFromGame = false;
    bool SettingsChanged = false;
    bool PlayPressed = false;
    int NewGameAnswer = 0;  // 1 OK, 2 Cancel, 0 not asked
    bool EndGameFinish = false;
    bool EndGameSeen = false;

    // The turn.
    int RollCount = 0;      // rolls made in this turn, 0 to rollsPerTurn
    int PrevRollCount = 0;  // RollCount when the last box was written or announced
    bool FirstRollPending = false;
    bool RollAllowed = false;
    int CurrentRow = 0;
    ScoreColumn CurrentColumn = ScoreColumn::None;
    ScoreColumn PrevColumn = ScoreColumn::None;
    bool Announced = false;
    bool AnnounceWriting = false;
    bool AnnounceResume = false;
    bool RedoAnnounceTwice = false;

    // The board on the table.
    int NextDownRow = 0;  // 0 to 13; 13 means the column is full
    int NextUpRow = 0;    // 12 down to -1; -1 means the column is full. The load of the window sets 12
    int BoxesFilled = 0;
    int RowScore = 0;
    bool ComputeOnly = false;

    // Hints.
    bool HintsOn = false;
    bool HintsRequested = false;
    bool MayHint = false;
    bool TipsDirty = false;
    bool RowHighlighted = false;

    bool GameOverShown = false;
    std::string GameOverText;

    // Totals of the player on the table, and the grand total of the one who is parked.
    int Total = 0;
    int PrevTotal = 0;
    int PrevTotal2 = 0;
    int OtherTotal = 0;
    ByRow<int> HintSnapshot{};
    ByColumn<bool> BonusGiven;
    int RandUpperCount = 0;
    int OblgUpperCount = 0;
    std::array<bool, 4> SecondPlayerOnMove{};  // always equal
    bool SecondBoardReady = false;
    bool CounterRan = false;
    bool CounterSkip = false;
    int FinalScore1 = 0;
    int FinalScore2 = 0;

    // The last finished game in the top-score table.
    bool ShowScoreResult = false;
    int LastScorePosition = 0;  // 1 to 20, -1 when it did not reach the table
    int LastFinalScore = 0;
};
