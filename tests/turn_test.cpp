#include <ranges>

#include "tests/turn_steps.h"

namespace {

TEST(Turn, OfThreeRolls) {
    PlayedTable t({.NumberOfDice = 4});
    EXPECT_EQ(Look(t.game), "up 0 00000 fffff 0 0 0 0 =0");
    Play(t, {{"not die 0", ""},
             {"roll 1 2 3 4 6 6 3 2", "effect rollAll, frames", "up 1 12346 FFFFF 1 1 13 13 =0"},
             {"die 0;die 4", "effect holdDice, effect holdDice", "up 1 12346 HFFFH 1 1 13 13 =0"},
             {"key enter", "effect rollSome, frames", "up 2 16326 HFFFH 1 1 13 0 =0"},
             {"die 1;die 2", "effect holdDice, effect holdDice", "up 2 16326 HHHFH 1 1 13 0 =0"},
             {"die 3", "effect holdDice", "off 2 16326 HHHHH 1 1 13 0 =0"},
             {"not roll", ""},
             {"not key enter", ""},
             {"die 2", "effect UnHoldDice", "up 2 16326 HHFHH 1 1 13 0 =0"},
             {"roll 5", "effect rollOne, frames", "off 3 16526 hhfhh 1 1 13 0 =0"},
             {"not die 0", ""},
             {"not key enter", ""},
             {"key space", "minimize"},
             {"box 3 6", "effect-wait score", "up 0 12566 fffff 0 0 0 0 =0 undo"},
             {"roll 2 2 2 2 2", "effect rollAll, frames, effect LuckyCup", "up 1 22222 FFFFF 1 1 12 13 =0"}});
}

TEST(Turn, OfOneColumnWithSixDice) {
    PlayedTable t({.NumberOfColumns = 1, .SoundEnabled = false});
    Play(t, {{"roll 1 2 3 4 6 6", "frames", "up 1 123466 FFFFFF 0 0 13 0 =0"},
             {"die 3;die 5", "", "up 1 123466 FFFHFH 0 0 13 0 =0"},
             {"sounds on;roll 4 4 4 4", "effect rollAll, frames, effect LuckyCup", "up 2 444446 FFFHFH 0 0 13 0 =0"},
             {"box 3 12", "effect-wait score", "up 0 444446 ffffff 0 0 0 0 =100 undo"},
             {"roll 4 4 4 4 4 1", "effect rollAll, frames", "up 1 444441 FFFFFF 0 0 12 0 =100"},
             {"sounds off;die 0;die 1;die 2;die 3;sounds on", "", "up 1 444441 HHHHFF 0 0 12 0 =100"},
             {"roll 1 1", "effect rollSome, frames", "up 2 444411 HHHHFF 0 0 12 0 =100"}});
}

TEST(Turn, EnterHandsOverOnlyWhenTheCounterHasRun) {
    PlayedTable t({.NumberOfDice = 4, .NumberOfPlayers = 2});
    constexpr const char* countsToOne = "effect counter7, sleep 50, refresh 1@75, effect counter0";
    Play(t, {{"roll 1 2 3 4 6 6 1 3 2 3", "effect rollAll, frames", "up 1 12346 FFFFF 1 1 13 13 =0"},
             {"box 3 0", "effect-wait score", "up 0 12346 fffff 0 0 0 0 =1 undo next"},
             {"not key enter", ""},
             {"tick tmrCounter", countsToOne},
             {"key enter", "refresh , effect rollAll, frames", "up 1 61323 FFFFF 1 1 13 13 =0"},
             {"box 3 0", "effect-wait score", "up 0 12336 fffff 0 0 0 0 =1 undo next"},
             {"not key enter", ""},
             {"tick tmrCounter", countsToOne},
             {"next 2 3 4 5 5", "refresh 1@75, effect rollAll, frames", "up 1 23455 FFFFF 1 1 12 13 =1"},
             {"box 3 4", "effect-wait score", "up 0 23455 fffff 0 0 0 0 =11 undo next"},
             {"not key enter", ""},
             {"roll 1 1 1 1 1", "refresh 1@75, effect rollAll, frames, effect LuckyCup",
              "up 1 11111 FFFFF 1 1 12 13 =1"}});
}

// The rolling pictures of the free dice draw first, then the free dice themselves.
TEST(Turn, DrawsFromTheRandomSource) {
    PlayedTable t({.NumberOfDice = 4});
    HeadlessRandom same;
    for (const char* held : {"state", "die 1;die 3", "die 0"}) {
        t.Do(held);
        const auto free = std::ranges::count(t.game.dice.RollFlags | std::views::take(5), true);
        auto expected = t.game.dice.DiceValues;
        for (int picture = 0; picture < 9 * free; ++picture) same.Next();
        for (std::size_t i = 0; i < 5; ++i)
            if (t.game.dice.RollFlags[i]) expected[i] = static_cast<int>(same.Next() * 6 + 1);
        t.Do("roll");
        EXPECT_EQ(t.game.dice.DiceValues, expected) << held;
        EXPECT_EQ(t.table.random.state, same.state) << held;
        for (std::size_t i = 0; i < 5; ++i) EXPECT_EQ(t.game.table.dice[i].face, expected[i]);
    }
    EXPECT_EQ(std::ranges::count(t.game.dice.RollFlags, true), 6) << "after the third roll, though some are shown held";
}

}  // namespace
