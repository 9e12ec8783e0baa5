#pragma once

#include <string>

#include "core/scorecard.h"

inline constexpr int fullVolume = 1000, defaultVolume = 500;

// The options, one field for each stored value. The initial values are those of a first run.
struct GameSettings {
    int NumberOfDice = 5;  // the highest die index: 4 plays five dice, 5 plays six
    int NumberOfPlayers = 1;
    int NumberOfColumns = 4;  // 1: thirteen boxes, 4: fifty-two
    std::string Player1 = "Player 1";
    std::string Player2 = "Player 2";
    bool SoundEnabled = true;
    bool hintAllways = true;
    bool ShowDialog = true;
    bool ShowSplash = false;
    bool ShowStatusBar = true;  // counts in one-player games only
    bool ConfirmOnExit = true;
    bool ConfirmQuitGame = true;
    bool BGMusicEnabled = false;
    int BGMusicVolume = defaultVolume;  // 0 to fullVolume
    bool ShowGridLines = true;

    bool operator==(const GameSettings&) const = default;
};

inline bool FiveDice(const GameSettings& settings) { return settings.NumberOfDice == 4; }
inline bool FourColumns(const GameSettings& settings) { return settings.NumberOfColumns == 4; }
inline bool TwoPlayers(const GameSettings& settings) { return settings.NumberOfPlayers == 2; }
inline int BoardSize(const GameSettings& settings) { return FourColumns(settings) ? boxCount : rowCount; }
