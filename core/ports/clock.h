#pragma once

#include <string>

class Clock {
public:
    virtual ~Clock() = default;
    virtual void Wait(int ms) = 0;        // blocks the game, not the paint
    virtual double TimeOfDay() = 0;       // fraction of the day, 0 <= t < 1
    virtual std::string ShortDate() = 0;  // today, as the system writes a short date
};
