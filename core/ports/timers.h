#pragma once

#include "core/timer.h"

class Timers {
public:
    virtual ~Timers() = default;
    // Starts the timer, or gives a running one a new interval in ms, counted from now.
    virtual void Start(Timer timer, int interval) = 0;
    virtual void Stop(Timer timer) = 0;
};
