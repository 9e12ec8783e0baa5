#pragma once

#include <random>

#include "core/ports.h"

// Waits in an event loop that paints but leaves clicks and keys in their queue for later.
class QtClock final : public Clock {
public:
    void Wait(int ms) override;
    double TimeOfDay() override;
    std::string ShortDate() override;
};

class SeededRandom final : public RandomSource {
public:
    void Reseed(double timeOfDay) override;
    double Next() override;

private:
    std::mt19937_64 engine_;
};

// The desktop's own browser and mail program. There is no help file yet.
class DesktopShell final : public Shell {
public:
    void Open(const std::string& target) override;
    void ShowHelpContents() override {}
    void CloseHelp() override {}
};
