#pragma once

#include <string>
#include <vector>

#include "core/game.h"

// Every input that plays on and that the table would take now, as a line of a table script.
inline std::vector<std::string> OpenEvents(const Game& game) {
    std::vector<std::string> open;
    if (game.table.roll.enabled) open.push_back(game.table.nextPlayer ? "next" : "roll");
    if (game.table.timers[Timer::tmrCounter].enabled) open.push_back("tick tmrCounter");
    for (std::size_t i = 0; i < maxDice; ++i)
        if (game.table.dice[i].shown && game.table.dice[i].enabled) open.push_back("die " + std::to_string(i));
    for (std::size_t box = 0; box < 4 * rowCount; ++box) {
        const ColumnCard& column = game.card.values[box / rowCount];
        if (column.offered[box % rowCount] && column.enabled[box % rowCount])
            open.push_back("box " + std::to_string(box / rowCount + 1) + ' ' + std::to_string(box % rowCount));
    }
    return open;
}
