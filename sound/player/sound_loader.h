#pragma once

#include <memory>

#include "sound/player/sound_player.h"

// Sound for the program. What it takes to play is loaded when the first sound is due, since a start should not pay for
// it. Where it can't be loaded the game is silent.
class SoundLoader final : public SoundEffects, public MediaService {
public:
    // The folder ends in the separator; the clock outlives the loader.
    SoundLoader(std::string programFolder, Clock& clock) : programFolder_(std::move(programFolder)), clock_(clock) {}

    void PlayEffect(std::string_view name) override;
    void PlayEffectWait(std::string_view name) override;
    std::string Send(const std::string& command) override;

private:
    void Load();

    std::string programFolder_;
    Clock& clock_;
    bool tried_ = false;
    std::unique_ptr<SoundPlayer> player_;  // null: not loaded
};
