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

TEST(Keys, PlayAWholeGameOfTwo) {
    TwinTables keys(TwinTables::Hands::Keys);
    for (const char* line : {"set NumberOfColumns 1", "set NumberOfPlayers 2", "set hintAllways False", "start"})
        keys.Line(line);
    const Game& game = keys.script.table.game;
    for (std::mt19937 random(6); !game.session.GameOverShown && keys.Alike();) {
        const auto open = OpenEvents(game);
        const std::string event = open[random() % open.size()];
        keys.Line(event == "roll" ? "key enter" : event);
        if (event.starts_with("box") && random() % 4 == 0)
            for (const char* back : {"undo", "redo"}) keys.Line(back);
    }
    EXPECT_EQ(game.session.BoxesFilled, BoardSize(game.settings));
}

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
            const auto only = static_cast<int>(random() % (rowCount + 3));
            const auto many = random() % 5;
            for (int row = 0; row < rowCount; ++row) {
                const bool on = ordered ? row == only : random() % 4 < many;
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
    const struct {
        const char* events;
        std::vector<PlayerKey> keys;
        const char* mark;
    } steps[] = {
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

constexpr QKeyCombination allKeys[] = {Qt::Key_1, Qt::Key_H, Qt::Key_B, Qt::CTRL | Qt::Key_Z, Qt::Key_Return};

void Repeat(WindowTable& t, QKeyCombination key) {
    QKeyEvent held(QEvent::KeyPress, key.key(), key.keyboardModifiers(), {}, true);
    QCoreApplication::sendEvent(&t.window, &held);
}

TEST(Keys, DoNothingWhereTheMouseCouldNot) {
    GameSettings settings = VariantOf(3);
    settings.hintAllways = true;
    WindowTable t(settings, Ticks::ByHand);
    const QJsonObject closed = Seen(t);
    t.log.clear();
    for (QKeyCombination key : std::span(allKeys).first(4)) t.Key(key);
    EXPECT_EQ(Differences(Seen(t), closed), "") << "before the first roll";
    EXPECT_TRUE(t.log.empty());
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
    for (QKeyCombination key : allKeys) Repeat(t, key);
    EXPECT_EQ(Differences(Seen(t), before), "") << "held down";
    Repeat(t, Qt::Key_Down);
    EXPECT_NE(Differences(Seen(t), before), "") << "an arrow repeats";
    QTimer::singleShot(0, &t.window, [&] {  // while the dice roll
        for (Qt::Key key : {Qt::Key_Return, Qt::Key_1, Qt::Key_6}) t.Key(key);
    });
    QTest::keyClick(t.window.windowHandle(), Qt::Key_Return);
    for (int i = 0; i < 6; ++i) QCoreApplication::processEvents();
    EXPECT_EQ(t.game.session.RollCount, 3) << "what was pressed in the second roll made the third";
    EXPECT_TRUE(t.Shown("picDice", 0)) << "no die is held after the third roll";
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
    t.MoveOnto("cmdRand", 1);
    EXPECT_FALSE(marked(1));
    EXPECT_EQ(lit(), "[1]");
    t.MoveAway();
    t.Key(Qt::Key_Return);
    EXPECT_EQ(lit(), "[]") << "the mark does not come back by itself";
}

}  // namespace
