#pragma once

#include <QTimer>
#include <array>
#include <functional>
#include <utility>

#include "core/ports.h"
#include "table/event_gate.h"

// The table's seven timers. A tick that falls due while a handler runs comes once, when the handler has ended.
class QtTimers final : public Timers {
public:
    using Tick = std::function<void(Timer)>;

    explicit QtTimers(EventGate& gate);
    void SetTick(Tick tick) { tick_ = std::move(tick); }  // before the first timer starts

    void Start(Timer timer, int interval) override;
    void Stop(Timer timer) override;

private:
    struct Slot {
        QTimer timer;
        bool due = false;  // waits at the gate
    };

    void FallDue(Timer timer);
    Slot& At(Timer timer) { return slots_[static_cast<std::size_t>(timer)]; }

    EventGate& gate_;
    Tick tick_;
    std::array<Slot, timerCount> slots_;
};
