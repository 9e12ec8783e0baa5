#include "core/placement.h"

#include <set>

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
    int boxes = 0;
    int total = 0;
    for (ScoreColumn name : allColumns) {
        const ColumnCard& column = game.card[name];
        const auto value = [&](int row) { return TextValue(column.boxes[row]); };
        int written = 0, upperRows = 0, lowerRows = 0, lower = 0;
        for (int row = 0; row < rowCount; ++row) {
            if (column.boxes[row].empty()) continue;
            ++written;
            upperRows += row <= rowSixes;
            lowerRows += row >= rowThreeOfAKind;
            (row <= rowSixes ? upper[name] : lower) += row == rowMax || row == rowMin ? 0 : value(row);
        }
        const bool complete = written - upperRows - lowerRows == 2 && !column.boxes[rowOnes].empty();
        const int product = complete ? (value(rowMax) - value(rowMin)) * value(rowOnes) : 0;
        const bool bonus = upperRows == 6 && upper[name] >= 63;
        const int subTotal = upper[name] + (bonus ? 35 : 0);
        const auto textIf = [](bool shown, int number) { return shown ? std::to_string(number) : std::string(); };
        const std::array totals{textIf(upperRows > 0, subTotal), textIf(complete, product),
                                textIf(upperRows + lowerRows > 0, subTotal + product + lower)};
        EXPECT_EQ(column.totals, totals) << "column " << static_cast<int>(name);
        EXPECT_EQ(game.session.BonusGiven[name], bonus);
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

TEST(Placement, WholeGamesKeepTheBoardInOrder) {
    for (int columns : {1, 4})
        for (int players : {1, 2})
            for (unsigned seed = 1; seed <= 10; ++seed) {
                const int dice = seed % 2 ? 4 : 5;
                PlayedTable t({.NumberOfDice = dice, .NumberOfPlayers = players, .NumberOfColumns = columns});
                int written = 0;
                t.PlayGame(seed, [&](const std::string& event) {
                    SCOPED_TRACE(event);
                    written += t.game.session.RollCount == 0 && !event.starts_with("tick");
                    CheckBoard(t.game);
                });
                EXPECT_EQ(t.game.session.BoxesFilled, BoardSize(t.game.settings));
                EXPECT_EQ(written, players * BoardSize(t.game.settings));
            }
}

// Takes random boxes with dice that bring the upper rows close to the bonus, on both sides of it.
TEST(Placement, BonusAt63AndNotAt62InEveryColumn) {
    std::set<std::pair<ScoreColumn, int>> seen;
    std::mt19937 random(1);
    for (int boards = 0; boards < 120; ++boards) {
        PlayedTable t(fiveDice);
        ByColumn<int> upper;
        while (t.game.session.BoxesFilled < 52) {
            std::string box;
            for (t.Do("roll"); !box.starts_with("box"); box = t.OpenEvents()[random() % t.OpenEvents().size()]) {
            }
            const int row = std::stoi(box.substr(6));
            const int count = random() % 16 ? 2 + static_cast<int>(random() % 3) : 0;
            for (int i = 0; i < 5; ++i) t.game.dice.DiceValues[i] = i < count ? row % 6 + 1 : (row + 1) % 6 + 1;
            t.Do(box);
            if (t.game.session.Announced) t.Do(box);
            upper = CheckBoard(t.game);
        }
        for (ScoreColumn column : allColumns) seen.insert({column, upper[column]});
    }
    for (ScoreColumn column : allColumns)
        EXPECT_TRUE(seen.contains({column, 62}) && seen.contains({column, 63})) << static_cast<int>(column);
}

TEST(Placement, TotalsWorkedOutOnPaper) {
    struct Case {
        const char* events;
        std::array<std::string, 3> totals;
    };
    const std::array cases{
        Case{"roll 2 2 2 2 2;box 3 6;roll 6 6 6 6 1;box 3 7", {"", "", ""}},
        Case{"roll 2 2 2 2 2;box 3 6;roll 6 6 6 6 1;box 3 7;roll 1 1 1 2 2;box 3 0", {"3", "-45", "-42"}},
        Case{"roll 2 2 2 2 2;box 3 6;roll 2 2 3 3 4;box 3 0;roll 6 6 6 6 1;box 3 7", {"0", "0", "0"}},
        Case{"roll 1 2 3 4 6;box 3 10", {"", "", "0"}},
    };
    for (const Case& c : cases) {
        PlayedTable t(fiveDice);
        t.Do(c.events);
        EXPECT_EQ(t.game.card[ScoreColumn::Rand].totals, c.totals) << c.events;
        EXPECT_EQ(t.game.session.Total, TextValue(c.totals[2]));
    }
}

TEST(Placement, SoundAndCounterGoByTheWorthOfTheBox) {
    struct Case {
        const char* before;
        const char* click;
        bool timer;  // else the counter has run
        std::vector<std::string> log;
    };
    const std::array cases{
        Case{"roll 1 1 1 2 3", "box 3 0", true, {"effect-wait score"}},
        Case{"roll 1 1 1 2 3", "box 3 6", true, {"effect-wait score"}},
        Case{"roll 2 2 2 2 3", "box 1 0", false, {"effect scoreZero", "refresh 0@75"}},
        Case{"roll 2 2 2 2 3;box 4 0", "box 4 0", true, {"effect scoreZero"}},
        Case{"sounds off;roll 1 1 1 2 3", "box 3 0", true, {}},
        Case{"sounds off;roll 1 1 1 2 3", "box 2 12", false, {"refresh 0@75"}},
        Case{"roll 1 1 1 2 3;box 3 0;undo", "redo", true, {"effect redo", "refresh "}},
    };
    for (const Case& c : cases) {
        PlayedTable t(fiveDice);
        t.Do(c.before);
        t.Do(c.click);
        EXPECT_EQ(t.table.log, c.log) << c.click << " after " << c.before;
        EXPECT_EQ(t.game.table[Timer::tmrCounter].enabled, c.timer) << c.click << " after " << c.before;
    }
    for (int boxes : {12, 51}) {  // the last box waits for the sound of nothing, too
        PlayedTable t({.NumberOfDice = 4, .NumberOfColumns = boxes == 12 ? 1 : 4});
        t.Do("roll 1 2 3 4 6;roll;roll");
        t.game.session.BoxesFilled = boxes;
        t.Do("box 3 12");
        EXPECT_EQ(t.table.log.front(), "effect-wait scoreZero");
    }
}

// Notes how the table stands while the sound of a placement is heard.
struct Listener : SoundEffects {
    void PlayEffect(std::string_view) override {}
    void PlayEffectWait(std::string_view) override {
        const GameSession& session = game->session;
        heard = {game->table.roll.enabled, session.Total, session.PrevTotal, session.BoxesFilled, session.RollCount};
    }
    Game* game = nullptr;
    std::array<int, 5> heard{};
};

TEST(Placement, SoundComesBetweenTheTotalAndTheCountOfBoxes) {
    for (ScoreColumn column : allColumns) {
        PlayedTable t(fiveDice);
        Listener listener;
        HeadlessTable& p = t.table;
        Game game(
            {p.view, p.timers, p.clock, p.random, listener, p.media, p.dialogs, p.scores, p.shell, p.store, p.parts});
        listener.game = &game;
        game.settings = fiveDice;
        Form_Load(game);
        p.random.faces.assign(15, 1);
        picRollDices_MouseUp(game);
        const int row = column == ScoreColumn::Up ? rowLuckyCup : rowOnes;
        if (column == ScoreColumn::Oblg) cmdOblg_Click(game, row);
        picRollDices_MouseUp(game);
        picRollDices_MouseUp(game);
        if (column != ScoreColumn::Oblg) ClickBox(game, column, row);
        const bool up = column == ScoreColumn::Up;  // gives the Roll button back before its sound
        EXPECT_EQ(listener.heard, (std::array{up ? 1 : 0, up ? 100 : 5, 0, 0, 0}));
        EXPECT_EQ(game.session.BoxesFilled, 1);
        EXPECT_TRUE(game.table.roll.enabled);
    }
}

}  // namespace
