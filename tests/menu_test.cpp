#include <QAccessible>
#include <QMenuBar>
#include <QPainter>

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
        EXPECT_EQ(t.Bar().actionGeometry(menu.menuAction()).width(), Advance(menu.title()) + 6) << name;
    }
}

class MenuPixels : public testing::TestWithParam<double> {};

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
    }
    const QRect line = row("mnuHyphen1");
    const QRect etched = plain.Ink(line);
    EXPECT_NEAR(etched.left(), px(5), 1);
    EXPECT_NEAR(etched.right() + 1, plain.Device(line).width() - px(5), 1);
    EXPECT_NEAR(etched.top(), px(10), 1);
    EXPECT_EQ(etched.height(), 2 * static_cast<int>(GetParam()));
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
    EXPECT_EQ(shotUnderMouse("mnuHintsByRequest2").At(row("mnuHintsByRequest2"), 0, 0), selected);  // it has no image
    EXPECT_EQ(shotUnderMouse("mnuUndoUndo").picture, plain.picture);
    // A disabled one stands in the middle of its cell.
    const QRect image = plain.Ink(row("mnuUndoUndo").adjusted(0, 0, 30 - row("mnuUndoUndo").width(), 0));
    EXPECT_NEAR(image.center().x(), 15 * GetParam(), 2 * GetParam());
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
    QTest::keyClick(&t.Bar(), Qt::Key_Escape);
    EXPECT_EQ(corners(), plain);
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

}  // namespace
