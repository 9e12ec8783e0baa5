#include "sound/player/player.h"

#include "core/program_folder.h"
#include "sound/player/wave.h"

Player::Player(const std::string& programFolder, Clock& clock, std::chrono::milliseconds idleTime)
    : programFolder_(programFolder), clock_(clock), output_(idleTime) {}

void Player::PlayEffect(std::string_view name) {
    std::shared_ptr<const Samples> samples = Effect(name);
    const auto lock = output_.Lock();
    output_.Voices().effect = {std::move(samples), 0, SoundClock::now()};
    output_.Wake();
}

// The effect is asked for its end in short steps: it sounds by the clock of the device, which may also go.
void Player::PlayEffectWait(std::string_view name) {
    constexpr std::chrono::milliseconds most(500);  // beyond the effect's own length
    PlayEffect(name);
    int left = MsToWait();
    const auto end = SoundClock::now() + std::chrono::milliseconds(left) + most;
    for (; left > 0 && SoundClock::now() < end; left = MsToWait()) clock_.Wait(std::min(left, 20));
}

int Player::MsToWait() {
    const auto lock = output_.Lock();
    const EffectVoice& effect = output_.Voices().effect;
    return output_.IsHeard(effect) ? effect.Left() : 0;
}

std::shared_ptr<const Samples> Player::Effect(std::string_view name) {
    std::shared_ptr<const Samples>& effect = effects_[std::string(name)];
    if (!effect) {
        Samples samples = LoadWave(ProgramFile(programFolder_, {"LCWAVS", std::string(name) + ".WAV"}));
        if (!samples.empty()) effect = std::make_shared<const Samples>(std::move(samples));
    }
    return effect;
}

std::string Player::Send(const std::string& text) {
    const std::optional<MediaCommand> command = ParseMediaCommand(text);
    if (!command) return "";
    MusicVoice& voice = output_.Voices().music[command->alias];
    if (command->verb == MediaVerb::Open) {
        Open(voice, command->path);
        return "";
    }
    const auto lock = output_.Lock();
    return voice.piece ? CarryOut(*command, voice) : "";
}

// The file is read without the lock, for which the device would have to wait.
void Player::Open(MusicVoice& voice, const std::string& path) {
    if (voice.piece) return;
    std::unique_ptr<Mp3> piece = Mp3::Open(path);
    const auto lock = output_.Lock();
    voice.piece = std::move(piece);
}

std::string Player::CarryOut(const MediaCommand& command, MusicVoice& voice) {
    using enum MusicVoice::State;
    switch (command.verb) {
        case MediaVerb::PlayFromStart:
            voice.piece->Rewind();
            [[fallthrough]];
        case MediaVerb::Play:
            voice.state = Playing;
            output_.Wake();
            break;
        case MediaVerb::Pause:
            if (voice.state == Playing) voice.state = Paused;
            break;
        case MediaVerb::Resume:
            if (voice.state != Paused) break;
            voice.state = Playing;
            output_.Wake();
            break;
        case MediaVerb::Close:
            voice = {};
            break;
        case MediaVerb::Position:
            return std::to_string(voice.piece->Position());
        case MediaVerb::Length:
            return std::to_string(voice.piece->Length());
        case MediaVerb::Volume:
            voice.volume = command.volume;
            break;
        case MediaVerb::Open:
            break;
    }
    return "";
}
