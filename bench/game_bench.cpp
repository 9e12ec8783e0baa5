#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>

#include "bench/null_table.h"
#include "core/box_click.h"
#include "core/row_scores.h"
#include "core/turn.h"
#include "table/score_counter.h"

namespace {

// The values of all thirteen rows for one throw, as the hints ask for them.
void RowPass(benchmark::State& state) {
    NullTable table;
    Game& game = table.game;
    game.dice.LastDieIndex = static_cast<int>(state.range(0)) - 1;
    std::array<DiceSet, 1024> throws;
    for (DiceSet& dice : throws) {
        dice = game.dice;
        std::ranges::generate(dice.DiceValues, [&] { return table.random.DrawDie(); });
    }
    std::size_t next = 0;
    for (auto _ : state) {
        const ByRow<int> values = RowValues(throws[next++ % throws.size()]);
        benchmark::DoNotOptimize(values);
    }
}
BENCHMARK(RowPass)->ArgName("dice")->Arg(5)->Arg(6);

// Always the first roll of a turn on an empty board, which offers the most boxes, with hints and sounds on.
void PressOfRoll(benchmark::State& state) {
    NullTable table;
    for (auto _ : state) {
        table.game.session.RollCount = 0;
        picRollDices_MouseUp(table.game);
    }
    if (!table.game.card[ScoreColumn::Oblg].offered[0]) state.SkipWithError("the roll offered no boxes");
}
BENCHMARK(PressOfRoll);

bool ClickFirstOffered(Game& game, ScoreColumn column) {
    const auto& offered = game.card[column].offered;
    const auto first = std::ranges::find(offered, true);
    if (first == offered.end()) return false;
    ClickBox(game, column, static_cast<int>(first - offered.begin()));
    return true;
}

bool ClickFreeBox(Game& game) {
    using enum ScoreColumn;
    return ClickFirstOffered(game, Down) || ClickFirstOffered(game, Up) || ClickFirstOffered(game, Rand);
}

bool OnlyOblgIsLeft(const Game& game) { return game.session.BoxesFilled >= boxCount - rowCount; }

// The announced box of a third roll is written by the roll itself, which ends the turn.
void PlayTurn(NullTable& table, int rolls) {
    Game& game = table.game;
    picRollDices_MouseUp(game);
    if (OnlyOblgIsLeft(game) && !game.session.Announced) ClickFirstOffered(game, ScoreColumn::Oblg);
    for (int roll = 1; roll < rolls; ++roll) picRollDices_MouseUp(game);
    if (game.session.RollCount > 0 && !ClickFreeBox(game)) ClickFirstOffered(game, ScoreColumn::Oblg);
    if (game.table.timers[Timer::tmrCounter].enabled) tmrCounter_Timer(game);
}

// From the load of the window to the last box, the score counter's runs included.
void YambGame(benchmark::State& state) {
    unsigned seed = 0;
    for (auto _ : state) {
        NullTable table(++seed);
        for (int turn = 0; turn < boxCount; ++turn) PlayTurn(table, static_cast<int>(state.range(0)));
        if (table.game.session.BoxesFilled != boxCount || !table.game.session.GameOverShown) {
            state.SkipWithError("the game did not reach its end");
            break;
        }
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(YambGame)->ArgName("rolls")->Arg(1)->Arg(3)->Unit(benchmark::kMicrosecond);

}  // namespace
