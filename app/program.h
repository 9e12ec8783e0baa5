#pragma once

#include "app/desktop_shell.h"
#include "app/program_files.h"
#include "app/seeded_random.h"
#include "core/game.h"
#include "dialogs/window/qt_dialogs.h"
#include "kit/held_keys.h"
#include "kit/qt_clock.h"
#include "kit/qt_timers.h"
#include "kit/size_keys.h"
#include "menus/menu_style.h"
#include "sound/background_music.h"
#include "sound/player/sound_loader.h"
#include "store/settings_store.h"
#include "store/size_store.h"
#include "store/top_score_files.h"
#include "table/table_parts.h"
#include "table/window/frm_lucky_cup.h"

// All that stands behind one table, each made before what it is handed to.
struct Program {
    // The pictures outlive the program.
    Program(const ProgramFiles& files, Art& pictures);
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    // Loads the main window and shows it; once.
    void ShowMainWindow();
    // Loads the settings and opens the first window. False: the player has left it, and no window is open.
    bool Start();

    Art& art;
    EventGate gate;
    MenuStyle menuStyle{art};
    frmLuckyCup window{gate, art};
    SizeKeys sizeKeys{window, StoreSize};
    HeldKeys heldKeys;
    QtTimers timers{gate};
    QtClock clock;
    SeededRandom random;
    SoundLoader sound;
    QtDialogs dialogs{window, gate, art};
    TopScoreFiles scores;
    DesktopShell shell;
    RegistrySettings store;
    TableParts parts;
    BackgroundMusic music;
    Game game{Ports{window, timers, clock, random, sound, sound, dialogs, scores, shell, store, parts}};
};
