#include "core/leading_number.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

int LeadingNumber(std::string_view text) {
    double number = 0;
    const char* first = text.data() + std::min(text.find_first_not_of(' '), text.size());
    std::from_chars(first, text.data() + text.size(), number, std::chars_format::fixed);
    number = std::nearbyint(number);
    return std::abs(number) <= std::numeric_limits<int>::max() ? static_cast<int>(number) : 0;
}
