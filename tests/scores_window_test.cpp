#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QHeaderView>
#include <QScrollBar>
#include <QTabBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>

#include "dialogs/window/frm_scores2.h"
#include "dialogs/window/qt_dialogs.h"
#include "kit/twips.h"
#include "script/headless_table.h"

namespace {

// One record as it lies in a file.
QByteArray Slot(const QByteArray& name, const QByteArray& score, const QByteArray& date) {
    return name.leftJustified(10, ' ') + score + date.leftJustified(10, ' ');
}
const QByteArray unusedSlot = Slot(QByteArray(1, '\0'), "\xF1\xD8\xFF\xFF", QByteArray(1, '\0'));
const QByteArray annSlot = Slot("Ann", QByteArray::fromHex("e8030000"), "2/1/2003");

// A program's folder with score files, and the window over another one.
struct HallWindow {
    explicit HallWindow(int position = 0) {
        QDir(folder.path()).mkdir("scores");
        table.UseFolder(folder.path().toStdString());
        GameSession& session = table.game.session;
        session.OpenedFromGame = true;
        session.ShowScoreResult = position != 0;
        session.LastScorePosition = position;
        owner.setGeometry(100, 50, 330, 560);
        owner.show();
    }
    QString Path(int number) const { return folder.filePath(QString("scores/scores%1.dat").arg(number)); }
    void Write(int number, const QByteArray& bytes) const {
        QFile file(Path(number));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
    void Open() {
        window = std::make_unique<frmScores2>(owner, table.game, art);
        window->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }
    template <typename Control>
    Control& Find(const char* name) const {
        return *window->findChild<Control*>(name);
    }
    QTableView& List() const { return Find<QTableView>("LVScores"); }
    QTabBar& Strip() const { return *Find<QTabWidget>("SSTab1").tabBar(); }
    QString Cell(int row, int column) const { return List().model()->index(row, column).data().toString(); }
    QStringList Row(int row) const { return {Cell(row, 0), Cell(row, 1), Cell(row, 2), Cell(row, 3)}; }
    void Click(QWidget& at, QPoint point) const {
        QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, at.mapTo(window.get(), point));
    }
    void Click(QWidget& at) const { Click(at, at.rect().center()); }
    void ClickTab(int tab) const { Click(Strip(), Strip().tabRect(tab).center()); }
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const {
        QTest::keyClick(window->windowHandle(), key, modifiers);
    }

    QTemporaryDir folder;
    HeadlessTable table;
    Art art;
    QWidget owner;
    std::unique_ptr<frmScores2> window;
};

TEST(ScoresWindow, LaysOutBothWays) {
    struct {
        const char* name;
        Place place;        // in the window, in twips, with a result; height 0 and width 0 are lines
        int withoutResult;  // its top, or for a standing line its height
    } const told[] = {
        {"SSTab1", {47, 0, 6400, 6225}, 0},           {"LVScores", {100, 375, 6260, 5780}, 375},
        {"lblScore", {132, 6350, 6230, 585}, 6350},   {"cmdClearTable", {132, 7015, 2000, 555}, 6390},
        {"cmdReturn", {4362, 7015, 2000, 555}, 6390}, {"Check1", {40, 7720, 2925, 285}, 7100},
        {"Line1", {40, 6280, 6400, 0}, 6280},         {"Line3", {40, 7650, 6400, 0}, 7040},
    };
    for (int position : {0, -1, 20}) {
        HallWindow hall(position);
        hall.Open();
        const QRect owner = hall.owner.geometry();
        EXPECT_EQ(hall.window->size(), QSize(433, position ? 540 : 497));
        EXPECT_EQ(hall.window->geometry().topLeft(),
                  QPoint(owner.left() + (330 - 433) / 2, owner.top() + (560 - 497) / 2));
        for (const auto& [name, place, withoutResult] : told) {
            const auto& control = hall.Find<QWidget>(name);
            Place wanted = place;
            if (!position) wanted.top = withoutResult;
            EXPECT_EQ(control.mapTo(hall.window.get(), QPoint()), Pixels(wanted).topLeft()) << name;
            EXPECT_NEAR(control.width(), Pixels(wanted).width(), 1) << name;
            EXPECT_EQ(control.height(), Pixels(wanted).height()) << name;
            EXPECT_EQ(control.isVisible(), position || name != std::string("lblScore"));
        }
        EXPECT_EQ(hall.Find<QWidget>("Line4").geometry().bottomRight(),
                  hall.Find<QWidget>("Line3").geometry().bottomRight());
        const QLabel& result = hall.Find<QLabel>("lblScore");
        EXPECT_TRUE(QRect(QPoint(), result.size()).contains(QRect(QPoint(), result.sizeHint())));
        EXPECT_LE(hall.Strip().sizeHint().width(), hall.Find<QWidget>("SSTab1").width());
        EXPECT_EQ(hall.Row(19), QStringList({" 20", "", "", ""}));
        EXPECT_EQ(hall.List().selectionModel()->hasSelection(), position == 20);
        EXPECT_FALSE(hall.List().horizontalScrollBar()->isVisible() || hall.List().verticalScrollBar()->isVisible());
    }
}

TEST(ScoresWindow, ShowsWhatTheFileHolds) {
    struct {
        QByteArray slot;
        QStringList cells;
    } const told[] = {
        {Slot("Zo\xEB & <b>", QByteArray::fromHex("39300000"), "23.11.2026"),
         {" 1", "Zoë & <b>", "12345", "23.11.2026"}},
        {Slot("a\nb\tc\r\x01", QByteArray::fromHex("ffffffff"), "2/1/2003"), {" 2", "a b c", "-1", "2/1/2003"}},
        {Slot("WWWWWWWWWW", QByteArray::fromHex("00000080"), "9999999999"),
         {" 3", "WWWWWWWWWW", "-2147483648", "9999999999"}},
        {Slot(QByteArray("Al\0x", 4), QByteArray::fromHex("ffffff7f"), ""), {" 4", "Al", "2147483647", ""}},
        {unusedSlot, {" 5", "", "", ""}},
        {annSlot, {" 6", "Ann", "1000", "2/1/2003"}},
    };
    QByteArray bytes;
    for (const auto& line : told) bytes += line.slot;
    for (const QByteArray& rest :
         {QByteArray(), annSlot.left(7), QByteArray(14 * 24 + 4, '\xFF'), QByteArray(2000, 'x')}) {
        HallWindow hall(20);
        hall.Write(1, bytes + rest);
        hall.Open();
        ASSERT_EQ(hall.List().model()->rowCount(), 20);
        for (int row = 0; row < static_cast<int>(std::size(told)); ++row) {
            QStringList cells = hall.Row(row);
            cells[1] = cells[1].trimmed();
            EXPECT_EQ(cells, told[row].cells);
            EXPECT_EQ(hall.List().rowHeight(row), 18);
        }
        EXPECT_TRUE(hall.List().rect().contains(hall.List().visualRect(hall.List().model()->index(19, 3))));
        const QModelIndexList selected = hall.List().selectionModel()->selectedIndexes();
        ASSERT_EQ(selected.size(), 4);
        for (const QModelIndex& index : selected) EXPECT_EQ(index.row(), 19);
        EXPECT_EQ(hall.Find<QLabel>("lblScore").text().count('\n'), 1);
    }
}

TEST(ScoresWindow, ChangesTabsByMouseAndKeyboard) {
    HallWindow hall;
    for (int number : {1, 3, 4})
        hall.Write(number, Slot("Ann", QByteArray(1, static_cast<char>(number)) + QByteArray(3, '\0'), ""));
    hall.Open();
    const auto shows = [&](int tab, const QString& score) {
        EXPECT_EQ(std::pair(hall.Strip().currentIndex(), hall.Cell(0, 2)), std::pair(tab, score));
        EXPECT_EQ(hall.List().model()->columnCount(), 4);
    };
    shows(0, "1");
    hall.Key(Qt::Key_Tab, Qt::ControlModifier);
    shows(1, "1");
    hall.Key(Qt::Key_Y, Qt::AltModifier);
    shows(2, "1");
    hall.ClickTab(2);
    shows(2, "3");
    hall.Key(Qt::Key_Y, Qt::AltModifier);
    shows(3, "4");
    hall.Key(Qt::Key_Tab, Qt::ControlModifier);
    shows(0, "1");
    hall.Key(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    shows(3, "4");
    hall.ClickTab(1);
    shows(1, "");
    hall.Strip().setFocus();
    hall.Key(Qt::Key_Right);
    shows(2, "3");
    const QPointF middle = hall.Strip().rect().center();
    QWheelEvent wheel(middle, hall.Strip().mapToGlobal(middle), {}, {0, -120}, Qt::NoButton, {}, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(&hall.Strip(), &wheel);
    shows(2, "3");
    QStringList way;
    for (int i = 0; i < 5; ++i, hall.Key(Qt::Key_Tab)) way += QApplication::focusWidget()->objectName();
    EXPECT_EQ(way, QStringList({"qt_tabwidget_tabbar", "LVScores", "cmdClearTable", "cmdReturn", "Check1"}));
}

TEST(ScoresWindow, ClearsTheTableOfTheTab) {
    HallWindow hall(1);
    for (int number : {1, 4}) hall.Write(number, annSlot);
    hall.Open();
    auto& clear = hall.Find<QPushButton>("cmdClearTable");
    hall.table.dialogs.answers = {HeadlessAnswer::Cancel};
    hall.Click(clear);
    EXPECT_TRUE(hall.Cell(0, 1) == "Ann" && hall.List().selectionModel()->isRowSelected(0) && clear.isEnabled());
    hall.Key(Qt::Key_C, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !clear.isEnabled(); }));
    EXPECT_TRUE(hall.Row(0) == QStringList({" 1", "", "", ""}) && !hall.List().selectionModel()->hasSelection());
    EXPECT_FALSE(QFile::exists(hall.Path(1)));
    hall.ClickTab(0);
    EXPECT_FALSE(clear.isEnabled());
    hall.ClickTab(3);
    EXPECT_TRUE(clear.isEnabled() && hall.Cell(0, 1) == "Ann");
}

TEST(ScoresWindow, KeepsTheGridLinesHoweverItCloses) {
    const std::array<void (*)(HallWindow&), 5> ways{
        [](HallWindow& hall) { hall.Click(hall.Find<QPushButton>("cmdReturn")); },
        [](HallWindow& hall) { hall.Key(Qt::Key_R, Qt::AltModifier); },
        [](HallWindow& hall) { hall.Key(Qt::Key_Return); },
        [](HallWindow& hall) { hall.Key(Qt::Key_Escape); },
        [](HallWindow& hall) { hall.window->close(); },
    };
    HallWindow hall;
    bool grid = hall.table.game.settings.ShowGridLines;
    for (auto close : ways) {
        hall.Open();
        auto& check = hall.Find<QCheckBox>("Check1");
        EXPECT_TRUE(check.isChecked() == grid && hall.List().showGrid() == grid);
        hall.Click(check, QPoint(8, check.height() / 2));
        grid = !grid;
        EXPECT_TRUE(hall.List().showGrid() == grid && hall.table.game.settings.ShowGridLines != grid);
        close(hall);
        EXPECT_TRUE(QTest::qWaitFor([&] { return hall.window->isHidden(); }));
        EXPECT_TRUE(hall.table.game.settings.ShowGridLines == grid);
    }
}

TEST(ScoresWindow, SelectsByTheFirstCellWithoutAResult) {
    for (int position : {0, 2}) {
        HallWindow hall(position);
        hall.Open();
        for (int column : {1, 0}) {
            hall.Click(*hall.List().viewport(), hall.List().visualRect(hall.List().model()->index(7, column)).center());
            EXPECT_EQ(hall.List().selectionModel()->selectedIndexes().size(), position ? 4 : 1 - column);
        }
        const QImage picture = hall.List().grab().toImage();
        const QRect cell =
            hall.List().visualRect(hall.List().model()->index(7, 3)).translated(hall.List().viewport()->pos());
        const QColor wanted = position ? hall.List().palette().color(QPalette::Highlight) : QColor(239, 255, 210);
        EXPECT_EQ(picture.pixelColor(cell.center()), wanted);
    }
}

TEST(ScoresWindow, AsksInABoxOfItsOwn) {
    HallWindow hall;
    hall.Write(1, annSlot);
    EventGate gate;
    QtDialogs dialogs(hall.owner, gate, hall.art);
    HeadlessTable& t = hall.table;
    Game game{
        Ports{t.view, t.timers, t.clock, t.random, t.effects, t.media, dialogs, t.scores, t.shell, t.store, t.parts}};
    game.session.OpenedFromGame = true;
    QStringList opened;
    const QWidget* answered = nullptr;
    QTimer player;
    player.callOnTimeout([&] {
        QWidget* modal = QApplication::activeModalWidget();
        if (!modal || !modal->isVisible() || modal == answered) return;
        modal->activateWindow();  // offscreen it does not come back by itself
        if (!modal->isActiveWindow()) return;
        answered = modal;
        opened += modal->windowTitle() + " over " + modal->parentWidget()->objectName();
        EXPECT_FALSE(gate.Busy());
        if (opened.size() == 1) return QTest::keyClick(modal, Qt::Key_C, Qt::AltModifier);
        QTest::keyClick(modal, opened.size() == 2 ? Qt::Key_Return : Qt::Key_Escape);
    });
    player.start(2);
    gate.Run([&] { dialogs.frmScores2(game); });
    EXPECT_EQ(opened, QStringList({"Lucky Cup - Hall of Fame over ", "Delete Scores? over frmScores2",
                                   "Lucky Cup - Hall of Fame over "}));
    EXPECT_FALSE(QFile::exists(hall.Path(1)));
}

}  // namespace
