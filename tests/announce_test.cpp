#include "tests/turn_steps.h"

namespace {

constexpr GameSettings fiveDice{.NumberOfDice = 4};

TEST(Announce, ComesBetweenTheFirstAndTheSecondRoll) {
    PlayedTable t(fiveDice);
    Play(t, {{"roll 1 1 2 3 4", "effect rollAll, frames", "up 1 11234 FFFFF 1 1 13 13 =0"},
             {"die 0", "effect holdDice", "up 1 11234 HFFFF 1 1 13 13 =0"},
             {"box 4 0", "effect announce", "up 1 11234 HFFFF 0 0 0 1 =0 undo"},
             {"undo", "effect undo", "up 1 11234 HFFFF 1 1 13 13 =0 redo"},
             {"redo", "effect redo", "up 1 11234 HFFFF 0 0 0 1 =0 undo"},
             {"not box 4 1", ""},
             {"box 4 0", "effect-wait score", "up 0 11234 fffff 0 0 0 0 =2 undo"},
             {"roll 1 1 2 3 4", "effect rollAll, frames", "up 1 11234 FFFFF 1 1 13 12 =2"},
             {"roll 1 1 2 3 4", "effect rollAll, frames", "up 2 11234 FFFFF 1 1 13 0 =2"}});
}

TEST(Announce, IsBoundToItsBoxWhenTheSecondRollIsTakenBack) {
    PlayedTable t(fiveDice);
    Play(t, {{"roll 6 6 2 3 4;box 4 1", "effect rollAll, frames, effect announce", "up 1 66234 FFFFF 0 0 0 1 =0 undo"},
             {"roll 2 2 2 2 2", "effect rollAll, frames", "up 2 22222 FFFFF 0 0 0 1 =0"},
             {"die 4;sounds off;die 3;die 3;sounds on", "effect holdDice", "up 2 22222 FFFFH 0 0 0 1 =0"},
             {"box 4 1", "effect-wait score", "up 0 22222 fffff 0 0 0 0 =10 undo"},
             {"undo", "effect undo, refresh ", "up 2 22222 FFFFH 0 0 0 1 =0 redo"},
             {"box 4 1", "effect-wait score", "up 0 22222 fffff 0 0 0 0 =10 undo"},
             {"undo", "effect undo, refresh ", "up 2 22222 FFFFH 0 0 0 1 =0 redo"},
             {"roll 3 3 2 1", "effect rollAll, frames, sleep 200, effect-wait score", "up 0 12233 fffff 0 0 0 0 =4"}});
    EXPECT_FALSE(t.game.session.Announced || t.game.session.AnnounceResume);
}

// Fills Down, Up and so many boxes of Rand and Oblg by random rolls, and forgets what they came to.
void FillBoard(PlayedTable& t, int rand, int oblg) {
    t.Do("sounds off");
    const std::array<int, 4> boxes{rowCount, rowCount, rand, oblg};
    for (std::size_t column = 0; column < 4; ++column)
        for (int written = 0; written < boxes[column]; ++written) {
            const int row = column == 1 ? rowLuckyCup - written : written;
            const std::string box = ";box " + std::to_string(column + 1) + ' ' + std::to_string(row);
            t.Do("roll" + box + (column == 3 ? box : ""));
        }
    t.Do("sounds on");
    t.game.session.Total = 0;
}

TEST(Announce, ReminderStopsTheSecondRoll) {
    constexpr const char* reminder = "message Reminder|You must announce now!|warning|ok";
    PlayedTable t(fiveDice);
    FillBoard(t, 13, 11);
    Play(t, {{"roll 1 2 3 4 6", "effect rollAll, frames", "up 1 12346 FFFFF 0 0 0 2 =0"},
             {"roll", reminder, "off 1 12346 FFFFF 0 0 0 2 =0"},
             {"not roll", ""},
             {"die 0", "effect holdDice", "off 1 12346 HFFFF 0 0 0 2 =0"},
             {"die 0", "effect UnHoldDice", "up 1 12346 FFFFF 0 0 0 2 =0"},
             {"key enter", reminder, "off 1 12346 FFFFF 0 0 0 2 =0"},
             {"box 4 12", "effect announce", "up 1 12346 FFFFF 0 0 0 1 =0 undo"},
             {"roll 5 5 5 5 5", "effect rollAll, frames, effect LuckyCup", "up 2 55555 FFFFF 0 0 0 1 =0"}});
}

TEST(Announce, ReminderComesOnlyWhereNoOtherBoxIsOpen) {
    for (int rand : {12, 13})
        for (int oblg : {0, 1, 5, 11, 12}) {
            PlayedTable t(fiveDice);
            FillBoard(t, rand, oblg);
            t.Do("roll");
            t.Do("roll");
            EXPECT_EQ(t.table.log[0].starts_with("message"), rand == 13 && oblg < 12) << rand << ' ' << oblg;
        }
}

TEST(Announce, LastBoxIsAnnouncedByTheFirstRoll) {
    PlayedTable t(fiveDice);
    FillBoard(t, 13, 12);
    const std::string& total = t.game.card[ScoreColumn::Oblg].totals[TotalRow::ColumnTotal];
    const int before = TextValue(total);
    Play(t,
         {{"roll 6 6 6 6 6", "effect announce, effect rollAll, frames, effect LuckyCup", "up 1 66666 FFFFF 0 0 0 1 =0"},
          {"roll 5 5 5 5 5", "effect rollAll, frames, effect LuckyCup", "up 2 55555 FFFFF 0 0 0 1 =0"}});
    EXPECT_EQ(t.game.session.CurrentColumn, ScoreColumn::None);
    EXPECT_EQ(TextValue(total), before) << "the fanfare's own look at the dice writes nothing";
    t.Do("roll 5 5 5 5 5");
    EXPECT_EQ(TextValue(total), before + 100);
    EXPECT_TRUE(t.game.session.GameOverShown);
}

}  // namespace
