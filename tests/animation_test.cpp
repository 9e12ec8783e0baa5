#include <numeric>

#include "tests/table_driver.h"

namespace {

using ColumnTexts = std::array<std::string, 4>;  // Down, Up, Rand, Oblg, with a character for each row

// A pattern as a picture of the table that tells the frame in which each box appears, and in which it went away before.
struct Pattern {
    int columns, kind, frames;
    ColumnTexts shown, hidden;
};

constexpr std::string_view frameNames = "0123456789ABCDEFGHIJKLMNOPQ";
const std::string up = "CBA9876543210", down = "0123456789ABC", later = "DEFGHIJKLMNOP", none(rowCount, ' ');
const std::string inwards = "0123456543210", outwards = "DCBA98789ABCD";
const ColumnTexts empty{none, none, none, none};

const Pattern patterns[] = {
    {4, 1, 14, {outwards, outwards, outwards, outwards}, {inwards, inwards, inwards, inwards}},
    {4, 2, 13, {up, up, down, down}, empty},
    {4, 3, 8, {"0707070707070", "1616161616161", "2525252525252", "3434343434343"}, empty},
    {4, 4, 17, {"0FEDCBA987653", "1FEDCBA987652", "256789ABCDEF1", "356789ABCDEF0"}, empty},
    {4, 5, 13, {down, up, up, down}, empty},
    {4, 7, 26, {later, up, up, later}, empty},
    {4, 8, 26, {"DCBA987654321", "EFGHIJKLMNOP0", "EFGHIJKLMNOP0", "DCBA987654321"}, empty},
    {4, 9, 27, {"0DDCCBBAA9988", "0EPPOONNMMLL8", "0FFGGHHIIJJK8", "0122334455667"}, empty},
    {1, 1, 13, {none, none, down, none}, empty},
    {1, 2, 13, {none, none, up, none}, empty},
    {1, 3, 14, {none, none, outwards, none}, {none, none, inwards, none}},
    {1, 4, 15, {none, none, "89ABCDEDCBA98", none}, {none, none, "7654321234567", none}},
};

// Kind 6, by a shuffle of its own: three cells to a frame.
Pattern Scattered(HeadlessRandom source) {
    std::array<int, 52> order{};
    std::iota(order.begin(), order.end(), 0);
    for (int step = 0; step < 3 * 104; ++step) {
        const int i = step % 104 < 52 ? 51 - step % 104 : step % 104 - 52;
        std::swap(order.at(i), order.at(static_cast<int>(source.Next() * i + 1)));
    }
    Pattern pattern{4, 6, 18, empty, empty};
    for (int i = 0; i < 52; ++i) pattern.shown[order[i] / 13][order[i] % 13] = frameNames[i / 3];
    return pattern;
}

struct AnimatedTable : PlayedTable {
    explicit AnimatedTable(int columns) : PlayedTable({.NumberOfColumns = columns}) {}

    TimerState Animation() const { return game.table[Timer::tmrAnimation]; }

    // New Game, with a random source that draws this kind. Returns the source as it stands after that draw.
    HeadlessRandom Start(int kind) {
        if (!game.session.GameInProgress) Do("roll");
        HeadlessRandom source;
        for (int drawn = 0; drawn != kind;) {
            table.random.state = source.state;
            drawn = static_cast<int>(source.Next() * (FourColumns(game.settings) ? 9 : 4)) + 1;
        }
        Do("new");
        return source;
    }

    void Check(const Pattern& pattern) {
        SCOPED_TRACE(std::to_string(pattern.columns) + " columns, kind " + std::to_string(pattern.kind));
        const bool waits = pattern.columns == 1 && pattern.kind == 4;
        ColumnTexts shown = empty, hidden = empty;
        int interval = Animation().interval, frame = 0;
        for (; Animation().enabled; ++frame) {
            EXPECT_EQ(game.table.roll.enabled, frame == 0 || (waits && frame == 1));
            const Scorecard before = game.card;
            Do("tick tmrAnimation");
            for (std::size_t box = 0; box < 52; ++box) {
                const bool on = game.card.values[box / 13].offered[box % 13];
                if (before.values[box / 13].offered[box % 13] != on)
                    (on ? shown : hidden)[box / 13][box % 13] = frameNames[static_cast<std::size_t>(frame)];
            }
            if (pattern.columns == 4 && pattern.kind == 3 && frame % 5 == 0) interval = frame == 0 ? 50 : 5;
            EXPECT_EQ(Animation().interval, interval);
        }
        EXPECT_EQ(frame, pattern.frames);
        EXPECT_EQ(shown, pattern.shown);
        EXPECT_EQ(hidden, pattern.hidden);
        CheckEmptyTable();
    }

    void CheckEmptyTable() const {
        EXPECT_TRUE(game.table.roll.enabled && !Animation().enabled);
        for (ScoreColumn column : allColumns) {
            const bool played = FourColumns(game.settings) || column == ScoreColumn::Rand;
            EXPECT_EQ(std::ranges::count(game.card[column].offered, true), played ? rowCount : 0);
            EXPECT_EQ(std::ranges::count(game.card[column].enabled, true), 0);
        }
    }
};

TEST(Animation, EveryFrameOfEveryKind) {
    AnimatedTable one(1), four(4);
    for (const Pattern& pattern : patterns) {
        AnimatedTable& played = pattern.columns == 1 ? one : four;
        played.Start(pattern.kind);
        EXPECT_EQ(played.Animation().interval, pattern.columns == 4 && pattern.kind > 3 ? 5 : 1) << "the pace stays";
        played.Check(pattern);
    }
    for (int game = 0; game < 20; ++game) four.Check(Scattered(four.Start(6)));
}

TEST(Animation, OvertakenByACommand) {
    for (const Pattern& pattern : patterns)
        for (int frames = 1; frames < pattern.frames; ++frames) {
            AnimatedTable played(pattern.columns);
            played.Start(pattern.kind);
            played.Do("tick tmrAnimation " + std::to_string(frames) + ";new");
            EXPECT_TRUE(played.Animation().enabled) << "there was no game to clear";
            played.Do("options NumberOfColumns=" + std::to_string(5 - pattern.columns) + ";tick tmrAnimation 99");
            EXPECT_TRUE(played.game.table.roll.enabled && !played.Animation().enabled);
            played.Do("options NumberOfColumns=" + std::to_string(pattern.columns));
            played.CheckEmptyTable();
            played.Start(2);
            played.Do("roll;tick tmrAnimation 3");
            played.Start(pattern.kind);
            played.Check(pattern);
        }
}

}  // namespace
