#include "sound/player/player.h"

extern "C" __attribute__((visibility("default"))) SoundPlayer* LuckyCupMakeSoundPlayer(const std::string& programFolder,
                                                                                       Clock& clock) {
    return new Player(programFolder, clock);
}
