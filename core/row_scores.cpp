#include "core/row_scores.h"

#include <algorithm>
#include <cassert>

#include "core/column_totals.h"
#include "core/show.h"

namespace {

constexpr int scoredDice = 5;  // with six dice the best five count

// How often each face lies on the table, by face; place 0 stays empty.
using FaceCounts = Indexed<int, facesOfADie + 1>;

FaceCounts CountFaces(const DiceSet& dice) {
    FaceCounts counts{};
    for (int i = 0; i <= dice.LastDieIndex; ++i) ++counts[dice.DiceValues[i]];
    return counts;
}

int SumOfHighest(const FaceCounts& counts, int dice) {
    int sum = 0;
    for (int face = facesOfADie; face >= 1 && dice > 0; --face) {
        const int taken = std::min(dice, counts[face]);
        sum += taken * face;
        dice -= taken;
    }
    return sum;
}

int SumOfLowest(const FaceCounts& counts, int dice) {
    int sum = 0;
    for (int face = 1; face <= facesOfADie && dice > 0; ++face) {
        const int taken = std::min(dice, counts[face]);
        sum += taken * face;
        dice -= taken;
    }
    return sum;
}

// The highest face that lies at least this often, or 0.
int HighestOf(const FaceCounts& counts, int atLeast) {
    for (int face = facesOfADie; face >= 1; --face)
        if (counts[face] >= atLeast) return face;
    return 0;
}

int UpperValue(const FaceCounts& counts, int face) { return face * std::min(scoredDice, counts[face]); }
int MaxValue(const FaceCounts& counts) { return SumOfHighest(counts, scoredDice); }
int MinValue(const FaceCounts& counts) { return SumOfLowest(counts, scoredDice); }

// So many equal dice and the highest of the others, five dice in all, and the bonus of the row.
int EqualDiceValue(FaceCounts counts, int equal, int bonus) {
    const int face = HighestOf(counts, equal);
    if (face == 0) return 0;
    counts[face] -= equal;
    return equal * face + SumOfHighest(counts, scoredDice - equal) + bonus;
}

int ThreeOfAKindValue(const FaceCounts& counts) { return EqualDiceValue(counts, 3, 10); }
int FourOfAKindValue(const FaceCounts& counts) { return EqualDiceValue(counts, 4, 30); }
int FiveOfAKindValue(const FaceCounts& counts) { return HighestOf(counts, 5) > 0 ? luckyCupPoints : 0; }

int FullHouseValue(const FaceCounts& counts) {
    int best = 0;
    for (int three = 1; three <= facesOfADie; ++three)
        for (int two = 1; two <= facesOfADie; ++two)
            if (three != two && counts[three] >= 3 && counts[two] >= 2) best = std::max(best, 3 * three + 2 * two + 20);
    return best;
}

int StraightValue(const FaceCounts& counts) {
    const auto lies = [&](int face) { return counts[face] > 0; };
    if (!lies(2) || !lies(3) || !lies(4) || !lies(5)) return 0;
    if (lies(6)) return 60;
    return lies(1) ? 50 : 0;
}

bool Written(const Game& game, int row) { return !game.card[game.session.CurrentColumn].boxes[row].empty(); }

void WriteBox(Game& game) {
    const GameSession& session = game.session;
    SetBoxText(game, session.CurrentColumn, session.CurrentRow, std::to_string(session.RowScore));
}

// Down is filled from Ones on and Up towards it, so that in them one row always comes last of the three that make up
// (Max-Min)xOnes; in the others it may be any.
bool CompletesProduct(const Game& game) {
    switch (game.session.CurrentColumn) {
        case ScoreColumn::Down:
            return game.session.CurrentRow == rowMin;
        case ScoreColumn::Up:
            return game.session.CurrentRow == rowOnes;
        default:
            return Written(game, rowOnes) && Written(game, rowMax) && Written(game, rowMin);
    }
}

void CountUpperRow(Game& game) {
    const ScoreColumn column = game.session.CurrentColumn;
    int* count = UpperCount(game.session, column);
    if (count == nullptr || game.session.BonusGiven[column]) return;
    if (++*count == rowSixes + 1) GiveBonusIfEarned(game, column);
}

void WriteUpperRow(Game& game) {
    const ScoreColumn column = game.session.CurrentColumn;
    WriteBox(game);
    AddToTotal(game, column, TotalRow::SubTotal, game.session.RowScore);
    if (game.session.CurrentRow == rowOnes && CompletesProduct(game)) CompleteProduct(game, column);
    AddToTotal(game, column, TotalRow::ColumnTotal, game.session.RowScore);
    CountUpperRow(game);
}

void WriteMaxOrMin(Game& game) {
    WriteBox(game);
    if (CompletesProduct(game)) CompleteProduct(game, game.session.CurrentColumn);
}

void WriteLowerRow(Game& game) {
    WriteBox(game);
    AddToTotal(game, game.session.CurrentColumn, TotalRow::ColumnTotal, game.session.RowScore);
}

// What all routines have in common, around the value of the one and the writing of its kind of row.
template <typename Value>
void Score(Game& game, Value value, void (*write)(Game&)) {
    if (!game.session.ComputeOnly) SortDice(game.dice);
    game.session.RowScore = value(CountFaces(game.dice));
    if (!game.session.ComputeOnly && game.session.CurrentColumn != ScoreColumn::None) write(game);
}

}  // namespace

ByRow<int> RowValues(const DiceSet& dice) {
    const FaceCounts counts = CountFaces(dice);
    ByRow<int> values;
    for (int face = 1; face <= facesOfADie; ++face) values[face - 1] = UpperValue(counts, face);
    values[rowMax] = MaxValue(counts);
    values[rowMin] = MinValue(counts);
    values[rowThreeOfAKind] = ThreeOfAKindValue(counts);
    values[rowFullHouse] = FullHouseValue(counts);
    values[rowStraight] = StraightValue(counts);
    values[rowFourOfAKind] = FourOfAKindValue(counts);
    values[rowLuckyCup] = FiveOfAKindValue(counts);
    return values;
}

void ScoreUpperRow(Game& game, int face) {
    Score(
        game, [face](const FaceCounts& counts) { return UpperValue(counts, face); }, WriteUpperRow);
}

void ScoreMax(Game& game) { Score(game, MaxValue, WriteMaxOrMin); }
void ScoreMin(Game& game) { Score(game, MinValue, WriteMaxOrMin); }
void ScoreThreeOfAKind(Game& game) { Score(game, ThreeOfAKindValue, WriteLowerRow); }
void ScoreFullHouse(Game& game) { Score(game, FullHouseValue, WriteLowerRow); }

// The one row that leaves the dice in the order that it found.
void ScoreStraight(Game& game) {
    const auto lying = game.dice.DiceValues;
    Score(game, StraightValue, WriteLowerRow);
    game.dice.DiceValues = lying;
}

void ScoreFourOfAKind(Game& game) { Score(game, FourOfAKindValue, WriteLowerRow); }
void ScoreFiveOfAKind(Game& game) { Score(game, FiveOfAKindValue, WriteLowerRow); }

void ScoreRowOf(Game& game, int row) {
    assert(IsRow(row));
    using Routine = void (*)(Game&);
    static constexpr Indexed<Routine, rowCount - rowMax, int, rowMax> routines{
        {ScoreMax, ScoreMin, ScoreThreeOfAKind, ScoreFullHouse, ScoreStraight, ScoreFourOfAKind, ScoreFiveOfAKind}};
    if (row <= rowSixes)
        ScoreUpperRow(game, row + 1);
    else
        routines[row](game);
}

void SortDice(DiceSet& dice) {
    std::ranges::sort(dice.DiceValues.begin(), dice.DiceValues.begin() + dice.LastDieIndex + 1);
}
