#include "tests/table_driver.h"

namespace {

using enum CounterPicture;
using Log = std::vector<std::string>;

struct Counter : PlayedTable {
    // The number drawn at once; the display of a game that has not scored yet is blank.
    void Draw(int number, bool blank) {
        // The places of the sign and of the digits, by the number of digits.
        constexpr std::array<std::array<int, 5>, 5> places{
            {{}, {62, 75}, {55, 68, 81}, {49, 62, 75, 88}, {0, 55, 68, 81, 94}}};
        const std::string digits = std::to_string(std::abs(number));
        const auto& x = places[digits.size()];
        table.view.BlankScoreCounter(picScore);
        if (number < 0 && digits.size() < 4) table.view.DrawMinus(picScore, x[0]);
        for (std::size_t i = 0; i < digits.size() && !blank; ++i)
            table.view.DrawDigit(picScore, digits[i] - '0', x[i + 1]);
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
};

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

TEST(ScoreCounter, IsTheFasterTheFurtherItRuns) {
    for (const auto& [rise, delay] :
         {std::pair{19, 50}, {20, 40}, {29, 40}, {30, 30}, {39, 30}, {40, 20}, {59, 20}, {60, 10}}) {
        Counter counter;
        counter.Run(5, 5 + rise);
        EXPECT_EQ(std::ranges::count(counter.table.log, "sleep " + std::to_string(delay)), rise);
    }
}

}  // namespace
