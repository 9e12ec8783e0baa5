#include "core/music.h"

void StopMusic(Game& game) { game.media.Send("close myMP3"); }
void PauseMusic(Game& game) { game.media.Send("pause myMP3"); }
void ResumeMusic(Game& game) { game.media.Send("resume myMP3"); }
void CloseSong(Game& game) { game.media.Send("close song"); }

void PlaySong(Game& game, const std::string& path) {
    game.media.Send("open \"" + path + "\" alias song");
    game.media.Send("play song");
}
