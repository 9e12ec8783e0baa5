#include <numeric>

#include "tests/table_driver.h"

namespace {

constexpr std::string_view frameNames = "0123456789ABCDEFGHIJKLMNOPQ";

using ColumnTexts = std::array<std::string, 4>;  // Down, Up, Rand, Oblg, with a character for each row

// A pattern as a picture of the table that tells the frame in which each box appears.
struct Pattern {
    int columns;
    int kind;
    int frames;
    ColumnTexts shown;
    std::string hidden;  // in all columns: the frame in which the box went away before
};

const std::string none(rowCount, ' ');
const std::string up = "CBA9876543210", down = "0123456789ABC", later = "DEFGHIJKLMNOP";
const std::string inwards = "0123456543210", outwards = "DCBA98789ABCD";

const Pattern patterns[] = {
    {4, 1, 14, {outwards, outwards, outwards, outwards}, inwards},
    {4, 2, 13, {up, up, down, down}, none},
    {4, 3, 8, {"0707070707070", "1616161616161", "2525252525252", "3434343434343"}, none},
    {4, 4, 17, {"0FEDCBA987653", "1FEDCBA987652", "256789ABCDEF1", "356789ABCDEF0"}, none},
    {4, 5, 13, {down, up, up, down}, none},
    {4, 7, 26, {later, up, up, later}, none},
    {4, 8, 26, {"DCBA987654321", "EFGHIJKLMNOP0", "EFGHIJKLMNOP0", "DCBA987654321"}, none},
    {4, 9, 27, {"0DDCCBBAA9988", "0EPPOONNMMLL8", "0FFGGHHIIJJK8", "0122334455667"}, none},
    {1, 1, 13, {none, none, down, none}, none},
    {1, 2, 13, {none, none, up, none}, none},
    {1, 3, 14, {none, none, outwards, none}, inwards},
    {1, 4, 15, {none, none, "89ABCDEDCBA98", none}, "7654321234567"},
};

// Kind 6, by a shuffle of its own: three cells to a frame.
Pattern Scattered(HeadlessRandom source) {
    std::array<int, 52> order{};
    std::iota(order.begin(), order.end(), 0);
    for (int step = 0; step < 3 * 104; ++step) {
        const int i = step % 104 < 52 ? 51 - step % 104 : step % 104 - 52;
        std::swap(order.at(i), order.at(static_cast<int>(source.Next() * i + 1)));
    }
    Pattern pattern{4, 6, 18, {none, none, none, none}, none};
    for (int place = 0; place < 52; ++place)
        pattern.shown[order[place] / 13][order[place] % 13] = frameNames[place / 3];
    return pattern;
}

struct AnimatedTable : PlayedTable {
    explicit AnimatedTable(int columns) : PlayedTable({.NumberOfColumns = columns}) {}

    bool Running() const { return game.table[Timer::tmrAnimation].enabled; }

    // New Game, with a random source that draws this kind. Returns the source as it stands after that draw.
    HeadlessRandom Start(int kind) {
        if (!game.session.GameInProgress) Do("roll");
        HeadlessRandom source;
        for (int drawn = 0; drawn != kind;) {
            table.random.state = source.state;
            drawn = static_cast<int>(source.Next() * (game.settings.NumberOfColumns == 4 ? 9 : 4)) + 1;
        }
        Do("new");
        return source;
    }

    void Check(const Pattern& pattern) {
        SCOPED_TRACE(std::to_string(pattern.columns) + " columns, kind " + std::to_string(pattern.kind));
        ColumnTexts shown{none, none, none, none}, hidden = shown;
        int frame = 0;
        for (; Running(); ++frame) {
            const bool still = pattern.columns == 1 && pattern.kind == 4 && frame == 1;
            EXPECT_EQ(game.table.roll.enabled, frame == 0 || still);
            const Scorecard before = game.card;
            Do("tick tmrAnimation");
            for (std::size_t box = 0; box < 52; ++box) {
                const bool was = before.values[box / 13].offered[box % 13],
                           is = game.card.values[box / 13].offered[box % 13];
                if (was != is) (is ? shown : hidden)[box / 13][box % 13] = frameNames[static_cast<std::size_t>(frame)];
            }
            // Nothing sets the pace of kind 3 back.
            if (pattern.columns == 4 && pattern.kind == 3 && frame % 5 == 0) interval = frame == 0 ? 50 : 5;
            EXPECT_EQ(game.table[Timer::tmrAnimation].interval, interval);
        }
        EXPECT_EQ(frame, pattern.frames);
        EXPECT_EQ(shown, pattern.shown);
        for (std::size_t column = 0; column < 4; ++column)
            EXPECT_EQ(hidden[column], pattern.columns == 4 || column == 2 ? pattern.hidden : none);
        CheckEmptyTable();
    }

    void CheckEmptyTable() const {
        EXPECT_TRUE(game.table.roll.enabled);
        for (ScoreColumn column : allColumns) {
            const bool played = game.settings.NumberOfColumns == 4 || column == ScoreColumn::Rand;
            EXPECT_EQ(std::ranges::count(game.card[column].offered, true), played ? rowCount : 0);
            EXPECT_EQ(std::ranges::count(game.card[column].enabled, true), 0);
        }
    }

    int interval = 1;
};

TEST(Animation, EveryFrameOfEveryKind) {
    AnimatedTable one(1), four(4);
    for (const Pattern& pattern : patterns) {
        AnimatedTable& played = pattern.columns == 1 ? one : four;
        played.Start(pattern.kind);
        played.Check(pattern);
    }
    for (int game = 0; game < 20; ++game) four.Check(Scattered(four.Start(6)));
}

TEST(Animation, NewGameInBetween) {
    for (const Pattern& pattern : patterns) {
        AnimatedTable played(pattern.columns);
        played.Start(pattern.kind);
        played.Do("tick tmrAnimation 3;new");
        EXPECT_TRUE(!played.Takes("key enter") && played.Running()) << "nothing to clear: the pattern goes on";
        played.Do("tick tmrAnimation 99");
        played.CheckEmptyTable();
        played.Start(2);
        played.Do("roll;tick tmrAnimation 3");
        played.interval = played.game.table[Timer::tmrAnimation].interval;
        played.Start(pattern.kind);
        played.Check(pattern);
    }
}

TEST(Animation, ChangeOfColumnsInBetween) {
    for (const Pattern& pattern : patterns) {
        AnimatedTable played(pattern.columns);
        played.Start(pattern.kind);
        played.Do("tick tmrAnimation 3;options NumberOfColumns=" + std::to_string(5 - pattern.columns));
        played.Do("tick tmrAnimation 99");
        EXPECT_FALSE(played.Running());
        played.game.card[ScoreColumn::Down].enabled = played.game.card[ScoreColumn::Up].enabled = {};
        played.CheckEmptyTable();
    }
}

}  // namespace
