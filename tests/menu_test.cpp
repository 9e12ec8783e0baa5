#include <QAccessible>
#include <QMenuBar>
#include <QPainter>
#include <fstream>

#include "kit/art_icon.h"
#include "menus/menu_colours.h"
#include "tests/window_table.h"

namespace {

constexpr QRgb selected = 0xFF323232, white = 0xFFFFFFFF, dark = 0xFF7C7C7C;
constexpr int frame = 1, rowHeight = 22, checkMarkWidth = 12;

struct MenuTable : WindowTable {
    QMenu& Menu(const char* name) { return *window.findChild<QMenu*>(name); }
    QMenuBar& Bar() { return *window.menuBar(); }
    QRect Row(QMenu& menu, const char* name) { return menu.actionGeometry(&Entry(name)); }
};

QRect Gutter(const QRect& row) { return {row.topLeft(), QSize(30, row.height())}; }
int Advance(const QString& text) { return QFontMetrics(GetMenuFont()).horizontalAdvance(text); }

// What a widget shows at a scale, and where that differs from the bare ground.
struct Shot {
    Shot(QWidget& widget, Art& art, qreal ratio) : scale(ratio) {
        picture = ground = QImage((QSizeF(widget.size()) * scale).toSize(), QImage::Format_RGB32);
        QPainter(&ground).drawTiledPixmap(ground.rect(), art.Picture("menu_skin", (QSizeF(135, 64) * scale).toSize()));
        picture.setDevicePixelRatio(scale);
        widget.render(&picture);
    }

    QRect Device(const QRect& area) const {
        const auto at = [this](int x, int y) { return QPoint(qRound(x * scale), qRound(y * scale)); };
        return {at(area.x(), area.y()), at(area.right() + 1, area.bottom() + 1) - QPoint(1, 1)};
    }
    QRgb At(const QRect& area, int x, int y) const { return picture.pixel(Device(area).topLeft() + QPoint(x, y)); }
    // The smallest area in device pixels, counted from the corner of the given one, that holds all that is drawn on it.
    QRect Ink(const QRect& area) const {
        const QRect device = Device(area);
        QRect ink;
        for (int y = device.top(); y <= device.bottom(); ++y)
            for (int x = device.left(); x <= device.right(); ++x)
                if (picture.pixel(x, y) != ground.pixel(x, y)) ink |= QRect(x, y, 1, 1);
        return ink.isEmpty() ? ink : ink.translated(-device.topLeft());
    }

    qreal scale;
    QImage picture, ground;
};

// Each line: a key, its colour on the picture and its colour without.
TEST(MenuColours, AreFoundByTheirKeys) {
    std::ifstream in(CASES "menu_colours.txt");
    int read = 0;
    for (std::string key, onSkin, onPlain; in >> key >> onSkin >> onPlain; ++read) {
        EXPECT_EQ(GetMenuColor(QString(key.c_str()), true), QColor(onSkin.c_str())) << key;
        EXPECT_EQ(GetMenuColor(QString(key.c_str()), false), QColor(onPlain.c_str())) << key;
    }
    EXPECT_EQ(read, 12);
}

TEST(MenuSizes, FollowTextAndImage) {
    MenuTable t;
    const auto sizeAlone = [&](QAction& entry) {
        QMenu menu;
        menu.setStyle(&t.menuStyle);
        menu.setSeparatorsCollapsible(false);
        menu.addAction(&entry);
        return menu.sizeHint() - QSize(2 * frame, 2 * frame);
    };
    for (const char* name : {"mnuGame", "mnuTools", "mnuHelp"}) {
        QMenu& menu = t.Menu(name);
        EXPECT_EQ(t.Bar().actionGeometry(menu.menuAction()).size(), QSize(Advance(menu.title()) + 6, rowHeight));
        for (QAction* action : menu.actions()) {
            if (!action->isVisible()) continue;
            const QString text = (action->text() + ' ' + action->shortcut().toString()).trimmed();
            EXPECT_EQ(sizeAlone(*action), QSize(Advance(text) + 6 + 30 + checkMarkWidth, rowHeight)) << name;
        }
    }
    QAction tall(ArtIcon(t.art, "menu_new", {20, 28}), "Tall");
    EXPECT_EQ(sizeAlone(tall).height(), 28 + 6);
}

class MenuPixels : public testing::TestWithParam<double> {};

TEST_P(MenuPixels, LieOnOneGroundWithoutASeam) {
    MenuTable t;
    QMenu& menu = t.Menu("mnuTools");
    menu.popup({});
    const Shot window(t.window, t.art, GetParam()), drop(menu, t.art, GetParam());
    const int width = t.window.width(), below = rowHeight + t.At("Toolbar2").height();
    const int bar = t.Bar().actionGeometry(t.Menu("mnuHelp").menuAction()).right() + 1;
    const int keys = t.At("tbExit").geometry().right() + 1;
    for (const QRect& bare : {QRect(0, 0, width, 2), QRect(0, 0, 2, below), QRect(bar, 0, width - bar, rowHeight),
                              QRect(keys, 0, width - keys, below)})
        EXPECT_EQ(window.Ink(bare), QRect()) << bare.x() << ',' << bare.y();
    EXPECT_EQ(drop.Ink({menu.width() - 5, frame, 4, menu.height() - 2 * frame}), QRect());  // right of all entries
}

TEST_P(MenuPixels, ShowEachEntryInItsPlace) {
    MenuTable t;
    QMenu& menu = t.Menu("mnuGame");
    menu.popup({});
    const Shot plain(menu, t.art, GetParam());
    const auto px = [](double edge) { return qRound(edge * GetParam()); };
    for (const char* name : {"mnuNewGame", "mnuOptions", "mnuScores", "mnuGameExit"}) {
        const QRect ink = plain.Ink(t.Row(menu, name));
        EXPECT_NEAR(ink.left(), px(2), px(2)) << name;  // the images do not reach the edges of their squares
        EXPECT_NEAR(ink.right() + 1, plain.Device(t.Row(menu, name)).width() - px(10), px(2)) << name;
        EXPECT_LT(plain.Ink(Gutter(t.Row(menu, name))).right(), px(19)) << name;
        EXPECT_NEAR(plain.Ink(t.Row(menu, name).adjusted(30, 0, 0, 0)).left(), px(6), px(2)) << name;
    }
    const QRect line = t.Row(menu, "mnuHyphen1");
    const QRect etched = plain.Ink(line);
    EXPECT_NEAR(etched.left(), px(5), 1);
    EXPECT_NEAR(etched.right() + 1, plain.Device(line).width() - px(5), 1);
    EXPECT_NEAR(etched.top(), px(10), 1);
    EXPECT_EQ(etched.height(), 2 * static_cast<int>(GetParam()));
    EXPECT_EQ(plain.At(line, px(20), etched.top()), dark);
    EXPECT_EQ(plain.At(line, px(20), etched.bottom()), white);

    menu.setActiveAction(&t.Entry("mnuOptions"));
    const Shot lit(menu, t.art, GetParam());
    const QRect options = t.Row(menu, "mnuOptions");
    const int gutter = lit.Device(Gutter(options)).width();
    for (int y : {0, lit.Device(options).height() - 1}) {
        EXPECT_EQ(lit.At(options, gutter, y), selected);
        EXPECT_EQ(lit.At(options, lit.Device(options).width() - 1, y), selected);
        EXPECT_EQ(lit.At(options, gutter - 1, y), y == 0 ? white : dark);
    }
}

TEST_P(MenuPixels, LightUpWhatIsEnabledUnderTheMouse) {
    MenuTable t;
    QMenu& menu = t.Menu("mnuTools");
    menu.popup({});
    const auto shotUnderMouse = [&](const char* name) {
        // A menu does not heed the first few moves near the place where the mouse was when it opened.
        for (int x = 40; x < 50; ++x) QTest::mouseMove(&menu, t.Row(menu, name).topLeft() + QPoint(x, 8));
        return Shot(menu, t.art, GetParam());
    };
    const Shot plain(menu, t.art, GetParam());
    EXPECT_EQ(shotUnderMouse("mnuHintsByRequest2").At(t.Row(menu, "mnuHintsByRequest2"), 0, 0),
              selected);  // it has no image
    EXPECT_EQ(shotUnderMouse("mnuUndoUndo").picture, plain.picture);
    // A disabled one stands in the middle of its cell.
    EXPECT_NEAR(plain.Ink(Gutter(t.Row(menu, "mnuUndoUndo"))).center().x(), 15 * GetParam(), 2 * GetParam());
}

INSTANTIATE_TEST_SUITE_P(Scales, MenuPixels, testing::Values(1.0, 1.25, 1.5, 2.0, 3.0),
                         [](const auto& scale) { return "Percent" + std::to_string(int(scale.param * 100)); });

TEST(MenuBarEntries, AreHotSelectedOrPlain) {
    MenuTable t;
    const QRect tools = t.Bar().actionGeometry(t.Menu("mnuTools").menuAction());
    const auto corners = [&] {
        const Shot bar(t.Bar(), t.art, 1);
        return std::array{bar.At(tools, 0, 0), bar.At(tools, tools.width() - 1, rowHeight - 1), bar.At(tools, 2, 2)};
    };
    const auto plain = corners();
    for (int times = 0; times < 2; ++times) {  // also where keys have been in the bar before
        QTest::mouseMove(t.window.windowHandle(), tools.center());
        EXPECT_EQ(corners(), (std::array{white, dark, plain[2]}));
        QTest::mouseMove(t.window.windowHandle(), tools.center() + QPoint(0, 100));
        for (QWidget* there : {static_cast<QWidget*>(&t.window), static_cast<QWidget*>(&t.Menu("mnuGame"))})
            QTest::keyClick(there, Qt::Key_F10);
    }
    QTest::mousePress(&t.Bar(), Qt::LeftButton, {}, tools.center());
    EXPECT_EQ(corners(), (std::array{white, white, selected}));
    QTest::keyClick(&t.Menu("mnuTools"), Qt::Key_F10);  // closes the menu and leaves the bar
    EXPECT_EQ(corners(), plain);
}

TEST(MenuPairs, HaveTheCheckOnTheLineThatHolds) {
    MenuTable t;
    QMenu& menu = t.Menu("mnuTools");
    const std::array entries{std::array{"mnuSoundsOff", "mnuSoundsOn2"}, std::array{"mnuSoundsOn", "mnuSoundsOff2"}};
    for (bool on : {true, false, true}) {
        t.window.ShowChoice(MenuChoice::Sounds, on);
        menu.popup({});
        for (int clicked = 0; clicked < 2; ++clicked, t.Entry(entries[on][0]).trigger())
            for (const char* name : entries[on]) {
                const bool checked = name == entries[on][0];
                EXPECT_EQ(Shot(menu, t.art, 1).Ink(Gutter(t.Row(menu, name))).isEmpty(), !checked) << name;
                const auto place = static_cast<int>(menu.actions().indexOf(&t.Entry(name)));
                EXPECT_EQ(QAccessible::queryAccessibleInterface(&menu)->child(place)->state().checked, checked) << name;
            }
        menu.hide();
    }
}

TEST(OtherMenus, KeepTheirOwnLook) {
    QMainWindow other;
    QMenu& menu = *other.menuBar()->addMenu("Other");
    menu.addAction("Entry");
    const auto pictures = [&] { return std::array{menu.grab().toImage(), other.menuBar()->grab().toImage()}; };
    const auto before = pictures();
    const MenuTable t;
    EXPECT_EQ(pictures(), before);
}

}  // namespace
