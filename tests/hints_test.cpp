#include "core/hints.h"

#include "core/row_scores.h"
#include "core/show.h"
#include "tests/turn_steps.h"

namespace {

// The tips as "row:tip" and the rows whose labels are lit.
std::string Shown(const Game& game) {
    std::string shown = game.table.tipColumn ? "" : "hidden ";
    for (std::size_t row = 0; row < rowCount; ++row) {
        if (!game.table.tips[row].empty()) shown += std::to_string(row) + ':' + game.table.tips[row] + ' ';
        if (game.table.highlighted[row]) shown += "lit " + std::to_string(row);
    }
    return shown;
}

// Every throw of five dice with any buttons open. An announced box, after its second roll, has a tip in any case: its
// own value or, for want of one, what was worked out last.
TEST(Hints, ShowWhatEveryThrowIsWorthInOpenRows) {
    PlayedTable t({.NumberOfDice = 4});
    Game& game = t.game;
    GameSession& session = game.session;
    std::mt19937 random(1);
    for (int number = 0; number < 6 * 6 * 6 * 6 * 6; ++number) {
        for (int i = 0, rest = number; i < 5; ++i, rest /= 6) game.dice.DiceValues[i] = rest % 6 + 1;
        for (ColumnCard& column : game.card)
            for (bool& offered : column.offered) offered = random() % 6 == 0;
        session.RollCount = static_cast<int>(random() % 3) + 1;
        session.CurrentRow = static_cast<int>(random() % rowCount);
        const auto lying = game.dice.DiceValues;
        ByRow<std::string> expected;
        session.ComputeOnly = true;
        SortDice(game.dice);
        for (int row = 0; row < rowCount; ++row) {
            ScoreRowOf(game, row);
            for (const ColumnCard& column : game.card)
                if (column.offered[row] && session.RowScore > 0) expected[row] = std::to_string(session.RowScore);
        }
        session.ComputeOnly = false;
        session.RowScore = 50;
        std::string& own = expected[session.CurrentRow];
        if (game.card[ScoreColumn::Oblg].offered[session.CurrentRow] && session.RollCount > 1 && own.empty())
            own = "50";
        game.dice.DiceValues = lying;
        ClearTips(game);
        ShowHints(game);
        ASSERT_EQ(game.table.tips, expected) << testing::PrintToString(lying);
        ASSERT_TRUE(game.dice.DiceValues == lying);
    }
}

constexpr const char* rolled = "effect rollAll, frames";
constexpr const char* straight = "0:1 1:2 2:3 3:4 4:5 6:15 7:15 10:50 ";
constexpr const char* fullHouse = "1:4 2:9 6:13 7:13 8:23 9:33 ";

TEST(Hints, Always) {
    PlayedTable t({.NumberOfDice = 4});
    Play(t, Shown,
         {{"roll 1 2 3 4 5", rolled, straight},
          {"roll 2 2 3 3 3", rolled, fullHouse},
          {"box 3 8", "effect-wait score", ""},
          {"undo", "effect undo, refresh ", fullHouse},
          {"redo", "effect redo, refresh ", ""},
          {"roll 2 2 3 3 3", rolled, fullHouse},  // row 8 is still open in Oblg
          {"roll 2 2 3 3 3", rolled, "1:4 2:9 6:13 7:13 9:33 "},
          {"hints request", "", "hidden 1:4 2:9 6:13 7:13 9:33 "},
          {"roll 1 2 3 4 5", rolled, "hidden "},
          {"hints always", "effect hint", straight},
          {"box 1 0", "effect-wait score", ""},
          {"roll 6 6 6 6 6", "effect rollAll, frames, effect LuckyCup", "5:30 6:30 7:30 8:40 11:60 12:100 "},
          {"box 4 0", "effect announce", "0:0 "},
          {"roll 2 2 3 3 3", rolled, "0:100 "},  // worth nothing, it shows what was worked out last, for the fanfare
          {"roll 2 2 3 3 3", "effect rollAll, frames, sleep 200, effect scoreZero", ""}});
}

TEST(Hints, ByRequest) {
    PlayedTable t({.NumberOfDice = 4, .hintAllways = false});
    Play(t, Shown,
         {{"hints always", "effect hint", ""},
          {"not hint", ""},
          {"hints request;hint", "", "hidden "},
          {"roll 1 2 3 4 5", rolled},
          {"hint", "effect hint", straight},
          {"hint", ""},
          {"roll 2 2 3 3 3", rolled, "hidden "},
          {"box 3 8", "effect-wait score"},
          {"hint", ""},
          {"roll 1 2 3 4 5;box 4 0", "effect rollAll, frames, effect announce", "hidden 0:0 "},
          {"roll 1 2 3 4 5", rolled, "hidden "},
          {"hint", "effect hint", "0:1 "}});
}

TEST(Hints, RowUnderTheMouseIsLitUntilItsBoxIsWritten) {
    PlayedTable t({.hintAllways = false});
    Play(t, Shown,
         {{"not hover 3 5", "", "hidden "},
          {"sounds off;roll;hover 3 5", "frames", "hidden lit 5"},
          {"hover 2 12", ""},
          {"leave 3 5", "", "hidden "},
          {"hover 2 12", "", "hidden lit 12"},
          {"box 2 12", "refresh 0@75", "hidden "},
          {"roll;hover 4 3", "frames", "hidden lit 3"},
          {"box 4 3", "", "hidden 3:0 "},
          {"hover 4 3", "", "hidden 3:0 lit 3"}});
}

}  // namespace
