#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QRegularExpression>
#include <QSlider>
#include <QTemporaryDir>
#include <QTest>
#include <random>

#include "app/tick.h"
#include "core/show.h"
#include "dialogs/window/qt_dialogs.h"
#include "kit/qt_timers.h"
#include "script/headless_ports.h"
#include "store/top_score_files.h"
#include "table/main_window.h"
#include "table/row_names.h"
#include "table/set_controls.h"
#include "table/table_parts.h"
#include "table/window/frm_lucky_cup.h"

namespace {

struct ShortClock final : Clock {  // paints where the real one waits
    void Wait(int) override { QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents); }
    double TimeOfDay() override { return 0; }
    std::string ShortDate() override { return "2026-01-01"; }
};

struct LoggingShell final : Shell {
    EventLog& log;
    explicit LoggingShell(EventLog& events) : log(events) {}
    void Open(const std::string& target) override { log.push_back("open " + target); }
    void ShowHelpContents() override { log.push_back("help"); }
    void CloseHelp() override {}
};

// The real window with its dialogs and timers, in a folder of its own.
struct WindowTable {
    explicit WindowTable(const GameSettings& settings = {}) {
        QDir(folder.path()).mkdir("scores");
        game.settings = settings;
        timers.SetTick([this](Timer timer) { Tick(game, parts, music, timer); });
        answerer.callOnTimeout([this] {
            QWidget* modal = QApplication::activeModalWidget();
            if (!modal || !modal->isActiveWindow() || modal->property("answered").toBool()) return;
            modal->setProperty("answered", true);
            answer(*modal);
        });
        answerer.start(2);
        window.Load(game);
        window.show();
        (void)QTest::qWaitForWindowExposed(&window);
        for (QWidget* widget : window.findChildren<QWidget*>()) named[widget->objectName()] = widget;
    }
    ~WindowTable() { window.hide(); }

    QWidget& At(const QString& name, int i = -1) {
        QWidget* widget = named.value(i < 0 ? name : name + '_' + QString::number(i));
        if (!widget) throw std::out_of_range(name.toStdString());
        return *widget;
    }
    bool Shown(const QString& name, int i = -1) { return At(name, i).isVisibleTo(&window); }
    std::string Text(const QString& name, int i = -1) {
        return dynamic_cast<QLabel&>(At(name, i)).text().toStdString();
    }
    QAction& Entry(const char* name) { return *window.findChild<QAction*>(name); }

    // A click where the control stands: whatever lies over it would get it.
    void Click(const QString& name, int i = -1) {
        const QPoint middle = At(name, i).mapTo(&window, At(name, i).rect().center());
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, middle);
    }
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(window.windowHandle(), key, modifiers);
    }

    QTemporaryDir folder;
    EventLog log;
    EventGate gate;
    Art art;
    frmLuckyCup window{gate, art};
    QtTimers timers{gate};
    ShortClock clock;
    HeadlessRandom random;
    HeadlessEffects effects{log};
    HeadlessMedia media{log};
    QtDialogs dialogs{window, gate, art};
    TopScoreFiles scores{folder.path().toStdString() + "/scores/"};
    LoggingShell shell{log};
    HeadlessStore store{log};
    TableParts parts;
    BackgroundMusic music;
    Game game{Ports{window, timers, clock, random, effects, media, dialogs, scores, shell, store, parts}};
    QHash<QString, QWidget*> named;
    QTimer answerer;
    std::function<void(QWidget&)> answer = [](QWidget& modal) { QTest::keyClick(&modal, Qt::Key_Return); };
};

void ExpectBoardShown(WindowTable& t) {
    for (ScoreColumn column : allColumns) {
        const ColumnCard& card = t.game.card[column];
        const QString name = ColumnName(column);
        for (int row = 0; row < rowCount; ++row) {
            EXPECT_EQ(t.Text("lbl" + name, row), card.boxes[row]);
            EXPECT_EQ(t.Shown("cmd" + name, row), card.offered[row]) << name.toStdString() << row;
            EXPECT_EQ(t.At("cmd" + name, row).isEnabled(), card.enabled[row]) << name.toStdString() << row;
        }
        const ByTotalRow<QString> suffixes{{"Tot1", "Tot2", "Tot"}};
        for (TotalRow row : allTotalRows) EXPECT_EQ(t.Text("lbl" + name + suffixes[row]), card.totals[row]);
    }
}

void ExpectDiceShown(WindowTable& t) {
    for (int i = 0; i < maxDice; ++i) {
        const DieState& die = t.game.table.dice[static_cast<std::size_t>(i)];
        EXPECT_EQ(t.Shown("picDice", i), die.shown && !die.held);
        EXPECT_EQ(t.Shown("PicDiceOff", i), die.shown && die.held);
        for (const char* half : {"picDice", "PicDiceOff"}) {
            const auto& picture = dynamic_cast<PictureButton&>(t.At(half, i));
            EXPECT_EQ(picture.isEnabled(), die.enabled);
            EXPECT_EQ(picture.ShownLooks().plain.back(), QChar('0' + die.face));
        }
    }
    for (int k = 0; k < 3; ++k) {
        EXPECT_EQ(t.Shown("picRound", k), k < t.game.table.lamps);
        EXPECT_EQ(t.Shown("picRoundBG", k), k >= t.game.table.lamps);
    }
}

void ExpectShown(WindowTable& t) {
    const TableState& table = t.game.table;
    ExpectBoardShown(t);
    ExpectDiceShown(t);
    const std::array<QString, 3> rollPictures{"roll_up", "roll_on", "roll_off"};
    const auto& roll = dynamic_cast<PictureButton&>(t.At("picRollDices"));
    EXPECT_EQ(roll.ShownLooks().plain, rollPictures[static_cast<std::size_t>(table.roll.picture)]);
    EXPECT_EQ(roll.isEnabled(), table.roll.enabled);
    for (int row = 0; row < rowCount; ++row) {
        EXPECT_EQ(t.Text("lblTip", row), table.tips[static_cast<std::size_t>(row)]);
        EXPECT_EQ(t.Shown("lblTip", row), table.tipColumn);
    }
    for (int k = 1; k <= 5; ++k) {
        EXPECT_EQ(t.Text("StatusBar1", k), table.panels[k].text);
        EXPECT_EQ(t.At("StatusBar1", k).isHidden(), k < 5 && !table.panels[k].visible);
    }
    EXPECT_EQ(t.window.windowTitle().toStdString(), table.title);
    EXPECT_EQ(t.Shown("StatusBar1"), table.statusBar);
    EXPECT_EQ(t.window.centralWidget()->height(), Pixels(table.height - 690));
    EXPECT_EQ(t.Entry("mnuUndoUndo").isEnabled() && t.At("tbUndo").isEnabled(), table.undo);
    EXPECT_EQ(t.Entry("mnuUndoRedo").isEnabled() && t.At("tbRedo").isEnabled(), table.redo);
    EXPECT_EQ(t.At("tbHint").isEnabled(), table.hintButton);
    EXPECT_EQ(t.Shown("cmdNextPlayer"), table.nextPlayer);
    EXPECT_EQ(t.Shown("cmdShowNextBoard"), table.showBoard.visible);
    EXPECT_EQ(QApplication::focusWidget() ? QApplication::focusWidget()->objectName() : "", "");
}

// Every control of the table that can be clicked now.
std::vector<QString> OpenControls(WindowTable& t) {
    std::vector<QString> open;
    for (auto control = t.named.begin(); control != t.named.end(); ++control) {
        static const QRegularExpression played("^(cmd|picRollDices|picDice_|PicDiceOff_)");
        const bool taken = control.value()->isVisible() && control.value()->isEnabled();
        if (taken && played.match(control.key()).hasMatch()) open.push_back(control.key());
    }
    std::ranges::sort(open);
    return open;
}

GameSettings Variant(int columns, int lastDie, int players) {
    GameSettings settings;
    settings.NumberOfColumns = columns;
    settings.NumberOfDice = lastDie;
    settings.NumberOfPlayers = players;
    return settings;
}

class WholeGame : public testing::TestWithParam<GameSettings> {};

TEST_P(WholeGame, IsPlayedWithTheMouse) {
    WindowTable t(GetParam());
    ExpectShown(t);
    std::mt19937 random(7);
    for (int clicks = 0; !t.game.session.GameOverShown && !HasFailure(); ++clicks) {
        ASSERT_LT(clicks, 5000);
        const std::vector<QString> open = OpenControls(t);
        ASSERT_FALSE(open.empty());
        t.Click(open[random() % open.size()]);
        QTest::qWait(t.game.table.timers[Timer::tmrCounter].enabled ? 12 : 0);
        ExpectShown(t);
    }
    EXPECT_EQ(t.game.session.BoxesFilled, BoardSize(GetParam()));
    if (!TwoPlayers(GetParam())) return;
    t.Click("cmdShowNextBoard");
    EXPECT_EQ(t.window.windowTitle(), "Lucky Cup - Player 1");
    ExpectShown(t);
}

INSTANTIATE_TEST_SUITE_P(Variants, WholeGame,
                         testing::Values(Variant(4, 5, 1), Variant(1, 4, 1), Variant(4, 4, 2), Variant(1, 5, 2)),
                         [](const auto& variant) { return "Number" + std::to_string(variant.index); });

QHash<QString, QRect> Places(WindowTable& t) {
    QHash<QString, QRect> places;
    for (auto control = t.named.begin(); control != t.named.end(); ++control)
        places[control.key()] = control.value()->geometry();
    return places;
}

TEST(Layout, FollowsTheVariantAndComesBack) {
    WindowTable t(Variant(4, 5, 1));
    const auto four = Places(t);
    SetControls(t.game);
    EXPECT_EQ(Places(t), four);
    t.game.settings = Variant(1, 4, 1);
    SetControls(t.game);
    const auto one = Places(t);
    SetControls(t.game);
    EXPECT_EQ(Places(t), one);
    t.game.settings = Variant(4, 5, 1);
    SetControls(t.game);
    EXPECT_EQ(Places(t), four);

    struct {
        const char* name;
        QPoint fourColumns, oneColumn;  // twips
    } const told[] = {
        {"picRollDices", {3010, 5655}, {3010, 5405}}, {"picDice_0", {245, 5655}, {245, 5405}},
        {"picDice_3", {245, 6575}, {697, 6325}},      {"PicDiceOff_4", {1150, 6575}, {1602, 6325}},
        {"Shape9", {142, 5550}, {142, 5300}},         {"picScore", {2205, 4985}, {2205, 4715}},
        {"Label2", {30, 4425}, {30, 4175}},           {"lblRand_4", {3405, 1650}, {2205, 1650}},
        {"cmdRand_12", {3405, 4410}, {2205, 4410}},   {"lblRandTot2", {3405, 3080}, {2205, 3080}},
        {"Line12", {2100, 5414}, {2100, 5164}},       {"Line4", {82, 5414}, {82, 5164}},
    };
    for (const auto& [name, atFour, atOne] : told) {
        EXPECT_EQ(four[name].topLeft(), QPoint(Pixels(atFour.x()), Pixels(atFour.y()))) << name;
        EXPECT_EQ(one[name].topLeft(), QPoint(Pixels(atOne.x()), Pixels(atOne.y()))) << name;
    }
    EXPECT_EQ(one["cmdRand_0"].width(), 160);
    EXPECT_EQ(four["cmdRand_0"].size(), QSize(40, 17));
}

TEST(Keys, BelongToTheTable) {
    WindowTable t;
    t.Click("tbHint");  // takes no focus
    for (Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Return}) t.Key(key);
    EXPECT_EQ(t.game.session.RollCount, 3);
    t.Key(Qt::Key_Space, Qt::ControlModifier);
    EXPECT_FALSE(t.window.isMinimized());
    t.Key(Qt::Key_Space);
    EXPECT_TRUE(t.window.isMinimized());
}

TEST(Hover, LightsTheRowOfAnEnabledButton) {
    WindowTable t(Variant(1, 4, 1));
    const auto move = [&](const QString& name, int i) {
        QTest::mouseMove(t.window.windowHandle(), t.At(name, i).mapTo(&t.window, QPoint(5, 5)));
        QCoreApplication::processEvents();
    };
    const auto lit = [&](int row) {
        return t.At("shpOptions", row).grab().toImage().pixelColor(3, 7).lightness() > 200;
    };
    move("cmdRand", 4);
    EXPECT_FALSE(lit(4));
    t.Click("picRollDices");
    move("cmdRand", 4);
    EXPECT_TRUE(lit(4) && t.game.table.highlighted[4]);
    EXPECT_EQ(dynamic_cast<BoxButton&>(t.At("cmdRand", 4)).ShownLooks().plain, "row_hot_4");
    move("cmdRand", 5);
    EXPECT_TRUE(!lit(4) && lit(5));
    t.Click("cmdRand", 5);
    EXPECT_TRUE(!lit(5) && !t.game.session.RowHighlighted);
    t.Key(Qt::Key_Return);
    move("cmdRand", 6);
    EXPECT_TRUE(lit(6));
    t.Key(Qt::Key_F2);
    QTest::qWait(5);
    EXPECT_FALSE(lit(6));
}

TEST(Gate, HoldsTicksBackWhileAHandlerRuns) {
    EventGate gate;
    QtTimers timers(gate);
    int ticks = 0;
    timers.SetTick([&](Timer timer) {
        ++ticks;
        timers.Stop(timer);
    });
    gate.Run([&] {
        timers.Start(Timer::tmrCounter, 1);
        QTest::qWait(40);
        EXPECT_EQ(ticks, 0);
    });
    QTest::qWait(40);
    EXPECT_EQ(ticks, 1);
    gate.Run([&] {
        timers.Start(Timer::tmrCounter, 1);
        const EventGate::Open modal(gate);
        QTest::qWait(40);
        EXPECT_EQ(ticks, 2);
    });
    gate.Run([&] {
        timers.Start(Timer::tmrCounter, 1);
        QTest::qWait(40);
        timers.Stop(Timer::tmrCounter);
    });
    QTest::qWait(40);
    EXPECT_EQ(ticks, 2);
}

// Fills the board but for its last box, and that one after one roll.
void FillToTheLastBox(WindowTable& t) {
    for (int row = 0; row < rowCount; ++row) {
        t.Key(Qt::Key_Return);
        t.Click("cmdRand", row);
    }
}

TEST(EndGame, HasNoWayOutButItsButtons) {
    WindowTable t(Variant(1, 4, 1));
    int shown = 0;
    t.answer = [&](QWidget& modal) {
        QTest::keyClick(&modal, Qt::Key_Escape);
        if (modal.objectName() == "frmScores2") return;
        EXPECT_FALSE(modal.close());
        ASSERT_TRUE(modal.isVisible());
        EXPECT_FALSE(modal.windowFlags() & Qt::WindowCloseButtonHint);
        EXPECT_EQ(modal.size(), QSize(245, 68));
        EXPECT_NEAR(modal.geometry().center().y() - t.window.geometry().center().y(), Pixels(2200), 2);
        EXPECT_TRUE(t.game.session.EndGameSeen);
        QTest::keyClick(&modal, ++shown == 1 ? Qt::Key_U : Qt::Key_F, Qt::AltModifier);
    };
    FillToTheLastBox(t);
    EXPECT_EQ(t.game.session.BoxesFilled, 12);
    EXPECT_FALSE(t.game.session.EndGameFinish);
    ExpectShown(t);
    t.Click("cmdRand", rowLuckyCup);
    EXPECT_EQ(shown, 2);
    EXPECT_TRUE(t.game.session.EndGameFinish && t.game.session.GameOverShown);
}

TEST(TheWinerIs, NamesTheWinner) {
    WindowTable t(Variant(1, 4, 2));
    t.game.settings.Player1 = "A  ";
    t.game.settings.Player2 = std::string(200, 'W');
    t.game.session.FinalScore1 = -5;
    t.answer = [&](QWidget& modal) {
        const auto text = [&](const char* name) { return modal.findChild<QLabel*>(name)->text(); };
        EXPECT_EQ(text("lblPlayer1"), "A's Total Score:");
        EXPECT_EQ(text("lblScore1"), "-5");
        EXPECT_TRUE(text("lblPlayer2").endsWith("Score:"));
        EXPECT_TRUE(text("lblWiner").startsWith("WWW") && text("lblWiner").endsWith("Wins!"));
        for (QLabel* label : modal.findChildren<QLabel*>())
            EXPECT_LE(label->fontMetrics().horizontalAdvance(label->text()), label->width());
        modal.findChild<QAbstractButton*>("cmdClose")->click();
    };
    t.dialogs.frmTheWinerIs(t.game);
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
    t.Entry("mnuHintsByRequest2").trigger();
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
void ByMenu(T t, const Command& command) { t.Entry(command.entry).trigger(); }
void ByToolbar(T t, const Command& command) { t.Click(command.toolKey); }
void ByShortcut(T t, const Command& command) {
    t.Key(command.shortcut[0].key(), command.shortcut[0].keyboardModifiers());
}

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
            t.Entry(pairs[i][on ? 0 : 2]).trigger();  // the checked line does nothing
            expect(pairs[i], on);
            t.Entry(pairs[i][on ? 3 : 1]).trigger();
            EXPECT_EQ(*settings[i], !on);
        }
    }
    EXPECT_EQ(t.At("tbSound").property("picture"), "tb_sound_off");
    EXPECT_EQ(t.At("tbBGmusic").property("picture"), "tb_music_on");
}

// Opens Options, checks what it shows, does something to it and closes it.
void VisitOptions(WindowTable& t, const std::function<void(QWidget&)>& visit) {
    t.answer = visit;
    t.game.session.OpenedFromGame = true;
    t.dialogs.frmOptions(t.game);
}

void Press(QWidget& dialog, const char* button) { dialog.findChild<QAbstractButton*>(button)->click(); }

TEST(Options, ShowAndStoreTheSettings) {
    WindowTable t(Variant(1, 4, 1));
    t.game.settings.ShowDialog = false;
    t.game.settings.BGMusicEnabled = true;
    t.game.settings.BGMusicVolume = 120;
    VisitOptions(t, [&](QWidget& dialog) {
        EXPECT_EQ(dialog.size(), QSize(379, 517));
        for (const char* name : {"optYahtzee", "opt5Dice", "opt1Player", "optShowNone", "chkShowStatusBar",
                                 "chkQuitGame", "chkConfirmExit"})
            EXPECT_TRUE(dialog.findChild<QAbstractButton*>(name)->isChecked()) << name;
        auto* slider = dialog.findChild<QSlider*>("sldVolume");
        EXPECT_EQ(slider->value(), 120);
        slider->setValue(900);
        EXPECT_EQ(t.game.settings.BGMusicVolume, 900);
        for (const char* name : {"optYamb", "opt6Dice", "opt2Players", "optShowSplash", "chkConfirmExit"})
            Press(dialog, name);
        EXPECT_FALSE(dialog.findChild<QWidget*>("chkShowStatusBar")->isEnabled());
        auto* name2 = dialog.findChild<QLineEdit*>("txtName2");
        EXPECT_TRUE(name2->isEnabled());
        name2->setText(QString::fromUtf8("Ж & <b>"));
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    GameSettings wanted = Variant(4, 5, 2);
    wanted.ShowDialog = false;
    wanted.ShowSplash = true;
    wanted.ConfirmOnExit = false;
    wanted.Player2 = "Ж & <b>";
    wanted.BGMusicEnabled = true;
    wanted.BGMusicVolume = 900;
    EXPECT_EQ(t.game.settings, wanted);

    VisitOptions(t, [&](QWidget& dialog) {
        Press(dialog, "optYahtzee");
        dialog.findChild<QSlider*>("sldVolume")->setValue(3);
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    EXPECT_EQ(t.game.settings, wanted);
    EXPECT_FALSE(t.game.session.SettingsChanged);
    VisitOptions(t, [&](QWidget& dialog) {
        dialog.findChild<QSlider*>("sldVolume")->setValue(3);
        dialog.close();  // is not Cancel
    });
    EXPECT_EQ(t.game.settings.BGMusicVolume, 3);
}

}  // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
