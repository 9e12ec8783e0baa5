#pragma once

#include <string>
#include <vector>

// What the game did outside its table, in order, one text each: "effect rollAll", "sleep 60", "media close song".
using EventLog = std::vector<std::string>;
