#pragma once

#include "core/ports/clock.h"
#include "core/ports/dialogs.h"
#include "core/ports/media_service.h"
#include "core/ports/moving_parts.h"
#include "core/ports/random_source.h"
#include "core/ports/settings_store.h"
#include "core/ports/shell.h"
#include "core/ports/sound_effects.h"
#include "core/ports/timers.h"
#include "core/ports/top_scores.h"
#include "table/table_view.h"

// What the core needs of the rest of the program. The core calls; app, script and tests supply.
struct Ports {
    TableView& view;
    Timers& timers;
    Clock& clock;
    RandomSource& random;
    SoundEffects& effects;
    MediaService& media;
    Dialogs& dialogs;
    TopScores& scores;
    Shell& shell;
    SettingsStore& store;
    MovingParts& parts;
};
