#include "app/program.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include "core/end_of_game.h"
#include "core/show.h"
#include "core/timing.h"
#include "tests/readable.h"

namespace {

// The program with its real ports, but for the desktop, in a folder that holds its settings too.
struct RunningProgram {
    explicit RunningProgram(const GameSettings& settings = {}) {
        program.game.settings = settings;
        program.ShowMainWindow();
        (void)QTest::qWaitForWindowExposed(&program.window);
        answerer.callOnTimeout(&answerer, [] {
            if (QWidget* modal = QApplication::activeModalWidget()) QTest::keyClick(modal, Qt::Key_Return);
        });
        answerer.start(5);
    }

    static QString Prepared(const QString& folder) {
        QDir(folder).mkdir("scores");
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder));
        return folder + '/';
    }

    QTemporaryDir folder;
    Art art;
    Program program{FilesInOneFolder(Prepared(folder.path()).toStdString()), art};
    Game& game = program.game;
    QTimer answerer;  // says yes to every question
};

TEST(Program, SendsEachTimerItsOwnWay) {
    RunningProgram running;
    Program& p = running.program;
    const struct {
        Timer timer;
        std::function<bool()> ticked;
    } told[] = {{Timer::tmrRollDice, [&] { return p.game.table.panels[2].text == "Roll the dice"; }},
                {Timer::tmrTimeElapsed, [&] { return p.game.table.panels[5].text == "00:00:01"; }},
                {Timer::tmrGameOver, [&] { return p.game.table.panels[4].text.empty(); }},
                {Timer::tmrAnimation, [&] { return p.game.card[ScoreColumn::Rand].offered[6]; }},
                {Timer::tmrCounter, [&] { return p.game.session.CounterRan; }},
                {Timer::Timer3, [&] { return p.music.SecondSongNext; }},
                {Timer::Timer4, [&] { return p.music.IntroTickSeen; }}};
    for (Timer timer : allTimers) DisableTimer(p.game, timer);
    for (int panel : {2, 4, 5}) SetPanelText(p.game, panel, "before");
    p.parts.StartTableAnimation(p.game);
    DisableTimer(p.game, Timer::tmrAnimation);
    for (ScoreColumn column : allColumns) ShowColumnButtons(p.game, column, false);
    p.game.session.CounterRan = false;
    for (const auto& [timer, ticked] : told) {
        EXPECT_FALSE(ticked()) << timerNames[timer];
        SetTimerInterval(p.game, timer, 1);
        EnableTimer(p.game, timer);
        EXPECT_TRUE(QTest::qWaitFor(ticked, 2000)) << timerNames[timer];
        DisableTimer(p.game, timer);
    }
}

struct MoveLog final : QObject {
    int moves = 0;

    MoveLog() { qApp->installEventFilter(this); }
    bool eventFilter(QObject* object, QEvent* event) override {
        moves += event->type() == QEvent::MouseMove && object->isWidgetType();
        return false;
    }
};

TEST(Program, KeepsTheMouseWaitingWhileTheDiceRoll) {
    RunningProgram running;
    frmLuckyCup& window = running.program.window;
    const auto die = [&](int i) {
        const auto* control = window.findChild<QWidget*>("picDice_" + QString::number(i));
        return control->mapTo(&window, control->rect().center());
    };
    QCursor::setPos(window.mapToGlobal(QPoint(2, 100)));
    QCoreApplication::processEvents();
    MoveLog log;
    ByDie<bool> between;
    QTimer::singleShot(100, &window, [&] { QCursor::setPos(window.mapToGlobal(die(1))); });
    QTimer::singleShot(300, &window, [&] {
        EXPECT_EQ(log.moves, 0);
        // What gets past the event loop waits at the gate, in order.
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, die(0));
        running.program.gate.Run([&] { between = running.game.dice.RollFlags; });
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, die(1));
        EXPECT_TRUE(running.game.dice.RollFlags[0]);
        EXPECT_EQ(running.game.session.RollCount, 0);
    });
    QTest::keyClick(window.windowHandle(), Qt::Key_Return);
    QCoreApplication::processEvents();
    EXPECT_GT(log.moves, 0);
    EXPECT_EQ(running.game.session.RollCount, 1);
    EXPECT_EQ(between, (ByDie<bool>{{false, true, true, true, true, true}}));
    EXPECT_EQ(running.game.dice.RollFlags, (ByDie<bool>{{false, false, true, true, true, true}}));
}

TEST(Program, RollsOtherDiceInEachGame) {
    ByDie<int> dice[2];
    for (ByDie<int>& rolled : dice) {
        RunningProgram running;
        QTest::keyClick(running.program.window.windowHandle(), Qt::Key_Return);
        rolled = running.game.dice.DiceValues;
    }
    EXPECT_FALSE(dice[0] == dice[1]) << "one in 46,656 by chance";

    const auto numbers = [](double timeOfDay) {
        SeededRandom random;
        random.Next();
        random.Reseed(timeOfDay);
        std::vector<double> drawn(50);
        for (double& number : drawn) number = random.Next();
        return drawn;
    };
    constexpr double millisecond = 1.0 / (24 * 60 * 60 * 1000);
    EXPECT_TRUE(numbers(0.25) == numbers(0.25));
    EXPECT_FALSE(numbers(0.25) == numbers(0.25 + millisecond));
}

TEST(Program, HoldsTheMusicWhileMinimisedAndSavesWhenItCloses) {
    RunningProgram running({.Player1 = "Ann", .BGMusicEnabled = true, .BGMusicVolume = 321});
    const auto watches = [&] { return running.game.table.timers[Timer::Timer3].enabled; };
    EXPECT_TRUE(watches());
    running.program.window.showMinimized();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !watches(); }, 1000));
    running.program.window.showNormal();
    EXPECT_TRUE(QTest::qWaitFor(watches, 1000));
    running.program.window.close();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !running.program.window.isVisible(); }, 1000));
    const GameSettings saved = RegistrySettings().LoadSettings();
    EXPECT_TRUE(saved == running.game.settings);
}

TEST(Program, LeavesByAnAnswerOnlyAndThenForGood) {
    RunningProgram running({.ConfirmOnExit = true});
    running.answerer.stop();
    frmLuckyCup& window = running.program.window;
    const auto ask = [&](Qt::Key answer) {
        QTimer::singleShot(200, &window, [&, answer] {
            QWidget* question = QApplication::activeModalWidget();
            ASSERT_TRUE(question);
            window.close();  // once more, with the question open
            QCoreApplication::processEvents();
            EXPECT_TRUE(question->isVisible() && window.isVisible());
            QTest::keyClick(question, answer);
        });
        window.findChild<QAction*>("mnuGameExit")->trigger();
    };
    ask(Qt::Key_Escape);
    EXPECT_TRUE(window.isVisible());
    ask(Qt::Key_Return);
    EXPECT_FALSE(window.isVisible());
    bool letIn = false;
    running.program.gate.Run([&] { letIn = true; });
    EXPECT_FALSE(letIn);
}

TEST(Program, RecordsEachTypeOfGameInAFileOfItsOwn) {
    for (int number = 1; number <= 4; ++number) {
        RunningProgram running(
            {.NumberOfDice = number % 2 ? 5 : 4, .NumberOfColumns = number < 3 ? 4 : 1, .Player1 = "Ann"});
        running.game.session.Total = 1234;
        running.program.gate.Run([&] { GameOver(running.game); });
        const QDir scores(running.folder.filePath("scores"));
        EXPECT_EQ(scores.entryList(QDir::Files), QStringList(QString("scores%1.dat").arg(number)));
        QFile written(scores.filePath(QString("scores%1.dat").arg(number)));
        ASSERT_TRUE(written.open(QIODevice::ReadOnly));
        EXPECT_TRUE(written.read(24).startsWith(QByteArray("Ann       \xD2\x04\0\0", 14)));
    }
}

}  // namespace
