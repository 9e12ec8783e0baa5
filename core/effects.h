#pragma once

#include <string_view>

#include "core/game.h"

void PlayEffect(Game& game, std::string_view name);  // if SoundOn is set
