#include <QFile>
#include <QRegularExpression>
#include <QSet>

#include "core/hints.h"
#include "kit/size.h"
#include "kit/sized_widgets.h"
#include "table/set_controls.h"
#include "tests/window_table.h"

namespace {

// Where a control stands within what holds it, in pixels, each edge rounded by itself.
struct Planned {
    QString name;
    QRect place;  // null: anywhere
    bool shown;
};

QRect InPixels(int left, int top, int width, int height) {
    const auto pixels = [](int twips) { return static_cast<int>(std::lround(twips * Size() / 1500.0)); };
    const int within = width && height ? 1 : 0;  // the end of a line belongs to it
    return {QPoint(pixels(left), pixels(top)), QPoint(pixels(left + width) - within, pixels(top + height) - within)};
}

// The controls of the sections that hold.
std::vector<Planned> PlanFor(const GameSettings& settings) {
    const bool two = settings.NumberOfPlayers == 2;
    const QStringList words{settings.NumberOfColumns == 4 ? "four" : "one", settings.NumberOfDice == 5 ? "six" : "five",
                            two ? "two" : "alone", settings.hintAllways ? "tips" : "plain",
                            two || settings.ShowStatusBar ? "bar" : "bare"};
    std::vector<Planned> planned;
    QFile file(CASES "layout.txt");
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    for (bool holds = false; !file.atEnd();) {
        const QString line = QString(file.readLine()).trimmed();
        const QStringList parts = line.split(' ');
        if (line.isEmpty() || line.startsWith('#')) continue;
        if (line.startsWith('[')) {
            const QStringList section = line.mid(1, line.size() - 2).split(' ');
            holds = std::ranges::all_of(section, [&](const QString& word) { return words.contains(word); });
        } else if (holds) {
            const auto part = [&](int i) { return parts[i].toInt(); };
            planned.push_back({parts[0], parts.size() > 4 ? InPixels(part(1), part(2), part(3), part(4)) : QRect(),
                               parts.back() != "hidden"});
        }
    }
    return planned;
}

QString Written(const QRect& area) {
    return QString("%1,%2 %3 x %4").arg(area.x()).arg(area.y()).arg(area.width()).arg(area.height());
}

// Frames whose places follow from those of labels and boxes, panels that share the bar, and what a key of the toolbar
// and the row of lamps hold.
const QRegularExpression followsOthers("^$|^(shp|Shape12_|StatusBar1_|qt_|mnu|lamps)");

void ExpectPlaces(const WindowTable& t) {
    QSet<QString> planned;
    for (const auto& [name, place, shown] : PlanFor(t.game.settings)) {
        planned.insert(name);
        EXPECT_EQ(t.Shown(name), shown) << name.toStdString();
        const QRect seen = place.isNull() ? place : t.At(name).geometry();
        EXPECT_EQ(Written(seen), Written(place)) << name.toStdString();
    }
    for (const QString& name : t.named.keys())
        EXPECT_TRUE(planned.contains(name) || followsOthers.match(name).hasMatch()) << name.toStdString();
}

// The frames of a row label and of its tip stand in one line with the boxes of the row.
void ExpectRowsInLine(const WindowTable& t) {
    for (int row = 0; row < rowCount; ++row)
        for (const char* frame : {"shpOptions", "Shape12"}) {
            const QRect box = t.At("lblRand", row).geometry(), beside = t.At(frame, row).geometry();
            EXPECT_NEAR(beside.top() + t.At("Picture2").y(), box.top(), 1) << frame << row;
            EXPECT_NEAR(beside.height(), box.height(), 1) << frame << row;
            EXPECT_EQ(t.Shown(frame, row), frame[1] == 'h' || t.game.settings.hintAllways);
        }
}

TEST(Layout, OfEachVariantIsAsPlannedWhateverCameBefore) {
    WindowTable changed;
    for (const int bits : {0, 7, 1, 6, 2, 5, 3, 4, 4, 0}) {
        SCOPED_TRACE(bits);
        WindowTable made(VariantOf(bits));
        ExpectPlaces(made);
        ExpectRowsInLine(made);
        changed.game.settings = VariantOf(bits);
        changed.game.settings.ShowStatusBar = bits % 3 != 1;
        changed.game.settings.hintAllways = bits % 3 == 0;
        changed.game.session.HintsOn = false;
        SetControls(changed.game);
        ShowHintColumn(changed.game);
        ExpectPlaces(changed);
    }
}

TEST(Layout, IsThePlannedOneTimesTheSize) {
    for (const int bits : {0, 7}) {
        WindowTable t(VariantOf(bits));
        for (const int percent : {75, 100, 125, 150, 175, 200, 225, 250, 275, 300, 225, 100}) {
            SCOPED_TRACE(percent);
            ChangeSize(percent);
            ExpectPlaces(t);
            ExpectRowsInLine(t);
        }
    }
}

}  // namespace
