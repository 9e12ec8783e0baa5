#include <numeric>

#include "core/show.h"
#include "tests/state_differences.h"
#include "tests/turn_steps.h"

namespace {

// What a move and its Undo may leave other than it was before. Totals keep their numbers.
const std::string leftOver =
    " counter.picBuffer0 counter.picBuffer1 dice.HeldMirror dice.UndoDiceValues redo session.CounterRan totals "
    "session.CurrentRow session.HintSnapshot session.PrevColumn session.PrevRollCount session.PrevTotal "
    "session.PrevTotal2 session.RedoAnnounceTwice session.RowScore session.TipsDirty ";

struct UndoGame : PlayedTable {
    explicit UndoGame(unsigned seed) : PlayedTable(Variant(seed)), random(seed) {
        if (seed & 8) Do("hints request");
        FillTop(FourColumns(game.settings) ? 1 + seed / 16 % 4 : 3);
        for (auto open = OpenEvents(); !open.empty() && !game.session.GameOverShown; open = OpenEvents()) {
            const std::string event = open[random() % open.size()];
            if (event[0] == 'b' && random() % 2 == 0)
                CheckMove(event);
            else
                Do(event);
            Takes("tick tmrCounter");
        }
    }

    // The upper boxes of a column, high enough for the bonus, and a Max far below the Min.
    void FillTop(unsigned column) {
        std::vector<int> rows(column == 2 ? rowCount : rowThreeOfAKind);
        std::iota(rows.begin(), rows.end(), 0);
        if (column == 2) std::ranges::reverse(rows);
        if (column > 2) std::ranges::shuffle(rows, random);
        for (int row : rows)
            for (int player = 0; player < game.settings.NumberOfPlayers; ++player) {
                const std::string box = "box " + std::to_string(column) + ' ' + std::to_string(row);
                table.random.faces.assign(maxDice, row == rowMin ? 6 : row % rowMax + 1);
                Do(game.table.nextPlayer ? "next" : "roll");
                if (column == 4) Do(box);
                CheckMove(box);
                for (const std::string& left : {box, box, std::string("tick tmrCounter")}) Takes(left);
                table.random.faces.clear();
            }
    }

    void CheckMove(const std::string& event) {
        SCOPED_TRACE(event);
        const GameSession& session = game.session;
        const QJsonObject before = StateOf(*this);
        const Scorecard card = game.card;
        std::string changed = leftOver;
        if (!game.settings.hintAllways) changed += "tips ";
        // An announcement keeps MayHint and its own tip, and the tips of a second Undo are those of the first.
        if (event[4] == '4' || !session.MayHint || !session.TipsDirty) changed += "session.MayHint tips ";
        if (session.Announced || session.AnnounceResume)
            changed += "offered session.Announced session.AnnounceResume session.CurrentColumn undo ";
        if (session.RollCount == 3) changed += "dice.shown ";
        // Undo turns the Roll button on, also where all dice are held or "You must announce now!" stood.
        const std::string roll = session.RollCount < 3 && !game.table.roll.enabled ? "roll session.RollAllowed " : "";
        Do(event);
        Takes("tick tmrCounter");
        if (!game.table.undo || session.EndGameSeen) return;
        const bool repairs = session.Total < session.PrevTotal || session.Total < 0 || session.PrevTotal < 0;
        const QJsonObject done = StateOf(*this);
        Do("undo");
        const QJsonObject undone = StateOf(*this);
        for (std::size_t total = 0; total < 12; ++total)
            EXPECT_EQ(TextValue(game.card.values[total / 3].totals[total % 3]),
                      TextValue(card.values[total / 3].totals[total % 3]));
        Do("redo");
        Takes("tick tmrCounter");
        const QJsonObject redone = StateOf(*this);
        Do("undo");
        const std::string again = " session.CounterSkip session.PrevColumn session.PrevTotal2 session.TipsDirty ";
        EXPECT_EQ(Differences(before, undone, changed + roll), "");
        EXPECT_EQ(Differences(done, redone, again + roll + (repairs ? "totals " : "")), "");
        EXPECT_EQ(Differences(undone, StateOf(*this), " session.PrevTotal2 "), "");
        if (random() % 2 == 0) Do("redo");
    }

    std::mt19937 random;
};

TEST(Undo, GivesBackTheMoveAndRedoRepeatsIt) {
    for (unsigned seed = 0; seed < 128; ++seed) UndoGame{seed};
}

// The rolls made, what is on, and how many boxes and tips.
std::string Turn(const Game& game) {
    std::ptrdiff_t boxes = 0;
    for (const ColumnCard& column : game.card.values)
        for (std::size_t row = 0; row < rowCount; ++row) boxes += column.offered[row] && column.enabled[row];
    return std::to_string(game.session.RollCount) + (game.table.undo ? " undo" : "") +
           (game.table.redo ? " redo" : "") + (game.session.Announced ? " announced" : "") +
           (game.session.AnnounceResume ? " resume " : " ") + std::to_string(boxes) + '/' +
           std::to_string(rowCount - std::ranges::count(game.table.tips, ""));
}

TEST(Undo, OfABoxWithAndWithoutRollsLeft) {
    PlayedTable t;
    Play(t, Turn,
         {{"state", "", "0 0/0"},
          {"roll 1 2 3 4 5 6", "effect rollAll, frames", "1 28/9"},
          {"box 3 6;tick tmrCounter", "effect-wait score, refresh 0@75", "0 undo 0/0"},
          {"undo", "effect undo, refresh ", "1 redo 28/9"},
          {"redo", "effect redo, refresh 0@75", "0 undo 0/0"},
          {"tick tmrCounter;undo", "effect undo, refresh ", "1 redo 28/9"},
          {"roll 1 2 3 4 5 6", "effect rollAll, frames", "2 15/9"},
          {"roll 1 2 3 4 5 6", "effect rollAll, frames", "3 15/9"},
          {"box 3 6;tick tmrCounter", "effect-wait score, refresh 0@75", "0 undo 0/0"},
          {"undo", "effect undo, refresh ", "3 redo 15/9"},
          {"box 3 7;tick tmrCounter", "effect-wait score, refresh 0@75", "0 undo 0/0"},
          {"roll 1 2 3 4 5 6", "effect rollAll, frames", "1 27/9"},
          {"hints request;hint", "effect hint"},
          {"box 3 6;tick tmrCounter", "effect-wait score, refresh 0@75", "0 undo 0/0"},
          {"undo", "effect undo, refresh 0@75", "1 redo 27/0"}});
}

TEST(Undo, OfAnAnnouncement) {
    PlayedTable t;
    Play(t, Turn,
         {{"roll 1 2 3 4 5 6", "effect rollAll, frames", "1 28/9"},
          {"box 4 6", "effect announce", "1 undo announced 1/1"},
          {"undo", "effect undo", "1 redo 28/9"},
          {"redo", "effect redo", "1 undo announced 1/1"},
          {"box 4 6;tick tmrCounter", "effect-wait score, refresh 0@75", "0 undo 0/0"},
          {"undo", "effect undo, refresh ", "1 redo 28/9"},
          {"redo", "effect redo, refresh 0@75", "0 undo 0/0"},
          {"tick tmrCounter;undo", "effect undo, refresh ", "1 redo 28/9"},
          {"box 4 7", "effect announce", "1 undo announced 1/1"},
          {"undo;redo", "effect undo, effect redo"},
          {"roll 1 2 3 4 5 6", "effect rollAll, frames", "2 announced 1/1"},
          {"box 4 7;tick tmrCounter", "effect-wait score, refresh 0@75", "0 undo resume 0/0"},
          {"undo", "effect undo, refresh ", "2 redo resume 1/1"},
          {"redo", "effect redo, refresh 0@75", "0 undo resume 0/0"},
          {"tick tmrCounter;undo", "effect undo, refresh ", "2 redo resume 1/1"},
          {"roll 1 2 3 4 5 6", "effect rollAll, frames, sleep 200, effect-wait score", "0 0/0"}});
}

TEST(Undo, OfferedNoMoreAtTheEnd) {
    for (int flags = 0; flags < 8; ++flags) {
        const bool over = flags & 1, seen = flags & 2, on = flags & 4;
        PlayedTable t;
        t.Do("roll");
        t.game.session.GameOverShown = over;
        t.game.session.EndGameSeen = seen;
        SetUndoEnabled(t.game, on);
        SetRedoEnabled(t.game, on);
        t.Do("box 3 6");
        EXPECT_EQ(t.game.table.undo, (!over && !seen) || on) << flags;
        EXPECT_EQ(t.game.table.redo, over && !seen && on) << flags;
    }
}

}  // namespace
