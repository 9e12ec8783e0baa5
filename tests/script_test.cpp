#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "script/commands.h"
#include "script/counter_picture.h"
#include "script/headless_ports.h"

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

TEST(Script, ReadsToTheEnd) {
    const Played played(
        "set  AppPath\t nowhere\r\nset Player1   Ann  Lee  \nseed 18446744073709551615\r\n\n #\nstart\n"
        "set Today  5.6.\n  key   space \r\nanswer cancel\nquit\nquit");
    EXPECT_EQ(played.status, 0) << played.error;
    ASSERT_EQ(played.lines.size(), 4U);
    EXPECT_TRUE(played.lines[1].starts_with(R"({"event":"key   space","ignored":false,"log":["minimize"],)"));
    EXPECT_TRUE(played.lines[2].starts_with(
        R"({"event":"quit","ignored":false,"log":["message Confirm|Exit Lucky Cup?|question|cancel"],)"));
    EXPECT_TRUE(played.LastHas(R"(|ok","save","media close song"],)") && played.LastHas(R"("Player1":"Ann  Lee")"));
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

TEST(Script, PrintsEveryKeyInItsPlace) {
    const std::string line = Played("start").lines[0];
    std::string keys;
    for (std::size_t i = 1; i < line.size(); ++i) {
        if (line[i] == '}') keys += '}';
        if (line[i] != ':' || line[i - 1] != '"') continue;
        const std::size_t begin = line.rfind('"', i - 2) + 1;
        keys += ' ' + line.substr(begin, i - 1 - begin) + (line[i + 1] == '{' ? "{" : "");
    }
    EXPECT_EQ(
        keys,
        " event ignored log session{ SoundOn GameInProgress RedoInProgress OpenedFromGame SettingsChanged "
        "NewGameAnswer "
        "EndGameFinish EndGameSeen RollCount PrevRollCount FirstRollPending RollAllowed CurrentRow CurrentColumn "
        "PrevColumn Announced AnnounceWriting AnnounceResume RedoAnnounceTwice NextDownRow NextUpRow BoxesFilled "
        "RowScore ComputeOnly HintsOn HintsRequested MayHint TipsDirty RowHighlighted GameOverShown Total PrevTotal "
        "PrevTotal2 OtherTotal HintSnapshot BonusGiven RandUpperCount OblgUpperCount SecondPlayerOnMove "
        "SecondBoardReady CounterRan CounterSkip FinalScore1 FinalScore2 ShowScoreResult LastScorePosition "
        "LastFinalScore} settings{ NumberOfDice NumberOfPlayers NumberOfColumns Player1 Player2 SoundEnabled "
        "hintAllways ShowDialog ShowSplash ShowStatusBar ConfirmOnExit ConfirmQuitGame BGMusicEnabled BGMusicVolume "
        "ShowGridLines} dice{ DiceValues RollFlags HeldMirror UndoDiceValues LastDieIndex face shown enabled} boxes{ "
        "Down Up Rand Oblg} totals{ Down Up Rand Oblg} offered{ Down Up Rand Oblg} enabled{ Down Up Rand Oblg} tips "
        "tipColumn highlight panels panelVisible statusBar height title roll{ enabled visible picture} lamps undo redo "
        "hintButton nextPlayer showBoard{ visible enabled caption} timers{ tmrRollDice tmrTimeElapsed tmrGameOver "
        "tmrAnimation tmrCounter Timer3 Timer4} counter{ picScore picBuffer0 picBuffer1 picPlayer1Score "
        "picPlayer2Score}}");
}

TEST(Script, IgnoresWhatNoControlTakes) {
    const auto expectIgnored = [](bool ignored, const std::string& setUp, const std::string& events) {
        for (const std::string& event : Cases(events)) {
            const Played played(setUp + event);
            EXPECT_EQ(played.status, 0) << played.error;
            EXPECT_EQ(played.LastHas(R"("ignored":true,"log":[],)"), ignored) << event;
        }
    };
    expectIgnored(true, "start\n",
                  "die 0|box 3 0|next|board|undo|redo|hint|hover 3 0|hints always|sounds on|music off|"
                  "tick tmrCounter|tick Timer4 99");
    const std::string game = "faces 1 2 3 4 5 6\nstart\nroll\n";
    expectIgnored(false, game,
                  "roll|die 5|box 1 0|box 4 12|hover 3 0|hover 3 0/leave 3 0|hints request|sounds off|music on|"
                  "tick tmrTimeElapsed 3600|minimize|restore|new|options|state");
    expectIgnored(true, game,
                  "box 1 1|leave 3 0|hover 3 0/leave 3 1|hover 3 0/leave 3 0/leave 3 0|roll/box 4 0|roll/roll/roll|"
                  "roll/roll/key enter|roll/roll/die 0|box 1 0/box 1 1|box 1 0/tick tmrCounter/tick tmrCounter|"
                  "box 1 0/undo/undo");
    expectIgnored(true, "set NumberOfDice 4\nset NumberOfColumns 1\nstart\nroll\n", "die 5|box 1 0|box 4 0");
}

TEST(Script, WritesAnyTextAsJson) {
    const Played played("set Player1 a\"\\\x01\tb\x7f \xC5\xBD\xFF\xED\xA0\x80\xF0\x9F\x8E\xB2\xE2\x82\nstart");
    EXPECT_TRUE(
        played.LastHas("\"Player1\":\"a\\\"\\\\\\u0001\\tb\x7f "
                       "\xC5\xBD\uFFFD\uFFFD\uFFFD\uFFFD\xF0\x9F\x8E\xB2\uFFFD\uFFFD\""));
}

TEST(Script, DrawsQueuedFacesBeforeItAsksTheRandomSource) {
    HeadlessRandom random;
    EXPECT_EQ(random.Next(), static_cast<double>(7806831264735756412U >> 11) / 9007199254740992.0);

    // The nine rolling frames of five dice take 45 numbers first.
    random.state = 2026;
    for (int i = 0; i < 45; ++i) random.Next();
    std::string faces;
    for (int i = 0; i < 5; ++i) faces += std::to_string(random.DrawDie()) + ',';
    const std::string set = "set NumberOfDice 4\nseed 2026\n";
    EXPECT_TRUE(Played(set + "start\nroll").LastHas("\"DiceValues\":[" + faces + "0]"));
    EXPECT_TRUE(Played(set + "faces 6 6\nstart\nroll").LastHas("\"DiceValues\":[6,6," + faces.substr(0, 6) + "0]"));
}

TEST(CounterText, TellsWhatIsLeftOfEachGlyph) {
    GlyphColumns picture;
    EXPECT_EQ(CounterText(picture), "");
    picture.Draw('8', 75);
    picture.Draw('1', 81);
    EXPECT_EQ(CounterText(picture), "8@75[0-5] 1@81");
    picture.Draw('-', 72);
    picture.Erase(75);
    EXPECT_EQ(CounterText(picture), "-@72[0-2] 1@81[7-12]");
    picture.Draw('1', 90);
    picture.Draw('1', 90);
    EXPECT_EQ(CounterText(picture), "-@72[0-2] 1@81[7-8] 1@90");
}

}  // namespace
