#include "tests/state_differences.h"

namespace {

// What a move and its Undo may leave other than it was before. Totals keep their numbers.
const std::string leftOver =
    " counter.picBuffer0 counter.picBuffer1 dice.HeldMirror dice.UndoDiceValues redo session.CounterRan totals "
    "session.CurrentRow session.HintSnapshot session.PrevColumn session.PrevRollCount session.PrevTotal2 "
    "session.RedoAnnounceTwice session.RowScore session.TipsDirty session.MayHint tips ";

struct UndoGame : PlayedTable {
    explicit UndoGame(unsigned seed) : PlayedTable(VariantOf(seed)), random(seed) {
        if (seed & 8) Do("hints request");
        for (auto open = OpenEvents(); !open.empty() && !game.session.GameOverShown; open = OpenEvents()) {
            const std::string event = open[random() % open.size()];
            event[0] == 'b' && random() % 2 == 0 ? CheckMove(event) : Do(event);
            Takes("tick tmrCounter");
        }
    }

    void CheckMove(const std::string& event) {
        SCOPED_TRACE(event);
        const GameSession& session = game.session;
        const QJsonObject before = StateOf(*this);
        const Scorecard card = game.card;
        const bool announced = session.Announced || session.AnnounceResume, third = session.RollCount == 3;
        // Undo turns the Roll button on, also where all dice are held or "You must announce now!" stood.
        const std::string roll = !third && !game.table.roll.enabled ? "roll session.RollAllowed " : "";
        Do(event);
        Takes("tick tmrCounter");
        if (!game.table.undo || session.EndGameSeen) return;
        const bool repairs = session.Total < session.PrevTotal || session.Total < 0 || session.PrevTotal < 0;
        const QJsonObject done = StateOf(*this);
        Do("undo");
        const QJsonObject undone = StateOf(*this);
        for (std::size_t i = 0; i < 12; ++i)
            EXPECT_EQ(TextValue(game.card.values[i / 3].totals.values[i % 3]),
                      TextValue(card.values[i / 3].totals.values[i % 3]));
        const std::string changed =
            leftOver + roll + (third ? "dice.shown " : "") + (repairs ? "" : "session.PrevTotal ") +
            (announced ? "offered undo session.Announced session.AnnounceResume session.CurrentColumn " : "");
        EXPECT_EQ(Differences(before, undone, changed), "");
        Do("redo");
        Takes("tick tmrCounter");
        const std::string again = " session.CounterSkip session.PrevColumn session.PrevTotal2 session.TipsDirty ";
        EXPECT_EQ(Differences(done, StateOf(*this), again + roll + (repairs ? "totals " : "")), "");
        Do("undo");
        EXPECT_EQ(Differences(undone, StateOf(*this), " session.PrevTotal2 "), "");
        if (random() % 2 == 0) Do("redo");
    }

    std::mt19937 random;
};

TEST(Undo, GivesBackTheMoveAndRedoRepeatsIt) {
    for (unsigned seed = 0; seed < 64; ++seed) UndoGame{seed};
}

}  // namespace
