#pragma once

#include <cstdint>

#include "core/end_of_game.h"
#include "core/silent_ports.h"
#include "table/main_window.h"
#include "table/table_parts.h"

// Keeps its sequence when the game re-seeds, so that every run plays the same games. Cheap, for a game asks for some
// thousand numbers, and it is the game that is measured.
struct SteadyRandom final : RandomSource {
    explicit SteadyRandom(unsigned seed) : state(seed) {}
    void Reseed(double) override {}
    double Next() override {
        state = state * 6364136223846793005U + 1442695040888963407U;
        return static_cast<double>(state >> 11) * 0x1p-53;
    }

    std::uint64_t state;
};

struct FinishingDialogs final : SilentDialogs {
    void frmEndGame(Game& game) override { cmdFinish_Click(game); }
};

// A whole game table that shows nothing, waits for nothing and is silent. The moving parts are the real ones.
struct NullTable {
    explicit NullTable(unsigned seed = 1) : random(seed) { Form_Load(game); }

    SilentView view;
    SilentTimers timers;
    SilentClock clock;
    SteadyRandom random;
    SilentEffects effects;
    SilentMedia media;
    FinishingDialogs dialogs;
    SilentScores scores;
    SilentShell shell;
    SilentStore store;
    TableParts parts;
    Game game{{view, timers, clock, random, effects, media, dialogs, scores, shell, store, parts}};
};
