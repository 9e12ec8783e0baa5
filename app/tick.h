#pragma once

#include "core/game.h"
#include "sound/background_music.h"
#include "table/table_parts.h"

// One tick of one of the seven timers of the main window.
void Tick(Game& game, TableParts& parts, BackgroundMusic& music, Timer timer);
