#pragma once

#include <string_view>

#include "core/game_settings.h"

// Sets the field of that name from its text. Throws BadArgument when there is no such field or the text lies outside
// its domain, and then changes nothing.
void SetSetting(GameSettings& settings, std::string_view name, std::string_view value);
