#pragma once

#include "core/dice_set.h"
#include "core/game_session.h"
#include "core/game_settings.h"
#include "core/parked_board.h"
#include "core/ports.h"
#include "core/scorecard.h"
#include "core/table_state.h"

// One game table: its records and the ports behind them. The ports outlive it.
struct Game : Ports {
    explicit Game(const Ports& ports) : Ports(ports) {}

    GameSettings settings;
    GameSession session;
    DiceSet dice;
    Scorecard card;
    TableState table;
    ParkedBoard parked;
    ByRow<int> TipRestore{};  // the tips that Undo shows again; 0 for none
};
