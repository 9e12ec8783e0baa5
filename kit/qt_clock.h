#pragma once

#include "core/ports/clock.h"

// The other half of the event gate: waits in an event loop that paints but leaves clicks and keys in their queue for
// later.
class QtClock final : public Clock {
public:
    void Wait(int ms) override;
    double TimeOfDay() override;
    std::string ShortDate() override;
};
