#include "table/keys.h"

#include <QJsonArray>
#include <numeric>
#include <random>
#include <span>

#include "kit/held_keys.h"
#include "table/presses.h"
#include "table/row_names.h"
#include "table/window/key_bindings.h"
#include "tests/mark_ways.h"
#include "tests/open_events.h"
#include "tests/state_differences.h"
#include "tests/table_driver.h"
#include "tests/twin_tables.h"

namespace {

using Hands = TwinTables::Hands;

// What is seen and heard after each event of a game; without events it draws them.
std::vector<std::string> Played(Hands hands, GameSettings settings, std::vector<std::string>& events) {
    TwinTables twins(hands);
    settings.hintAllways = false;
    twins.script.table.game.settings = settings;
    twins.Line("start");
    std::vector<std::string> seen;
    const auto play = [&](const std::string& event) {
        twins.Line(hands == Hands::Keys && event == "roll" ? "key enter" : event);
        seen.push_back(event + QJsonDocument(Seen(*twins.window)).toJson().toStdString() +
                       Shortened(twins.window->log));
    };
    for (std::size_t i = 0; i < events.size() && twins.Alike(); ++i) play(events[i]);
    if (!events.empty()) return seen;
    const auto draw = [&](const std::string& event) { play(events.emplace_back(event)); };
    const Game& game = twins.script.table.game;
    for (std::mt19937 random(6); !game.session.GameOverShown && twins.Alike();) {
        const auto open = OpenEvents(game);
        const std::string& event = open[random() % open.size()];
        draw(event);
        if (event == "roll" && random() % 4 == 0) draw("hint");
        if (!event.starts_with("box") || random() % 4) continue;
        for (const char* back : {"undo", "redo"}) draw(back);
    }
    EXPECT_EQ(game.session.BoxesFilled, BoardSize(settings));
    if (TwoPlayers(settings)) draw("board");
    return seen;
}

TEST(Keys, PlayWholeGamesAsTheMouseDoes) {
    for (const int variant : {0, 7}) {  // Yamb with six dice for one, Yahtzee with five for two
        std::vector<std::string> events;
        const auto byKeys = Played(Hands::Keys, VariantOf(variant), events);
        EXPECT_EQ(Played(Hands::Mouse, VariantOf(variant), events), byKeys) << variant;
    }
}

std::string Name(const std::optional<Box>& box) {
    return box ? ColumnName(box->column) + std::to_string(box->row) : "none";
}

// A bit for each row that takes presses. Of the others one half is hidden, the other disabled.
void Offer(Game& game, ScoreColumn column, unsigned rows) {
    for (int row = 0; row < rowCount; ++row) {
        const bool on = rows >> row & 1;
        game.card[column].offered[row] = on || row % 2;
        game.card[column].enabled[row] = on || row % 2 == 0;
    }
}

// The mark comes from every open box to every other, along row and column first, and back the way it came.
void ExpectWays(const Game& game, unsigned pattern) {
    std::vector<Box> open;
    for (ScoreColumn column : allColumns)
        for (int row = 0; row < rowCount; ++row)
            if (BoxOpen(game, column, row)) open.push_back({column, row});
    EXPECT_EQ(NearestOpenBox(game, {ScoreColumn::Up, 6}).has_value(), !open.empty());
    if (open.empty()) return;
    EXPECT_EQ(WaysTo(game, open[pattern % open.size()]).size(), open.size()) << "pattern " << pattern;
    for (const Box& from : open) {
        EXPECT_EQ(NearestOpenBox(game, from), from);
        std::optional<Box> below, right;
        for (const Box& box : open) {
            if (box.column == from.column && box.row > from.row && !below) below = box;
            if (box.row == from.row && box.column > from.column && !right) right = box;
        }
        const auto down = NextOpenBox(game, from, Direction::Down);
        const auto aside = NextOpenBox(game, from, Direction::Right);
        EXPECT_TRUE(below ? down == below : !down || down->row > from.row) << Name(from) << Name(down);
        EXPECT_TRUE(right ? aside == right : !aside || aside->column > from.column) << Name(from) << Name(aside);
        EXPECT_TRUE(!below || NextOpenBox(game, *below, Direction::Up) == from) << Name(from);
        EXPECT_TRUE(!right || NextOpenBox(game, *right, Direction::Left) == from) << Name(from);
    }
}

// All patterns of one column; of four, in which Down and Up offer one box at most, all that four rows can show.
TEST(Mark, ReachesEveryOpenBoxByTheWayThatTheArrowPoints) {
    HeadlessTable table;
    for (unsigned rows = 0; rows < 1U << rowCount && !HasFailure(); ++rows) {
        Offer(table.game, ScoreColumn::Rand, rows);
        ExpectWays(table.game, rows);
    }
    std::mt19937 random(3);
    for (unsigned pattern = 0; pattern < 5 * 5 * 16 * 16 && !HasFailure(); ++pattern) {
        std::array<unsigned, rowCount> rows;
        std::iota(rows.begin(), rows.end(), 0U);
        std::ranges::shuffle(rows, random);
        const auto some = [&](unsigned bits) {
            unsigned spread = 0;
            for (unsigned i = 0; i < 4; ++i) spread |= (bits >> i & 1) << rows[i];
            return spread;
        };
        Offer(table.game, ScoreColumn::Down, some(16U >> pattern % 5 & 15));
        Offer(table.game, ScoreColumn::Up, some(16U >> pattern / 5 % 5 & 15));
        Offer(table.game, ScoreColumn::Rand, some(pattern / 25 % 16));
        Offer(table.game, ScoreColumn::Oblg, some(pattern / 400));
        ExpectWays(table.game, pattern);
    }
}

TEST(Mark, FollowsTheTable) {
    constexpr auto left = PlayerKey::Left, down = PlayerKey::Down, right = PlayerKey::Right;
    const std::tuple<const char*, std::vector<PlayerKey>, const char*> steps[] = {
        {"", {left, down}, "none"},  // before the first roll nothing is open
        {"roll", {left, right}, "Oblg0"},
        {"roll", {}, "Rand0"},  // too late to announce
        {"box 3 0;undo", {}, "Rand0"},
        {"", {left}, "Down0"},
        {"", {PlayerKey::PressMarked}, "none"},
        {"roll", {right, right}, "Oblg1"},
        {"", {PlayerKey::PressMarked}, "Oblg1"},  // announced, and still open
        {"", {PlayerKey::PressMarked}, "none"},
        {"roll", {}, "Oblg0"},
        {"roll", {PlayerKey::TakeMarkAway}, "none"},
    };
    PlayedTable played(VariantOf(1));
    Game& game = played.game;
    BoxMark mark;
    for (const auto& [events, keys, wanted] : steps) {
        if (*events) played.Do(events);
        Follow(game, mark);
        for (PlayerKey key : keys) {
            PressKey(game, mark, key);
            Follow(game, mark);
        }
        EXPECT_EQ(Name(mark.box), wanted) << events;
        for (int row = 0; row < rowCount; ++row)
            EXPECT_EQ(game.table.highlighted[row], mark.box && mark.box->row == row) << events << row;
    }
}

std::vector<QKeyCombination> Combinations(const char* keys) {
    std::vector<QKeyCombination> combinations;
    for (const QKeySequence& key : QKeySequence::listFromString(keys)) combinations.push_back(key[0]);
    return combinations;
}

// The arrows come first, then what plays on in a turn, and Enter last.
const auto allKeys = Combinations(
    "Right; Left; Up; Down; 1; 2; 3; 4; 5; 6; Num+5; Num+6; H; N; B; Ctrl+Return; Ctrl+Z; Ctrl+Y; Ctrl+Z; "
    "Ctrl+Shift+Z; Ctrl+Num+Enter; Esc; Num+Enter; Return");
constexpr std::size_t arrows = 4, enters = 2;

void Repeat(WindowTable& t, QKeyCombination key) {
    QKeyEvent held(QEvent::KeyPress, key.key(), key.keyboardModifiers(), {}, true);
    QCoreApplication::sendEvent(&t.window, &held);
}

TEST(Keys, DoNothingWhereTheMouseCouldNot) {
    GameSettings settings = VariantOf(3);
    settings.hintAllways = true;
    WindowTable t(settings, Ticks::ByHand);
    const auto expectNothing = [&](const char* when, std::span<const QKeyCombination> keys, auto strike) {
        for (QKeyCombination key : keys) {
            const QJsonObject before = Seen(t);
            t.log.clear();
            strike(key);
            EXPECT_EQ(Differences(Seen(t), before) + Shortened(t.log), "")
                << when << QKeySequence(key).toString().toStdString();
        }
    };
    const auto type = [&](QKeyCombination key) { t.Key(key); };
    const std::span<const QKeyCombination> all(allKeys), still = all.subspan(arrows);
    expectNothing("before the first roll ", all.first(all.size() - enters), type);
    t.Key(Qt::Key_Return);
    t.Key(Qt::Key_Right);
    expectNothing("held down ", still, [&](QKeyCombination key) { Repeat(t, key); });
    const QJsonObject before = Seen(t);
    Repeat(t, Qt::Key_Down);
    EXPECT_NE(Differences(Seen(t), before), "") << "an arrow repeats";
    t.answer = [&](QWidget& modal) {
        expectNothing("under a dialog ", all, [&](QKeyCombination key) {
            QTest::keyClick(t.window.windowHandle(), key.key(), key.keyboardModifiers());
        });
        modal.close();
    };
    t.Key(Qt::CTRL | Qt::Key_O);
    for (Qt::Key key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Return}) t.Key(key);
    EXPECT_EQ(t.game.session.RollCount, 3);
    expectNothing("after the third roll ", still, type);
}

TEST(Keys, PressedWhileTheDiceRollActAfterwards) {
    std::string after[2];
    for (const bool early : {false, true}) {
        WindowTable t(VariantOf(4), Ticks::ByHand);
        const auto strike = [&] {
            const QJsonObject before = Seen(t);
            for (QKeyCombination key : allKeys) t.Key(key);
            EXPECT_EQ(Differences(Seen(t), before).empty(), early);
        };
        if (early) QTimer::singleShot(0, &t.window, strike);
        QTest::keyClick(t.window.windowHandle(), Qt::Key_Return);
        if (!early) strike();
        for (std::size_t i = 0; i < 3 * allKeys.size(); ++i) QCoreApplication::processEvents();
        after[early] = QJsonDocument(Seen(t)).toJson().toStdString() + Shortened(t.log);
    }
    EXPECT_EQ(after[true], after[false]);
}

// X11 repeats a key by a release and a press of one moment.
TEST(Keys, OfEnterHeldDownCountOnce) {
    HeldKeys once;
    const std::tuple<quint32, quint32, quint32, bool> events[] = {
        {2, 36, 100, false}, {3, 36, 760, false}, {2, 36, 760, true},  {3, 36, 800, false},
        {2, 36, 900, false}, {3, 38, 950, false}, {2, 38, 950, false}, {5, 36, 960, false}};
    for (const auto& [type, key, time, repeats] : events) {
        quint32 event[8]{type + 256 * key, time};
        EXPECT_EQ(once.nativeEventFilter("xcb_generic_event_t", event, nullptr), repeats) << time;
        EXPECT_FALSE(once.nativeEventFilter("other", event, nullptr));
    }
}

TEST(Keys, GoByTheirPlaceWhereALayoutHasOtherSigns) {
    const std::tuple<quint32, int, Qt::KeyboardModifiers, std::optional<PlayerKey>> struck[] = {
        {10, Qt::Key_Ampersand, {}, PlayerKey::Die1},  // in France
        {10, Qt::Key_1, Qt::ShiftModifier, PlayerKey::Die1},
        {15, Qt::Key_Minus, {}, PlayerKey::Die6},
        {15, Qt::Key_Minus, Qt::ControlModifier, {}},
        {16, Qt::Key_Egrave, {}, {}},
        {11, Qt::Key_At, Qt::ShiftModifier, {}},  // in America
        {43, 0x0425, {}, PlayerKey::Hint},        // in Serbia
        {43, Qt::Key_D, {}, {}},                  // on a Dvorak
    };
    for (const auto& [place, key, held, does] : struck)
        EXPECT_TRUE(PlayerKeyOf({QEvent::KeyPress, key, held, place, 0, 0}) == does) << place << ' ' << key;
}

TEST(Mark, GivesWayToAMouseThatMoves) {
    WindowTable t(VariantOf(5), Ticks::ByHand);
    const auto marked = [&](int row) { return dynamic_cast<PictureButton&>(t.At("cmdRand", row)).Marked(); };
    const auto lit = [&] { return QJsonDocument(Seen(t)["highlight"].toArray()).toJson(QJsonDocument::Compact); };
    t.Key(Qt::Key_Return);
    t.MoveOnto("cmdRand", 6);
    EXPECT_EQ(lit(), "[6]");
    for (Qt::Key key : {Qt::Key_Up, Qt::Key_Down}) t.Key(key);
    EXPECT_TRUE(marked(1));
    EXPECT_EQ(lit(), "[1]");
    const QImage look = t.At("cmdRand", 1).grab().toImage();
    t.MoveOnto("cmdRand", 1);
    EXPECT_EQ(t.At("cmdRand", 1).grab().toImage(), look) << "the mark looks like the mouse";
    EXPECT_FALSE(marked(1));
    EXPECT_EQ(lit(), "[1]");
    t.MoveAway();
    t.Key(Qt::Key_Return);
    EXPECT_EQ(lit(), "[]") << "the mark does not come back by itself";
}

}  // namespace
