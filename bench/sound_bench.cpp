// How long after its call an effect begins to sound: the first of a process, for which what it takes to play is loaded
// and the device opened; one while the device is open; and one for which the device opens again. SDL's disk driver
// stands for the device, at the pace of a real one, and writes into a pipe. sound_bench PROGRAM_FOLDER

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "core/silent_ports.h"
#include "sound/player/sound_loader.h"

namespace {

using Steady = std::chrono::steady_clock;
using namespace std::chrono_literals;

constexpr const char* effect = "holdDice";
constexpr auto untilItEnds = 700ms;     // the device stays open
constexpr auto untilItCloses = 6500ms;  // it does not, since nothing has sounded for 5 s
constexpr auto patience = 5000ms;
constexpr int opened = 20, reopened = 5;
constexpr double bufferMs = 1000.0 * 512 / 44100;

class Device {
public:
    Device() {
        if (mkfifo(path_.c_str(), 0600) == 0) pipe_ = open(path_.c_str(), O_RDWR);  // does not end with its writer
        if (pipe_ < 0) throw std::runtime_error("no pipe " + path_.string());
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
        const auto end = Steady::now() + patience;
        while (std::ranges::count(samples, 0) == std::ssize(samples)) {
            pollfd waiting{pipe_, POLLIN, 0};
            const bool came = poll(&waiting, 1, static_cast<int>(patience / 1ms)) > 0;
            if (!came || Steady::now() > end || read(pipe_, samples.data(), sizeof samples) <= 0)
                throw std::runtime_error("nothing is heard");
        }
    }
    // Passes over what comes meanwhile. A full pipe would hold up who writes.
    void Skip(Steady::duration time) const {
        std::array<char, 65536> bytes{};
        fcntl(pipe_, F_SETFL, O_NONBLOCK);
        for (const auto end = Steady::now() + time; Steady::now() < end; std::this_thread::sleep_for(20ms))
            while (read(pipe_, bytes.data(), bytes.size()) > 0) continue;
        fcntl(pipe_, F_SETFL, 0);
    }

private:
    std::filesystem::path path_ = std::filesystem::temp_directory_path() / ("sound_bench." + std::to_string(getpid()));
    int pipe_ = -1;
};

double MsUntilHeard(SoundLoader& sound, const Device& device, Steady::duration rest) {
    const auto begin = Steady::now();
    sound.PlayEffect(effect);
    device.Hear();
    const std::chrono::duration<double, std::milli> ms = Steady::now() - begin;
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

int main(int argc, char** argv) try {
    if (argc != 2) throw std::runtime_error("sound_bench PROGRAM_FOLDER");
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
} catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
}
