#include "tests/state_differences.h"

namespace {

// What belongs to the player whose board is on the table, and what follows from it.
QJsonObject OwnOf(const PlayedTable& played) {
    const QJsonObject state = StateOf(played), session = state["session"].toObject();
    QJsonObject own{{"picScore", state["counter"]["picScore"]}};
    for (const char* name : {"boxes", "totals", "offered", "tips", "lamps"}) own[name] = state[name];
    for (const char* name : {"Total", "PrevTotal", "PrevTotal2", "NextDownRow", "NextUpRow", "BoxesFilled",
                             "BonusGiven", "RandUpperCount", "OblgUpperCount", "RollCount"})
        own[name] = session[name];
    return own;
}

// A game of two, and for each of them a game of one in which the same is done with the same dice.
struct Match {
    Match(const GameSettings& two, const GameSettings& one) : both(two), ones{{PlayedTable(one), PlayedTable(one)}} {}

    void Play(unsigned seed) {
        for (std::mt19937 random(seed); !both.game.session.GameOverShown;) {
            PlayedTable* one = &ones[mover];
            auto open = both.OpenEvents();
            if (both.game.table.undo && one->game.table.undo) open.push_back("undo");
            if (both.game.table.redo && one->game.table.redo) open.push_back("redo");
            const std::string event = open[random() % open.size()];
            SCOPED_TRACE(event);
            if (event == "next") one = &ones[mover = 1 - mover];
            one->table.random.state = both.table.random.state;
            both.Do(event);
            one->Do(event == "next" ? "roll" : event);
            both.Takes("tick tmrCounter");
            one->Takes("tick tmrCounter");
            // With equal names Player 1 is always found on the table, so that the blank picture comes to it.
            EXPECT_TRUE(!equalNames || event != "next" || OwnOf(both)["picScore"].toString().isEmpty());
            if (event[0] != 'd') Check();
        }
    }

    void Check(const std::string& notSwapped = " ") const {
        EXPECT_EQ(Differences(OwnOf(both), OwnOf(ones[mover]), notSwapped + (equalNames ? "picScore " : "")), "");
        EXPECT_EQ(both.game.table.title, "Lucky Cup - " + names[mover]);
        EXPECT_EQ(both.game.table.panels[1].text, names[mover]);
        const int first = ones[0].game.session.Total, second = ones[1].game.session.Total;
        if (equalNames) return;
        EXPECT_EQ(both.game.table.panels[3].text, std::to_string(first) + " : " + std::to_string(second));
    }

    PlayedTable both;
    std::array<PlayedTable, 2> ones;
    const std::array<std::string, 2> names{both.game.settings.Player1, both.game.settings.Player2};
    const bool equalNames = names[0] == names[1];
    std::size_t mover = 0;
};

TEST(TwoPlayers, EachPlaysAGameOfHisOwn) {
    for (unsigned seed = 0; seed < 16; ++seed) {
        SCOPED_TRACE(seed);
        GameSettings one = Variant(seed & 5U), two = Variant(seed | 2U);
        if (seed & 2) one.Player2 = two.Player2 = two.Player1;
        Match match(two, one);
        match.Play(seed);
        const QJsonObject over = StateOf(match.both);
        for (int board = 0; board < 4; ++board) {
            const std::string& other = match.names[match.mover = 1 - match.mover];
            EXPECT_EQ(match.both.game.table.showBoard.caption, "    Show      " + other + "'s  Board");
            match.both.Do("board");
            match.Check(" Total PrevTotal PrevTotal2 ");
        }
        EXPECT_EQ(Differences(over, StateOf(match.both), " counter "), "");
    }
}

}  // namespace
