#pragma once

#include <cstdint>
#include <vector>

// What the mixer works in: signed samples of 16 bits, left and right in turn.
using Samples = std::vector<std::int16_t>;

inline constexpr int framesPerSecond = 44100;
inline constexpr int samplesPerFrame = 2;
