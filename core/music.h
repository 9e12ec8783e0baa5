#pragma once

#include "core/game.h"

// The wrappers of the media commands for the background player.
void StopMusic(Game& game);
void PauseMusic(Game& game);
void ResumeMusic(Game& game);

// The player of the one-shot pieces, which plays a piece only where the last one was closed.
void CloseSong(Game& game);
void PlaySong(Game& game, const std::string& path);
