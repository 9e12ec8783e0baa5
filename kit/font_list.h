#pragma once

#include <future>

// Begins to read the list of the system's fonts, for which every window with text waits, beside the making of the
// application. First thing in main, which holds what is returned until its end; not valid where no thread can be
// started.
std::future<void> ReadFontsAhead();
