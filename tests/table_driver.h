#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>
#include <random>

#include "script/events.h"
#include "tests/open_events.h"
#include "tests/readable.h"

// A table without a window, in a folder of its own, under the hands of a player. Its inputs are those of a table
// script.
struct PlayedTable : ScriptTable {
    explicit PlayedTable(const GameSettings& settings = {}) {
        QDir(folder.path()).mkdir("scores");
        table.UseFolder(folder.path().toStdString());
        game.settings = settings;
        Do("start");
    }

    // Events with ';' between them, each of which the table must take; the log is then of these alone.
    void Do(std::string_view events) {
        table.log.clear();
        for (std::size_t first = 0, end = 0; first < events.size(); first = end + 1) {
            end = std::min(events.find(';', first), events.size());
            EXPECT_TRUE(Takes(events.substr(first, end - first))) << "ignored: " << events.substr(first, end - first);
        }
    }

    // "roll" and "next" may name the faces that their dice will show: "roll 1 1 2 3 5 6".
    bool Takes(std::string_view event) {
        ScriptLine line(event);
        if (line.Command() == "roll" || line.Command() == "next") {
            for (std::size_t i = 1; i < line.words.size(); ++i) table.random.faces.push_back(line.words[i][0] - '0');
            line.words.resize(1);
        }
        return RunEvent(*this, line);
    }

    std::vector<std::string> OpenEvents() const { return ::OpenEvents(game); }

    // Plays at random until the game is over and calls after(event) each time.
    template <typename After>
    void PlayGame(unsigned seed, After after) {
        for (std::mt19937 random(seed); !game.session.GameOverShown;) {
            const std::vector<std::string> open = OpenEvents();
            const std::string& event = open[random() % open.size()];
            Do(event);
            after(event);
        }
    }

    QTemporaryDir folder;
    Game& game = table.game;
};
