#include <QAbstractButton>

#include "tests/window_table.h"

namespace {

TEST(Keys, BelongToTheTable) {
    WindowTable t;
    t.Click("tbHint");  // takes no focus
    for (Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Return}) t.Key(key);
    EXPECT_EQ(t.game.session.RollCount, 3);
    t.Key(Qt::CTRL | Qt::Key_Space);
    EXPECT_FALSE(t.window.isMinimized());
    t.Key(Qt::Key_Space);
    EXPECT_TRUE(t.window.isMinimized());
}

// A key that is held down repeats until it is let go.
TEST(Keys, CountOnceHoweverLongTheyAreHeld) {
    WindowTable t;
    for (const bool again : {false, true, true}) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, {}, "\r", again);
        QCoreApplication::sendEvent(&t.window, &press);
    }
    EXPECT_EQ(t.game.session.RollCount, 1);
}

TEST(Roll, IsPressedAndReleasedOnTheButton) {
    WindowTable t;
    const QPoint roll = *t.FreePoint(t.At("picRollDices"));
    const auto press = [&] { QTest::mousePress(t.window.windowHandle(), Qt::LeftButton, {}, roll); };
    const auto release = [&](QPoint at) { QTest::mouseRelease(t.window.windowHandle(), Qt::LeftButton, {}, at); };
    press();
    EXPECT_EQ(t.game.table.roll.picture, RollPicture::On);
    EXPECT_EQ(t.game.session.RollCount, 0);
    release(roll);
    EXPECT_EQ(t.game.session.RollCount, 1);
    press();
    t.answer = [&](QWidget& modal) {  // cuts the press off
        EXPECT_EQ(t.game.table.roll.picture, RollPicture::Up);
        release(roll);
        EXPECT_EQ(t.game.session.RollCount, 1);
        modal.close();
    };
    t.Key(Qt::CTRL | Qt::Key_O);
    release(roll);
    EXPECT_EQ(t.game.session.RollCount, 1);
    t.Click("picRollDices");
    EXPECT_EQ(t.game.session.RollCount, 2);
}

TEST(Hover, LightsTheRowOfAnEnabledButton) {
    WindowTable t(VariantOf(5));
    const auto lit = [&](int row) {
        return t.At("shpOptions", row).grab().toImage().pixelColor(3, 7).lightness() > 200;
    };
    t.MoveOnto("cmdRand", 4);
    EXPECT_FALSE(lit(4));
    t.Click("picRollDices");
    t.MoveOnto("cmdRand", 4);
    EXPECT_TRUE(lit(4) && t.game.table.highlighted[4]);
    EXPECT_EQ(dynamic_cast<BoxButton&>(t.At("cmdRand", 4)).ShownLooks().plain, "row_hot_4");
    t.MoveOnto("cmdRand", 5);
    EXPECT_TRUE(!lit(4) && lit(5));
    t.Click("cmdRand", 5);
    EXPECT_TRUE(!lit(5) && !t.game.session.RowHighlighted);
    t.Key(Qt::Key_Return);
    t.MoveOnto("cmdRand", 6);
    EXPECT_TRUE(lit(6));
    t.Key(Qt::Key_F2);
    QTest::qWait(5);
    EXPECT_FALSE(lit(6));
}

using T = WindowTable&;

// What the scripts have no word for.
const struct {
    const char *entry, *toolKey;
    QKeySequence shortcut;
    bool (*done)(T);
} commands[] = {
    {"mnuScores", "", Qt::CTRL | Qt::Key_H, [](T t) { return t.game.session.OpenedFromGame; }},
    {"mnuQuickStar", "tbHelp", {}, [](T t) { return t.game.session.OpenedFromGame; }},
    {"mnuContents", "", Qt::Key_F1, [](T t) { return t.log.back() == "help"; }},
    {"mnuGoToWeb", "", {}, [](T t) { return t.log.back().starts_with("open https:"); }},
    {"mnuContact", "", {}, [](T t) { return t.log.back().starts_with("open mailto:"); }},
};

TEST(Commands, AreReachedByMenuShortcutAndToolbar) {
    for (const auto& [entry, toolKey, shortcut, done] : commands)
        for (const int way : {0, 1, 2}) {
            WindowTable t;
            t.log.push_back("");
            if (way == 0) t.ClickEntry(entry);
            if (way == 1 && *toolKey) t.Click(toolKey);
            if (way == 2 && !shortcut.isEmpty()) t.Key(shortcut[0]);
            const bool taken = way == 0 || (way == 1 ? *toolKey != '\0' : !shortcut.isEmpty());
            EXPECT_EQ(done(t), taken) << entry << " by way " << way;
        }
}

TEST(Pairs, TheCheckedLineDoesNothing) {
    WindowTable t;
    const GameSettings before = t.game.settings;
    for (const char* entry : {"mnuHintsAllways", "mnuSoundsOn", "mnuMusicOff"}) t.ClickEntry(entry);
    EXPECT_EQ(t.game.settings, before);
}

}  // namespace
