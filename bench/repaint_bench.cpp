// The whole window painted at scale 2 in the middle of a turn, and for comparison an empty picture of that size filled.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QImage>

#include "bench/null_table.h"
#include "core/turn.h"
#include "table/window/frm_lucky_cup.h"

namespace {

constexpr int scale = 2;

struct WindowOnNull : NullTable {
    WindowOnNull() {
        window.Load(shown);
        picRollDices_MouseUp(shown);
        window.ensurePolished();
    }

    EventGate gate;
    Art art;
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
