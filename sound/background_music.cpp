#include "sound/background_music.h"

#include "core/leading_number.h"
#include "core/music.h"
#include "core/program_folder.h"
#include "core/timing.h"

namespace {
std::string MusicFile(const Game& game, const char* name) {
    return ProgramFile(game.session.AppPath, {"BGMusic", name});
}
}  // namespace

void OpenMusic(Game& game, const std::string& path) { game.media.Send("open " + path + " type MPEGVideo alias myMP3"); }

int MusicStatus(Game& game, const std::string& command) {
    const std::string answer = game.media.Send(command);
    game.media.Send("setaudio myMP3 Volume to " + std::to_string(game.settings.BGMusicVolume));
    return LeadingNumber(answer);
}

void Timer3_Timer(Game& game, BackgroundMusic& music) {
    const int position = MusicStatus(game, "status myMP3 position");
    const int length = MusicStatus(game, "status myMP3 length");
    // No open player answers 0 to both, so this starts the first song too.
    if (position < length) return;
    StopMusic(game);
    const std::string path = MusicFile(game, music.SecondSongNext ? "SONG02.mp3" : "SONG01.mp3");
    music.SecondSongNext = !music.SecondSongNext;
    OpenMusic(game, path);
    MusicStatus(game, "play myMP3 from 0");
}

void Timer4_Timer(Game& game, BackgroundMusic& music) {
    if (music.IntroTickSeen) {
        CloseSong(game);
        PlaySong(game, MusicFile(game, "Intro.mp3"));
        DisableTimer(game, Timer::Timer4);
    }
    music.IntroTickSeen = !music.IntroTickSeen;
}
