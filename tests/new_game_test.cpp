#include "tests/state_differences.h"

namespace {

// What New Game leaves as it was, until a roll, a placement or the end of a game sets it.
const std::string leftAlone =
    " session.CounterRan session.CounterSkip session.EndGameFinish session.FinalScore1 session.FinalScore2 "
    "session.HintSnapshot session.LastFinalScore session.LastScorePosition session.OpenedFromGame session.PrevTotal2 "
    "session.SettingsChanged session.ShowScoreResult session.TipsDirty dice.face counter.picBuffer0 "
    "counter.picBuffer1 ";

void PlayAtRandom(PlayedTable& played, std::mt19937& random, unsigned long events) {
    played.Do("roll");
    for (; events > 0 && !played.game.session.GameOverShown; --events) {
        auto open = played.OpenEvents();
        if (played.game.table.undo) open.push_back("undo");
        if (played.game.table.redo) open.push_back("redo");
        if (random() % 8 == 0) played.table.dialogs.answers = {HeadlessAnswer::Undo};
        played.Do(open[random() % open.size()]);
        played.table.dialogs.answers.clear();
    }
    played.Takes("tick tmrCounter");
    // Between the last box of the first player and the next roll New Game has nothing to clear.
    if (!played.game.session.GameInProgress) played.Do("next");
}

TEST(NewGame, StartsAndGoesOnLikeTheFirstOfAProcess) {
    for (unsigned long seed = 0; seed < 80; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        const GameSettings settings = VariantOf(seed), next = VariantOf(seed / 8 % 2 == 0 ? seed : random());
        PlayedTable played(settings), fresh(next);
        PlayAtRandom(played, random, random() % 3000);
        played.game.session.BonusGiven.fill(true);  // seldom earned at random
        std::ostringstream options;
        options << "options NumberOfDice=" << next.NumberOfDice << " NumberOfPlayers=" << next.NumberOfPlayers
                << " NumberOfColumns=" << next.NumberOfColumns;
        played.Do((settings == next ? "new" : options.str()) + ";tick tmrAnimation 99;tick tmrRollDice 2");
        std::string allowed = leftAlone;
        if (next.NumberOfPlayers == 2) allowed += "panels ";  // the hidden instruction
        if (settings != next) allowed += "showBoard.caption ";
        if (settings.NumberOfColumns > next.NumberOfColumns) allowed += "enabled.Down enabled.Oblg enabled.Up ";
        if (settings.NumberOfPlayers > next.NumberOfPlayers)
            allowed += "counter.picPlayer1Score counter.picPlayer2Score ";
        EXPECT_EQ(Differences(StateOf(fresh), StateOf(played), allowed), "");
        EXPECT_EQ(played.game.parked.PrevTotal + played.game.parked.PrevTotal2, 0);
        fresh.table.random.state = played.table.random.state;
        for (auto open = fresh.OpenEvents(); !open.empty() && random() % 50 != 0; open = fresh.OpenEvents()) {
            const std::string& event = open[random() % open.size()];
            fresh.Do(event);
            played.Do(event);
            EXPECT_EQ(Differences(StateOf(fresh), StateOf(played), allowed), "") << event;
        }
    }
}

}  // namespace
