#pragma once

#include "core/game_settings.h"

class SettingsStore {
public:
    virtual ~SettingsStore() = default;
    virtual GameSettings LoadSettings() = 0;
    virtual void SaveSettings(const GameSettings& settings) = 0;
};
