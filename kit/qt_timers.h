#pragma once

#include <QTimer>
#include <functional>
#include <utility>

#include "core/ports/timers.h"
#include "kit/event_gate.h"

// The table's seven timers, which tick no faster than every 16 ms. A tick that falls due while a handler runs comes
// once, when the handler has ended.
class QtTimers final : public Timers {
public:
    using Tick = std::function<void(Timer)>;

    explicit QtTimers(EventGate& gate);
    void SetTick(Tick tick) { tick_ = std::move(tick); }  // before the first timer starts

    void Start(Timer timer, int interval) override;
    void Stop(Timer timer) override;

private:
    struct Slot {
        Slot() = default;

        QTimer timer;
        bool due = false;  // waits at the gate
    };

    void FallDue(Timer timer);

    EventGate& gate_;
    Tick tick_;
    ByTimer<Slot> slots_;
};
