#pragma once

#include <unordered_map>

#include "sound/player/output.h"
#include "sound/player/sound_player.h"

// Sounds through SDL, which brings the device and the wave files, and through mpg123. SDL2_mixer would bring both, but
// plays one piece of music at a time, at one of 128 volumes, and loses its place when the device closes.
class Player final : public SoundPlayer {
public:
    Player(const std::string& programFolder, Clock& clock,
           std::chrono::milliseconds idleTime = std::chrono::seconds(5));

    void PlayEffect(std::string_view name) override;
    void PlayEffectWait(std::string_view name) override;
    std::string Send(const std::string& text) override;

private:
    std::shared_ptr<const Samples> Effect(std::string_view name);
    int MsToWait();
    void Open(MusicVoice& voice, const std::string& path);
    std::string CarryOut(const MediaCommand& command, MusicVoice& voice);

    std::string programFolder_;
    Clock& clock_;
    std::unordered_map<std::string, std::shared_ptr<const Samples>> effects_;  // those that have been played
    Output output_;
};
