#pragma once

#include <QPainter>

// The button of the game: blue satin within a rim, on which the light falls from above.

enum class Rim {
    Golden,  // of what stands out
    Blue,
    Grey  // of what can't be pressed, which is no satin either
};

struct SatinState {
    Rim rim = Rim::Golden;
    bool pressed = false, underMouse = false;
};

// All lengths in device-independent pixels.
void PaintSatin(QPainter& painter, const QRect& area, qreal radius, qreal rim, SatinState state);
