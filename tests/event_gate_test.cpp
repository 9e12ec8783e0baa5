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
    gate.Run([&] {
        timers.Start(Timer::tmrCounter, 1);
        QTest::qWait(40);
        timers.Stop(Timer::tmrCounter);
    });
    QTest::qWait(40);
    EXPECT_EQ(ticks, 1);
}

TEST(Gate, LetsInOneAfterTheOtherAlsoWhenOneFails) {
    EventGate gate;
    std::string ran;
    gate.Run([&] {
        for (const char* name : {"1 ", "2 "}) gate.Run([&ran, name] { ran += name; });
        QTest::qWait(5);
        ran += "0 ";
    });
    QTest::qWait(5);
    EXPECT_THROW(gate.Run([&] {
        gate.Run([&] { ran += "later "; });
        throw std::runtime_error("a handler failed");
    }),
                 std::runtime_error);
    gate.Run([&] { ran += "next "; });
    QTest::qWait(5);
    EXPECT_EQ(ran, "0 1 2 later next ");
}

}  // namespace
