#pragma once

#include <string>

#include "table/glyph_columns.h"

// The runs of a counter picture from the left, joined by one blank: "4@68" for a whole glyph with its first column at
// 68, "4@68[0-5]" where only its columns 0 to 5 are still to be seen. A blank picture is the empty text.
std::string CounterText(const GlyphColumns& picture);
