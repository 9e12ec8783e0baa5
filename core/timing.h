#pragma once

#include "core/game.h"

// The timers of the window: the record of each and the clockwork behind it.
void EnableTimer(Game& game, Timer timer);  // a running timer just runs on
void DisableTimer(Game& game, Timer timer);
void SetTimerInterval(Game& game, Timer timer, int ms);
