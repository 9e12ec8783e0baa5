#pragma once

#include <memory>

#include "sound/player/sound_player.h"

// Sound for the program. What it takes to play is loaded when the first sound is due, since a start should not pay for
// it. Where it can't be loaded the game is silent.
class SoundLoader final : public SoundEffects, public MediaService {
public:
    // The plug-in lies in the first folder, what it plays below the second; both end in the separator. The clock
    // outlives the loader.
    SoundLoader(std::string plugInFolder, std::string programFolder, Clock& clock)
        : plugInFolder_(std::move(plugInFolder)), programFolder_(std::move(programFolder)), clock_(clock) {}

    void PlayEffect(std::string_view name) override;
    void PlayEffectWait(std::string_view name) override;
    std::string Send(const std::string& command) override;

private:
    void Load();

    std::string plugInFolder_, programFolder_;
    Clock& clock_;
    bool tried_ = false;
    std::unique_ptr<SoundPlayer> player_;  // null: not loaded
};
