#pragma once

#include "core/game.h"

// The wrappers of the media commands for the background player.
void StopMusic(Game& game);
void PauseMusic(Game& game);
void ResumeMusic(Game& game);
void CloseSong(Game& game);  // the player of the one-shot pieces
