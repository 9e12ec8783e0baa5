#pragma once

#include "core/ports/clock.h"
#include "core/ports/media_service.h"
#include "core/ports/sound_effects.h"

// What the plug-in of this folder makes for the program.
class SoundPlayer : public SoundEffects, public MediaService {};

// The one function of the plug-in. The folder ends in the separator; the clock outlives the player, which belongs to
// the caller. Null where no sound can be made.
using MakeSoundPlayer = SoundPlayer*(const std::string& programFolder, Clock& clock);
inline constexpr char makeSoundPlayer[] = "LuckyCupMakeSoundPlayer";
