#include <QAccessible>
#include <QLineEdit>
#include <QMenuBar>
#include <QPainter>
#include <QStyleOptionMenuItem>

#include "kit/art_icon.h"
#include "menus/menu_colours.h"
#include "tests/window_table.h"

namespace {

constexpr QRgb selected = 0xFF323232, white = 0xFFFFFFFF, dark = 0xFF7C7C7C;
constexpr int frame = 1, rowHeight = 22, checkMarkWidth = 12;

struct MenuTable : WindowTable {
    QMenu& Menu(const char* name) { return *window.findChild<QMenu*>(name); }
    QMenuBar& Bar() { return *window.menuBar(); }
};

// What a widget shows at a scale, and where that differs from the bare ground.
struct Shot {
    Shot(QWidget& widget, Art& art, qreal ratio) : scale(ratio) {
        picture = ground = QImage((QSizeF(widget.size()) * scale).toSize(), QImage::Format_RGB32);
        QPainter(&ground).drawTiledPixmap(ground.rect(), art.Picture("menu_skin", (QSizeF(135, 64) * scale).toSize()));
        picture.setDevicePixelRatio(scale);
        widget.render(&picture);
    }

    QRect Device(const QRect& area) const {
        const auto at = [this](int edge) { return qRound(edge * scale); };
        const QRect end = area.adjusted(0, 0, 1, 1);
        return {QPoint(at(area.left()), at(area.top())), QPoint(at(end.right()) - 1, at(end.bottom()) - 1)};
    }
    QRgb At(const QRect& area, int x, int y) const { return picture.pixel(Device(area).topLeft() + QPoint(x, y)); }
    QImage Part(const QRect& area) const { return picture.copy(Device(area)); }
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

int Advance(const QString& text) { return QFontMetrics(GetMenuFont()).horizontalAdvance(text); }

TEST(MenuColours, AreFoundByTheirKeys) {
    EXPECT_EQ(GetMenuColor(QString("Selected"), false), QColor(186, 186, 204));
    EXPECT_EQ(GetMenuColor(QString("BORDERCOLOR"), false), QColor(85, 85, 118));
    EXPECT_EQ(GetMenuColor(QString("headingtext"), true), QColor(231, 231, 255));
    EXPECT_EQ(GetMenuColor(QString("of no kind"), true), QColor(Qt::black));
    Art art;
    MenuStyle bare(art, false);
    QMenu menu;
    menu.setStyle(&bare);
    menu.addAction("Entry");
    menu.popup({});
    EXPECT_EQ(Shot(menu, art, 1).picture.pixelColor(3, 3), QColor(58, 110, 165));
}

TEST(MenuSizes, FollowTextAndImage) {
    MenuTable t;
    for (const char* name : {"mnuGame", "mnuTools", "mnuHelp"}) {
        QMenu& menu = t.Menu(name);
        int width = 0, height = 0;
        for (QAction* action : menu.actions()) {
            if (!action->isVisible()) continue;
            const QString shortcut = action->shortcut().toString();
            width = std::max(width, Advance(action->text() + (shortcut.isEmpty() ? "" : ' ' + shortcut)) + 6 + 30);
            height += rowHeight;  // separators too
            EXPECT_EQ(menu.actionGeometry(action).height(), rowHeight) << action->objectName().toStdString();
        }
        EXPECT_EQ(menu.sizeHint(), QSize(width + checkMarkWidth + 2 * frame, height + 2 * frame)) << name;
        const QAction* barEntry = menu.menuAction();
        EXPECT_EQ(t.Bar().actionGeometry(menu.menuAction()).size(), QSize(Advance(barEntry->text()) + 6, rowHeight));
    }
    QMenu tall;
    tall.setStyle(&t.menuStyle);
    tall.addAction(ArtIcon(t.art, "menu_new", {20, 28}), "Tall");
    EXPECT_EQ(tall.sizeHint().height(), 28 + 6 + 2 * frame);
}

class MenuPixels : public testing::TestWithParam<double> {};

TEST_P(MenuPixels, LieOnOneGroundWithoutASeam) {
    MenuTable t;
    const Shot shot(t.window, t.art, GetParam());
    const QRect lastEntry = t.Bar().actionGeometry(t.Menu("mnuHelp").menuAction());
    const QWidget& lastKey = *t.window.findChild<QWidget*>("tbExit");
    const int right = lastKey.mapTo(&t.window, QPoint(lastKey.width(), 0)).x();
    const int below = t.window.findChild<QWidget*>("Toolbar2")->height() + rowHeight;
    EXPECT_EQ(shot.Ink({lastEntry.right() + 1, 0, t.window.width() - lastEntry.right() - 1, rowHeight}), QRect());
    EXPECT_EQ(shot.Ink({right, 0, t.window.width() - right, below}), QRect());
    EXPECT_EQ(shot.Ink({0, rowHeight, 5, below - rowHeight}), QRect());  // left of the first key
}

TEST_P(MenuPixels, ShowEachEntryInItsPlace) {
    MenuTable t;
    QMenu& menu = t.Menu("mnuGame");
    menu.popup({});
    const Shot plain(menu, t.art, GetParam());
    const auto px = [](double edge) { return qRound(edge * GetParam()); };
    const auto row = [&](const char* name) { return menu.actionGeometry(&t.Entry(name)); };
    for (const char* name : {"mnuNewGame", "mnuOptions", "mnuScores", "mnuGameExit"}) {
        const int width = plain.Device(row(name)).width();
        const QRect ink = plain.Ink(row(name));
        EXPECT_NEAR(ink.left(), px(2), px(2)) << name;  // the images do not reach the edges of their squares
        EXPECT_NEAR(ink.right() + 1, width - px(10), px(2)) << name;
        EXPECT_LT(plain.Ink(row(name).adjusted(0, 0, 30 - row(name).width(), 0)).right(), px(19)) << name;
        EXPECT_NEAR(plain.Ink(row(name).adjusted(30, 0, 0, 0)).left() + px(30), px(36), px(2)) << name;
    }
    const QRect line = row("mnuHyphen1");
    const int lineWidth = std::max(1, static_cast<int>(GetParam()));
    const QRect etched = plain.Ink(line);
    EXPECT_NEAR(etched.left(), px(5), 1);
    EXPECT_NEAR(etched.right() + 1, plain.Device(line).width() - px(5), 1);
    EXPECT_NEAR(etched.top(), px(10), 1);
    EXPECT_EQ(etched.height(), 2 * lineWidth);
    EXPECT_EQ(plain.At(line, px(20), etched.top()), dark);
    EXPECT_EQ(plain.At(line, px(20), etched.bottom()), white);

    menu.setActiveAction(&t.Entry("mnuOptions"));
    const Shot lit(menu, t.art, GetParam());
    const QRect options = row("mnuOptions");
    const int bottom = lit.Device(options).height() - 1;
    for (int y : {0, bottom}) {
        const int gutter = lit.Device(options.adjusted(0, 0, 30 - options.width(), 0)).width();
        EXPECT_EQ(lit.At(options, gutter, y), selected);
        EXPECT_EQ(lit.At(options, lit.Device(options).width() - 1, y), selected);
        EXPECT_EQ(lit.At(options, gutter - 1, y), y == 0 ? white : dark);
    }
    EXPECT_EQ(lit.At(options, 0, bottom / 2), white);
    EXPECT_EQ(lit.Part(row("mnuNewGame")), plain.Part(row("mnuNewGame")));
    menu.hide();
}

TEST_P(MenuPixels, LightUpWhatIsEnabledUnderTheMouse) {
    MenuTable t;
    QMenu& menu = t.Menu("mnuTools");
    menu.popup({});
    const auto row = [&](const char* name) { return menu.actionGeometry(&t.Entry(name)); };
    const auto shotUnderMouse = [&](const char* name) {
        // A menu does not heed the first few moves near the place where the mouse was when it opened.
        for (int x = 40; x < 50; ++x) QTest::mouseMove(&menu, row(name).topLeft() + QPoint(x, 8));
        return Shot(menu, t.art, GetParam());
    };
    const Shot plain(menu, t.art, GetParam());
    const Shot lit = shotUnderMouse("mnuHintsByRequest2");
    EXPECT_EQ(lit.At(row("mnuHintsByRequest2"), 0, 0), selected);  // it has no image
    EXPECT_EQ(shotUnderMouse("mnuUndoUndo").picture, plain.picture);
    const QRect image = plain.Ink(row("mnuUndoUndo").adjusted(0, 0, 30 - row("mnuUndoUndo").width(), 0));
    EXPECT_NEAR(image.center().x(), 15 * GetParam(),
                2 * GetParam());  // a disabled one stands in the middle of its cell
    menu.hide();

    // Where the keyboard stops at disabled entries too, they look no different.
    const auto drawn = [&](QStyle::State state) {
        QImage canvas(200, rowHeight, QImage::Format_RGB32);
        canvas.fill(Qt::lightGray);
        QStyleOptionMenuItem item;
        item.menuItemType = QStyleOptionMenuItem::Normal;
        item.rect = canvas.rect();
        item.text = "&Undo\tCtrl+Z";
        item.icon = ArtIcon(t.art, "menu_undo", {16, 16});
        item.state = state;
        QPainter painter(&canvas);
        t.menuStyle.drawControl(QStyle::CE_MenuItem, &item, &painter, &menu);
        return canvas;
    };
    EXPECT_EQ(drawn(QStyle::State_Selected), drawn(QStyle::State_None));
    EXPECT_NE(drawn(QStyle::State_None), drawn(QStyle::State_Enabled));
}

INSTANTIATE_TEST_SUITE_P(Scales, MenuPixels, testing::Values(1.0, 1.25, 1.5, 2.0, 3.0),
                         [](const auto& scale) { return "Percent" + std::to_string(int(scale.param * 100)); });

TEST(MenuBarEntries, AreHotSelectedOrPlain) {
    MenuTable t;
    const QRect tools = t.Bar().actionGeometry(t.Menu("mnuTools").menuAction());
    const auto corners = [&] {
        const Shot shot(t.Bar(), t.art, 1);
        return std::array{shot.At(tools, 0, 0), shot.At(tools, tools.width() - 1, tools.height() - 1),
                          shot.At(tools, 2, 2)};
    };
    const auto plain = corners();
    QTest::mouseMove(t.window.windowHandle(), tools.center());
    EXPECT_EQ(corners(), (std::array{white, dark, plain[2]}));
    QTest::mousePress(&t.Bar(), Qt::LeftButton, {}, tools.center());
    EXPECT_EQ(corners(), (std::array{white, white, selected}));
    QTest::keyClick(&t.Menu("mnuTools"), Qt::Key_Escape);
    EXPECT_EQ(corners(), (std::array{white, white, selected}));  // the keyboard is on the bar now
    QTest::keyClick(&t.Bar(), Qt::Key_Escape);
    EXPECT_EQ(corners(), plain);
    QTest::keyClick(&t.window, Qt::Key_F10);
    EXPECT_TRUE(t.Menu("mnuGame").isVisible());
    QTest::keyClick(&t.Menu("mnuGame"), Qt::Key_Right);
    EXPECT_TRUE(t.Menu("mnuTools").isVisible());
    EXPECT_EQ(corners(), (std::array{white, white, selected}));
}

TEST(MenuPairs, HaveTheCheckOnTheLineThatHolds) {
    MenuTable t;
    QMenu& menu = t.Menu("mnuTools");
    const auto shown = [&](const char* name) {
        QAction& action = t.Entry(name);
        const Shot shot(menu, t.art, 1);
        const QRect row = menu.actionGeometry(&action);
        const bool image = !shot.Ink(row.adjusted(0, 0, 30 - row.width(), 0)).isEmpty();
        const QAccessibleInterface& spoken = *QAccessible::queryAccessibleInterface(&menu);
        const auto place = static_cast<int>(menu.actions().indexOf(&action));
        EXPECT_EQ(spoken.child(place)->state().checked, image) << name;
        return image;
    };
    for (bool on : {true, false, true}) {
        t.window.ShowChoice(MenuChoice::Sounds, on);
        menu.popup({});
        EXPECT_TRUE(shown(on ? "mnuSoundsOn" : "mnuSoundsOff"));
        EXPECT_FALSE(shown(on ? "mnuSoundsOff2" : "mnuSoundsOn2"));
        t.Entry(on ? "mnuSoundsOn" : "mnuSoundsOff").trigger();
        EXPECT_TRUE(shown(on ? "mnuSoundsOn" : "mnuSoundsOff"));
        menu.hide();
    }
}

TEST(OtherMenus, KeepTheirOwnLook) {
    QLineEdit field;
    const std::unique_ptr<QMenu> context(field.createStandardContextMenu());
    QMainWindow other;
    QMenu& menu = *other.menuBar()->addMenu("Other");
    menu.addAction("Entry");
    const auto pictures = [&] {
        return std::array{context->grab().toImage(), menu.grab().toImage(), other.menuBar()->grab().toImage()};
    };
    const auto before = pictures();
    MenuTable t;
    EXPECT_EQ(pictures(), before);
    EXPECT_NE(menu.style(), t.Menu("mnuGame").style());
    EXPECT_EQ(t.window.findChild<QWidget*>("StatusBar1")->style(), other.style());
}

}  // namespace
