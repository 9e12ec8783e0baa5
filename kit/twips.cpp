#include "kit/twips.h"

#include <algorithm>
#include <cmath>

#include "kit/size.h"

int Pixels(int twips) {
    constexpr double twipsPerPixel = 15;
    return static_cast<int>(std::lround(Sized(twips / twipsPerPixel)));
}

QRect Pixels(const Place& place) {
    const int left = Pixels(place.left);
    const int top = Pixels(place.top);
    return {left, top, std::max(1, Pixels(place.left + place.width) - left),
            std::max(1, Pixels(place.top + place.height) - top)};
}
