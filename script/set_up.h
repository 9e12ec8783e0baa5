#pragma once

#include "script/events.h"

// Carries out a line that prepares and prints nothing, such as "faces 1 2 3". Returns whether it was one. Throws
// BadLine.
bool RunSetUp(ScriptTable& script, const ScriptLine& line);
