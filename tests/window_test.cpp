#include "tests/window_table.h"

namespace {

TEST(Keys, BelongToTheTable) {
    WindowTable t;
    t.Click("tbHint");  // takes no focus
    t.Key(Qt::Key_Return);
    t.Key(Qt::CTRL | Qt::Key_Space);
    EXPECT_TRUE(t.game.session.RollCount == 1 && !t.window.isMinimized());
    t.Key(Qt::Key_Space);
    EXPECT_TRUE(t.window.isMinimized());
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

}  // namespace
