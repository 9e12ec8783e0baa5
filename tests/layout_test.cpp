#include <QRegularExpression>
#include <QSet>
#include <sstream>

#include "core/hints.h"
#include "kit/size.h"
#include "kit/sized_widgets.h"
#include "table/set_controls.h"
#include "tests/window_table.h"

namespace {

// Where a control stands within what holds it, in twips of the told size, each edge rounded by itself. Without a width
// or a height it is a line, or hidden and anywhere.
struct Told {
    QString name;
    int left, top, width, height;
    bool shown = true;

    QRect InPixels() const {
        const auto pixels = [](int twips) { return static_cast<int>(std::lround(twips * Size() / 1500.0)); };
        const int within = width && height ? 1 : 0;  // the end of a line belongs to it
        return {QPoint(pixels(left), pixels(top)),
                QPoint(pixels(left + width) - within, pixels(top + height) - within)};
    }
};

using Table = std::vector<Told>;

std::string Written(const QRect& area) {
    std::ostringstream text;
    text << area.x() << ',' << area.y() << ' ' << area.width() << " x " << area.height();
    return text.str();
}

QString Of(const QString& array, int i) { return array + '_' + QString::number(i); }

void AddBoard(Table& table, bool four) {
    constexpr int tops[] = {630, 885, 1140, 1395, 1650, 1905, 2520, 2775, 3390, 3645, 3900, 4155, 4410};
    constexpr std::pair<const char*, int> columns[] = {{"Down", 2205}, {"Up", 2805}, {"Rand", 3405}, {"Oblg", 4005}};
    constexpr std::pair<const char*, int> totals[] = {{"Tot1", 2200}, {"Tot2", 3080}, {"Tot", 4690}};
    for (auto [column, narrowLeft] : columns) {
        const bool shown = four || QString(column) == "Rand";
        const int left = four ? narrowLeft : 2205, width = !shown ? 0 : four ? 600 : 2400;
        for (int row = 0; row < 13; ++row) {
            table.push_back({Of(QString("lbl") + column, row), left, tops[row], width, 255, shown});
            table.push_back({Of(QString("cmd") + column, row), left, tops[row], width, 260, shown});
        }
        for (auto [total, top] : totals)
            table.push_back({QString("lbl") + column + total, left, top, width, 255, shown && (four || top != 4690)});
    }
}

void AddRowLabels(Table& table, bool four, bool tips) {
    constexpr int tops[] = {15, 280, 550, 810, 1080, 1350, 1920, 2195, 2785, 3055, 3325, 3595, 3870};
    for (int row = 0; row < 13; ++row) {
        table.push_back({Of("lblOption", row), 30, tops[row], tips ? 1250 : 1570, 220});
        table.push_back({Of("lblTip", row), 1300, tops[row], 300, 220, tips});
    }
    table.insert(table.end(), {{"Label4", 30, 1630, 1570, 220},
                               {"Label3", 30, 2490, 1570, 220},
                               {"Label13", 30, 4125, 1570, 220, four},
                               {"Label2", 30, four ? 4425 : 4175, 1570, 220}});
}

// up: by so much what lies below the board is higher in the layout of one column.
void AddDice(Table& table, bool six, int up) {
    constexpr int tops[] = {5655, 5655, 5655, 6575, 6575, 6575};
    constexpr int leftsOfSix[] = {245, 1150, 2070, 245, 1150, 2070};
    constexpr int leftsOfFive[] = {245, 1150, 2070, 697, 1602, 2070};
    constexpr const char* frames[] = {"Shape6", "Shape7", "Shape8", "Shape3", "Shape4", "Shape5"};
    for (int i = 0; i < 6; ++i) {
        const int left = six ? leftsOfSix[i] : leftsOfFive[i];
        table.push_back({Of("picDice", i), left, tops[i] - up, 800, 800, six || i < 5});
        table.push_back({Of("PicDiceOff", i), left, tops[i] - up, 800, 800, false});
        table.push_back({frames[i], left + (six && i == 3 ? 2 : 0), tops[i] - up, 810, 810, six || i < 5});
    }
}

void AddRest(Table& table, bool four, int up, int height, bool statusBar) {
    constexpr int lamps[] = {465, 720, 960};
    for (int k = 0; k < 3; ++k) {
        table.push_back({Of("picRoundBG", k), lamps[k], 1530, 165, 165});
        table.push_back({Of("picRound", k), lamps[k], 1530, 165, 165, false});
    }
    table.insert(table.end(), {{"Toolbar2", 0, 0, 4810, 450},
                               {"StatusBar1", 0, height - 690 - 270, 4810, 270, statusBar},
                               {"Picture2", 142, 587, 1655, four ? 4740 : 4505},
                               {"imgArrow", 1800, 600, 225, 4725, four},
                               {"imgArrow2", 1800, 585, 225, 4485, !four},
                               {"picScore", 2205, four ? 4985 : 4715, 2400, 330},
                               {"Shape10", 2160, 585, 2505, 4770 - up},
                               {"Shape9", 142, 5550 - up, 4530, 1930},
                               {"Shape1", 2995, 5640 - up, 1575, 1740},
                               {"picRollDices", 3010, 5655 - up, 1545, 1710},
                               {"cmdNextPlayer", 3010 + 270, 5655 - up + 370, 975, 900, false},
                               {"cmdShowNextBoard", 3010, 5655 - up, 1550, 1720, false},
                               {"Line1", 82, 520, 0, 4894 - up},
                               {"Line2", 82, 520, 1958, 0},
                               {"Line3", 2040, 520, 0, 4894 - up},
                               {"Line4", 82, 5414 - up, 1958, 0},
                               {"Line9", 2100, 520, 0, 4894 - up},
                               {"Line10", 4725, 520, 0, 4894 - up},
                               {"Line11", 2100, 520, 2625, 0},
                               {"Line12", 2100, 5414 - up, 2625, 0},
                               {"Line5", 82, 5490 - up, 0, 2050},
                               {"Line6", 82, 5490 - up, 4650, 0},
                               {"Line7", 4732, 5490 - up, 0, 2050},
                               {"Line8", 82, 7540 - up, 4650, 0}});
}

Table ToldFor(const GameSettings& settings) {
    const bool four = settings.NumberOfColumns == 4, two = settings.NumberOfPlayers == 2;
    const bool statusBar = two || settings.ShowStatusBar;
    const int up = four ? 0 : 250;
    const int height = two ? (four ? 8530 : 8300) : four ? (statusBar ? 8530 : 8300) : (statusBar ? 8270 : 8030);
    Table table;
    AddBoard(table, four);
    AddRowLabels(table, four, settings.hintAllways);
    AddDice(table, settings.NumberOfDice == 5, up);
    AddRest(table, four, up, height, statusBar);
    return table;
}

// Frames whose places follow from those of labels and boxes, panels that share the bar, and what the toolbar and the
// row of lamps hold.
bool FollowsOthers(const QString& name) {
    static const QRegularExpression others("^$|^(shp|Shape12_|StatusBar1_|tb|qt_|mnu|lamps)");
    return others.match(name).hasMatch();
}

void ExpectPlaces(const WindowTable& t) {
    QSet<QString> told;
    for (const Told& control : ToldFor(t.game.settings)) {
        told.insert(control.name);
        EXPECT_EQ(t.Shown(control.name), control.shown) << control.name.toStdString();
        const bool anywhere = !control.shown && control.width == 0;
        const QRect seen = anywhere ? control.InPixels() : t.At(control.name).geometry();
        EXPECT_EQ(Written(seen), Written(control.InPixels())) << control.name.toStdString();
    }
    for (const QString& name : t.named.keys())
        EXPECT_TRUE(told.contains(name) || FollowsOthers(name)) << name.toStdString();
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

TEST(Layout, OfEachVariantIsAsToldWhateverCameBefore) {
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

TEST(Layout, IsTheToldOneTimesTheSize) {
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
