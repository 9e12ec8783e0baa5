#include "core/hints.h"

#include "core/row_scores.h"
#include "core/show.h"
#include "tests/table_driver.h"

namespace {

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
        session.RowScore = 50;
        std::string& own = expected[session.CurrentRow];
        if (game.card[ScoreColumn::Oblg].offered[session.CurrentRow] && session.RollCount > 1 && own.empty())
            own = "50";
        game.dice.DiceValues = lying;
        ClearTips(game);
        ShowHints(game);
        ASSERT_EQ(game.table.tips, expected) << testing::PrintToString(lying);
        ASSERT_TRUE(game.dice.DiceValues == lying && !session.ComputeOnly);
    }
}

}  // namespace
