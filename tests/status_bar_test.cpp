#include "tests/table_driver.h"

namespace {

TEST(StatusBar, ReadsRightAfterEveryEventOfAGame) {
    for (unsigned seed = 0; seed < 40; ++seed) {
        PlayedTable t({.NumberOfPlayers = seed % 2 ? 2 : 1, .NumberOfColumns = seed % 4 < 2 ? 1 : 4, .Player2 = "Zoe"});
        const GameSession& session = t.game.session;
        const bool alone = seed % 2 == 0;
        const std::string of = seed % 4 < 2 ? " of 13" : " of 52";
        std::array<std::string, 5> texts{"Player 1", alone ? "Roll the dice" : "", alone ? "" : "0 : 0"};
        std::array<int, 2> totals{};
        std::size_t player = 0;
        t.PlayGame(seed, [&](const std::string& event) {
            const bool rolled = event == "roll" || event == "next";
            const bool wrote = session.RollCount == 0 && !event.starts_with("tick");
            if (event == "next") player = 1 - player;
            texts[0] = player ? "Zoe" : "Player 1";
            if (rolled) texts[1] = session.RollCount == 3 ? "Place your score" : "Place your score or roll the dice";
            if (rolled && alone) texts[3] = "Round " + std::to_string(session.BoxesFilled + !wrote) + of;
            if (wrote) {
                totals.at(player) = session.Total;
                if (alone || session.CurrentColumn == ScoreColumn::Oblg)
                    texts[1] = rolled ? "Roll the dice" : "Roll the dice or undo last move";
                if (!alone) texts[2] = std::to_string(totals[0]) + " : " + std::to_string(totals[1]);
                if (session.BoxesFilled == BoardSize(t.game.settings)) texts[1] = "";
            }
            for (std::size_t k = 0; k < texts.size(); ++k)
                ASSERT_EQ(t.game.table.panels[k + 1].text, texts[k]) << "panel " << k + 1 << " after " << event;
        });
    }
}

TEST(StatusBar, LayoutAndHeightByVariant) {
    // With the bar wanted and not, in one column and in four, for one player and for two.
    constexpr std::array heights{8270, 8030, 8530, 8300, 8300, 8300, 8530, 8530};
    for (std::size_t i = 0; i < heights.size(); ++i) {
        PlayedTable t({.NumberOfColumns = i / 2 % 2 ? 4 : 1, .ShowStatusBar = i % 2 == 0});
        if (i >= 4) t.Do("options NumberOfPlayers=2");
        const TableState& table = t.game.table;
        EXPECT_EQ(table.height, heights[i]);
        EXPECT_EQ(table.statusBar, i % 2 == 0 || i >= 4);
        const std::array<int, 4> widths = i < 4 ? std::array{1, 2550, 1, 1230} : std::array{2000, 1, 1630, 1};
        for (std::size_t k = 0; k < widths.size(); ++k)
            EXPECT_TRUE(table.panels[k + 1].width == widths[k] && table.panels[k + 1].visible == (widths[k] > 1)) << k;
    }
    PlayedTable t;
    t.Do("roll;options ShowStatusBar=False");
    EXPECT_EQ(t.game.table.panels[2].text, "Roll the dice") << "the bar is laid out anew in the middle of a turn";
    EXPECT_EQ(t.game.table.height, 8300);
}

struct Moment {
    std::string events;
    std::string text;  // of panel 2, or of the clock
    int interval = 0;  // of tmrGameOver; 0: off
};

TEST(StatusBar, ClockRunsFromTheLoadOverMidnight) {
    PlayedTable t;
    for (const Moment& moment :
         {Moment{"state", ""}, Moment{"tick tmrTimeElapsed", "00:00:01"}, Moment{"tick tmrTimeElapsed 58", "00:00:59"},
          Moment{"roll;new;tick tmrTimeElapsed 3602", "01:01:01"}, Moment{"tick tmrTimeElapsed 82738", "23:59:59"},
          Moment{"tick tmrTimeElapsed", "00:00:00"}, Moment{"tick tmrTimeElapsed", "00:00:01"}}) {
        t.Do(moment.events);
        EXPECT_EQ(t.game.table.panels[5].text, moment.text) << moment.events;
    }
}

TEST(StatusBar, InstructionsAroundAGame) {
    PlayedTable t({.NumberOfColumns = 1});
    std::string message(50, ' ');
    message += "G a m e  O v e r !";
    message.append(28, ' ');
    message += "To begin a new game click the 'New Game' button or press F2";
    for (unsigned seed = 1; seed <= 2; ++seed) {
        t.PlayGame(seed, [](const std::string&) {});
        for (const Moment& moment :
             {Moment{"state", "", 1}, Moment{"tick tmrGameOver", "", 2000},
              Moment{"tick tmrGameOver", message.substr(1) + ' ', 150},
              Moment{"tick tmrGameOver 59", message.substr(60) + message.substr(0, 60), 150},
              Moment{"tick tmrGameOver " + std::to_string(message.size() - 60), message, 150}, Moment{"new", ""},
              Moment{"tick tmrRollDice", ""}, Moment{"tick tmrRollDice", "Roll the dice"},
              Moment{"tick tmrAnimation 1000;roll;new;tick tmrRollDice;tick tmrAnimation 1000", ""},
              Moment{"roll", "Place your score or roll the dice"}}) {
            t.Do(moment.events);
            const TimerState& timer = t.game.table.timers[Timer::tmrGameOver];
            EXPECT_EQ(t.game.table.panels[2].text, moment.text) << moment.events;
            EXPECT_EQ(timer.enabled ? timer.interval : 0, moment.interval) << moment.events;
            EXPECT_EQ(t.game.table.panels[4].text.empty(), moment.events != "roll" && moment.interval != 1);
        }
        t.Do("tick tmrRollDice");
        EXPECT_EQ(t.game.table.panels[2].text, "Roll the dice") << "a roll does not stop it";
        EXPECT_FALSE(t.Takes("tick tmrRollDice"));
    }
}

}  // namespace
