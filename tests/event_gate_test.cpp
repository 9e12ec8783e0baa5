#include <gtest/gtest.h>

#include <QDialog>
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

TEST(Gate, LetsInOneAfterTheOtherAlsoWhenOneFailsUntilItIsShut) {
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
    gate.Run([&] { gate.Run([&] { gate.Shut(); }); });
    QTest::qWait(5);
    gate.Run([&] { ran += "behind the shut door "; });
    EXPECT_EQ(ran, "0 1 2 later next ");
}

// Once it has closed there may still be clicks in its event loop, such as the second half of a double click.
TEST(Gate, IsOpenBehindAModalWindowThatStandsInsideAHandler) {
    EventGate gate;
    std::string ran;
    QDialog dialog;
    QTimer::singleShot(5, &dialog, [&] {
        gate.Run([&] { ran += "behind "; });
        dialog.close();
        gate.Run([&] { ran += "after "; });
    });
    gate.Run([&] {
        gate.Run([&] { ran += "waited "; });
        {
            const EventGate::Open open(gate);
            dialog.exec();
        }
        gate.Run([&] { ran += "last "; });
        ran += "end ";
    });
    QTest::qWait(5);
    EXPECT_EQ(ran, "waited behind end after last ");
}

}  // namespace
