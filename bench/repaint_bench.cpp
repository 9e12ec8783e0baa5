// The whole window painted at scale 2 in the middle of a turn, its menu bar with a drop-down of twenty entries, and for
// comparison an empty picture of the window's size filled.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QImage>
#include <QMenu>

#include "bench/null_table.h"
#include "core/turn.h"
#include "kit/art_icon.h"
#include "menus/menu_style.h"
#include "table/window/frm_lucky_cup.h"

namespace {

constexpr int scale = 2;

struct WindowOnNull : NullTable {
    WindowOnNull() {
        window.SetMenuStyle(menuStyle);
        window.Load(shown);
        picRollDices_MouseUp(shown);
        window.ensurePolished();
    }

    EventGate gate;
    Art art;
    MenuStyle menuStyle{art};
    frmLuckyCup window{gate, art};
    Game shown{{window, timers, clock, random, effects, media, dialogs, scores, shell, store, parts}};
};

QImage Screen(const QWidget& window) {
    QImage screen(window.size() * scale, QImage::Format_ARGB32_Premultiplied);
    screen.setDevicePixelRatio(scale);
    return screen;
}

void Repaint(benchmark::State& state) {
    WindowOnNull table;
    QImage screen = Screen(table.window);
    for (auto round : state) table.window.render(&screen);
}
BENCHMARK(Repaint)->Unit(benchmark::kMillisecond);

void RepaintMenus(benchmark::State& state) {
    WindowOnNull table;
    QMenu menu;
    menu.setStyle(&table.menuStyle);
    for (int i = 0; i < 20; ++i)
        menu.addAction(ArtIcon(table.art, "menu_check", {15, 15}), "Turn Sound &Effects On", QKeySequence("Ctrl+O"));
    menu.actions()[1]->setEnabled(false);
    menu.popup({});
    menu.setActiveAction(menu.actions()[0]);
    QWidget& bar = *table.window.menuBar();
    QImage barScreen = Screen(bar);
    QImage menuScreen = Screen(menu);
    for (auto round : state) {
        bar.render(&barScreen);
        menu.render(&menuScreen);
    }
}
BENCHMARK(RepaintMenus)->Unit(benchmark::kMillisecond);

void FillOnly(benchmark::State& state) {
    WindowOnNull table;
    QImage screen = Screen(table.window);
    for (auto round : state) screen.fill(Qt::lightGray);
}
BENCHMARK(FillOnly)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
