#pragma once

#include <string_view>
#include <vector>

#include "script/headless_dialogs.h"

// What a user changes in frmOptions, from pairs NAME=VALUE, in their order. Throws BadArgument at a name that no
// control of the window stands for and at a value outside its domain.
OptionsVisit ParseOptionsChanges(const std::vector<std::string_view>& pairs);
