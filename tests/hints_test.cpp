#include "core/hints.h"

#include "core/row_scores.h"
#include "core/show.h"
#include "tests/turn_steps.h"

namespace {

// The tips as "row:tip" and the rows whose labels are lit.
std::string Shown(const Game& game) {
    std::string shown = game.table.tipColumn ? "" : "hidden ";
    for (std::size_t row = 0; row < rowCount; ++row)
        if (!game.table.tips[row].empty()) shown += std::to_string(row) + ':' + game.table.tips[row] + ' ';
    for (std::size_t row = 0; row < rowCount; ++row)
        if (game.table.highlighted[row]) shown += "lit " + std::to_string(row);
    return shown;
}

// Every throw of five dice and any buttons open: a tip stands where the row is worth something and open.
TEST(Hints, ShowWhatEveryThrowIsWorthInOpenRows) {
    PlayedTable t({.NumberOfDice = 4});
    Game& game = t.game;
    std::mt19937 random(1);
    for (int number = 0; number < 6 * 6 * 6 * 6 * 6; ++number) {
        for (int i = 0, rest = number; i < 5; ++i, rest /= 6) game.dice.DiceValues[i] = rest % 6 + 1;
        for (ScoreColumn column : allColumns)
            for (bool& offered : game.card[column].offered) offered = random() % 6 == 0;
        game.session.RollCount = static_cast<int>(random() % 3) + 1;
        game.session.CurrentRow = static_cast<int>(random() % rowCount);
        game.session.RowScore = static_cast<int>(random() % 3) * 50;
        ClearTips(game);

        const DiceSet lying = game.dice;
        const int lastScore = game.session.RowScore;
        const int own = game.session.CurrentRow;
        std::array<std::string, rowCount> expected;
        // An announced box after its second roll has a tip in any case, if need be the value that was worked out last.
        if (game.card[ScoreColumn::Oblg].offered[own] && game.session.RollCount > 1)
            expected[own] = std::to_string(lastScore);
        game.session.ComputeOnly = true;
        SortDice(game.dice);
        for (int row = 0; row < rowCount; ++row) {
            ScoreRowOf(game, row);
            for (const ColumnCard& column : game.card.values)
                if (column.offered[row] && game.session.RowScore > 0)
                    expected[row] = std::to_string(game.session.RowScore);
        }
        game.session.RowScore = lastScore;
        game.dice = lying;
        ShowHints(game);
        ASSERT_EQ(game.table.tips, expected) << testing::PrintToString(lying.DiceValues);
        ASSERT_EQ(game.dice.DiceValues, lying.DiceValues);
        ASSERT_FALSE(game.session.ComputeOnly);
    }
}

struct Moment {
    const char* events;
    const char* shown;
    const char* log = nullptr;  // null: not asked
};

void Follow(const GameSettings& settings, const std::vector<Moment>& moments) {
    PlayedTable t(settings);
    for (const Moment& moment : moments) {
        SCOPED_TRACE(moment.events);
        t.Do(moment.events);
        EXPECT_EQ(Shown(t.game), moment.shown);
        EXPECT_TRUE(!moment.log || Shortened(t.table.log) == moment.log) << Shortened(t.table.log);
    }
}

constexpr const char* straight = "0:1 1:2 2:3 3:4 4:5 6:15 7:15 10:50 ";
constexpr const char* fullHouse = "1:4 2:9 6:13 7:13 8:23 9:33 ";

TEST(Hints, Always) {
    Follow({.NumberOfDice = 4},
           {{"state", ""},
            {"roll 1 2 3 4 5", straight},
            {"roll 2 2 3 3 3", fullHouse},
            {"box 3 8", ""},
            {"undo", fullHouse},
            {"redo", ""},
            {"roll 2 2 3 3 3", fullHouse},  // row 8 is still open in Oblg
            {"roll 2 2 3 3 3", "1:4 2:9 6:13 7:13 9:33 "},
            {"hints request", "hidden 1:4 2:9 6:13 7:13 9:33 ", ""},
            {"roll 1 2 3 4 5", "hidden "},
            {"hints always", straight, "effect hint"},
            {"box 1 0", ""},
            {"roll 6 6 6 6 6", "5:30 6:30 7:30 8:40 11:60 12:100 "},
            {"box 4 0", "0:0 "},
            {"roll 2 2 3 3 3", "0:100 "},  // worth nothing, so it shows what the fanfare worked out
            {"roll 2 2 3 3 3", ""},
            {"roll 1 1 1 2 2;box 4 1", "1:4 "},
            {"roll 2 2 2 3 3", "1:6 "}});
}

TEST(Hints, ByRequest) {
    Follow({.NumberOfDice = 4, .hintAllways = false}, {{"hint", "hidden ", ""},
                                                       {"roll 1 2 3 4 5", "hidden "},
                                                       {"hint", straight, "effect hint"},
                                                       {"hint", straight, ""},
                                                       {"roll 2 2 3 3 3", "hidden "},
                                                       {"hint", fullHouse, "effect hint"},
                                                       {"box 3 8", "", "effect-wait score"},
                                                       {"hint", "", ""},
                                                       {"roll 1 2 3 4 5;box 4 0", "hidden 0:0 "},
                                                       {"hint", "0:1 ", "effect hint"},
                                                       {"hints always;hints request", "0:1 ", "effect hint"}});
    PlayedTable t({.NumberOfDice = 4, .hintAllways = false});
    t.Do("hints always");
    EXPECT_EQ(Shown(t.game), "") << "the column shows, though nothing has been rolled";
    EXPECT_FALSE(t.Takes("hint"));
}

TEST(Hints, RowUnderTheMouseIsLitUntilItsBoxIsWritten) {
    for (int columns : {1, 4}) {
        PlayedTable t({.NumberOfColumns = columns, .hintAllways = false});
        EXPECT_FALSE(t.Takes("hover 3 5"));
    }
    Follow({.hintAllways = false}, {{"roll;hover 3 5", "hidden lit 5"},
                                    {"hover 2 12", "hidden lit 5"},
                                    {"leave 3 5", "hidden "},
                                    {"hover 2 12", "hidden lit 12"},
                                    {"box 2 12", "hidden "},
                                    {"roll;hover 4 3", "hidden lit 3"},
                                    {"box 4 3", "hidden 3:0 "},
                                    {"hover 4 3", "hidden 3:0 lit 3"}});
}

}  // namespace
