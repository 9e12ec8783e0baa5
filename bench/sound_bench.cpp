// How long after its call an effect begins to sound: the first of a process, for which what it takes to play is loaded
// and the device opened; one while the device is open; and one for which the device opens again. SDL's disk driver
// stands for the device, at the pace of a real one, and writes into a pipe. sound_bench PROGRAM_FOLDER

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <thread>
#include <vector>

#include "core/silent_ports.h"
#include "sound/player/sound_loader.h"

namespace {

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

constexpr const char* effect = "holdDice";
constexpr auto untilItEnds = 700ms;     // the device stays open
constexpr auto untilItCloses = 6500ms;  // the device does not
constexpr int opened = 20, reopened = 5;
constexpr double bufferMs = 1000.0 * 512 / 44100;

class Device {
public:
    Device() {
        mkfifo(path_.c_str(), 0600);
        pipe_ = open(path_.c_str(), O_RDWR);  // it does not end when the writer closes
        setenv("SDL_AUDIODRIVER", "disk", 1);
        setenv("SDL_DISKAUDIOFILE", path_.c_str(), 1);
    }
    ~Device() {
        close(pipe_);
        std::filesystem::remove(path_);
    }
    Device(const Device&) = delete;
    Device& operator=(const Device&) = delete;

    // Waits for something that is not silence.
    void Hear() const {
        std::array<std::int16_t, 1024> samples{};
        while (std::ranges::count(samples, 0) == std::ssize(samples))
            if (read(pipe_, samples.data(), sizeof samples) <= 0) std::abort();
    }
    // Passes over what comes meanwhile. A full pipe would hold up who writes.
    void Skip(Clock::duration time) const {
        std::array<char, 65536> bytes{};
        fcntl(pipe_, F_SETFL, O_NONBLOCK);
        for (const auto end = Clock::now() + time; Clock::now() < end; std::this_thread::sleep_for(20ms))
            while (read(pipe_, bytes.data(), bytes.size()) > 0) continue;
        fcntl(pipe_, F_SETFL, 0);
    }

private:
    std::filesystem::path path_ = std::filesystem::temp_directory_path() / ("sound_bench." + std::to_string(getpid()));
    int pipe_;
};

double MsUntilHeard(SoundLoader& sound, const Device& device, Clock::duration rest) {
    const auto begin = Clock::now();
    sound.PlayEffect(effect);
    device.Hear();
    const std::chrono::duration<double, std::milli> ms = Clock::now() - begin;
    device.Skip(rest);
    return ms.count();
}

void Report(const char* what, std::vector<double> ms) {
    std::ranges::sort(ms);
    const double median = ms[ms.size() / 2];
    std::printf("%-24s%3zu times, median %5.1f ms, most %5.1f ms, %4.1f of a buffer\n", what, ms.size(), median,
                ms.back(), median / bufferMs);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("sound_bench PROGRAM_FOLDER\n", stderr);
        return 2;
    }
    const std::string folder = std::string(argv[1]) + '/';
    const Device device;
    SilentClock clock;
    SoundLoader sound(folder, folder, clock);
    Report("first of the process", {MsUntilHeard(sound, device, untilItEnds)});
    std::vector<double> open, anew;
    for (int i = 0; i < opened; ++i) open.push_back(MsUntilHeard(sound, device, untilItEnds));
    Report("device open", open);
    device.Skip(untilItCloses);
    for (int i = 0; i < reopened; ++i) anew.push_back(MsUntilHeard(sound, device, untilItCloses));
    Report("device closed meanwhile", anew);
    return 0;
}
