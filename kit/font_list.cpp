#include "kit/font_list.h"

#include <fontconfig/fontconfig.h>

#include <clocale>
#include <system_error>

std::future<void> ReadFontsAhead() {
    std::setlocale(LC_ALL, "");  // as the application will do, but not while the other thread reads it
    try {
        return std::async(std::launch::async, [] { FcInit(); });
    } catch (const std::system_error&) {
        return {};
    }
}
