#include "core/row_scores.h"

#include <numeric>

#include "script/json_line.h"
#include "tests/table_driver.h"

namespace {

using Dice = std::vector<int>;

int ValueOfFive(int row, const Dice& dice) {
    const int sum = std::accumulate(dice.begin(), dice.end(), 0);
    Indexed<int, facesOfADie + 1> shown;
    for (int face : dice) ++shown[face];
    const int most = std::ranges::max(shown);
    if (row <= rowSixes) return (row + 1) * shown[row + 1];
    if (row == rowThreeOfAKind) return most >= 3 ? sum + 10 : 0;
    if (row == rowFullHouse) return most == 3 && std::ranges::count(shown, 2) == 1 ? sum + 20 : 0;
    if (row == rowStraight) return most > 1 || (shown[1] && shown[6]) ? 0 : shown[6] ? 60 : 50;
    if (row == rowFourOfAKind) return most >= 4 ? sum + 30 : 0;
    if (row == rowLuckyCup) return most == 5 ? 100 : 0;
    return sum;
}

// Of six dice the five count that make the row worth most, but least in Min.
int Value(int row, const Dice& dice) {
    if (dice.size() == 5) return ValueOfFive(row, dice);
    Dice values;
    for (std::ptrdiff_t left = 0; left < 6; ++left) {
        Dice five = dice;
        five.erase(five.begin() + left);
        values.push_back(ValueOfFive(row, five));
    }
    return row == rowMin ? std::ranges::min(values) : std::ranges::max(values);
}

// One mode is given a column and the other none, so that neither may write.
void CheckEveryThrow(std::size_t dice) {
    PlayedTable t({.NumberOfDice = static_cast<int>(dice) - 1});
    t.Do("roll;box 3 1;roll;box 1 0");
    Game& game = t.game;
    const std::string before = JsonLine("", false, t.table);
    const DiceSet lying = game.dice;
    const int lastScore = game.session.RowScore;
    for (int number = 0; number < (dice == 5 ? 7776 : 46656); ++number) {
        Dice thrown;
        for (int rest = number; thrown.size() < dice; rest /= 6) thrown.push_back(rest % 6 + 1);
        Dice sorted = thrown;
        std::ranges::sort(sorted);
        for (int row = 0; row < rowCount; ++row)
            for (bool compute : {true, false}) {
                game.session.ComputeOnly = compute;
                game.session.CurrentColumn = compute ? ScoreColumn::Rand : ScoreColumn::None;
                std::ranges::copy(thrown, game.dice.DiceValues.begin());
                ScoreRowOf(game, row);
                const Dice& left = compute || row == rowStraight ? thrown : sorted;
                ASSERT_EQ(game.session.RowScore, Value(row, thrown)) << row << testing::PrintToString(thrown);
                ASSERT_EQ(RowValues(game.dice)[row], game.session.RowScore) << testing::PrintToString(thrown);
                ASSERT_TRUE(std::equal(left.begin(), left.end(), game.dice.DiceValues.begin()))
                    << row << testing::PrintToString(thrown);
            }
    }
    game.session.ComputeOnly = false;
    game.session.CurrentColumn = ScoreColumn::Down;
    game.session.RowScore = lastScore;
    game.dice = lying;
    EXPECT_EQ(JsonLine("", false, t.table), before);
}

TEST(RowScores, OfEveryThrowOfFiveDice) { CheckEveryThrow(5); }
TEST(RowScores, OfEveryThrowOfSixDice) { CheckEveryThrow(6); }

}  // namespace
