#include "sound/player/wave.h"

#include <SDL.h>

#include <cstring>
#include <filesystem>

namespace {

Samples Convert(const SDL_AudioSpec& format, const Uint8* wave, Uint32 length) {
    SDL_AudioCVT plan;
    if (length == 0 || SDL_BuildAudioCVT(&plan, format.format, format.channels, format.freq, AUDIO_S16SYS,
                                         samplesPerFrame, framesPerSecond) < 0)
        return {};
    std::vector<Uint8> bytes(length * static_cast<std::size_t>(plan.len_mult));
    std::memcpy(bytes.data(), wave, length);
    plan.buf = bytes.data();
    plan.len = static_cast<int>(length);
    plan.len_cvt = plan.len;
    if (plan.needed && SDL_ConvertAudio(&plan) < 0) return {};
    Samples samples(static_cast<std::size_t>(plan.len_cvt) / sizeof(std::int16_t));
    if (!samples.empty()) std::memcpy(samples.data(), bytes.data(), samples.size() * sizeof(std::int16_t));
    return samples;
}

}  // namespace

Samples LoadWave(const std::string& path) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) return {};  // a pipe would keep the game waiting
    SDL_AudioSpec format;
    Uint8* wave = nullptr;
    Uint32 length = 0;
    if (!SDL_LoadWAV(path.c_str(), &format, &wave, &length)) return {};
    Samples samples = Convert(format, wave, length);
    SDL_FreeWAV(wave);
    return samples;
}
