#pragma once

#include "script/headless_table.h"
#include "script/script_line.h"

// What the player of a script has in hand: the table, and what the mouse and the window did before.
struct ScriptTable {
    HeadlessTable table;
    bool started = false;
    bool closed = false;
    ByColumn<ByRow<bool>> hovered;  // the mouse moved onto the button and has not left it since
};

bool IsEvent(std::string_view command);

// Carries out the event of the line, whose command must be one. Returns whether it did anything: false for an input
// whose control takes none. Throws BadLine; one that an answer caused leaves the table where the dialog stood.
bool RunEvent(ScriptTable& script, const ScriptLine& line);
