#include "table/status_bar.h"

#include "tests/turn_steps.h"

namespace {

// What the panels should read, worked out from the inputs alone.
struct Panels {
    explicit Panels(const GameSettings& played) : settings(played) {
        texts[0] = settings.Player1;
        if (TwoPlayers(settings))
            texts[2] = "0 : 0";
        else
            texts[1] = "Roll the dice";
    }

    void Roll(bool handOver, bool reminded) {
        if (handOver) {
            player = 1 - player;
            texts[0] = player ? settings.Player2 : settings.Player1;
        }
        if (rolls == 0 && filled[player] == 51 && oblg[player] < 13) announced = true;
        if (!reminded) ++rolls;
        texts[1] = rolls == 3 ? "Place your score" : "Place your score or roll the dice";
        if (TwoPlayers(settings)) return;
        texts[3] = "Round " + std::to_string(filled[0] + 1) + (FourColumns(settings) ? " of 52" : " of 13");
    }

    void Write(bool inOblg, int total) {
        if (!TwoPlayers(settings) || inOblg)
            texts[1] = inOblg && rolls == 3 ? "Roll the dice" : "Roll the dice or undo last move";
        rolls = 0;
        announced = false;
        oblg[player] += inOblg;
        totals[player] = total;
        if (TwoPlayers(settings)) texts[2] = std::to_string(totals[0]) + " : " + std::to_string(totals[1]);
        if (++filled[player] == BoardSize(settings)) texts[1] = "";
    }

    // total: of the player on the table after the event.
    void After(const std::string& event, bool reminded, int total) {
        const bool inOblg = event.starts_with("box 4");
        if (event == "roll" || event == "next") Roll(event == "next", reminded);
        if (event.starts_with("box") && inOblg && !announced)
            announced = true;
        else if (event.starts_with("box") || (rolls == 3 && announced))
            Write(announced, total);
    }

    const GameSettings settings;
    std::array<std::string, 5> texts;
    std::array<int, 2> filled{}, oblg{}, totals{};
    std::size_t player = 0;
    int rolls = 0;
    bool announced = false;
};

TEST(StatusBar, ReadsRightAfterEveryEventOfAGame) {
    for (int columns : {1, 4})
        for (int players : {1, 2})
            for (unsigned seed = 1; seed <= 10; ++seed) {
                PlayedTable t({.NumberOfPlayers = players, .NumberOfColumns = columns, .Player2 = "Zoe"});
                Panels panels(t.game.settings);
                t.PlayGame(seed, [&](const std::string& event) {
                    const bool reminded = !t.table.log.empty() && t.table.log[0].starts_with("message Reminder");
                    panels.After(event, reminded, t.game.session.Total);
                    for (int k = 1; k <= 5; ++k)
                        ASSERT_EQ(t.game.table.Panel(k).text, panels.texts.at(static_cast<std::size_t>(k - 1)))
                            << "panel " << k << " after " << event << ", seed " << seed;
                });
            }
}

TEST(StatusBar, LayoutAndHeightByVariant) {
    struct Case {
        int players, columns;
        bool wanted, shown;
        int height;
    };
    constexpr std::array cases{Case{1, 1, true, true, 8270}, Case{1, 1, false, false, 8030},
                               Case{1, 4, true, true, 8530}, Case{1, 4, false, false, 8300},
                               Case{2, 1, true, true, 8300}, Case{2, 1, false, true, 8300},
                               Case{2, 4, true, true, 8530}, Case{2, 4, false, true, 8530}};
    for (const Case& c : cases) {
        PlayedTable t({.NumberOfPlayers = c.players, .NumberOfColumns = c.columns, .ShowStatusBar = c.wanted});
        const TableState& table = t.game.table;
        EXPECT_EQ(table.height, c.height);
        EXPECT_EQ(table.statusBar, c.shown);
        const std::array<int, 4> widths = c.players == 1 ? std::array{1, 2550, 1, 1230} : std::array{2000, 1, 1630, 1};
        for (int k = 1; k <= 4; ++k) {
            EXPECT_EQ(table.Panel(k).width, widths.at(static_cast<std::size_t>(k - 1)));
            EXPECT_EQ(table.Panel(k).visible, table.Panel(k).width > 1);
        }
    }
    PlayedTable t;
    t.Do("roll;options ShowStatusBar=False");
    EXPECT_EQ(t.game.table.Panel(2).text, "Roll the dice");
    EXPECT_EQ(t.game.table.height, 8300);
}

TEST(StatusBar, ClockRunsFromTheLoadOverMidnight) {
    PlayedTable t;
    constexpr std::array<std::pair<const char*, const char*>, 5> moments{
        {{"state", ""},
         {"tick tmrTimeElapsed", "00:00:01"},
         {"roll;new;tick tmrTimeElapsed 3660", "01:01:01"},
         {"tick tmrTimeElapsed 82738", "23:59:59"},
         {"tick tmrTimeElapsed", "00:00:00"}}};
    for (const auto& [events, clock] : moments) {
        t.Do(events);
        EXPECT_EQ(t.game.table.Panel(5).text, clock);
    }
}

TEST(StatusBar, FirstInstructionComesWithTheSecondTick) {
    PlayedTable t;
    const std::string& instruction = t.game.table.Panel(2).text;
    for (const char* early : {"state", "tick tmrAnimation 1000;roll"}) {
        t.Do("roll;new");
        EXPECT_EQ(instruction, "");
        t.Do(early);
        const std::string before = instruction;
        t.Do("tick tmrRollDice");
        EXPECT_EQ(instruction, before);
        t.Do("tick tmrRollDice");
        EXPECT_EQ(instruction, "Roll the dice");
        EXPECT_FALSE(t.Takes("tick tmrRollDice"));
        if (t.game.table[Timer::tmrAnimation].enabled) t.Do("tick tmrAnimation 1000");
    }
}

TEST(StatusBar, GameOverMessageMovesAfterAPause) {
    PlayedTable t({.NumberOfColumns = 1});
    const TableState& table = t.game.table;
    const std::string message = std::string(50, ' ') + "G a m e  O v e r !" + std::string(28, ' ') +
                                "To begin a new game click the 'New Game' button or press F2";
    for (unsigned game = 1; game <= 2; ++game) {
        t.PlayGame(game, [](const std::string&) {});
        EXPECT_EQ(table[Timer::tmrGameOver].interval, 1);
        t.Do("tick tmrGameOver");
        EXPECT_EQ(table.Panel(2).text + table.Panel(4).text, "");
        EXPECT_EQ(table[Timer::tmrGameOver].interval, 2000);
        t.Do("tick tmrGameOver");
        EXPECT_EQ(table.Panel(2).text, message.substr(1) + message[0]);
        EXPECT_EQ(table[Timer::tmrGameOver].interval, 150);
        t.Do("tick tmrGameOver 59");
        EXPECT_EQ(table.Panel(2).text, message.substr(60) + message.substr(0, 60));
        t.Do("tick tmrGameOver " + std::to_string(message.size() - 60));
        EXPECT_EQ(table.Panel(2).text, message);
        t.Do("new;tick tmrAnimation 1000");
        EXPECT_FALSE(t.Takes("tick tmrGameOver"));
    }
}

}  // namespace
