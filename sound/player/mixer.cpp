#include "sound/player/mixer.h"

#include <algorithm>

namespace {

void Add(std::span<std::int16_t> out, std::span<const std::int16_t> sound, int volume) {
    for (std::size_t i = 0; i < sound.size(); ++i) {
        const int sum = out[i] + sound[i] * volume / fullVolume;
        out[i] = static_cast<std::int16_t>(std::clamp(sum, INT16_MIN, INT16_MAX));
    }
}

void AddEffect(std::span<std::int16_t> out, EffectVoice& voice) {
    if (!voice.samples) return;
    const std::span rest = std::span(*voice.samples).subspan(voice.next);
    const std::span part = rest.first(std::min(rest.size(), out.size()));
    Add(out, part, fullVolume);
    voice.next += part.size();
    if (part.size() == rest.size()) voice.samples.reset();
}

void AddMusic(std::span<std::int16_t> out, MusicVoice& voice, Samples& decoded) {
    if (voice.state != MusicVoice::State::Playing) return;
    decoded.resize(out.size());
    const std::size_t count = voice.piece->Read(decoded);
    Add(out, std::span(decoded).first(count), voice.volume);
    if (count < out.size()) voice.state = MusicVoice::State::Stopped;
}

}  // namespace

int EffectVoice::Left() const {
    constexpr std::size_t samplesPerSecond = std::size_t{framesPerSecond} * samplesPerFrame;
    return samples ? static_cast<int>((samples->size() - next) * 1000 / samplesPerSecond) + 1 : 0;
}

bool Mixer::Sounds() const {
    const auto plays = [](const MusicVoice& voice) { return voice.state == MusicVoice::State::Playing; };
    return effect.samples || std::any_of(music.begin(), music.end(), plays);
}

void Mixer::Fill(std::span<std::int16_t> out) {
    std::fill(out.begin(), out.end(), std::int16_t{0});
    AddEffect(out, effect);
    for (MusicVoice& voice : music) AddMusic(out, voice, decoded);
}
