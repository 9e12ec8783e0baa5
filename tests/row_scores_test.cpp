#include "core/row_scores.h"

#include <numeric>
#include <ranges>

#include "script/json_line.h"
#include "tests/table_driver.h"

namespace {

using Dice = std::vector<int>;

// What five dice are worth.
int ValueOfFive(int row, const Dice& dice) {
    const int sum = std::accumulate(dice.begin(), dice.end(), 0);
    std::array<int, 7> shown{};
    for (int face : dice) ++shown[static_cast<std::size_t>(face)];
    const auto [fewest, most] = std::ranges::minmax(shown);
    const auto shows = [&](int times) { return std::ranges::find(shown, times) != shown.end(); };
    switch (row) {
        case rowMax:
        case rowMin:
            return sum;
        case rowThreeOfAKind:
            return most >= 3 ? sum + 10 : 0;
        case rowFullHouse:
            return shows(3) && shows(2) ? sum + 20 : 0;
        case rowStraight:
            if (most > 1 || (shown[1] && shown[6])) return 0;
            return shown[6] ? 60 : 50;
        case rowFourOfAKind:
            return most >= 4 ? sum + 30 : 0;
        case rowLuckyCup:
            return most == 5 ? 100 : 0;
        default:
            return (row + 1) * shown[static_cast<std::size_t>(row + 1)];
    }
}

// Of six dice the five count that make the row worth most, but least in Min.
int Value(int row, const Dice& dice) {
    if (dice.size() == 5) return ValueOfFive(row, dice);
    std::array<int, 6> values;
    for (std::size_t left = 0; left < values.size(); ++left) {
        Dice five = dice;
        five.erase(five.begin() + static_cast<std::ptrdiff_t>(left));
        values[left] = ValueOfFive(row, five);
    }
    return row == rowMin ? std::ranges::min(values) : std::ranges::max(values);
}

void Lay(Game& game, const Dice& dice) { std::ranges::copy(dice, game.dice.DiceValues.begin()); }

class RowScoresOfAllThrows : public testing::TestWithParam<int> {};

// A column is given in the one mode and none in the other, so in neither may anything be written.
TEST_P(RowScoresOfAllThrows, AreThoseOfTheTable) {
    PlayedTable t({.NumberOfDice = GetParam()});
    t.Do("roll;box 3 1;roll;box 1 0");
    Game& game = t.game;
    const auto lying = game.dice.DiceValues;
    const int lastScore = game.session.RowScore;
    const std::string before = JsonLine("", false, t.table);
    Dice thrown(static_cast<std::size_t>(GetParam()) + 1, 1);
    for (bool more = true; more;) {
        Dice sorted = thrown;
        std::ranges::sort(sorted);
        for (int row = 0; row < rowCount; ++row) {
            const int value = Value(row, thrown);
            for (bool compute : {true, false}) {
                game.session.ComputeOnly = compute;
                game.session.CurrentColumn = compute ? ScoreColumn::Rand : ScoreColumn::None;
                Lay(game, compute ? sorted : thrown);
                ScoreRowOf(game, row);
                ASSERT_EQ(game.session.RowScore, value) << "row " << row << ' ' << testing::PrintToString(thrown);
                const Dice& expected = !compute && row == rowStraight ? thrown : sorted;
                ASSERT_TRUE(std::ranges::equal(expected, game.dice.DiceValues | std::views::take(thrown.size())))
                    << "row " << row << ' ' << testing::PrintToString(thrown);
            }
        }
        const auto next = std::ranges::find_if(thrown, [](int face) { return face < facesOfADie; });
        more = next != thrown.end();
        std::fill(thrown.begin(), next, 1);
        if (more) ++*next;
    }
    game.session.ComputeOnly = false;
    game.session.CurrentColumn = ScoreColumn::Down;
    game.session.RowScore = lastScore;
    game.dice.DiceValues = lying;
    EXPECT_EQ(JsonLine("", false, t.table), before);
}
INSTANTIATE_TEST_SUITE_P(FiveAndSixDice, RowScoresOfAllThrows, testing::Values(4, 5));

// 3 of a Kind, Full House, Straight, 4 of a Kind and Lucky Cup of hands that are easy to get wrong.
TEST(RowScores, OfHandsWorkedOutOnPaper) {
    const std::vector<std::pair<Dice, Dice>> hands{
        {{4, 4, 4, 4, 4}, {30, 0, 0, 50, 100}},    {{6, 2, 6, 2, 6}, {32, 42, 0, 0, 0}},
        {{1, 3, 4, 5, 6}, {0, 0, 0, 0, 0}},        {{3, 1, 2, 3, 2, 3}, {23, 33, 0, 0, 0}},
        {{6, 2, 6, 2, 6, 2}, {32, 42, 0, 0, 0}},   {{4, 1, 4, 1, 4, 4}, {27, 34, 0, 47, 0}},
        {{6, 6, 6, 6, 6, 6}, {40, 0, 0, 60, 100}}, {{5, 5, 5, 5, 5, 1}, {35, 0, 0, 55, 100}},
        {{1, 2, 3, 4, 5, 6}, {0, 0, 60, 0, 0}},    {{2, 1, 2, 3, 4, 5}, {0, 0, 50, 0, 0}},
    };
    for (const auto& [dice, values] : hands) {
        PlayedTable t({.NumberOfDice = static_cast<int>(dice.size()) - 1});
        Lay(t.game, dice);
        Dice scored;
        for (int row = rowThreeOfAKind; row < rowCount; ++row) {
            ScoreRowOf(t.game, row);
            scored.push_back(t.game.session.RowScore);
        }
        EXPECT_EQ(scored, values) << testing::PrintToString(dice);
    }
}

// 1 1 2 2 2 in every box, where Ones 3, Max 20 and Min 25 stand already but for the box itself.
TEST(RowScores, WriteTheirBoxAndTheTotalsOfItsColumn) {
    constexpr std::array<int, rowCount> values{2, 6, 0, 0, 0, 0, 8, 8, 18, 28, 0, 0, 0};
    constexpr std::array<int, rowCount> products{(20 - 25) * 2, 0, 0, 0, 0, 0, (8 - 25) * 3, (20 - 8) * 3};
    for (ScoreColumn column : allColumns)
        for (int row = 0; row < rowCount; ++row) {
            PlayedTable t({.NumberOfDice = 4});
            const bool upper = row <= rowSixes;
            const bool inPair = row == rowMax || row == rowMin;
            const bool completes = column == ScoreColumn::Down ? row == rowMin
                                   : column == ScoreColumn::Up ? row == rowOnes
                                                               : row == rowOnes || inPair;
            const int product = completes ? products.at(static_cast<std::size_t>(row)) : 0;
            const int value = values.at(static_cast<std::size_t>(row));
            t.game.card[column].boxes = {"3", "", "", "", "", "", "20", "25"};
            Scorecard expected = t.game.card;
            expected[column].boxes[row] = std::to_string(value);
            if (upper) expected[column].totals[0] = std::to_string(value);
            if (completes) expected[column].totals[1] = std::to_string(product);
            if (!inPair || completes) expected[column].totals[2] = std::to_string((inPair ? 0 : value) + product);
            Lay(t.game, {2, 1, 2, 1, 2});
            t.game.session.CurrentColumn = column;
            t.game.session.CurrentRow = row;
            ScoreRowOf(t.game, row);
            EXPECT_EQ(t.game.card, expected) << "column " << static_cast<int>(column) << " row " << row;
        }
}

}  // namespace
