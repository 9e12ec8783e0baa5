#pragma once

#include <QRect>

// Places in twips; 15 twips are one device-independent pixel of the normal size.
struct Place {
    int left, top, width, height;
};

// In pixels at the size that is now.
int Pixels(int twips);
// Rounds each edge by itself, so that controls which touch in twips touch in pixels. At least one pixel wide and high.
QRect Pixels(const Place& place);
