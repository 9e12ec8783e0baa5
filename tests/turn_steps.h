#pragma once

#include <algorithm>

#include "tests/table_driver.h"

// Turns told step by step: what is done, what it does outside the table and how the table looks then.

// Roll button and lamps; the dice, and which of them are free or held, in capitals where they can be clicked; the open
// boxes of each column; the total; Undo, Redo and Next Player where they are to be had.
inline std::string Look(const Game& game) {
    const TableState& table = game.table;
    constexpr std::array pictures{"up ", "on ", "off "};
    std::string look = pictures[static_cast<std::size_t>(table.roll.picture)];
    if (table.roll.enabled != (table.roll.picture == RollPicture::Up)) look += "but not so ";
    look += std::to_string(table.lamps) + ' ';
    for (int i = 0; i <= game.dice.LastDieIndex; ++i) look += std::to_string(game.dice.DiceValues[i]);
    look += ' ';
    for (const DieState& die : table.dice)
        if (die.shown) look += die.held ? (die.enabled ? 'H' : 'h') : (die.enabled ? 'F' : 'f');
    for (const ColumnCard& column : game.card) {
        int open = 0;
        for (std::size_t row = 0; row < rowCount; ++row) open += column.offered[row] && column.enabled[row];
        look += ' ' + std::to_string(open);
    }
    look += " =" + std::to_string(game.session.Total);
    return look + (table.undo ? " undo" : "") + (table.redo ? " redo" : "") + (table.nextPlayer ? " next" : "");
}

// One text, with the nine frames of a roll drawn together.
inline std::string Shortened(std::vector<std::string> log) {
    const std::vector<std::string> frames(9, "sleep 60");
    for (auto at = log.begin(); (at = std::search(at, log.end(), frames.begin(), frames.end())) != log.end();) {
        *at = "frames";
        at = log.erase(at + 1, at + 9);
    }
    std::string text;
    for (const std::string& entry : log) text += (text.empty() ? "" : ", ") + entry;
    return text;
}

struct Step {
    std::string_view events;  // after "not " one that the table must ignore
    const char* log;
    const char* look = nullptr;  // null: as it was
};

inline void Play(PlayedTable& t, std::string (*see)(const Game&), const std::vector<Step>& steps) {
    std::string look = see(t.game);
    for (const Step& step : steps) {
        SCOPED_TRACE(step.events);
        const bool ignored = step.events.starts_with("not ");
        t.Do(ignored ? "state" : step.events);
        EXPECT_FALSE(ignored && t.Takes(step.events.substr(4)));
        if (step.look) look = step.look;
        EXPECT_EQ(Shortened(t.table.log), step.log);
        EXPECT_EQ(see(t.game), look);
    }
}

inline void Play(PlayedTable& t, const std::vector<Step>& steps) { Play(t, Look, steps); }
