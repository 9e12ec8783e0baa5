#pragma once

#include "kit/art.h"

// What the window shows when it opens, at the sizes that it will be wanted in.
std::vector<Art::Wanted> FirstPictures(qreal devicePixelRatio);
