#include <set>

#include "core/box_click.h"
#include "core/turn.h"
#include "table/main_window.h"
#include "tests/table_driver.h"

namespace {

constexpr GameSettings fiveDice{.NumberOfDice = 4};

bool IsOpen(const Game& game, ScoreColumn column, int row, int written) {
    const GameSession& session = game.session;
    if (session.RollCount == 0 || (!FourColumns(game.settings) && column != ScoreColumn::Rand)) return false;
    if (session.Announced) return column == ScoreColumn::Oblg && row == session.CurrentRow;
    if (column == ScoreColumn::Down) return row == written;
    if (column == ScoreColumn::Up) return row == rowLuckyCup - written;
    return game.card[column].boxes[row].empty() && (column == ScoreColumn::Rand || session.RollCount == 1);
}

// Checks all totals as they follow from the boxes alone, and what is open. Returns the points of the upper rows.
ByColumn<int> CheckBoard(const Game& game) {
    ByColumn<int> upper;
    int boxes = 0, total = 0;
    for (ScoreColumn name : allColumns) {
        const ColumnCard& column = game.card[name];
        const auto value = [&](int row) { return TextValue(column.boxes[row]); };
        int upperRows = 0, middleRows = 0, lowerRows = 0, lower = 0;
        for (int row = 0; row < rowCount; ++row) {
            const bool middle = row == rowMax || row == rowMin;
            (row <= rowSixes ? upperRows : middle ? middleRows : lowerRows) += !column.boxes[row].empty();
            (row <= rowSixes ? upper[name] : lower) += middle ? 0 : value(row);
        }
        const bool complete = middleRows == 2 && !column.boxes[rowOnes].empty();
        const int product = complete ? (value(rowMax) - value(rowMin)) * value(rowOnes) : 0;
        const bool bonus = upperRows == 6 && upper[name] >= 63;
        const int subTotal = upper[name] + (bonus ? 35 : 0);
        const auto textIf = [](bool shown, int number) { return shown ? std::to_string(number) : std::string(); };
        EXPECT_EQ(column.totals.values, (std::array{textIf(upperRows > 0, subTotal), textIf(complete, product),
                                                    textIf(upperRows + lowerRows > 0, subTotal + product + lower)}));
        EXPECT_EQ(game.session.BonusGiven[name], bonus);
        const int written = upperRows + middleRows + lowerRows;
        for (int row = 0; row < rowCount; ++row)
            EXPECT_EQ(column.offered[row], IsOpen(game, name, row, written)) << static_cast<int>(name) << ' ' << row;
        const int pointer = name == ScoreColumn::Down ? game.session.NextDownRow : 12 - game.session.NextUpRow;
        EXPECT_TRUE(name >= ScoreColumn::Rand || pointer == written);
        boxes += written;
        total += subTotal + product + lower;
    }
    EXPECT_EQ(game.session.BoxesFilled, boxes);
    EXPECT_EQ(game.session.Total, total);
    return upper;
}

// Whole games of random inputs. The dice for a box are laid so that the upper rows end close to the bonus.
TEST(Placement, KeepsTheBoardInOrderWithABonusAt63AndNoneAt62) {
    std::set<std::pair<ScoreColumn, int>> seen;
    std::mt19937 random(1);
    for (int number = 0; number < 160; ++number) {
        PlayedTable t({number % 3 ? 4 : 5, number % 5 ? 1 : 2, number % 4 == 2 ? 1 : 4});
        const GameSession& session = t.game.session;
        ByColumn<int> upper;
        int written = 0;
        while (!session.GameOverShown) {
            const std::vector<std::string> open = t.OpenEvents();
            const std::string& event = open[random() % open.size()];
            const int count = random() % 16 ? 2 + static_cast<int>(random() % 3) : 0;
            for (int i = 0; i <= t.game.dice.LastDieIndex && event.starts_with("box"); ++i)
                t.game.dice.DiceValues[i] = (std::stoi(event.substr(6)) + (i < count ? 0 : 1)) % 6 + 1;
            SCOPED_TRACE(event);
            t.Do(event);
            upper = CheckBoard(t.game);
            if (session.RollCount > 0 || event.starts_with("tick")) continue;
            ++written;
            const int score = session.RowScore;
            EXPECT_EQ(t.game.card[session.CurrentColumn].boxes[session.CurrentRow], std::to_string(score));
            const bool waits = score != 0 || session.BoxesFilled == BoardSize(t.game.settings);
            const std::string sound = std::string(waits ? "effect-wait score" : "effect score") + (score ? "" : "Zero");
            EXPECT_EQ(std::ranges::count(t.table.log, sound), 1) << sound;
        }
        EXPECT_EQ(written, t.game.settings.NumberOfPlayers * BoardSize(t.game.settings));
        for (ScoreColumn column : allColumns) seen.insert({column, upper[column]});
    }
    for (ScoreColumn column : allColumns)
        EXPECT_TRUE(seen.contains({column, 62}) && seen.contains({column, 63})) << static_cast<int>(column);
}

// Called while the sound of a placement is heard.
struct Listener : SoundEffects {
    void PlayEffect(std::string_view) override {}
    void PlayEffectWait(std::string_view) override { heard(); }
    std::function<void()> heard;
};

TEST(Placement, SoundComesBetweenTheTotalAndTheCountOfBoxes) {
    for (ScoreColumn column : allColumns) {
        PlayedTable table(fiveDice);
        HeadlessTable& t = table.table;
        Listener ears;
        Game game({t.view, t.timers, t.clock, t.random, ears, t.media, t.dialogs, t.scores, t.shell, t.store, t.parts});
        std::array<int, 3> heard{};
        ears.heard = [&] { heard = {game.table.roll.enabled, game.session.Total, game.session.BoxesFilled}; };
        game.settings = fiveDice;
        Form_Load(game);
        t.random.faces.assign(5, 1);
        picRollDices_MouseUp(game);
        // Holding all dice turns the Roll button off, as the writing of an announced box does by itself.
        for (int i = 0; i < 5 && column != ScoreColumn::Oblg; ++i) picDice_Click(game, i);
        const bool up = column == ScoreColumn::Up;  // gives it back before its sound, the others after it
        for (int click = column == ScoreColumn::Oblg ? 1 : 2; click <= 2; ++click)
            ClickBox(game, column, up ? rowLuckyCup : rowOnes);
        EXPECT_EQ(heard, (std::array{up ? 1 : 0, up ? 100 : 5, 0}));
        EXPECT_TRUE(game.table.roll.enabled && game.session.BoxesFilled == 1);
    }
}

}  // namespace
