#include <gtest/gtest.h>

#include <QTest>

#include "kit/qt_timers.h"

namespace {

TEST(Gate, HoldsTicksBackWhileAHandlerRuns) {
    EventGate gate;
    QtTimers timers(gate);
    int ticks = 0;
    timers.SetTick([&](Timer timer) {
        ++ticks;
        timers.Stop(timer);
    });
    gate.Run([&] {
        timers.Start(Timer::tmrCounter, 1);
        QTest::qWait(40);
        EXPECT_EQ(ticks, 0);
    });
    QTest::qWait(40);
    EXPECT_EQ(ticks, 1);
    gate.Run([&] {
        timers.Start(Timer::tmrCounter, 1);
        const EventGate::Open modal(gate);
        QTest::qWait(40);
        EXPECT_EQ(ticks, 2);
    });
    gate.Run([&] {
        timers.Start(Timer::tmrCounter, 1);
        QTest::qWait(40);
        timers.Stop(Timer::tmrCounter);
    });
    QTest::qWait(40);
    EXPECT_EQ(ticks, 2);
}

}  // namespace
