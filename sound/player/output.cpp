#include "sound/player/output.h"

#include <SDL.h>
#include <alsa/asoundlib.h>

#include <algorithm>
#include <span>

using namespace std::chrono_literals;

namespace {

constexpr Uint16 bufferFrames = 512;
constexpr auto patience = 100ms;   // with a device that gives no sign of life
constexpr auto tooLate = 300ms;    // for an effect whose device took so long to open
constexpr auto retryTime = 5s;     // while music waits for a device
constexpr auto lookInterval = 1s;  // at what the device does while it is open

// What ALSA has to say about a missing card would go to the terminal.
void IgnoreAlsaMessage(const char*, int, const char*, int, const char*, ...) {}

void CloseDevice(SDL_AudioDeviceID id) {
    if (id) SDL_CloseAudioDevice(id);
    // Left running it would watch the sound server, and not find another one.
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
}

}  // namespace

Output::Output(std::chrono::milliseconds idleTime) : thread_(Serve, shared_, idleTime) {}

Output::~Output() {
    std::unique_lock lock = Lock();
    shared_->leave = true;
    Wake();
    const bool left = shared_->changed.wait_for(lock, 1s, [this] { return shared_->left; });
    lock.unlock();
    left ? thread_.join() : thread_.detach();
}

bool Output::IsHeard(const EffectVoice& effect) const {
    if (!effect.samples || shared_->failed) return false;
    const auto waitsSince = shared_->device == Device::Closed ? effect.due : shared_->alive;
    return SoundClock::now() - waitsSince < patience;
}

void Output::Serve(const std::shared_ptr<Shared>& shared, std::chrono::milliseconds idleTime) {
    std::unique_lock lock(shared->mutex);
    while (!shared->leave) {
        if (!shared->mixer.Sounds()) {
            shared->changed.wait(lock);
            continue;
        }
        shared->device = Device::Opening;
        shared->alive = SoundClock::now();
        lock.unlock();
        const SDL_AudioDeviceID id = OpenDevice(*shared);
        lock.lock();
        shared->failed = !id;
        EffectVoice& effect = shared->mixer.effect;
        if (!id || SoundClock::now() - effect.due > tooLate) effect.samples.reset();
        const auto opened = SoundClock::now();
        if (id) KeepOpen(*shared, lock, id, idleTime);
        const bool stayedOpen = id && SoundClock::now() - opened > lookInterval;
        shared->device = Device::Closed;  // from here on it takes no more samples
        lock.unlock();
        CloseDevice(id);
        lock.lock();
        if (!stayedOpen && !shared->leave && shared->mixer.Sounds()) shared->changed.wait_for(lock, retryTime);
    }
    SDL_TLSCleanup();  // which SDL does for its own threads only
    shared->left = true;
    shared->changed.notify_all();
}

void Output::KeepOpen(Shared& shared, std::unique_lock<std::mutex>& lock, SDL_AudioDeviceID id,
                      std::chrono::milliseconds idleTime) {
    shared.device = Device::Open;
    shared.alive = SoundClock::now();
    lock.unlock();
    SDL_PauseAudioDevice(id, 0);  // not under the lock, which the device takes inside its own
    lock.lock();
    auto lastSound = SoundClock::now();
    // A device that has been unplugged counts as stopped.
    while (!shared.leave && SDL_GetAudioDeviceStatus(id) != SDL_AUDIO_STOPPED &&
           SoundClock::now() - lastSound < idleTime) {
        shared.changed.wait_for(lock, std::min<std::chrono::milliseconds>(lookInterval, idleTime));
        if (shared.mixer.Sounds()) lastSound = SoundClock::now();
    }
}

SDL_AudioDeviceID Output::OpenDevice(Shared& shared) {
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    SDL_SetHint(SDL_HINT_AUDIO_DEVICE_APP_NAME, "Lucky Cup");
    snd_lib_error_set_handler(IgnoreAlsaMessage);
    if (SDL_InitSubSystem(SDL_INIT_AUDIO) < 0) return 0;
    SDL_AudioSpec wanted{};
    wanted.freq = framesPerSecond;
    wanted.format = AUDIO_S16SYS;
    wanted.channels = samplesPerFrame;
    wanted.samples = bufferFrames;
    wanted.callback = Fill;
    wanted.userdata = &shared;
    return SDL_OpenAudioDevice(nullptr, 0, &wanted, nullptr, 0);
}

void Output::Fill(void* userdata, unsigned char* stream, int length) {
    auto& shared = *static_cast<Shared*>(userdata);
    const std::lock_guard lock(shared.mutex);
    const std::span samples(reinterpret_cast<std::int16_t*>(stream),
                            static_cast<std::size_t>(length) / sizeof(std::int16_t));
    if (shared.device != Device::Open) {
        std::ranges::fill(samples, std::int16_t{0});
        return;
    }
    shared.alive = SoundClock::now();
    shared.mixer.Fill(samples);
}
