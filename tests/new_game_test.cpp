#include "tests/state_differences.h"

namespace {

// What New Game leaves as it was, until a roll, a placement or the end of a game sets it.
const std::string leftAlone =
    " session.CounterRan session.CounterSkip session.EndGameFinish session.FinalScore1 session.FinalScore2 "
    "session.HintSnapshot session.LastFinalScore session.LastScorePosition session.OpenedFromGame session.PrevTotal2 "
    "session.SettingsChanged session.ShowScoreResult session.TipsDirty dice.face counter.picBuffer0 "
    "counter.picBuffer1 ";

GameSettings Variant(unsigned long number) {
    return {.NumberOfDice = number & 1 ? 4 : 5,
            .NumberOfPlayers = number & 2 ? 2 : 1,
            .NumberOfColumns = number & 4 ? 1 : 4};
}

void PlayAtRandom(PlayedTable& played, std::mt19937& random, unsigned long events) {
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

// Starts the next game, of the same variant or through the Options of another, and waits for its table.
void StartNext(PlayedTable& played, const GameSettings& next) {
    const std::string options = "options NumberOfDice=" + std::to_string(next.NumberOfDice) +
                                " NumberOfPlayers=" + std::to_string(next.NumberOfPlayers) +
                                " NumberOfColumns=" + std::to_string(next.NumberOfColumns);
    played.Do((played.game.settings == next ? "new" : options) + ";tick tmrAnimation 99;tick tmrRollDice 2");
}

// After any game the next one starts from what a fresh table has, and goes on like the first game of a process.
TEST(NewGame, StartsLikeAFreshTable) {
    for (unsigned long seed = 0; seed < 160; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        const GameSettings settings = Variant(seed), next = Variant(seed / 8 % 2 == 0 ? seed : random());
        PlayedTable played(settings), fresh(next);
        played.Do("roll");
        PlayAtRandom(played, random, random() % 3000);
        StartNext(played, next);
        std::string allowed = leftAlone;
        if (next.NumberOfPlayers == 2) allowed += "panels ";  // the hidden instruction
        if (settings != next) allowed += "showBoard.caption ";
        if (settings.NumberOfColumns > next.NumberOfColumns) allowed += "enabled.Down enabled.Oblg enabled.Up ";  // hidden
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

struct Case {
    const char* before;
    const char* event;
    std::deque<HeadlessAnswer> answers;
    std::string log;
    const char* differences;  // null: all that a new game sets anew
};

void Check(const Case& c) {
    PlayedTable played;
    played.Do(c.before);
    const QJsonObject before = StateOf(played);
    played.table.dialogs.answers = c.answers;
    played.Do(c.event);
    EXPECT_EQ(LogOf(played), c.log) << c.event;
    if (c.differences == nullptr)
        EXPECT_TRUE(played.game.table[Timer::tmrAnimation].enabled);
    else
        EXPECT_EQ(Differences(before, StateOf(played)), c.differences) << c.event;
}

const std::string reset = "effect newGame;media close song;media close Intro;";
const std::string placed = "roll;box 3 6;tick tmrCounter";
using enum HeadlessAnswer;

TEST(NewGame, Question) {
    const std::string quit = "message Confirm|Quit this Game?|question|";
    const Case cases[] = {
        {"state", "new", {Ok}, "media close song;media close Intro;", ""},
        {"roll;box 3 6;tick tmrCounter", "new", {Ok}, quit + "ok;" + reset, nullptr},
        {"roll;box 3 6;tick tmrCounter", "new", {Cancel}, quit + "cancel;", ""},
        {"options ConfirmQuitGame=False;roll", "new", {Cancel}, reset, nullptr},
        {"sounds off;roll", "new", {Ok}, quit + "ok;media close song;media close Intro;", nullptr},
    };
    for (const Case& c : cases) Check(c);
    PlayedTable over({.NumberOfPlayers = 2, .NumberOfColumns = 1, .BGMusicEnabled = true});
    over.PlayGame(1, [](const std::string&) {});
    over.Do("tick tmrGameOver 3;new");
    EXPECT_EQ(LogOf(over), reset);
    EXPECT_FALSE(over.game.table[Timer::tmrGameOver].enabled || over.game.table[Timer::Timer4].enabled);
    EXPECT_TRUE(over.game.table[Timer::Timer3].enabled);
}

TEST(NewGame, OptionsFlow) {
    const std::string ok = "dialog frmOptions|ok;",
                      start =
                          "message Start a New Game?|Click OK to start a new game or click "
                          "Cancel to discard changes and return to current game.|question|";
    const Case cases[] = {
        {"roll",
         "options NumberOfDice=4 BGMusicVolume=7",
         {Cancel},
         "dialog frmOptions|cancel;",
         "session.OpenedFromGame "},
        {"roll",
         "options ShowStatusBar=False",
         {Ok},
         ok,
         "height panels session.OpenedFromGame session.SettingsChanged settings.ShowStatusBar showBoard.caption "
         "statusBar title "},
        {"roll",
         "options NumberOfColumns=1 NumberOfDice=4",
         {Ok, Cancel},
         ok + start + "cancel;",
         "session.NewGameAnswer session.OpenedFromGame session.SettingsChanged showBoard.caption title "},
        {"roll",
         "options NumberOfPlayers=2 Player1=Ann",
         {Ok, Cancel},
         ok + start + "cancel;",
         "panels session.NewGameAnswer session.OpenedFromGame session.SettingsChanged settings.Player1 "
         "showBoard.caption title "},
        {"state",
         "options NumberOfDice=4",
         {Ok},
         ok,
         "dice.LastDieIndex dice.shown session.OpenedFromGame session.SettingsChanged settings.NumberOfDice "
         "showBoard.caption "},
        {"roll", "options NumberOfDice=4", {Ok, Ok}, ok + start + "ok;" + reset, nullptr},
        {"roll;options NumberOfDice=4;tick tmrAnimation 99;roll",
         "new",
         {Cancel},
         "message Confirm|Quit this Game?|question|cancel;",
         ""},
    };
    for (const Case& c : cases) Check(c);
}

}  // namespace
