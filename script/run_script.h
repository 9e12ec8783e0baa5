#pragma once

#include <iosfwd>

// Reads the script of a table from in, one command a line, and prints one line of JSON for each event. Returns the exit
// status: 0 at the end of the script, 2 at the first line that cannot be carried out, 1 when the output cannot be
// written or the input not be read to its end. What is not 0 is told on err in one line.
int RunScript(std::istream& in, std::ostream& out, std::ostream& err);
