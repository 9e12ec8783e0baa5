#pragma once

#include <string_view>

// The decimal number at the start of the text, after any blanks, with halves rounded to even; 0 when there is none or
// it does not fit.
int LeadingNumber(std::string_view text);
