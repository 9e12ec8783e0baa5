#include <QDir>
#include <QScrollBar>
#include <QTabBar>
#include <QWheelEvent>
#include <QtEndian>

#include "dialogs/window/frm_scores2.h"
#include "tests/files.h"
#include "tests/visits.h"

namespace {

// One record as it lies in a file.
QByteArray Slot(const QByteArray& name, qint32 score, const QByteArray& date) {
    QByteArray number(4, '\0');
    qToLittleEndian(score, number.data());
    return name.leftJustified(10, ' ') + number + date.leftJustified(10, ' ');
}

// Files that fail, where they are not those of the folder.
struct FailingScores final : SilentScores {
    int failure;
    explicit FailingScores(int number) : failure(number) {}
    bool TopScoreFileExists(int) override { return true; }
    ScoreTable LoadTopScores(int) override { throw ScoreFileError(failure, "No luck", "F"); }
    void DeleteTopScores(int) override { throw ScoreFileError(failure, "No luck", "F"); }
};

// The window over the table, in a folder whose files 1, 3 and 4 hold one score each, that of their number.
struct Hall : Visits {
    // What it opens with: a variant ("v0" to "v3"), the place of a result ("p20", in silence "p20s", in a Redo "p20r"),
    // or files that fail ("e53").
    void Open(const QString& with) {
        const int number = QString(with).remove(QRegularExpression("[^-\\d]")).toInt();
        const int variant = with.startsWith('v') ? number : 0;
        game.settings.NumberOfDice = variant & 1 ? 4 : 5;
        game.settings.NumberOfColumns = variant & 2 ? 1 : 4;
        GameSession& session = game.session;
        session.ShowScoreResult = with.startsWith('p');
        std::tie(session.LastScorePosition, session.LastFinalScore) = std::tuple(number, -12);
        std::tie(session.SoundOn, session.RedoInProgress) = std::tuple(!with.endsWith('s'), with.endsWith('r'));
        session.AppPath = "folder/";
        if (with.startsWith('e')) scores.Keep(std::make_unique<FailingScores>(number));
        hall.reset();
        hall = std::make_unique<frmScores2>(window, game, art);
        hall->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(hall.get()));
    }
    QString Path(int number) const { return folder.filePath(QString("scores/scores%1.dat").arg(number)); }
    void Write(int number, const QByteArray& bytes) const { WriteFile(Path(number), bytes); }
    QTableView& List() const { return In<QTableView>(*hall, "LVScores"); }
    QTabBar& Strip() const { return *In<QTabWidget>(*hall, "SSTab1").tabBar(); }
    QModelIndex Index(int row, int column) const { return List().model()->index(row, column); }
    QString Cell(int row, int column) const { return Index(row, column).data().toString(); }
    QPoint Middle(int row, int column) const { return List().visualRect(Index(row, column)).center(); }

    // Tab, file that is listed (- for an empty table, ! for none), whether Clear can be pressed, selected row and
    // files.
    QString State() const {
        const int rows = List().model()->rowCount();
        EXPECT_TRUE((rows == 20 || rows == 0) && List().model()->columnCount() == 4);
        for (int row = 0; row < rows; ++row) EXPECT_EQ(Cell(row, 0), ' ' + QString::number(row + 1));
        const QModelIndexList selected = List().selectionModel()->selectedRows();
        QString files;
        for (int number = 1; number <= 4; ++number)
            if (QFile::exists(Path(number))) files += QString::number(number);
        const QString first = rows == 0 ? "!" : Cell(0, 2).isEmpty() ? "-" : Cell(0, 2);
        return QString("%1 %2 %3 %4 %5%6")
            .arg(Strip().currentIndex())
            .arg(first, In(*hall, "cmdClearTable").isEnabled() ? "on" : "off")
            .arg(selected.isEmpty() ? 0 : selected[0].row() + 1)
            .arg(files, List().showGrid() ? " grid" : "");
    }

    std::unique_ptr<frmScores2> hall;
};

void TurnWheel(QWidget& control) {
    const QPointF middle = control.rect().center();
    QWheelEvent wheel(middle, control.mapToGlobal(middle), {}, {0, -120}, Qt::NoButton, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&control, &wheel);
}

TEST(HallOfFame, FollowsItsRules) {
    Hall h;
    h.describe = [&](const QWidget& front) { return &front == h.hall.get() ? h.State() : QString(); };
    QHash<QString, std::function<void()>> acts{{"wheel", [&] { TurnWheel(h.Strip()); }},
                                               {"strip", [&] { h.Strip().setFocus(); }}};
    for (const char* with :
         {"v0", "v1", "v2", "v3", "p1", "p20", "p20s", "p20r", "p21", "p-1", "p-1s", "p-1r", "e53", "e70"})
        acts[with] = [&h, with] {
            for (int number : {1, 3, 4}) h.Write(number, Slot("Ann", number, "2/1/2003"));
            h.Open(with);
        };
    for (int i = 0; i < 4; ++i) {
        acts[QString("tab%1").arg(i)] = [&h, i] { ClickAt(h.Strip(), h.Strip().tabRect(i).center()); };
        acts[QString("gone%1").arg(i + 1)] = [&h, i] { QFile::remove(h.Path(i + 1)); };
    }
    h.Play(CasesOf("hall_of_fame.txt"), acts);
}

TEST(HallOfFame, LaysOutBothWays) {
    for (int position : {0, -1, 20}) {
        Hall h;
        h.Open(position ? QString("p%1").arg(position) : "v0");
        ExpectPlan(*h.hall, position ? "frmScores2 result" : "frmScores2 viewer");
        const auto& result = In<QLabel>(*h.hall, "lblScore");
        EXPECT_EQ(result.isVisible(), position != 0);
        EXPECT_TRUE(QRect(QPoint(), result.size()).contains(QRect(QPoint(), result.sizeHint())));
        const QString fate = position == 20 ? "good enough to get on the \n   top scores table at position #20."
                                            : "not good enough to get on the  \n   top scores table.";
        EXPECT_EQ(result.text(), position == 0 ? "" : "  Your score of  -12 points was " + fate);
        EXPECT_LE(h.Strip().sizeHint().width(), In<QWidget>(*h.hall, "SSTab1").width());
        EXPECT_FALSE(h.List().horizontalScrollBar()->isVisible() || h.List().verticalScrollBar()->isVisible());
        for (int column = 0; column < 4; ++column) {
            constexpr int widths[] = {800, 2200, 1550, 1650};
            EXPECT_NEAR(h.List().columnWidth(column), widths[column] / 15, 1);
            const auto icon = h.List().model()->headerData(column, Qt::Horizontal, Qt::DecorationRole);
            EXPECT_FALSE(icon.value<QPixmap>().isNull());
        }
    }
}

// What ten bytes read as: up to a NUL, on one line.
QString TextOf(const QByteArray& bytes) {
    QString text = QString::fromLatin1(bytes.left(bytes.indexOf('\0') < 0 ? 10 : bytes.indexOf('\0')));
    for (QChar& c : text)
        if (c < ' ') c = ' ';
    return text.trimmed();
}

TEST(HallOfFame, ShowsTheBytesOfItsFile) {
    const QByteArray names[] = {"Zo\xEB & <b>", "a\nb\tc\r\x01", "WWWWWWWWWW", QByteArray("Al\0x", 4), "",
                                "&&&&&&&&&&"};
    constexpr qint32 scores[] = {12345, -1, INT32_MIN, INT32_MAX, 0, -9998};
    QByteArray whole;
    for (int row = 0; row < 20; ++row)
        whole += row == 6 ? Slot(QByteArray(1, '\0'), -9999, QByteArray(1, '\0'))
                          : Slot(names[row % 6], scores[row % 6] ^ (row / 6), row % 2 ? "9999999999" : "23.11.2026");
    whole += QByteArray("\1\0\0\0", 4);
    for (const qsizetype size : {484, 480, 2000, 479, 100, 23, 7, 0}) {
        Hall h;
        h.Write(1, whole.leftJustified(size, '\xFF', true));
        h.Open("p20");
        const QByteArray empty = Slot("", -9999, "");
        for (int row = 0; row < 20; ++row) {
            const QByteArray told = whole.left(size).mid(24 * row, 24), slot = told + empty.mid(told.size());
            const QByteArray bytes = told.size() < 14 ? empty : slot;  // cut before its score is whole
            const auto score = qFromLittleEndian<qint32>(bytes.data() + 10);
            const QString cells[] = {' ' + QString::number(row + 1), TextOf(bytes.left(10)),
                                     score == -9999 ? "" : QString::number(score), TextOf(bytes.mid(14))};
            for (int column = 0; column < 4; ++column)
                EXPECT_EQ(column ? h.Cell(row, column).trimmed() : h.Cell(row, 0), cells[column]) << size << ' ' << row;
            EXPECT_EQ(h.List().rowHeight(row), 18);
        }
        EXPECT_TRUE(h.List().rect().contains(h.List().visualRect(h.Index(19, 3)))) << "the row of the score is in view";
    }
}

// Without a result a row is selected by its first cell alone, with one it is whole, in all of its width.
TEST(HallOfFame, SelectsCellsOrRows) {
    for (int position : {0, 2}) {
        Hall h;
        h.Open(position ? "p2" : "v0");
        for (int column : {1, 0}) {
            ClickAt(*h.List().viewport(), h.Middle(7, column));
            EXPECT_EQ(h.List().selectionModel()->selectedIndexes().size(), position ? 4 : 1 - column);
        }
        const QPoint last = h.Middle(7, 3) + h.List().viewport()->pos();
        EXPECT_EQ(h.List().grab().toImage().pixelColor(last),
                  position ? h.List().palette().color(QPalette::Highlight) : QColor(239, 255, 210));
    }
}

}  // namespace
