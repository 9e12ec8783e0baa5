#include <gtest/gtest.h>

#include <QDir>
#include <QTabBar>
#include <QTemporaryDir>
#include <QTest>

#include "dialogs/window/frm_scores2.h"
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
    void ClickTab(int tab) const {
        const QPoint at = Strip().mapTo(window.get(), Strip().tabRect(tab).center());
        QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, at);
    }
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const {
        QTest::keyClick(window->windowHandle(), key, modifiers);
    }

    QTemporaryDir folder;
    HeadlessTable table;
    Art art;
    QWidget owner;
    std::unique_ptr<frmScores2> window;
};

TEST(ScoresWindow, ShowsWhatTheFileHolds) {
    struct {
        QByteArray slot;
        QStringList cells;
    } const told[] = {
        {Slot("Zo\xEB & <b>", QByteArray::fromHex("39300000"), "23.11.2026"),
         {" 1", "Zoë & <b>", "12345", "23.11.2026"}},
        {Slot("a\nb\tc\r\x01", QByteArray::fromHex("00000080"), "9999999999"),
         {" 2", "a b c", "-2147483648", "9999999999"}},
        {unusedSlot, {" 3", "", "", ""}},
        {annSlot, {" 4", "Ann", "1000", "2/1/2003"}},
    };
    for (int position : {0, 20}) {
        HallWindow hall(position);
        QByteArray bytes(20 * 24, '\xFF');
        for (int row = 0; row < 4; ++row) bytes.replace(row * 24, 24, told[row].slot);
        hall.Write(1, bytes);
        hall.Open();
        EXPECT_EQ(hall.window->size(), QSize(433, position ? 540 : 497));
        EXPECT_EQ(hall.Find<QWidget>("lblScore").isVisible(), position == 20);
        EXPECT_EQ(hall.List().selectionModel()->isRowSelected(19), position == 20);
        ASSERT_EQ(hall.List().model()->rowCount(), 20);
        for (int row = 0; row < 4; ++row) {
            for (int column = 0; column < 4; ++column)
                EXPECT_EQ(hall.Cell(row, column).trimmed(), told[row].cells[column].trimmed());
        }
        EXPECT_TRUE(hall.List().rect().contains(hall.List().visualRect(hall.List().model()->index(19, 3))));
    }
}

TEST(ScoresWindow, ChangesTabsByMouseAndKeyboard) {
    HallWindow hall;
    hall.Write(1, annSlot);
    hall.Open();
    const auto shows = [&](int tab, const QString& name) {
        EXPECT_EQ(std::pair(hall.Strip().currentIndex(), hall.Cell(0, 1).trimmed()), std::pair(tab, name));
    };
    shows(0, "Ann");
    hall.Key(Qt::Key_Tab, Qt::ControlModifier);
    hall.Key(Qt::Key_Y, Qt::AltModifier);
    shows(2, "Ann");  // the keyboard changes the tab only
    hall.ClickTab(2);
    shows(2, "");
    hall.Key(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    hall.ClickTab(0);
    shows(0, "Ann");
}

TEST(ScoresWindow, ClearsTheTableOfTheTab) {
    HallWindow hall(1);
    for (int number : {1, 4}) hall.Write(number, annSlot);
    hall.Open();
    auto& clear = hall.Find<QPushButton>("cmdClearTable");
    hall.Key(Qt::Key_C, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !clear.isEnabled(); }));
    EXPECT_TRUE(hall.Cell(0, 1).isEmpty() && !hall.List().selectionModel()->hasSelection());
    EXPECT_FALSE(QFile::exists(hall.Path(1)));
    hall.ClickTab(3);
    EXPECT_TRUE(clear.isEnabled() && hall.Cell(0, 1) == "Ann");
}

TEST(ScoresWindow, KeepsTheGridLinesHoweverItCloses) {
    HallWindow hall;
    bool grid = hall.table.game.settings.ShowGridLines;
    for (const bool byKey : {true, false}) {
        hall.Open();
        EXPECT_EQ(hall.List().showGrid(), grid);
        hall.Find<QCheckBox>("Check1").click();
        grid = !grid;
        EXPECT_TRUE(hall.List().showGrid() == grid && hall.table.game.settings.ShowGridLines != grid);
        if (byKey)
            hall.Key(Qt::Key_Escape);
        else
            hall.window->close();
        EXPECT_TRUE(QTest::qWaitFor([&] { return hall.table.game.settings.ShowGridLines == grid; }));
    }
}

}  // namespace
