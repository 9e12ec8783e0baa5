#pragma once

#include <future>

// Begins to read the list of the system's fonts, for which every window with text waits, beside the making of the
// application. First thing in main, which holds what is returned until its end. Who asks for a font waits for it first,
// or the list is read twice. Not valid where no thread can be started.
std::future<void> ReadFontsAhead();
