#include "script/run_script.h"

#include <algorithm>
#include <istream>
#include <ostream>

#include "script/json_line.h"
#include "script/set_up.h"

namespace {

BadLine UnknownCommand(std::string_view command) {
    std::string name(command);
    std::ranges::replace(name, '\0', '?');  // which would end the text of the error
    return BadLine("unknown command '" + name + '\'');
}

void RunLine(ScriptTable& script, const ScriptLine& line, std::ostream& out) {
    if (line.Empty() || RunSetUp(script, line)) return;
    if (!IsEvent(line.Command())) throw UnknownCommand(line.Command());

    script.table.log.clear();
    const bool done = RunEvent(script, line);
    out << JsonLine(line.text, !done, script.table) << '\n';
}

}  // namespace

int RunScript(std::istream& in, std::ostream& out, std::ostream& err) {
    ScriptTable script;
    std::string text;
    for (std::size_t number = 1; out && std::getline(in, text); ++number) {
        try {
            RunLine(script, ScriptLine(text), out);
        } catch (const BadLine& bad) {
            if (!out.flush()) break;
            err << "line " << number << ": " << bad.what() << '\n';
            return 2;
        }
    }
    if (!out.flush()) {
        err << "cannot write the output\n";
        return 1;
    }
    if (!in.eof()) {
        err << "cannot read the input\n";
        return 1;
    }
    return 0;
}
