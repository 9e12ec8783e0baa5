#pragma once

#include <string>
#include <string_view>

#include "script/headless_table.h"

// The table after an event as one line of JSON, without its line end.
std::string JsonLine(std::string_view event, bool ignored, const HeadlessTable& table);
