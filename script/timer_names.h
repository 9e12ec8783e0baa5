#pragma once

#include <array>
#include <string_view>

#include "core/table_state.h"

// In the order of the enumeration.
inline constexpr std::array<std::string_view, timerCount> timerNames{
    "tmrRollDice", "tmrTimeElapsed", "tmrGameOver", "tmrAnimation", "tmrCounter", "Timer3", "Timer4"};
