#pragma once

#include <iosfwd>

#include "script/events.h"

// Reads the script of a table from in, one command a line, and prints one line of JSON for each event. Returns the exit
// status: 0 at the end of the script, 2 at the first line that cannot be carried out, 1 when the output cannot be
// written or the input not be read to its end. What is not 0 is told on err in one line.
int RunScript(std::istream& in, std::ostream& out, std::ostream& err);

// Carries out a line that prepares and prints nothing, such as "faces 1 2 3". Returns whether it was one. Throws
// BadLine.
bool RunSetUp(ScriptTable& script, const ScriptLine& line);
