// A monkey at the real window: mouse, keys, menus and dialogs by chance, at all variants and sizes, also while dice
// roll, points are counted and other windows stand open. After every event the window shows what the records say.
// What it did stands in window_monkey.log.

#include <unistd.h>

#include <QElapsedTimer>
#include <QPixmapCache>
#include <QPointer>
#include <QWheelEvent>
#include <QWindow>
#include <ctime>
#include <fstream>
#include <iostream>
#include <random>

#include "dialogs/window/help_window.h"
#include "kit/size.h"
#include "kit/size_keys.h"
#include "table/row_names.h"
#include "tests/state_differences.h"
#include "tests/twin_tables.h"

// What is allocated now, in bytes.
#ifdef __SANITIZE_ADDRESS__
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
static std::size_t Heap() { return __sanitizer_get_current_allocated_bytes(); }
static constexpr unsigned longestHang = 20;  // seconds; then the alarm ends the program
#else
#include <malloc.h>
static std::size_t Heap() { return mallinfo2().uordblks + mallinfo2().hblkhd; }
static constexpr unsigned longestHang = 5;
#endif

namespace {

constexpr Qt::Key keys[] = {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_Escape, Qt::Key_Tab,  Qt::Key_Backtab,
                            Qt::Key_Left,   Qt::Key_Right, Qt::Key_Up,    Qt::Key_Down,   Qt::Key_Home, Qt::Key_Delete,
                            Qt::Key_F1,     Qt::Key_F2,    Qt::Key_F10,   Qt::Key_Alt,    Qt::Key_1,    Qt::Key_6,
                            Qt::Key_H,      Qt::Key_N,     Qt::Key_B,     Qt::Key_O,      Qt::Key_X,    Qt::Key_Y,
                            Qt::Key_Z,      Qt::Key_G,     Qt::Key_Plus,  Qt::Key_Minus,  Qt::Key_0};
constexpr Qt::KeyboardModifier held[] = {Qt::AltModifier, Qt::ShiftModifier, Qt::KeypadModifier, Qt::ControlModifier};
constexpr Qt::MouseButton buttons[] = {Qt::LeftButton, Qt::LeftButton, Qt::RightButton, Qt::MiddleButton};

// What a run has met, to see how far it came.
struct Met {
    int events = 0, duringRolls = 0, duringCounts = 0, dialogs = 0, gamesOver = 0, tables = 0;
};

class Monkey {
public:
    Monkey(std::mt19937& random, Met& met) : random_(random), met_(met), table_(AnySettings()) {
        ++met_.tables;
        table_.game.session.AppPath = PROGRAM_FOLDER;
        table_.answer = [](QWidget&) {};
        look_.callOnTimeout([this] { LookUp(); });
        look_.start(1);
    }

    void Play(int events) {
        for (; events > 0 && table_.window.isVisible() && !testing::Test::HasFailure(); --events) Act();
        if (!table_.window.isVisible()) table_.gate.Run([] { ADD_FAILURE() << "goes on after it has closed"; });
    }

    // The share of a processor that a table takes that nobody touches.
    double ShareAtRest() {
        alarm(0);
        look_.stop();
        QTest::qWait(4000);
        const std::clock_t before = std::clock();
        QTest::qWait(2000);
        return static_cast<double>(std::clock() - before) / (2.0 * CLOCKS_PER_SEC);
    }

private:
    int Below(int n) { return static_cast<int>(random_() % static_cast<unsigned>(n)); }
    const auto& Any(const auto& of) { return *std::next(std::begin(of), Below(static_cast<int>(std::size(of)))); }
    Qt::KeyboardModifier AnyHeld() { return Below(2) ? Qt::NoModifier : Any(held); }
    QPoint Point(const QWidget& in) { return {Below(in.width()), Below(in.height())}; }

    GameSettings AnySettings() {
        GameSettings settings = VariantOf(Below(8));
        for (auto truth : {&GameSettings::SoundEnabled, &GameSettings::BGMusicEnabled, &GameSettings::hintAllways,
                           &GameSettings::ShowStatusBar, &GameSettings::ConfirmQuitGame, &GameSettings::ConfirmOnExit})
            settings.*truth = Below(2) == 1;
        return settings;
    }

    // Whether a dialog or a menu of Qt's own has come up, in whose event loop the monkey would wait for ever, or dice
    // roll. What is done about it is done later, since a timer waits for the end of its own tick.
    void LookUp() {
        const auto later = [this](auto what) { QMetaObject::invokeMethod(&look_, what, Qt::QueuedConnection); };
        QPointer<QWidget> modal = QApplication::activeModalWidget();
        QPointer<QWidget> popup = QApplication::activePopupWidget();
        if (popup && acting_ && !popup->objectName().startsWith("mnu")) {
            later([popup] { return popup && popup->close(); });
        } else if (modal && !modal->property("met").toBool()) {
            modal->setProperty("met", true);
            later([=, this] { PlayIn(modal); });
        } else if (table_.gate.Busy() && !std::exchange(rolling_, true)) {
            later([this] {
                ++met_.duringRolls;
                Act();
                rolling_ = false;
            });
        }
    }

    // In those of the desktop nothing is tried: they lead to the files of whoever runs this.
    void PlayIn(const QPointer<QWidget>& modal) {
        if (!modal) return;
        ++met_.dialogs;
        const bool own = modal->objectName().startsWith("frm") || modal->inherits("QMessageBox");
        for (int n = own ? Below(15) : 0; n > 0 && modal && modal->isVisible(); --n) Act();
        for (int tries = 0; modal && modal->isVisible(); ++tries) {
            ASSERT_LT(tries, 100) << modal->objectName().toStdString() << " does not close";
            if (QWidget* popup = QApplication::activePopupWidget()) popup->close();
            // A mouse button that is still held elsewhere keeps the clicks from it.
            if (tries % 3 == 0) modal->close();
            if (tries % 3 == 1) ClickAButton(*modal);
            if (tries % 3 == 2) Press(modal->windowHandle(), Qt::Key_Return, {});
            QCoreApplication::processEvents();
        }
    }

    QWidget& Target() {
        if (QWidget* popup = QApplication::activePopupWidget()) return *popup;
        if (QWidget* modal = QApplication::activeModalWidget()) return *modal;
        QWidgetList windows = QApplication::topLevelWidgets();
        windows.removeIf([](QWidget* window) { return !window->isVisible() || window->windowType() == Qt::ToolTip; });
        return windows.isEmpty() || Below(4) > 0 ? table_.window : *Any(windows);
    }

    void Act() {
        alarm(longestHang);
        ++met_.events;
        QWidget& target = Target();
        const auto& [name, chances, go] = AnyWay();
        ++acting_;
        log_ << std::string(acting_, ' ') << name << ' ' << qPrintable(target.objectName()) << std::endl;
        if (target.windowHandle()) (this->*go)(target);
        --acting_;
        if (Below(3) == 0) QCoreApplication::processEvents();
        if (std::ranges::count(table_.log, "help") > 0) ShowHelp();
        table_.log.clear();
        met_.duringCounts += table_.game.table.timers[Timer::tmrCounter].enabled;
        met_.gamesOver += std::exchange(over_, table_.game.session.GameOverShown) < over_;
        Check();
    }

    void ShowHelp() {
        if (!help_ || !help_->isVisible()) help_ = OpenHelp(PROGRAM_FOLDER, PROGRAM_FOLDER, table_.art);
        BringToFront(*help_);
    }

    void PlayOn(QWidget&) {
        const auto open = OpenEvents(table_.game);
        if (open.empty()) return;
        const ScriptLine line(Any(open));
        const auto number = [&](std::size_t i) { return std::stoi(std::string(line.Value(i))); };
        if (line.Command() == "roll") table_.Click("picRollDices");
        if (line.Command() == "next") table_.Click("cmdNextPlayer");
        if (line.Command() == "die")
            table_.Click(table_.Shown("picDice", number(1)) ? "picDice" : "PicDiceOff", number(1));
        if (line.Command() == "box")
            table_.Click(QString("cmd") + ColumnName(static_cast<ScoreColumn>(number(1))), number(2));
    }
    void ClickAButton(QWidget& target) {
        QList<QAbstractButton*> shown = target.findChildren<QAbstractButton*>();
        shown.removeIf([](QAbstractButton* button) { return !button->isVisible(); });
        if (shown.empty()) return Drag(target);
        const QWidget& button = *Any(shown);
        QTest::mouseClick(target.windowHandle(), Qt::LeftButton, {}, button.mapTo(&target, button.rect().center()));
    }
    // As often as not a click.
    void Drag(QWidget& target) {
        const Qt::MouseButton button = Any(buttons);
        const QPointer<QWindow> window = target.windowHandle();
        const QPoint from = Point(target), to = Below(2) ? from : Point(target);
        QTest::mousePress(window, button, AnyHeld(), from);
        if (window && to != from) QTest::mouseMove(window, to);
        if (window) QTest::mouseRelease(window, button, {}, to);
    }
    void DoubleClick(QWidget& target) { QTest::mouseDClick(target.windowHandle(), Any(buttons), {}, Point(target)); }
    // What is pressed can take the window away before it is released.
    static void Press(const QPointer<QWindow>& window, Qt::Key key, Qt::KeyboardModifier modifier) {
        for (const bool down : {true, false})
            if (window)
                QTest::simulateEvent(window, down, key, modifier, key < 0x80 ? QString(QChar(key)) : QString(), false);
    }
    void Move(QWidget& target) { QCursor::setPos(target.mapToGlobal(Point(target))); }
    void Wheel(QWidget& target) {
        const QPoint at = Point(target);
        QWidget* over = target.childAt(at);
        QWheelEvent turn(at, target.mapToGlobal(at), {}, {0, Below(2) ? 120 : -120}, {}, AnyHeld(), Qt::NoScrollPhase,
                         false);
        QApplication::sendEvent(over ? over : &target, &turn);
    }
    void PressAKey(QWidget& target) { Press(target.windowHandle(), Any(keys), AnyHeld()); }
    void ChangeSize(QWidget& target) {
        constexpr Qt::Key sizes[] = {Qt::Key_Plus, Qt::Key_Minus, Qt::Key_0};
        Press(target.windowHandle(), Any(sizes), Qt::ControlModifier);
    }
    void Type(QWidget&) {
        if (QWidget* field = QApplication::focusWidget()) QTest::keyClicks(field, "Zo");
    }
    void Wait(QWidget&) { QTest::qWait(Below(20)); }
    void Minimise(QWidget&) { table_.window.setWindowState(table_.window.windowState() ^ Qt::WindowMinimized); }
    void ChooseAnEntry(QWidget& target) {
        QList<QAction*> entries = table_.window.menuBar()->findChildren<QAction*>(QRegularExpression("^mnu."));
        if (&target == &table_.window) Any(entries)->trigger();
    }
    void Close(QWidget& target) { target.close(); }

    struct Way {
        const char* name;
        int chances;
        void (Monkey::*go)(QWidget& target);
    };
    const Way& AnyWay() {
        static constexpr Way ways[] = {{"play on", 600, &Monkey::PlayOn},   {"button", 100, &Monkey::ClickAButton},
                                       {"drag", 100, &Monkey::Drag},        {"double click", 20, &Monkey::DoubleClick},
                                       {"move", 60, &Monkey::Move},         {"wheel", 30, &Monkey::Wheel},
                                       {"key", 120, &Monkey::PressAKey},    {"size", 12, &Monkey::ChangeSize},
                                       {"type", 20, &Monkey::Type},         {"wait", 80, &Monkey::Wait},
                                       {"minimise", 20, &Monkey::Minimise}, {"entry", 25, &Monkey::ChooseAnEntry},
                                       {"close", 1, &Monkey::Close}};
        static const int all = std::transform_reduce(std::begin(ways), std::end(ways), 0, std::plus{},
                                                     [](const Way& way) { return way.chances; });
        int chance = Below(all);
        const Way* way = ways;
        while ((chance -= way->chances) >= 0) ++way;
        return *way;
    }

    // The records do not hold whether the window is minimised or closed, that it is disabled as a whole beside
    // frmAbout, nor the faces of a roll on their way.
    void Check() {
        const Game& game = table_.game;
        told_.game.settings = game.settings;
        told_.game.dice = game.dice;
        told_.game.card = game.card;
        told_.game.table = game.table;
        QJsonObject records = QJsonDocument::fromJson(QByteArray::fromStdString(JsonLine("", false, told_))).object();
        records["height"] = Pixels(game.table.height - frameAndMenuHeight);
        std::string besides = " minimized closed ";
        if (!table_.window.isEnabled())
            besides += "dice.enabled enabled roll.enabled undo redo hintButton showBoard.enabled ";
        if (table_.gate.Busy()) besides += "dice.face ";
        ASSERT_EQ(Differences(Seen(table_), records, besides), "") << "after event " << met_.events;
    }

    std::mt19937& random_;
    Met& met_;
    WindowTable table_;
    SizeKeys sizeKeys_{table_.window, [](int) {}};
    std::unique_ptr<HelpWindow> help_;
    HeadlessTable told_;
    QTimer look_;
    std::ofstream log_{"window_monkey.log"};
    bool rolling_ = false, over_ = false;
    std::size_t acting_ = 0;  // at once: one in the event loop of another
};

TEST(HardWindow, Monkey) {
    const int seed = qEnvironmentVariableIntValue("LUCKYCUP_SEED");
    const int events =
        qEnvironmentVariableIsSet("LUCKYCUP_COUNT") ? qEnvironmentVariableIntValue("LUCKYCUP_COUNT") : 2000;
    std::mt19937 random(static_cast<unsigned>(seed));
    Met met;
    QElapsedTimer clock;
    clock.start();
    std::size_t warm = 0, heap = 0;
    while (met.events < events && !HasFailure()) {
        Monkey(random, met).Play(1500);
        QPixmapCache::clear();
        heap = Heap();
        if (warm == 0 && clock.elapsed() > 60'000) warm = heap;
    }
    const double rest = Monkey(random, met).ShareAtRest();
    std::cout << "seed " << seed << ": " << met.events << " events in " << clock.elapsed() / 1000 << " s, "
              << met.duringRolls << " in rolls, " << met.duringCounts << " in counts, " << met.dialogs << " dialogs, "
              << met.tables << " tables, " << met.gamesOver << " games over; heap " << warm << " after a minute, "
              << heap << " at the end; at rest " << 100 * rest << " %\n";
    EXPECT_LT(rest, 0.05);
    EXPECT_TRUE(warm == 0 || heap < warm + (1 << 20));
}

}  // namespace
