#include <system_error>

#include "sound/player/player.h"

extern "C" __attribute__((visibility("default"))) SoundPlayer* LuckyCupMakeSoundPlayer(const std::string& programFolder,
                                                                                       Clock& clock) try {
    return new Player(programFolder, clock);
} catch (const std::system_error&) {
    return nullptr;  // no thread to be had
}
