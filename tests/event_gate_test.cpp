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

// As the second half of a double click, which may reach the table before the dialog that it closes has ended.
TEST(Gate, LetsNothingInBehindADialogThatHasClosed) {
    EventGate gate;
    std::string ran;
    QDialog dialog;
    QTimer::singleShot(0, &dialog, [&] {
        gate.Run([&] { ran += "beside "; });
        dialog.close();
        gate.Run([&] { ran += "behind "; });
    });
    gate.Run([&] {
        const EventGate::Open open(gate);
        dialog.exec();
        ran += "rest ";
    });
    QTest::qWait(5);
    EXPECT_EQ(ran, "beside rest behind ");
}

}  // namespace
