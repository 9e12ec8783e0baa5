#pragma once

#include <iosfwd>

// Reads the script of a table from in, one command a line, and prints one line of JSON for each event. Returns the exit
// status: 0 at the end of the script, 2 at the first line that cannot be carried out, which is told on err.
int RunScript(std::istream& in, std::ostream& out, std::ostream& err);
