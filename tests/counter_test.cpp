#include "table/score_counter.h"
#include "tests/turn_steps.h"

namespace {

using enum CounterPicture;
using Log = std::vector<std::string>;

// By the number of digits, from the left: the sign and the digits.
constexpr std::array<std::array<int, 5>, 5> places{
    {{}, {62, 75}, {55, 68, 81}, {49, 62, 75, 88}, {-1, 55, 68, 81, 94}}};

struct Counter : PlayedTable {
    std::string Text(CounterPicture picture = picScore) const { return CounterText(table.view.Picture(picture)); }

    // The number drawn at once, on a blank display.
    std::string Draw(int number) {
        const std::string digits = std::to_string(std::abs(number));
        const auto& x = places[digits.size()];
        table.view.BlankScoreCounter(picScore);
        if (number < 0 && digits.size() < 4) table.view.DrawMinus(picScore, x[0]);
        for (std::size_t i = 0; i < digits.size(); ++i) table.view.DrawDigit(picScore, digits[i] - '0', x[i + 1]);
        return Text();
    }

    void Run(int from, int to) {
        Draw(from);
        if (from == 0) table.view.BlankScoreCounter(picScore);  // as a game begins
        game.session.PrevTotal = from;
        game.session.Total = to;
        table.log.clear();
        table.parts.ScoreCounter(game);
    }
};

int Delay(int rise) { return rise < 20 ? 50 : rise < 30 ? 40 : rise < 40 ? 30 : rise < 60 ? 20 : 10; }

// Whatever ran before, the display ends as if the number had been drawn at once, point by point on the way up.
void CheckRun(Counter& counter, int from, int to) {
    const std::string before = from == 0 ? "" : counter.Draw(from);
    const std::string after = counter.Draw(to);
    counter.Run(from, to);
    const Log& log = counter.table.log;
    const bool counts = to > from && from >= 0;
    const auto pause = "sleep " + std::to_string(Delay(to - from));
    const auto pauses = [&](const std::string& entry) { return entry.starts_with("sleep"); };
    ASSERT_EQ(counter.Text(), after) << from << " to " << to;
    ASSERT_EQ(counter.Text(picBuffer0), after) << from << " to " << to;
    ASSERT_EQ(counter.Text(picBuffer1), before) << from << " to " << to;
    ASSERT_EQ(std::ranges::count(log, pause), counts ? to - from : 0) << from << " to " << to;
    ASSERT_EQ(std::ranges::count_if(log, pauses), counts ? to - from : 0) << from << " to " << to;
    if (counts)
        ASSERT_TRUE(log.front() == "effect counter7" && log.back() == "effect counter0") << from << " to " << to;
    else
        ASSERT_EQ(log, from == to && to > 0 ? Log{} : Log{"refresh " + after}) << from << " to " << to;
    ASSERT_EQ(counter.game.session.Total, to);
}

TEST(ScoreCounter, EndsAsIfDrawnAtOnceForEveryPair) {
    Counter counter;
    for (int from = 0; from <= 130; ++from)
        for (int to = 0; to <= 130; ++to) CheckRun(counter, from, to);
    for (int from = 0; from <= 1200; from += 37)
        for (int to = 0; to <= 1200; to += 29) CheckRun(counter, from, to);
    for (int from = 985; from <= 1015; ++from)
        for (int to = 985; to <= 1015; ++to) CheckRun(counter, from, to);
    for (int from : {-1234, -123, -42, -5, 0, 3, 57, 1003})
        for (int to : {-1234, -999, -123, -42, -5, 0, 3, 57, 1003}) CheckRun(counter, from, to);
}

TEST(ScoreCounter, ShowsEveryPointOnTheWay) {
    struct Case {
        int from, to;
        Log frames;
    };
    const std::array cases{
        Case{0, 5, {"1@75", "2@75", "3@75", "4@75", "5@75"}},
        Case{8, 12, {"9@75", "1@68 0@81", "1@68 1@81", "1@68 2@81"}},
        Case{98, 102, {"9@68 9@81", "1@62 0@75 0@81[7-12]", "1@62 0@75 1@88", "1@62 0@75 2@88"}},
        Case{98, 100, {"9@68 9@81", "1@62 0@75 0@81[7-12]", "1@62 0@75 0@88"}},
        Case{998,
             1000,
             {"9@62 9@75 9@88", "1@55 0@68 0@75[6-12] 0@88", "1@55 0@68 0@75[6-12] 0@88[0-5] 0@94",
              "1@55 0@68 0@81 0@94"}},
    };
    for (const Case& c : cases) {
        Counter counter;
        counter.Run(c.from, c.to);
        Log frames;
        for (const std::string& entry : counter.table.log)
            if (entry.starts_with("refresh ")) frames.push_back(entry.substr(8));
        EXPECT_EQ(frames, c.frames) << c.from << " to " << c.to;
    }
}

TEST(ScoreCounter, DrawsNegativeTotalsAtOnce) {
    struct Case {
        int from, to;
        const char* picture;
    };
    constexpr std::array cases{Case{10, -42, "-@55 4@68 2@81"},
                               Case{-42, -5, "-@62 5@75"},
                               Case{0, -123, "-@49 1@62 2@75 3@88"},
                               Case{-5, 3, "3@75"},
                               Case{-1, -1000, "1@55 0@68 0@81 0@94"},
                               Case{-7, -7, "-@62 7@75"},
                               Case{12, 7, "7@75"},
                               Case{-3, 0, "0@75"}};
    for (const Case& c : cases) {
        Counter counter;
        counter.Run(c.from, c.to);
        EXPECT_EQ(counter.table.log, Log{std::string("refresh ") + c.picture}) << c.from << " to " << c.to;
    }
}

TEST(ScoreCounter, RunsOnceForEveryBoxAndNotAfterRedo) {
    PlayedTable t({.NumberOfDice = 4});
    Play(t, {{"roll 1 1 2 3 4;box 3 0", "effect rollAll, frames, effect-wait score", "up 0 11234 fffff 0 0 0 0 undo"},
             {"tick tmrCounter", "effect counter7, sleep 50, refresh 1@75, sleep 50, refresh 2@75, effect counter0"},
             {"not tick tmrCounter", ""},
             {"undo", "effect undo, refresh ", "up 1 11234 FFFFF 1 1 13 13 redo"},
             {"redo", "effect redo, refresh 2@75", "up 0 11234 fffff 0 0 0 0 undo"},
             {"tick tmrCounter", ""},
             {"not tick tmrCounter", ""},
             {"sounds off;roll 1 1 2 3 4;box 3 1;tick tmrCounter",
              "frames, sleep 50, refresh 3@75, sleep 50, refresh 4@75"}});
}

}  // namespace
