#include "app/seeded_random.h"

void SeededRandom::Reseed(double timeOfDay) {
    constexpr double seeds = 1ULL << 53;
    engine_.seed(static_cast<std::uint64_t>(timeOfDay * seeds));
}

double SeededRandom::Next() {
    constexpr double scale = 1.0 / (1ULL << 53);
    return static_cast<double>(engine_() >> 11) * scale;
}
