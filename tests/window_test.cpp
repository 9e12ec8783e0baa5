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

struct Command {
    const char *entry, *toolKey;  // of which one may be missing
    QKeySequence shortcut;
    void (*prepare)(T);
    bool (*done)(T);
};

void Nothing(T) {}
void PlacedABox(T t) {
    t.Key(Qt::Key_Return);
    t.Click("cmdRand", 3);
}
void TookABoxBack(T t) {
    PlacedABox(t);
    t.Click("tbUndo");
}
void RolledWithoutHints(T t) {
    t.ClickEntry("mnuHintsByRequest2");
    t.Key(Qt::Key_Return);
}

const Command commands[] = {
    {"mnuNewGame", "tbNew", Qt::Key_F2, PlacedABox, [](T t) { return t.game.session.BoxesFilled == 0; }},
    {"mnuOptions", "", Qt::CTRL | Qt::Key_O, Nothing, [](T t) { return t.game.session.SettingsChanged; }},
    {"mnuScores", "", Qt::CTRL | Qt::Key_H, Nothing, [](T t) { return t.game.session.OpenedFromGame; }},
    {"mnuGameExit", "tbExit", Qt::CTRL | Qt::Key_X, Nothing, [](T t) { return t.window.isHidden(); }},
    {"mnuUndoUndo", "tbUndo", {}, PlacedABox, [](T t) { return t.game.table.redo; }},
    {"mnuUndoRedo", "tbRedo", {}, TookABoxBack, [](T t) { return t.game.session.BoxesFilled == 1; }},
    {"mnuHintsByRequest2", "", {}, Nothing, [](T t) { return !t.game.settings.hintAllways; }},
    {"", "tbHint", {}, RolledWithoutHints, [](T t) { return t.game.session.HintsRequested; }},
    {"mnuSoundsOff2", "tbSound", {}, Nothing, [](T t) { return !t.game.settings.SoundEnabled; }},
    {"mnuMusicOn2", "tbBGmusic", {}, Nothing, [](T t) { return t.game.settings.BGMusicEnabled; }},
    {"mnuQuickStar", "tbHelp", {}, Nothing, [](T t) { return t.game.session.OpenedFromGame; }},
    {"mnuContents", "", Qt::Key_F1, Nothing, [](T t) { return t.log.back() == "help"; }},
    {"mnuGoToWeb", "", {}, Nothing, [](T t) { return t.log.back().starts_with("open https:"); }},
    {"mnuContact", "", {}, Nothing, [](T t) { return t.log.back().starts_with("open mailto:"); }},
};

// The ways that lead to a command.
void ByMenu(T t, const Command& command) { t.ClickEntry(command.entry); }
void ByToolbar(T t, const Command& command) { t.Click(command.toolKey); }
void ByShortcut(T t, const Command& command) { t.Key(command.shortcut[0]); }

TEST(Commands, AreReachedByMenuShortcutAndToolbar) {
    for (const Command& command : commands) {
        std::vector<void (*)(T, const Command&)> ways;
        if (*command.entry) ways.push_back(ByMenu);
        if (*command.toolKey) ways.push_back(ByToolbar);
        if (!command.shortcut.isEmpty()) ways.push_back(ByShortcut);
        for (std::size_t way = 0; way < ways.size(); ++way) {
            WindowTable t;
            t.log.push_back("");
            command.prepare(t);
            ASSERT_FALSE(command.done(t)) << command.entry << command.toolKey;
            ways[way](t, command);
            EXPECT_TRUE(command.done(t)) << command.entry << command.toolKey << " by way " << way;
        }
    }
}

TEST(Pairs, ShowTheCheckedLineAndTheOneThatSwitches) {
    WindowTable t;
    const char* const pairs[][4] = {{"mnuHintsAllways", "mnuHintsAllways2", "mnuHintsByRequest", "mnuHintsByRequest2"},
                                    {"mnuSoundsOn", "mnuSoundsOn2", "mnuSoundsOff", "mnuSoundsOff2"},
                                    {"mnuMusicOn", "mnuMusicOn2", "mnuMusicOff", "mnuMusicOff2"}};
    const auto expect = [&](const auto& pair, bool on) {
        for (int i = 0; i < 4; ++i) EXPECT_EQ(t.Entry(pair[i]).isVisible(), on == (i == 0 || i == 3)) << pair[i];
    };
    const std::array settings{&t.game.settings.hintAllways, &t.game.settings.SoundEnabled,
                              &t.game.settings.BGMusicEnabled};
    for (std::size_t i = 0; i < settings.size(); ++i) {
        for (int switches = 0; switches < 3; ++switches) {
            const bool on = *settings[i];
            expect(pairs[i], on);
            t.ClickEntry(pairs[i][on ? 0 : 2]);  // the checked line does nothing
            expect(pairs[i], on);
            t.ClickEntry(pairs[i][on ? 3 : 1]);
            EXPECT_EQ(*settings[i], !on);
        }
    }
    EXPECT_EQ(t.At("tbSound").property("picture"), "tb_sound_off");
    EXPECT_EQ(t.At("tbBGmusic").property("picture"), "tb_music_on");
}

}  // namespace
