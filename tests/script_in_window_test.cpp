#include <QDir>
#include <QFile>
#include <random>

#include "tests/open_events.h"
#include "tests/twin_tables.h"

// The golden scripts and random ones in the real window. As many random scripts as one likes are played with
//   RANDOM_SCRIPTS=500 RANDOM_SEED=1 build/release/tests/window_tests --gtest_filter='ScriptInWindow.Random*'
// which play the seeds 1 to 500. Without RANDOM_SCRIPTS it is a handful.
namespace {

std::string Option(const char* name, std::mt19937& random, std::initializer_list<const char*> values) {
    return std::string(" ") + name + '=' + values.begin()[random() % values.size()];
}

std::string OptionPairs(std::mt19937& random) {
    std::string pairs;
    if (random() % 2) pairs += Option("NumberOfColumns", random, {"1", "4"});
    if (random() % 3 == 0) pairs += Option("NumberOfDice", random, {"4", "5"});
    if (random() % 3 == 0) pairs += Option("NumberOfPlayers", random, {"1", "2"});
    if (random() % 3 == 0) pairs += Option("ShowStatusBar", random, {"True", "False"});
    if (random() % 4 == 0) pairs += Option("ConfirmQuitGame", random, {"True", "False"});
    if (random() % 3 == 0) pairs += Option("Player1", random, {"Ann", "Bo&b", "", "Player_with_a_long_name"});
    if (random() % 3 == 0) pairs += Option("Player2", random, {"Cleo", "Ann", "[*]"});
    if (random() % 4 == 0) pairs += Option("BGMusicVolume", random, {"1", "250", "1000"});
    return pairs;
}

// Writes the lines of a script as it goes, by what stands on the table.
struct ScriptWriter {
    TwinTables& twins;
    std::mt19937 random;
    std::string lines;

    bool OneIn(unsigned n) { return random() % n == 0; }
    const Game& Table() const { return twins.script.table.game; }

    void Write(const std::string& line) {
        lines += line + '\n';
        twins.Line(line);
    }

    void WriteSettings() {
        const auto set = [&](const std::string& field, int value) {
            Write("set " + field + ' ' + std::to_string(value));
        };
        set("NumberOfColumns", OneIn(2) ? 1 : 4);
        set("NumberOfDice", OneIn(2) ? 4 : 5);
        set("NumberOfPlayers", OneIn(2) ? 1 : 2);
        for (const char* field : {"hintAllways", "BGMusicEnabled", "SoundEnabled", "ShowStatusBar"})
            Write(std::string("set ") + field + (OneIn(2) ? " True" : " False"));
    }

    // An answer that the question to come will take for certain; without one it is taken for a yes.
    void Play(const std::string& event) {
        const GameSession& session = Table().session;
        const GameSettings& settings = Table().settings;
        const bool asks = event == "quit" || event.starts_with("options") ||
                          (event == "new" && session.GameInProgress && session.NewGameAnswer != 1 &&
                           settings.ConfirmQuitGame && !session.GameOverShown);
        const bool endsGame = event.starts_with("box") && event[4] != '4' && session.RollCount < 3 &&
                              session.BoxesFilled == BoardSize(settings) - 1;
        if (event == "quit" || (asks && OneIn(3))) Write("answer cancel");
        if (endsGame && OneIn(2)) Write("answer undo");
        Write(event);
        if (event == "minimize" || event == "key space") Write("restore");
    }

    // What a player does beside the play.
    std::string Aside() {
        static const char* const asides[] = {"undo",
                                             "undo",
                                             "undo",
                                             "redo",
                                             "redo",
                                             "hint",
                                             "hints always",
                                             "hints request",
                                             "sounds on",
                                             "sounds off",
                                             "music on",
                                             "music off",
                                             "tick Timer3",
                                             "tick Timer4 2",
                                             "tick tmrTimeElapsed 61",
                                             "tick tmrRollDice 2",
                                             "tick tmrGameOver 3",
                                             "tick tmrAnimation 40",
                                             "minimize",
                                             "key space",
                                             "key enter",
                                             "board",
                                             "quit",
                                             "state"};
        if (OneIn(20)) return "options" + OptionPairs(random);
        if (OneIn(40)) return "new";
        return asides[random() % std::size(asides)];
    }

    void WriteEvent() {
        const std::vector<std::string> open = OpenEvents(Table());
        if (OneIn(4) || open.empty()) return Play(Aside());
        const std::string& event = open[random() % open.size()];
        if (event.starts_with("box") && OneIn(4)) Play("hover" + event.substr(3));
        Play(event);
    }
};

TEST(ScriptInWindow, Random) {
    const int count = qEnvironmentVariableIntValue("RANDOM_SCRIPTS");
    const auto seed = static_cast<unsigned>(qEnvironmentVariableIntValue("RANDOM_SEED"));
    for (unsigned i = 0; i < (count ? static_cast<unsigned>(count) : 6U) && !HasFailure(); ++i) {
        TwinTables twins;
        ScriptWriter writer{twins, std::mt19937(seed + i), {}};
        writer.WriteSettings();
        writer.Write("seed " + std::to_string(seed + i));
        writer.Write("start");
        for (int event = 0; event < 200 && twins.Alike(); ++event) writer.WriteEvent();
        EXPECT_FALSE(HasFailure()) << "seed " << seed + i << ":\n" << writer.lines;
    }
}

TEST(ScriptInWindow, Golden) {
    const QDir scripts(GOLDEN_SCRIPTS);
    for (const QString& name : scripts.entryList({"*.txt"})) {
        SCOPED_TRACE(name.toStdString());
        TwinTables twins;
        QFile file(scripts.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        for (int number = 1; !file.atEnd() && twins.Alike(); ++number) {
            SCOPED_TRACE("line " + std::to_string(number));
            twins.Line(file.readLine().trimmed().toStdString());
        }
    }
}

}  // namespace
