#include "tests/turn_steps.h"

namespace {

constexpr GameSettings fiveDice{.NumberOfDice = 4};

TEST(Announce, ComesBetweenTheFirstAndTheSecondRoll) {
    PlayedTable t(fiveDice);
    Play(t, {{"roll 1 1 2 3 4", "effect rollAll, frames", "up 1 11234 FFFFF 1 1 13 13"},
             {"die 0", "effect holdDice", "up 1 11234 HFFFF 1 1 13 13"},
             {"box 4 0", "effect announce", "up 1 11234 HFFFF 0 0 0 1 undo"},
             {"undo", "effect undo", "up 1 11234 HFFFF 1 1 13 13 redo"},
             {"redo", "effect redo", "up 1 11234 HFFFF 0 0 0 1 undo"},
             {"not box 4 1", ""},
             {"not box 3 0", ""}});
    EXPECT_TRUE(t.game.session.Announced);
    EXPECT_EQ(t.game.session.BoxesFilled, 0);
    EXPECT_EQ(t.game.card[ScoreColumn::Oblg].boxes[0], "");
    Play(t, {{"box 4 0", "effect-wait score", "up 0 11234 fffff 0 0 0 0 undo"}});
    EXPECT_EQ(t.game.session.PrevRollCount, 1);
    EXPECT_EQ(t.game.card[ScoreColumn::Oblg].boxes[0], "2");
    Play(t, {{"tick tmrCounter;roll 1 1 2 3 4",
              "effect counter7, sleep 50, refresh 1@75, sleep 50, refresh 2@75, "
              "effect counter0, effect rollAll, frames",
              "up 1 11234 FFFFF 1 1 13 12"},
             {"roll 1 1 2 3 4", "effect rollAll, frames", "up 2 11234 FFFFF 1 1 13 0"}});
}

TEST(Announce, IsBoundToItsBoxWhenTheSecondRollIsTakenBack) {
    PlayedTable t(fiveDice);
    Play(t, {{"roll 6 6 2 3 4;box 4 1", "effect rollAll, frames, effect announce", "up 1 66234 FFFFF 0 0 0 1 undo"},
             {"roll 2 2 2 2 2", "effect rollAll, frames", "up 2 22222 FFFFF 0 0 0 1"},
             {"die 4", "effect holdDice", "up 2 22222 FFFFH 0 0 0 1"},
             {"box 4 1", "effect-wait score", "up 0 22222 fffff 0 0 0 0 undo"},
             {"undo", "effect undo, refresh ", "up 2 22222 FFFFH 0 0 0 1 redo"},
             {"box 4 1", "effect-wait score", "up 0 22222 fffff 0 0 0 0 undo"},
             {"undo", "effect undo, refresh ", "up 2 22222 FFFFH 0 0 0 1 redo"},
             {"not box 3 1", ""},
             {"roll 3 3 2 1", "effect rollAll, frames, sleep 200, effect-wait score", "up 0 12233 fffff 0 0 0 0"}});
    EXPECT_EQ(t.game.session.PrevRollCount, 3);
    EXPECT_EQ(t.game.session.BoxesFilled, 1);
    EXPECT_EQ(t.game.session.Total, 4);
    EXPECT_FALSE(t.game.session.Announced || t.game.session.AnnounceResume);
}

TEST(Announce, FanfareForTheAnnouncedBoxWritesNothing) {
    PlayedTable t(fiveDice);
    Play(t, {{"roll 1 2 3 4 6;box 4 12", "effect rollAll, frames, effect announce", "up 1 12346 FFFFF 0 0 0 1 undo"},
             {"roll 5 5 5 5 5", "effect rollAll, frames, effect LuckyCup", "up 2 55555 FFFFF 0 0 0 1"}});
    EXPECT_EQ(t.game.card[ScoreColumn::Oblg].Total(TotalRow::ColumnTotal), "");
    t.Do("roll 5 5 5 5 5");
    EXPECT_EQ(Shortened(t.table.log), "effect rollAll, frames, sleep 200, effect-wait score");
    EXPECT_EQ(t.game.card[ScoreColumn::Oblg].boxes[rowLuckyCup], "100");
    EXPECT_EQ(t.game.card[ScoreColumn::Oblg].Total(TotalRow::ColumnTotal), "100");
}

// Fills Down, Up and so many boxes of Rand and Oblg, from the top.
void FillBoard(PlayedTable& t, int rand, int oblg) {
    const auto fill = [&](const std::string& column, int row) {
        const std::string box = ";box " + column + ' ' + std::to_string(row);
        t.Do("roll" + box + (column == "4" ? box : ""));
    };
    for (int row = 0; row < rowCount; ++row) fill("1", row);
    for (int row = rowLuckyCup; row >= 0; --row) fill("2", row);
    for (int row = 0; row < rand; ++row) fill("3", row);
    for (int row = 0; row < oblg; ++row) fill("4", row);
}

TEST(Announce, ReminderStopsTheSecondRoll) {
    constexpr const char* reminder = "message Reminder|You must announce now!|warning|ok";
    for (int oblg : {1, 11}) {
        PlayedTable t(fiveDice);
        FillBoard(t, 13, oblg);
        const std::string open = std::to_string(13 - oblg);
        const std::string pending = "off 1 12346 FFFFF 0 0 0 " + open;
        const std::string released = "up 1 12346 FFFFF 0 0 0 " + open;
        const std::string held = "off 1 12346 HFFFF 0 0 0 " + open;
        Play(t, {{"roll 1 2 3 4 6", "effect rollAll, frames", released.c_str()},
                 {"roll", reminder, pending.c_str()},
                 {"not roll", ""},
                 {"not key enter", ""},
                 {"die 0", "effect holdDice", held.c_str()},
                 {"die 0", "effect UnHoldDice", released.c_str()},
                 {"key enter", reminder, pending.c_str()},
                 {"box 4 12", "effect announce", "up 1 12346 FFFFF 0 0 0 1 undo"},
                 {"roll 5 5 5 5 5", "effect rollAll, frames, effect LuckyCup", "up 2 55555 FFFFF 0 0 0 1"}});
        EXPECT_EQ(t.game.session.BoxesFilled, 39 + oblg);
    }
}

TEST(Announce, NoReminderWhileAnotherBoxIsOpen) {
    for (int oblg : {1, 11, 12, 13}) {
        PlayedTable t(fiveDice);
        FillBoard(t, 12, oblg);
        t.Do("roll;roll 1 2 3 4 6");
        EXPECT_EQ(Shortened(t.table.log).find("message"), std::string::npos);
        EXPECT_EQ(Look(t.game), "up 2 12346 FFFFF 0 0 1 0");
    }
}

TEST(Announce, LastBoxIsAnnouncedByTheFirstRoll) {
    PlayedTable t(fiveDice);
    FillBoard(t, 13, 12);
    Play(t, {{"roll 6 6 6 6 6", "effect announce, effect rollAll, frames, effect LuckyCup", "up 1 66666 FFFFF 0 0 0 1"},
             {"roll 1 2 3 4 6", "effect rollAll, frames", "up 2 12346 FFFFF 0 0 0 1"}});
    EXPECT_EQ(t.game.session.CurrentColumn, ScoreColumn::None);
    t.Do("roll 5 5 5 5 5");
    EXPECT_EQ(t.game.card[ScoreColumn::Oblg].boxes[rowLuckyCup], "100");
    EXPECT_TRUE(t.game.session.GameOverShown);
}

}  // namespace
