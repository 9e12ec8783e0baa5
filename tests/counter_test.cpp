#include "script/counter_picture.h"
#include "tests/table_driver.h"

namespace {

using enum CounterPicture;
using Log = std::vector<std::string>;

struct Counter : PlayedTable {
    std::string Text(CounterPicture picture = picScore) const { return CounterText(table.view.Picture(picture)); }

    // The number drawn at once; the display of a game that has not scored yet is blank.
    std::string Draw(int number, bool blank = false) {
        // The places of the sign and of the digits, by the number of digits.
        constexpr std::array<std::array<int, 5>, 5> places{
            {{}, {62, 75}, {55, 68, 81}, {49, 62, 75, 88}, {0, 55, 68, 81, 94}}};
        const std::string digits = std::to_string(std::abs(number));
        const auto& x = places[digits.size()];
        table.view.BlankScoreCounter(picScore);
        if (number < 0 && digits.size() < 4) table.view.DrawMinus(picScore, x[0]);
        for (std::size_t i = 0; i < digits.size() && !blank; ++i)
            table.view.DrawDigit(picScore, digits[i] - '0', x[i + 1]);
        return Text();
    }

    // Returns what was shown on the way.
    Log Run(int from, int to) {
        Draw(from, from == 0);
        game.session.PrevTotal = from;
        game.session.Total = to;
        table.log.clear();
        table.parts.ScoreCounter(game);
        Log frames;
        for (const std::string& entry : table.log)
            if (entry[0] == 'r') frames.push_back(entry.substr(sizeof "refresh"));
        return frames;
    }

    // Whatever ran before, the display ends as if the number had been drawn at once, point by point on the way up.
    void CheckRun(int from, int to) {
        SCOPED_TRACE(std::to_string(from) + " to " + std::to_string(to));
        const std::string after = Draw(to);
        const std::string before = Draw(from, from == 0);
        Run(from, to);
        ASSERT_EQ((std::array{Text(), Text(picBuffer0), Text(picBuffer1)}), (std::array{after, after, before}));
        ASSERT_EQ(game.session.Total, to);
        const Log& log = table.log;
        const int rise = from < 0 ? 0 : to - from;
        if (rise <= 0) {
            ASSERT_EQ(log, from == to && to > 0 ? Log{} : Log{"refresh " + after});
            return;
        }
        const int delay = rise < 20 ? 50 : rise < 30 ? 40 : rise < 40 ? 30 : rise < 60 ? 20 : 10;
        ASSERT_EQ(std::ranges::count(log, "sleep " + std::to_string(delay)), rise);
        ASSERT_EQ(std::ranges::count(log, 's', [](const auto& entry) { return entry[0]; }), rise);
        ASSERT_TRUE(log.front() == "effect counter7" && log.back() == "effect counter0");
    }
};

TEST(ScoreCounter, EndsAsIfDrawnAtOnceForEveryPair) {
    Counter counter;
    for (int from = 0; from <= 130; ++from)
        for (int to = 0; to <= 130; ++to) counter.CheckRun(from, to);
    for (int from = 0; from <= 1200; from += 37)
        for (int to = 0; to <= 1200; to += 29) counter.CheckRun(from, to);
    for (int from = 985; from <= 1015; ++from)
        for (int to = 985; to <= 1015; ++to) counter.CheckRun(from, to);
    for (int from : {-1234, -123, -42, -5, 0, 3, 57, 1003})
        for (int to : {-1234, -999, -123, -42, -5, 0, 3, 57, 1003}) counter.CheckRun(from, to);
}

TEST(ScoreCounter, FramesWorkedOutOnPaper) {
    const std::vector<std::pair<std::pair<int, int>, Log>> runs{
        {{0, 5}, {"1@75", "2@75", "3@75", "4@75", "5@75"}},
        {{8, 12}, {"9@75", "1@68 0@81", "1@68 1@81", "1@68 2@81"}},
        {{98, 102}, {"9@68 9@81", "1@62 0@75 0@81[7-12]", "1@62 0@75 1@88", "1@62 0@75 2@88"}},
        {{98, 100}, {"9@68 9@81", "1@62 0@75 0@81[7-12]", "1@62 0@75 0@88"}},
        {{998, 1000},
         {"9@62 9@75 9@88", "1@55 0@68 0@75[6-12] 0@88", "1@55 0@68 0@75[6-12] 0@88[0-5] 0@94", "1@55 0@68 0@81 0@94"}},
        {{998, 1001},
         {"9@62 9@75 9@88", "1@55 0@68 0@75[6-12] 0@88", "1@55 0@68 0@81 1@94", "1@55 0@68 0@81 1@94",
          "1@55 0@68 0@81 1@94"}},
        {{10, -42}, {"-@55 4@68 2@81"}},
        {{-1, -1000}, {"1@55 0@68 0@81 0@94"}}};
    for (const auto& [totals, frames] : runs) {
        Counter counter;
        EXPECT_EQ(counter.Run(totals.first, totals.second), frames) << totals.first << " to " << totals.second;
    }
}

}  // namespace
