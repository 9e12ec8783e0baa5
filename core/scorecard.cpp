#include "core/scorecard.h"

#include <charconv>

int TextValue(const std::string& text) {
    int value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}
