#include "script/set_up.h"

#include <algorithm>

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

}  // namespace

bool RunSetUp(ScriptTable& script, const ScriptLine& line) {
    const auto* setUp = std::ranges::find(setUps, line.Command(), &SetUp::command);
    if (setUp == std::end(setUps)) return false;
    setUp->run(script, line);
    return true;
}
