#include <numeric>

#include "tests/table_driver.h"

namespace {

// A pattern as a picture of the table: for each row of a column the frame that shows its box, and before these, where
// the boxes go away first, the frames that hide them.
struct Pattern {
    int columns, kind, frames;
    std::array<std::string, 4> boxes;  // Down, Up, Rand, Oblg
};

constexpr std::string_view frameNames = "0123456789ABCDEFGHIJKLMNOPQ";
const std::string up = "CBA9876543210", down = "0123456789ABC", later = "DEFGHIJKLMNOP", none(rowCount, ' ');
const std::string inAndOut = "0123456543210DCBA98789ABCD", outAndIn = "765432123456789ABCDEDCBA98";

const Pattern patterns[] = {
    {4, 1, 14, {inAndOut, inAndOut, inAndOut, inAndOut}},
    {4, 2, 13, {up, up, down, down}},
    {4, 3, 8, {"0707070707070", "1616161616161", "2525252525252", "3434343434343"}},
    {4, 4, 17, {"0FEDCBA987653", "1FEDCBA987652", "256789ABCDEF1", "356789ABCDEF0"}},
    {4, 5, 13, {down, up, up, down}},
    {4, 7, 26, {later, up, up, later}},
    {4, 8, 26, {"DCBA987654321", "EFGHIJKLMNOP0", "EFGHIJKLMNOP0", "DCBA987654321"}},
    {4, 9, 27, {"0DDCCBBAA9988", "0EPPOONNMMLL8", "0FFGGHHIIJJK8", "0122334455667"}},
    {1, 1, 13, {none, none, down, none}},
    {1, 2, 13, {none, none, up, none}},
    {1, 3, 14, {none, none, inAndOut, none}},
    {1, 4, 15, {none, none, outAndIn, none}},
};

// Kind 6, by a shuffle of its own: three cells to a frame.
Pattern Scattered(HeadlessRandom source) {
    std::array<std::size_t, 52> order{};
    std::iota(order.begin(), order.end(), 0);
    for (std::size_t step = 0; step < 3 * 104; ++step) {
        const std::size_t i = step % 104 < 52 ? 51 - step % 104 : step % 104 - 52;
        std::swap(order.at(i), order.at(static_cast<std::size_t>(source.Next() * static_cast<double>(i) + 1)));
    }
    Pattern pattern{4, 6, 18, {none, none, none, none}};
    for (std::size_t i = 0; i < 52; ++i) pattern.boxes[order[i] / 13][order[i] % 13] = frameNames[i / 3];
    return pattern;
}

struct AnimatedTable : PlayedTable {
    explicit AnimatedTable(int columns) : PlayedTable({.NumberOfColumns = columns}) {}

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
        std::array<std::string, 4> shown{none, none, none, none}, hidden = shown;
        int interval = animation.interval, frame = 0;
        for (; animation.enabled; ++frame) {
            const bool waits = pattern.columns == 1 && pattern.kind == 4 && frame == 1;
            EXPECT_EQ(game.table.roll.enabled, frame == 0 || waits);
            const Scorecard before = game.card;
            Do("tick tmrAnimation");
            for (std::size_t box = 0; box < 52; ++box) {
                const bool on = game.card.values[box / 13].offered[box % 13];
                if (before.values[box / 13].offered[box % 13] != on)
                    (on ? shown : hidden)[box / 13][box % 13] = frameNames[static_cast<std::size_t>(frame)];
            }
            if (pattern.columns == 4 && pattern.kind == 3 && frame % 5 == 0) interval = frame == 0 ? 50 : 5;
            EXPECT_EQ(animation.interval, interval);
        }
        EXPECT_EQ(frame, pattern.frames);
        for (std::size_t column = 0; column < 4; ++column) {
            const bool played = pattern.columns == 4 || column == 2;
            EXPECT_EQ((hidden[column] == none ? "" : hidden[column]) + shown[column], pattern.boxes[column]);
            EXPECT_EQ(std::ranges::count(game.card.values[column].offered, true), played ? rowCount : 0);
            EXPECT_EQ(std::ranges::count(game.card.values[column].enabled, true), 0);
        }
        EXPECT_TRUE(game.table.roll.enabled);
    }

    const TimerState& animation = game.table.timers[Timer::tmrAnimation];
};

// Each pattern begins anew while another is running, which a roll has overtaken.
TEST(Animation, EveryFrameOfEveryKind) {
    AnimatedTable one(1), four(4);
    for (const Pattern& pattern : patterns) {
        AnimatedTable& played = pattern.columns == 1 ? one : four;
        played.Start(2);
        played.Do("roll;tick tmrAnimation " + std::to_string(pattern.kind));
        played.Start(pattern.kind);
        EXPECT_EQ(played.animation.interval, pattern.columns == 4 && pattern.kind > 3 ? 5 : 1) << "the pace stays";
        played.Check(pattern);
    }
    for (int game = 0; game < 20; ++game) four.Check(Scattered(four.Start(6)));
}

TEST(Animation, OvertakenByAChangeOfColumns) {
    for (const Pattern& pattern : patterns)
        for (int frames = 1; frames < pattern.frames; ++frames) {
            AnimatedTable played(pattern.columns);
            played.Start(pattern.kind);
            played.Do("tick tmrAnimation " + std::to_string(frames) +
                      ";options NumberOfColumns=" + std::to_string(5 - pattern.columns) + ";tick tmrAnimation 99");
            EXPECT_TRUE(played.game.table.roll.enabled && !played.animation.enabled);
        }
}

}  // namespace
