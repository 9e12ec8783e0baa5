#pragma once

#include <string>

#include "sound/player/samples.h"

// The sound of a wave file, as the mixer wants it. Empty when there is no such file or no sound in it; of a file that
// is cut off what is left of it.
Samples LoadWave(const std::string& path);
