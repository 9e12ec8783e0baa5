#include "kit/size.h"

#include <QScreen>
#include <QWheelEvent>

#include "app/tick.h"
#include "core/hints.h"
#include "core/show.h"
#include "kit/pointers.h"
#include "kit/size_keys.h"
#include "kit/sized_style.h"
#include "kit/sized_widgets.h"
#include "store/settings_store.h"
#include "store/size_store.h"
#include "tests/window_table.h"

namespace {

struct Sizes : testing::Test {
    Sizes() { ChangeSize(normalSize); }
    ~Sizes() override { ChangeSize(normalSize); }
};

struct Moment {
    const char* name;
    std::function<void(WindowTable&)> play;
};

void TickOn(WindowTable& t, Timer timer, int times) {
    for (int i = 0; i < times; ++i) Tick(t.game, t.parts, t.music, timer);
}

const Moment moments[] = {
    {"a die is held, hints stand beside the rows",
     [](WindowTable& t) {
         t.ClickEntry("mnuHintsAllways2");
         t.Key(Qt::Key_Return);
         t.Click("picDice", 1);
     }},
    {"the counter runs",
     [](WindowTable& t) {
         t.Key(Qt::Key_Return);
         t.Click("cmdRand", rowMax);
         TickOn(t, Timer::tmrCounter, 3);
     }},
    {"the table is animated",
     [](WindowTable& t) {
         t.parts.StartTableAnimation(t.game);
         TickOn(t, Timer::tmrAnimation, 9);
     }},
};

// As without a mouse, which comes upon other controls when the size changes.
QImage Picture(QWidget& window) {
    QCoreApplication::processEvents();
    for (auto* control : window.findChildren<QWidget*>()) control->setAttribute(Qt::WA_UnderMouse, false);
    return window.grab().toImage();
}

// A window that was brought to a size, by way of others, looks as one that was opened at it and played alike.
TEST_F(Sizes, LookTheSameWhicheverWayTheyWereComeBy) {
    constexpr int sizes[] = {200, 300, 75, 225, 100, 275, 125, 250, 150, 175};
    for (const int variant : {0, 7})
        for (const auto& [name, play] : moments) {
            std::vector<QImage> opened;
            for (const int percent : sizes) {
                ChangeSize(percent);
                WindowTable t(VariantOf(variant), Ticks::ByHand);
                play(t);
                t.MoveAway();
                opened.push_back(Picture(t.window));
            }
            WindowTable changed(VariantOf(variant), Ticks::ByHand);
            play(changed);
            const auto events = changed.log;
            for (std::size_t i = 0; i < opened.size(); ++i) {
                ChangeSize(sizes[i]);
                changed.MoveAway();
                EXPECT_TRUE(Picture(changed.window) == opened[i]) << name << " at " << sizes[i];
            }
            EXPECT_EQ(changed.log, events) << "no rule runs";
        }
}

// entry: of the menu, that opens the dialog or the window beside the table of this name.
void ExpectFollows(const char* entry, const QString& name) {
    WindowTable t({}, Ticks::ByHand);
    const auto visit = [&](const std::function<void(QWidget&)>& look) {
        t.answer = [&](QWidget& modal) {
            look(modal);
            modal.close();
        };
        t.ClickEntry(entry);
        for (QWidget* window : QApplication::topLevelWidgets())
            if (window->objectName() == name && window->isVisible()) t.answer(*window);
    };
    for (int percent = smallestSize; percent <= largestSize; percent += sizeStep) {
        ChangeSize(normalSize);
        QImage followed;
        visit([&](QWidget& window) {
            ChangeSize(percent);
            followed = Picture(window);
            EXPECT_TRUE(window.screen()->availableGeometry().contains(window.frameGeometry())) << percent;
        });
        visit([&](QWidget& window) {
            EXPECT_TRUE(Picture(window) == followed) << percent;
            EXPECT_TRUE(window.screen()->availableGeometry().contains(window.frameGeometry())) << percent;
            for (const auto* button : window.findChildren<QAbstractButton*>()) {
                const int text = button->fontMetrics().horizontalAdvance(button->text());
                EXPECT_TRUE(button->isHidden() || button->width() >= text) << percent;
                const int pointer = button->cursor().pixmap().width();
                EXPECT_TRUE(pointer == 0 || pointer == qRound(0.32 * percent)) << percent;
            }
        });
        EXPECT_FALSE(followed.isNull());
    }
}

TEST_F(Sizes, AreFollowedByAllWindowsWhichStayInReach) {
    QApplication::setStyle(new SizedStyle);
    ExpectFollows("mnuOptions", "frmOptions");
    ExpectFollows("mnuScores", "frmScores2");
    ExpectFollows("mnuQuickStar", "frmQuickStart");
    ExpectFollows("mnuAbout", "frmAbout");
}

TEST_F(Sizes, AreChosenByKeysAndWheel) {
    WindowTable t;
    std::vector<int> chosen;
    const SizeKeys keys(t.window, [&](int percent) { chosen.push_back(percent); });
    const auto turn = [&](int delta, Qt::KeyboardModifiers held) {
        QWheelEvent wheel({5, 5}, {5, 5}, {}, {0, delta}, Qt::NoButton, held, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&t.window, &wheel);
    };
    for (const Qt::Key key :
         {Qt::Key_Plus, Qt::Key_Equal, Qt::Key_Minus, Qt::Key_0, Qt::Key_0, Qt::Key_Minus, Qt::Key_Minus})
        t.Key(Qt::ControlModifier | key);
    turn(60, Qt::ControlModifier);
    turn(60, Qt::ControlModifier);
    turn(120, Qt::NoModifier);
    turn(120 * 20, Qt::ControlModifier);
    t.Key(Qt::ControlModifier | Qt::Key_Plus);
    turn(-120 * 20, Qt::ControlModifier);
    EXPECT_EQ(chosen, (std::vector{125, 150, 125, 100, 75, 100, 300, 75}));
    EXPECT_EQ(t.game.session.RollCount, 0);
}

TEST_F(Sizes, AtTheStartFitTheScreen) {
    const std::tuple<int, QSize, int> starts[] = {
        {100, {1920, 1080}, 100}, {200, {1920, 1080}, 175}, {225, {1920, 1200}, 200}, {300, {3840, 2160}, 300},
        {100, {911, 512}, 75},    {150, {1366, 768}, 125},  {100, {1366, 768}, 100},  {300, {400, 2160}, 100},
        {100, {640, 480}, 75},    {100, {200, 150}, 75},    {0, {1920, 1080}, 100},   {110, {1920, 1080}, 100},
        {-75, {800, 600}, 100},   {400, {3840, 2160}, 100},
    };
    for (const auto& [wanted, screen, fits] : starts)
        EXPECT_EQ(SizeAtStart(wanted, screen), fits) << wanted << " on " << screen.width();

    const QSize yamb = WindowTable(VariantOf(0)).window.size() * 2 + QSize(10, 38);
    EXPECT_EQ(SizeAtStart(200, yamb), 200);
    EXPECT_EQ(SizeAtStart(200, yamb - QSize(0, 1)), 175);
    const QSize hallOfFame(433, 540);
    EXPECT_EQ(FittingSize(200, hallOfFame, {1920, 1080}), 175);

    const QRect screen(100, 30, 800, 600);
    const std::pair<QRect, QPoint> frames[] = {{{200, 100, 327, 540}, {200, 90}},
                                               {{850, 40, 327, 540}, {573, 40}},
                                               {{-9, -13, 327, 540}, {100, 30}},
                                               {{200, 100, 900, 700}, {100, 30}},
                                               {{400, 500, 327, 700}, {400, 30}}};
    for (const auto& [frame, place] : frames) EXPECT_EQ(IntoView(frame, screen), place) << frame.x();
}

TEST_F(Sizes, ArePointersToo) {
    QWidget window;
    for (int percent = smallestSize; percent <= largestSize; percent += sizeStep) {
        SetSize(percent);
        SetBasePointer(window, QFileInfo(HELP_FILE).path() + "/../");
        EXPECT_EQ(window.cursor().pixmap().width(), qRound(0.32 * percent));
        EXPECT_NEAR(window.cursor().hotSpot().x(), 0.015 * percent, 1) << percent;
    }
}

TEST_F(Sizes, AreKeptBesideWhatElseStandsInTheFile) {
    const QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(home.path()));
    EXPECT_EQ(StoredSize(), 0);
    StoreSize(175);
    RegistrySettings().SaveSettings(VariantOf(7));
    EXPECT_EQ(StoredSize(), 175);
    StoreSize(150);
    EXPECT_EQ(RegistrySettings().LoadSettings().NumberOfColumns, 1);
    for (const char* nonsense : {"", "large", "1e9", "99999999999", "100 %", "-100"}) {
        SaveTexts(UserSettingsPath(), {{"Window/Size", nonsense}});
        EXPECT_EQ(SizeAtStart(StoredSize(), {4000, 4000}), normalSize) << nonsense;
    }
}

}  // namespace
