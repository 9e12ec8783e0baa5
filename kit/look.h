#pragma once

#include "kit/art.h"

// The program brings its own style and light colours, so that it looks the same on a light and on a dark desktop.

void PrepareLook();  // before the application object is made
void ApplyLook();    // after it
void ApplyFonts();   // those of all windows and tool tips, at the size that is now; part of ApplyLook

void SetGameIcon(Art& art);  // of every window
