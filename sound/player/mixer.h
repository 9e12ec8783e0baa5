#pragma once

#include <chrono>
#include <memory>
#include <span>

#include "sound/media_command.h"
#include "sound/player/mp3.h"
#include "sound/player/samples.h"

using SoundClock = std::chrono::steady_clock;

struct EffectVoice {
    std::shared_ptr<const Samples> samples;  // null: no effect
    std::size_t next = 0;                    // of the samples
    SoundClock::time_point due;              // when it was asked for

    int Left() const;  // ms
};

struct MusicVoice {
    enum class State { Stopped, Playing, Paused };

    std::unique_ptr<Mp3> piece;  // null: closed
    State state = State::Stopped;
    int volume = fullVolume;
};

// What sounds: one effect and a piece of music by each alias, beside each other.
struct Mixer {
    EffectVoice effect;
    Indexed<MusicVoice, 2, MediaAlias> music;

    bool Sounds() const;  // at volume 0 too
    void Fill(std::span<std::int16_t> out);

    Samples decoded;  // of the piece that is being added
};
