#pragma once

#include <string_view>

#include "core/indexed.h"

// The seven timers of the main window.
enum class Timer { tmrRollDice, tmrTimeElapsed, tmrGameOver, tmrAnimation, tmrCounter, Timer3, Timer4 };
inline constexpr std::array allTimers{Timer::tmrRollDice,  Timer::tmrTimeElapsed, Timer::tmrGameOver,
                                      Timer::tmrAnimation, Timer::tmrCounter,     Timer::Timer3,
                                      Timer::Timer4};
template <typename T>
using ByTimer = Indexed<T, allTimers.size(), Timer>;

inline constexpr ByTimer<std::string_view> timerNames{
    {"tmrRollDice", "tmrTimeElapsed", "tmrGameOver", "tmrAnimation", "tmrCounter", "Timer3", "Timer4"}};
