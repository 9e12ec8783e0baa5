#include "script/commands.h"

#include <algorithm>
#include <istream>
#include <ostream>

#include "script/events.h"
#include "script/json_line.h"
#include "script/setting_values.h"

namespace {

void Set(ScriptTable& script, const ScriptLine& line) {
    line.ExpectValues(2, SIZE_MAX);
    const std::string_view name = line.Value(1);
    const std::string value(line.RestFrom(2));
    if (name == "Today") {
        script.table.clock.today = value;
        return;
    }
    if (script.started) throw BadArgument();
    if (name == "AppPath")
        script.table.UseFolder(value);
    else
        SetSetting(script.table.game.settings, name, value);
}

void Seed(ScriptTable& script, const ScriptLine& line) {
    line.ExpectValues(1);
    script.table.random.state = ParseNumber(line.Value(1), std::uint64_t{0}, UINT64_MAX);
}

void Faces(ScriptTable& script, const ScriptLine& line) {
    line.ExpectValues(1, SIZE_MAX);
    for (std::size_t i = 1; i <= line.Values(); ++i)
        script.table.random.faces.push_back(ParseNumber(line.Value(i), 1, facesOfADie));
}

void Answers(ScriptTable& script, const ScriptLine& line) {
    constexpr std::array<std::string_view, 4> names{"ok", "cancel", "finish",
                                                    "undo"};  // in the order of HeadlessAnswer
    line.ExpectValues(1, SIZE_MAX);
    for (std::size_t i = 1; i <= line.Values(); ++i) {
        const auto* name = std::ranges::find(names, line.Value(i));
        if (name == names.end()) throw BadArgument();
        script.table.dialogs.answers.push_back(static_cast<HeadlessAnswer>(name - names.begin()));
    }
}

void Media(ScriptTable& script, const ScriptLine& line) {
    line.ExpectValues(1, SIZE_MAX);
    script.table.media.answers.emplace_back(line.RestFrom(1));
}

struct SetUp {
    std::string_view command;
    void (*run)(ScriptTable&, const ScriptLine&);
};

constexpr SetUp setUps[] = {
    {"set", Set}, {"seed", Seed}, {"faces", Faces}, {"answer", Answers}, {"media", Media},
};

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

bool RunSetUp(ScriptTable& script, const ScriptLine& line) {
    const auto* setUp = std::ranges::find(setUps, line.Command(), &SetUp::command);
    if (setUp == std::end(setUps)) return false;
    setUp->run(script, line);
    return true;
}

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
