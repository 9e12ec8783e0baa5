#pragma once

#include "core/ports.h"

// Stands where no sound player is built in: every effect is over at once and no piece ever plays.
class SilentSound final : public SoundEffects, public MediaService {
public:
    void PlayEffect(std::string_view) override {}
    void PlayEffectWait(std::string_view) override {}
    std::string Send(const std::string&) override { return ""; }
};
