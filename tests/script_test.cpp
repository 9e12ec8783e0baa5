#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "script/run_script.h"

namespace {

struct Played {
    explicit Played(const std::string& script) {
        std::istringstream in(script);
        std::ostringstream out;
        std::ostringstream err;
        status = RunScript(in, out, err);
        error = err.str();
        std::istringstream printed(out.str());
        for (std::string line; std::getline(printed, line);) lines.push_back(line);
    }

    bool LastHas(const std::string& part) const { return lines.back().find(part) != std::string::npos; }

    int status = 0;
    std::string error;
    std::vector<std::string> lines;
};

// The cases of a list, parted by a bar; in a case '/' ends a line.
std::vector<std::string> Cases(const std::string& list) {
    std::vector<std::string> cases;
    std::istringstream in(list);
    for (std::string text; std::getline(in, text, '|'); cases.push_back(text)) std::ranges::replace(text, '/', '\n');
    return cases;
}

TEST(Script, EndsAtABadLineAndTellsItsNumber) {
    const auto expectError = [](const std::string& script, const std::string& error, std::size_t printed) {
        const Played played(script);
        EXPECT_EQ(played.status, 2) << script;
        EXPECT_EQ(played.error, error + '\n') << script;
        EXPECT_EQ(played.lines.size(), printed) << script;
    };
    expectError("\n# a game\r\n  jump 1\nstart", "line 3: unknown command 'jump'", 0);
    expectError(std::string("\0up", 3), "line 1: unknown command '?up'", 0);
    expectError("start\nquit\njump", "line 3: unknown command 'jump'", 2);
    expectError("start\nquit\nstart", "line 3: not started", 2);
    for (const std::string& event : Cases("roll|state 1|die 9|options x|tick nothing")) {
        expectError(event, "line 1: not started", 0);
        expectError("start\nquit\n" + event, "line 3: not started", 2);
    }
    for (const std::string& setUp :
         Cases("set NumberOfDice 6|set NumberOfDice 4 5|set NumberOfPlayers 0|set NumberOfColumns 2|set Player1|set|"
               "set BGMusicVolume 1001|set SoundEnabled true|set Nothing 1|seed|seed -1|seed 18446744073709551616|"
               "faces|faces 1 7|faces 1x|answer|answer yes|media|start 1"))
        expectError(setUp, "line 1: bad argument", 0);
    for (const std::string& event :
         Cases("start|set SoundEnabled True|set AppPath .|roll 1|key|key tab|die 6|die -1|die 1.0|box 0 1|box 5 1|"
               "box 1 13|box 1|hints on|sounds|music always|hover 1|leave 1 99|tick|tick tmrNone|tick tmrCounter 0|"
               "tick tmrCounter 1 1|tick Timer3 1000001|tick Timer3 18446744073709551615|options Player1|options "
               "Player1=A =|options NumberOfDice=6|options ShowSplash=True"))
        expectError("start\n" + event, "line 2: bad argument", 1);
    expectError("answer cancel finish\nstart\nquit\nstate\nquit", "line 5: bad argument", 3);
}

TEST(Script, TellsWhatItCannotWriteOrRead) {
    struct Full : std::streambuf {
    } full;
    struct Unreadable : std::streambuf {
        int underflow() override { throw std::ios_base::failure("a folder"); }
    } unreadable;
    const auto expectError = [](std::streambuf* from, std::streambuf* to, const std::string& error) {
        std::istream in(from);
        std::ostream out(to);
        std::ostringstream err;
        EXPECT_EQ(RunScript(in, out, err), 1);
        EXPECT_EQ(err.str(), error);
    };
    for (const char* script : {"start", "start\nstate\nquit\n", "start\njump\n"}) {
        std::stringbuf lines(script);
        expectError(&lines, &full, "cannot write the output\n");
    }
    std::stringbuf printed;
    expectError(&unreadable, &printed, "cannot read the input\n");
}

TEST(Script, WritesAnyTextAsJson) {
    const Played played("set Player1 a\"\\\x01\tb\x7f \xC5\xBD\xFF\xED\xA0\x80\xF0\x9F\x8E\xB2\xE2\x82\nstart");
    EXPECT_TRUE(
        played.LastHas("\"Player1\":\"a\\\"\\\\\\u0001\\tb\x7f "
                       "\xC5\xBD\uFFFD\uFFFD\uFFFD\uFFFD\xF0\x9F\x8E\xB2\uFFFD\uFFFD\""));
}

}  // namespace
