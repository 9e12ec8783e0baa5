#pragma once

#include <random>

#include "core/ports/random_source.h"

class SeededRandom final : public RandomSource {
public:
    void Reseed(double timeOfDay) override;
    double Next() override;

private:
    std::mt19937_64 engine_;
};
