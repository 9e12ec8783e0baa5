#pragma once

#include "core/dice_set.h"

class RandomSource {
public:
    virtual ~RandomSource() = default;
    virtual void Reseed(double timeOfDay) = 0;
    virtual double Next() = 0;  // uniform, 0 <= r < 1
    virtual int DrawDie() { return static_cast<int>(Next() * facesOfADie) + 1; }
};
