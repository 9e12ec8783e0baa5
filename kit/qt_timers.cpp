#include "kit/qt_timers.h"

#include <algorithm>
#include <cassert>

namespace {
// ms. Nobody sees what changes more often than a screen draws.
constexpr int shortestInterval = 16;

// Ticks that the eye follows come on time; the others may be gathered by the system to wake up less often.
Qt::TimerType TypeFor(int interval) { return interval < 100 ? Qt::PreciseTimer : Qt::CoarseTimer; }
}  // namespace

QtTimers::QtTimers(EventGate& gate) : gate_(gate) {
    for (Timer timer : allTimers)
        QObject::connect(&slots_[timer].timer, &QTimer::timeout, &slots_[timer].timer,
                         [this, timer] { FallDue(timer); });
}

void QtTimers::Start(Timer timer, int interval) {
    assert(tick_);
    slots_[timer].due = false;
    slots_[timer].timer.setTimerType(TypeFor(interval));
    slots_[timer].timer.start(std::max(interval, shortestInterval));
}

void QtTimers::Stop(Timer timer) {
    slots_[timer].due = false;
    slots_[timer].timer.stop();
}

void QtTimers::FallDue(Timer timer) {
    if (std::exchange(slots_[timer].due, true)) return;
    gate_.Run([this, timer] {
        if (std::exchange(slots_[timer].due, false)) tick_(timer);
    });
}
