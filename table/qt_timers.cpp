#include "table/qt_timers.h"

// Ticks that the eye follows come on time; the others may be gathered by the system to wake up less often.
static Qt::TimerType TypeFor(int interval) { return interval < 100 ? Qt::PreciseTimer : Qt::CoarseTimer; }

QtTimers::QtTimers(EventGate& gate) : gate_(gate) {
    for (int i = 0; i < timerCount; ++i) {
        const auto timer = static_cast<Timer>(i);
        QObject::connect(&At(timer).timer, &QTimer::timeout, [this, timer] { FallDue(timer); });
    }
}

void QtTimers::Start(Timer timer, int interval) {
    At(timer).due = false;
    At(timer).timer.setTimerType(TypeFor(interval));
    At(timer).timer.start(interval);
}

void QtTimers::Stop(Timer timer) {
    At(timer).due = false;
    At(timer).timer.stop();
}

void QtTimers::FallDue(Timer timer) {
    if (std::exchange(At(timer).due, true)) return;
    gate_.Run([this, timer] {
        if (std::exchange(At(timer).due, false)) tick_(timer);
    });
}
