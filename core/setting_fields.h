#pragma once

#include <string_view>
#include <variant>

#include "core/game_settings.h"

struct NumberSetting {
    int GameSettings::*field;
    int low;
    int high;
    int step = 1;                // the values allowed are low, low + step, ... up to high
    bool readFromStart = false;  // a stored text may go on behind its number

    constexpr bool Allows(int number) const { return number >= low && number <= high && (number - low) % step == 0; }
};

struct SettingField {
    std::string_view name;
    std::variant<NumberSetting, bool GameSettings::*, std::string GameSettings::*> kind;
};

// All that the store, a script and its output know of the settings, in the order in which they are written.
inline constexpr SettingField settingFields[] = {
    {"NumberOfDice", NumberSetting{&GameSettings::NumberOfDice, 4, 5, 1, true}},
    {"NumberOfPlayers", NumberSetting{&GameSettings::NumberOfPlayers, 1, 2, 1, true}},
    {"NumberOfColumns", NumberSetting{&GameSettings::NumberOfColumns, 1, 4, 3, true}},
    {"Player1", &GameSettings::Player1},
    {"Player2", &GameSettings::Player2},
    {"SoundEnabled", &GameSettings::SoundEnabled},
    {"hintAllways", &GameSettings::hintAllways},
    {"ShowDialog", &GameSettings::ShowDialog},
    {"ShowSplash", &GameSettings::ShowSplash},
    {"ShowStatusBar", &GameSettings::ShowStatusBar},
    {"ConfirmOnExit", &GameSettings::ConfirmOnExit},
    {"ConfirmQuitGame", &GameSettings::ConfirmQuitGame},
    {"BGMusicEnabled", &GameSettings::BGMusicEnabled},
    {"BGMusicVolume", NumberSetting{&GameSettings::BGMusicVolume, 0, fullVolume}},
    {"ShowGridLines", &GameSettings::ShowGridLines},
};
