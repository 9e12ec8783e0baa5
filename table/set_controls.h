#pragma once

#include "core/game.h"

// Lays the table out for the variant in the settings. Changes neither boxes nor dice values and starts no timer.
void SetControls(Game& game);
