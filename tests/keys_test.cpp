#include "table/keys.h"

#include <QJsonArray>
#include <random>
#include <span>

#include "table/row_names.h"
#include "tests/mark_ways.h"
#include "tests/open_events.h"
#include "tests/state_differences.h"
#include "tests/table_driver.h"
#include "tests/twin_tables.h"

namespace {

using Hands = TwinTables::Hands;

// A game by keys alone, and once more by mouse alone: both windows show after every line what the one table tells that
// has none.
void PlayTwice(int variant, unsigned seed) {
    const GameSettings settings = VariantOf(variant);
    std::vector<std::string> lines;
    {
        TwinTables keys(Hands::Keys);
        const auto play = [&](const std::string& line) {
            keys.Line(line == "roll" ? "key enter" : line);
            lines.push_back(line);
        };
        play("set NumberOfColumns " + std::to_string(settings.NumberOfColumns));
        play("set NumberOfDice " + std::to_string(settings.NumberOfDice));
        play("set NumberOfPlayers " + std::to_string(settings.NumberOfPlayers));
        play("set hintAllways False");
        play("start");
        const Game& game = keys.script.table.game;
        for (std::mt19937 random(seed); !game.session.GameOverShown && keys.Alike();) {
            const auto open = OpenEvents(game);
            const std::string event = open[random() % open.size()];
            play(event);
            if (event == "roll" && random() % 4 == 0) play("hint");
            if (event.starts_with("box") && random() % 4 == 0)
                for (const char* back : {"undo", "redo"}) play(back);
        }
        EXPECT_EQ(game.session.BoxesFilled, BoardSize(settings));
        if (TwoPlayers(settings)) play("board");
    }
    TwinTables mouse(Hands::Mouse);
    for (const std::string& line : lines)
        if (mouse.Alike()) mouse.Line(line);
    EXPECT_TRUE(mouse.script.table.game.session.GameOverShown);
}

TEST(Keys, PlayAWholeYamb) { PlayTwice(0, 5); }
TEST(Keys, PlayAWholeYahtzeeOfTwo) { PlayTwice(7, 6); }

std::string Name(const std::optional<Box>& box) {
    return box ? ColumnName(box->column) + std::to_string(box->row) : "none";
}

TEST(Mark, ReachesEveryOpenBoxByTheWayThatTheArrowPoints) {
    HeadlessTable table;
    Game& game = table.game;
    std::mt19937 random(3);
    for (int pattern = 0; pattern < 400 && !HasFailure(); ++pattern) {
        std::vector<Box> open;
        for (ScoreColumn column : allColumns) {
            const bool ordered = column == ScoreColumn::Down || column == ScoreColumn::Up;
            const bool there = pattern % 8 ? true : column == ScoreColumn::Rand;  // of eight layouts one has one column
            const auto only = static_cast<int>(random() % (rowCount + 3));
            const auto many = random() % 5;
            for (int row = 0; row < rowCount; ++row) {
                const bool on = there && (ordered ? row == only : random() % 4 < many);
                game.card[column].offered[row] = on;
                game.card[column].enabled[row] = on || random() % 2;
                if (on) open.push_back({column, row});
            }
        }
        EXPECT_EQ(NearestOpenBox(game, {ScoreColumn::Up, 6}).has_value(), !open.empty());
        if (open.empty()) continue;
        EXPECT_EQ(WaysTo(game, open[random() % open.size()]).size(), open.size()) << "pattern " << pattern;
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
}

TEST(Mark, FollowsTheTable) {
    constexpr auto left = PlayerKey::Left, down = PlayerKey::Down, right = PlayerKey::Right;
    using Keys = std::vector<PlayerKey>;
    const struct {
        int variant;
        struct Step {
            const char* events;
            Keys keys;
            const char* mark;
        };
        std::vector<Step> steps;
    } games[] = {
        {5,
         {{"", {left, down}, "none"},  // before the first roll nothing is open
          {"roll", {}, "none"},
          {"", {left}, "Rand0"},
          {"", {down, down, left}, "Rand2"},
          {"roll", {}, "Rand2"},
          {"", {PlayerKey::PressMarked}, "none"},
          {"", {down}, "none"},
          {"roll", {}, "Rand1"},
          {"box 3 1", {}, "none"},
          {"roll", {PlayerKey::TakeMarkAway}, "none"},
          {"roll", {}, "none"},
          {"", {down}, "Rand0"},
          {"new", {}, "none"}}},
        {1,
         {{"roll", {left, right}, "Oblg0"},
          {"roll", {}, "Rand0"},  // too late to announce
          {"box 3 0;undo", {}, "Rand0"},
          {"", {left}, "Down0"},
          {"", {PlayerKey::PressMarked}, "none"},
          {"roll", {right, right}, "Oblg1"},
          {"", {PlayerKey::PressMarked}, "Oblg1"},  // announced, and still open
          {"", {PlayerKey::PressMarked}, "none"},
          {"roll", {}, "Oblg0"}}},
    };
    for (const auto& [variant, steps] : games) {
        PlayedTable played(VariantOf(variant));
        Game& game = played.game;
        BoxMark mark;
        for (const auto& [events, keys, wanted] : steps) {
            if (*events) {
                played.Do(events);
                Follow(game, mark);
            }
            for (PlayerKey key : keys) {
                PressKey(game, mark, key);
                Follow(game, mark);
            }
            EXPECT_EQ(Name(mark.box), wanted) << events;
            for (int row = 0; row < rowCount; ++row)
                EXPECT_EQ(game.table.highlighted[row], mark.box && mark.box->row == row) << events << row;
            EXPECT_EQ(game.session.RowHighlighted, mark.box.has_value()) << events;
        }
    }
}

constexpr QKeyCombination allKeys[] = {Qt::Key_1,
                                       Qt::Key_6,
                                       Qt::Key_Left,
                                       Qt::Key_Down,
                                       Qt::CTRL | Qt::Key_Return,
                                       Qt::Key_H,
                                       Qt::Key_N,
                                       Qt::Key_B,
                                       Qt::CTRL | Qt::Key_Z,
                                       Qt::CTRL | Qt::Key_Y,
                                       Qt::Key_Return,
                                       Qt::Key_Escape,
                                       Qt::CTRL | Qt::SHIFT | Qt::Key_Z};

void ExpectNothing(WindowTable& t, const char* when, std::span<const QKeyCombination> keys = allKeys) {
    for (QKeyCombination key : keys) {
        const QJsonObject before = Seen(t);
        t.log.clear();
        t.Key(key);
        EXPECT_EQ(Differences(Seen(t), before), "") << when << ": " << QKeySequence(key).toString().toStdString();
        EXPECT_TRUE(t.log.empty()) << when;
    }
}

void Repeat(WindowTable& t, QKeyCombination key) {
    QKeyEvent held(QEvent::KeyPress, key.key(), key.keyboardModifiers(), {}, true);
    QCoreApplication::sendEvent(&t.window, &held);
}

TEST(Keys, DoNothingWhereTheMouseCouldNot) {
    GameSettings settings = VariantOf(3);
    settings.hintAllways = true;
    WindowTable t(settings, Ticks::ByHand);
    const auto allButEnter = std::span(allKeys).first(10);
    ExpectNothing(t, "before the first roll", allButEnter);
    t.Key(Qt::Key_Return);
    t.Key(Qt::Key_Right);
    t.answer = [&](QWidget& modal) {
        for (QKeyCombination key : allKeys)
            QTest::keyClick(t.window.windowHandle(), key.key(), key.keyboardModifiers());
        modal.close();
    };
    const QJsonObject before = Seen(t);
    t.Key(Qt::CTRL | Qt::Key_O);
    EXPECT_EQ(Differences(Seen(t), before), "") << "under a dialog";
    for (QKeyCombination key : allKeys)
        if (key.key() != Qt::Key_Down && key.key() != Qt::Key_Left) Repeat(t, key);
    EXPECT_EQ(Differences(Seen(t), before), "") << "held down";
    Repeat(t, Qt::Key_Down);
    EXPECT_NE(Differences(Seen(t), before), "") << "an arrow repeats";
    QTimer::singleShot(0, &t.window, [&] {  // while the dice roll
        EXPECT_TRUE(t.gate.Busy());
        for (Qt::Key key : {Qt::Key_Return, Qt::Key_1, Qt::Key_6}) t.Key(key);
    });
    QTest::keyClick(t.window.windowHandle(), Qt::Key_Return);
    for (int i = 0; i < 6; ++i) QCoreApplication::processEvents();
    EXPECT_EQ(t.game.session.RollCount, 3) << "what was pressed in the second roll made the third";
    EXPECT_TRUE(t.Shown("picDice", 0)) << "no die is held after the third roll";
    ExpectNothing(t, "after the third roll",
                  std::array<QKeyCombination, 4>{Qt::Key_1, Qt::Key_2, Qt::Key_N, Qt::Key_H});
}

TEST(Mark, GivesWayToAMouseThatMoves) {
    for (int variant : {5, 1}) {
        WindowTable t(VariantOf(variant), Ticks::ByHand);
        const auto marked = [&](int row) { return dynamic_cast<PictureButton&>(t.At("cmdRand", row)).Marked(); };
        const auto lit = [&] { return QJsonDocument(Seen(t)["highlight"].toArray()).toJson(QJsonDocument::Compact); };
        t.Key(Qt::Key_Return);
        t.MoveOnto("cmdRand", 6);
        EXPECT_EQ(lit(), "[6]");
        t.Key(Qt::Key_Up);
        t.Key(Qt::Key_Down);
        EXPECT_TRUE(marked(1));
        EXPECT_EQ(lit(), "[1]");
        const QImage shown = t.At("cmdRand", 1).grab().toImage();
        t.MoveOnto("cmdRand", 1);
        EXPECT_FALSE(marked(1));
        EXPECT_EQ(lit(), "[1]");
        EXPECT_EQ(t.At("cmdRand", 1).grab().toImage(), shown) << "the mark looks like the mouse";
        t.MoveAway();
        EXPECT_EQ(lit(), "[]");
        t.Key(Qt::Key_Return);
        EXPECT_EQ(lit(), "[]") << "the mark does not come back by itself";
    }
}

}  // namespace
