#pragma once

#include <condition_variable>
#include <mutex>
#include <thread>

#include "sound/player/mixer.h"

// The sound device. A thread of its own opens it when something is to sound and closes it when nothing has been for a
// while, so that neither a slow device holds the game up nor an open one wakes it. A device that can't be had or has
// gone is tried again at the next Wake, and every few seconds as long as music waits for it.
class Output {
public:
    explicit Output(std::chrono::milliseconds idleTime);  // how long the device stays open when nothing sounds
    ~Output();
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;

    // The mixer belongs to whoever holds the lock. Only the game's thread opens and closes a piece of music, and may
    // ask without the lock whether there is one.
    std::unique_lock<std::mutex> Lock() { return std::unique_lock(shared_->mutex); }
    Mixer& Voices() { return shared_->mixer; }

    // With the lock held: there is something new to sound.
    void Wake() { shared_->changed.notify_all(); }

    // With the lock held: whether an effect is heard, or may be in a moment.
    bool IsHeard(const EffectVoice& effect) const;

private:
    enum class Device { Closed, Opening, Open };

    // The thread holds it too: should a sound server not answer, the program ends without waiting for the thread.
    struct Shared {
        std::mutex mutex;
        std::condition_variable changed;
        Mixer mixer;
        Device device = Device::Closed;
        bool failed = false;           // the last attempt to open the device
        SoundClock::time_point alive;  // when the device began to open, or last asked for samples
        bool leave = false, left = false;
    };

    static void Serve(const std::shared_ptr<Shared>& shared, std::chrono::milliseconds idleTime);
    static void KeepOpen(Shared& shared, std::unique_lock<std::mutex>& lock, unsigned id,
                         std::chrono::milliseconds idleTime);
    static unsigned OpenDevice(Shared& shared);
    static void Fill(void* shared, unsigned char* stream, int length);

    std::shared_ptr<Shared> shared_ = std::make_shared<Shared>();
    std::thread thread_;
};
