#include <QDir>
#include <QFile>
#include <fstream>
#include <random>

#include "tests/open_events.h"
#include "tests/twin_tables.h"

// The golden scripts and random ones in the real window: with RANDOM_SCRIPTS=500 RANDOM_SEED=1 those of the seeds 1 to
// 500, by themselves a handful.
namespace {

// The lines of a file of cases, in which more likely ones stand more often.
std::vector<std::string> LinesOf(const char* path) {
    std::ifstream in(path);
    std::vector<std::string> lines;
    for (std::string line; std::getline(in, line);) lines.push_back(line);
    return lines;
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
        static const auto asides = LinesOf(CASES "asides.txt"), pairs = LinesOf(CASES "option_pairs.txt");
        const auto any = [&](const std::vector<std::string>& of) { return of.at(random() % of.size()); };
        if (OneIn(40)) return "new";
        if (!OneIn(20)) return any(asides);
        std::string options = "options";
        while (!OneIn(3)) options += ' ' + any(pairs);
        return options;
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
