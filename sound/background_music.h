#pragma once

#include <string>

#include "core/game.h"

struct BackgroundMusic {
    bool SecondSongNext = false;
    bool IntroTickSeen = false;
};

void OpenMusic(Game& game, const std::string& path);
int MusicStatus(Game& game, const std::string& command);  // 0 when the answer is no number

void Timer3_Timer(Game& game, BackgroundMusic& music);  // watches the song and starts the next one
void Timer4_Timer(Game& game, BackgroundMusic& music);  // holds the intro back by two ticks
