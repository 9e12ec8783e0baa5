#pragma once

#include "core/game.h"
#include "script/headless_dialogs.h"
#include "script/headless_ports.h"
#include "script/headless_view.h"
#include "sound/background_music.h"
#include "table/table_parts.h"

// A whole game with no window: waits return at once, sounds and music are only logged, timers tick when they are told
// to and dialogs take their answers from a queue. Before Load the settings may be changed.
struct HeadlessTable {
    // folder: the program's, in which the score files lie in the folder "scores".
    explicit HeadlessTable(const GameSettings& settings = {}, const std::string& folder = ".");
    HeadlessTable(const HeadlessTable&) = delete;
    HeadlessTable& operator=(const HeadlessTable&) = delete;

    void UseFolder(const std::string& folder);
    void Load();             // the load of the main window; once
    void Tick(Timer timer);  // one tick of a timer that is on

    EventLog log;
    HeadlessView view{log};
    SilentTimers timers;
    HeadlessClock clock{log};
    HeadlessRandom random;
    HeadlessEffects effects{log};
    HeadlessMedia media{log};
    HeadlessDialogs dialogs{log};
    HeadlessScores scores{log};
    SilentShell shell;
    HeadlessStore store{log};
    TableParts parts;
    BackgroundMusic music;
    Game game;
};
