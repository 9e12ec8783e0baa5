#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QTest>
#include <random>

#include "core/show.h"
#include "dialogs/qt_dialogs.h"
#include "script/headless_ports.h"
#include "sound/background_music.h"
#include "store/top_score_files.h"
#include "table/frm_lucky_cup.h"
#include "table/main_window.h"
#include "table/qt_timers.h"
#include "table/row_names.h"
#include "table/set_controls.h"
#include "table/table_parts.h"

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
        timers.SetTick([this](Timer timer) { parts.Tick(game, timer); });
        answerer.callOnTimeout([this] {
            if (QWidget* modal = QApplication::activeModalWidget(); modal && answer) answer(*modal);
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
    TopScoreFiles scores{folder.path().toStdString() + '/'};
    LoggingShell shell{log};
    HeadlessStore store{log};
    TableParts parts;
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
            const auto at = static_cast<std::size_t>(row);
            EXPECT_EQ(t.Text("lbl" + name, row), card.boxes[at]);
            EXPECT_EQ(t.Shown("cmd" + name, row), card.offered[at]) << name.toStdString() << row;
            EXPECT_EQ(t.At("cmd" + name, row).isEnabled(), card.enabled[at]) << name.toStdString() << row;
        }
        const std::array suffixes{"Tot1", "Tot2", "Tot"};
        for (std::size_t i = 0; i < suffixes.size(); ++i)
            EXPECT_EQ(t.Text("lbl" + name + suffixes[i]), card.totals[i]);
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
        EXPECT_EQ(t.Text("StatusBar1", k), table.Panel(k).text);
        if (k < 5) EXPECT_EQ(!t.At("StatusBar1", k).isHidden(), table.Panel(k).visible);
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
        if (open.empty()) {  // every die is held
            FAIL() << "nothing can be clicked";
        }
        t.Click(open[random() % open.size()]);
        QTest::qWait(t.game.table[Timer::tmrCounter].enabled ? 12 : 0);
        ExpectShown(t);
    }
    EXPECT_EQ(t.game.session.BoxesFilled, BoardSize(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Variants, WholeGame,
                         testing::Values(Variant(4, 5, 1), Variant(1, 4, 1), Variant(4, 4, 2), Variant(1, 5, 2)));

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
    const auto lit = [&](int row) { return t.At("lblOption", row).grab().toImage().pixelColor(3, 7).lightness() > 200; };
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
        QTest::qWait(20);
        EXPECT_EQ(ticks, 0);
    });
    QTest::qWait(20);
    EXPECT_EQ(ticks, 1);
    gate.Run([&] {
        timers.Start(Timer::tmrCounter, 1);
        const EventGate::Open modal(gate);
        QTest::qWait(20);
        EXPECT_EQ(ticks, 2);
    });
    gate.Run([&] {
        timers.Start(Timer::tmrCounter, 1);
        QTest::qWait(20);
        timers.Stop(Timer::tmrCounter);
    });
    QTest::qWait(20);
    EXPECT_EQ(ticks, 2);
}

}  // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
