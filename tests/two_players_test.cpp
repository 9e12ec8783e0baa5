#include "tests/state_differences.h"

namespace {

// What belongs to the player whose board is on the table, and what follows from it.
QJsonObject OwnOf(const PlayedTable& played) {
    const QJsonObject state = StateOf(played);
    QJsonObject own{{"picScore", state["counter"]["picScore"]}};
    for (const char* name : {"boxes", "totals", "offered", "tips", "lamps"}) own[name] = state[name];
    for (const char* name : {"Total", "PrevTotal", "PrevTotal2", "NextDownRow", "NextUpRow", "BoxesFilled",
                             "BonusGiven", "RandUpperCount", "OblgUpperCount", "RollCount"})
        own[name] = state["session"][name];
    return own;
}

GameSettings ForOne(GameSettings settings) {
    settings.NumberOfPlayers = 1;
    return settings;
}

// A game of two, and for each of them a game of one in which the same is done with the same dice.
struct Match {
    explicit Match(const GameSettings& settings)
        : both(settings),
          ones{{PlayedTable(ForOne(settings)), PlayedTable(ForOne(settings))}},
          names{settings.Player1, settings.Player2} {}

    void Play(unsigned seed) {
        for (std::mt19937 random(seed); !both.game.session.GameOverShown;) {
            auto open = both.OpenEvents();
            if (both.game.table.undo && ones[mover].game.table.undo) open.push_back("undo");
            if (both.game.table.redo && ones[mover].game.table.redo) open.push_back("redo");
            Do(open[random() % open.size()]);
        }
    }

    void Do(const std::string& event) {
        SCOPED_TRACE(event);
        if (event == "next") mover = 1 - mover;
        PlayedTable& one = ones[mover];
        one.table.random.state = both.table.random.state;
        for (PlayedTable* played : {&both, &one}) {
            played->Do(event == "next" && played == &one ? "roll" : event);
            played->Takes("tick tmrCounter");
        }
        if (event[0] != 'd') Check(event);
    }

    void Check(const std::string& event) const {
        const QJsonObject own = OwnOf(both);
        // With equal names Player 1 is always found on the table, so that the blank picture comes to it.
        EXPECT_EQ(Differences(own, OwnOf(ones[mover]), equalNames ? " picScore " : ""), "");
        EXPECT_TRUE(!equalNames || event != "next" || own["picScore"].toString().isEmpty());
        EXPECT_EQ(both.game.session.OtherTotal, ones[1 - mover].game.session.Total);
        const std::string first = std::to_string(ones[0].game.session.Total),
                          second = std::to_string(ones[1].game.session.Total);
        if (!equalNames) {
            EXPECT_EQ(both.game.table.Panel(3).text, first + " : " + second);
        }
        CheckNames();
    }

    void CheckNames() const {
        EXPECT_EQ(both.game.table.title, "Lucky Cup - " + names[mover]);
        EXPECT_EQ(both.game.table.Panel(1).text, names[mover]);
    }

    void CheckBoards() {
        const QJsonObject before = StateOf(both);
        for (int board = 0; board < 4; ++board) {
            EXPECT_EQ(both.game.table.showBoard.caption, "    Show      " + names[1 - mover] + "'s  Board");
            both.Do("board");
            mover = 1 - mover;
            const std::string ofTheLast =
                equalNames ? " Total PrevTotal PrevTotal2 picScore " : " Total PrevTotal PrevTotal2 ";
            EXPECT_EQ(Differences(OwnOf(both), OwnOf(ones[mover]), ofTheLast), "");
            CheckNames();
        }
        EXPECT_EQ(Differences(before, StateOf(both), " counter "), "");
    }

    PlayedTable both;
    std::array<PlayedTable, 2> ones;
    const std::array<std::string, 2> names;
    const bool equalNames = names[0] == names[1];
    std::size_t mover = 0;
};

TEST(TwoPlayers, EachPlaysAGameOfHisOwn) {
    for (unsigned seed = 0; seed < 24; ++seed) {
        SCOPED_TRACE(seed);
        Match match({.NumberOfDice = seed & 1 ? 4 : 5,
                     .NumberOfPlayers = 2,
                     .NumberOfColumns = seed & 2 ? 1 : 4,
                     .Player1 = "Ann",
                     .Player2 = seed & 4 ? "Ann" : "Bo"});
        match.Play(seed);
        match.CheckBoards();
    }
}

}  // namespace
