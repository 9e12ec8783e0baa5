#pragma once

#include <string_view>

class SoundEffects {
public:
    virtual ~SoundEffects() = default;
    virtual void PlayEffect(std::string_view name) = 0;      // returns at once
    virtual void PlayEffectWait(std::string_view name) = 0;  // returns when the sound has ended
};
