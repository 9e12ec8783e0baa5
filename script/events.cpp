#include "script/events.h"

#include <algorithm>
#include <cassert>

#include "core/hints.h"
#include "core/new_game.h"
#include "core/timer.h"
#include "core/turn.h"
#include "script/options_changes.h"
#include "table/commands.h"
#include "table/main_window.h"
#include "table/presses.h"

namespace {

bool Start(ScriptTable& script, const ScriptLine&) {
    if (script.started) throw BadArgument();
    script.started = true;
    script.table.Load();
    return true;
}

bool Roll(ScriptTable& script, const ScriptLine&) {
    Game& game = script.table.game;
    if (!RollOpen(game)) return false;
    picRollDices_MouseDown(game);
    picRollDices_MouseUp(game);
    return true;
}

bool Key(ScriptTable& script, const ScriptLine& line) {
    const std::string_view key = line.Value(1);
    if (key != "enter" && key != "space") throw BadArgument();
    return Form_KeyPress(script.table.game, key == "enter" ? keyEnter : keySpace);
}

bool Die(ScriptTable& script, const ScriptLine& line) {
    return PressDie(script.table.game, ParseNumber(line.Value(1), 0, maxDice - 1));
}

struct BoxButton {
    explicit BoxButton(const ScriptLine& line)
        : column(static_cast<ScoreColumn>(ParseNumber(line.Value(1), 1, columnCount))),
          row(ParseNumber(line.Value(2), 0, rowCount - 1)) {}

    bool TakesInput(const Game& game) const { return BoxOpen(game, column, row); }
    bool& Hovered(ScriptTable& script) const { return script.hovered[column][row]; }

    ScoreColumn column;
    int row;
};

bool Box(ScriptTable& script, const ScriptLine& line) {
    const BoxButton button(line);
    return PressBox(script.table.game, button.column, button.row);
}

bool Hover(ScriptTable& script, const ScriptLine& line) {
    const BoxButton button(line);
    if (!button.TakesInput(script.table.game)) return false;
    button.Hovered(script) = true;
    cmdBox_MouseMove(script.table.game, button.column, button.row, true);
    return true;
}

bool Leave(ScriptTable& script, const ScriptLine& line) {
    const BoxButton button(line);
    if (!button.TakesInput(script.table.game) || !button.Hovered(script)) return false;
    button.Hovered(script) = false;
    cmdBox_MouseMove(script.table.game, button.column, button.row, false);
    return true;
}

bool Next(ScriptTable& script, const ScriptLine&) { return PressNextPlayer(script.table.game); }
bool Board(ScriptTable& script, const ScriptLine&) { return PressShowBoard(script.table.game); }
bool Undo(ScriptTable& script, const ScriptLine&) { return PressUndo(script.table.game); }
bool Redo(ScriptTable& script, const ScriptLine&) { return PressRedo(script.table.game); }

bool New(ScriptTable& script, const ScriptLine&) {
    mnuNewGame_Click(script.table.game);
    return true;
}

bool Hint(ScriptTable& script, const ScriptLine&) { return PressHint(script.table.game); }

// The menu entries of a choice; the one that is in force is hidden.
struct ChoiceEntry {
    std::string_view choice;
    std::string_view word;
    bool GameSettings::*setting;
    bool value;
    void (*click)(Game&);
};

constexpr ChoiceEntry choiceEntries[] = {
    {"hints", "always", &GameSettings::hintAllways, true, mnuHintsAllways2_Click},
    {"hints", "request", &GameSettings::hintAllways, false, mnuHintsByRequest2_Click},
    {"sounds", "on", &GameSettings::SoundEnabled, true, mnuSoundsOn2_Click},
    {"sounds", "off", &GameSettings::SoundEnabled, false, mnuSoundsOff2_Click},
    {"music", "on", &GameSettings::BGMusicEnabled, true, mnuMusicOn2_Click},
    {"music", "off", &GameSettings::BGMusicEnabled, false, mnuMusicOff2_Click},
};

bool Choice(ScriptTable& script, const ScriptLine& line) {
    const auto* entry = std::ranges::find_if(choiceEntries, [&](const ChoiceEntry& candidate) {
        return candidate.choice == line.Command() && candidate.word == line.Value(1);
    });
    if (entry == std::end(choiceEntries)) throw BadArgument();
    Game& game = script.table.game;
    if (game.settings.*entry->setting == entry->value) return false;
    entry->click(game);
    return true;
}

bool Options(ScriptTable& script, const ScriptLine& line) {
    const std::vector<std::string_view> pairs(line.words.begin() + 1, line.words.end());
    script.table.dialogs.changeOptions = ParseOptionsChanges(pairs);
    mnuOptions_Click(script.table.game);
    return true;
}

constexpr int mostTicks = 1'000'000;  // the log of one event is kept until its line is written

bool Tick(ScriptTable& script, const ScriptLine& line) {
    const auto name = std::ranges::find(timerNames, line.Value(1));
    if (name == timerNames.end()) throw BadArgument();
    const auto timer = static_cast<Timer>(name - timerNames.begin());
    int ticks = 1;
    if (line.Values() == 2) ticks = ParseNumber(line.Value(2), ticks, mostTicks);

    const TimerState& state = script.table.game.table.timers[timer];
    if (!state.enabled) return false;
    for (; ticks > 0 && state.enabled; --ticks) script.table.Tick(timer);
    return true;
}

bool Minimize(ScriptTable& script, const ScriptLine&) {
    Form_Resize(script.table.game, true);
    return true;
}

bool Restore(ScriptTable& script, const ScriptLine&) {
    Form_Resize(script.table.game, false);
    return true;
}

bool Quit(ScriptTable& script, const ScriptLine&) {
    script.closed = Form_QueryUnload(script.table.game);
    return true;
}

bool State(ScriptTable&, const ScriptLine&) { return true; }

struct Event {
    std::string_view command;
    bool (*run)(ScriptTable&, const ScriptLine&);
    std::size_t leastValues = 0;
    std::size_t mostValues = leastValues;
};

constexpr Event events[] = {
    {"start", Start},      {"roll", Roll},
    {"key", Key, 1},       {"die", Die, 1},
    {"box", Box, 2},       {"next", Next},
    {"board", Board},      {"undo", Undo},
    {"redo", Redo},        {"new", New},
    {"hint", Hint},        {"hints", Choice, 1},
    {"sounds", Choice, 1}, {"music", Choice, 1},
    {"hover", Hover, 2},   {"leave", Leave, 2},
    {"tick", Tick, 1, 2},  {"minimize", Minimize},
    {"restore", Restore},  {"quit", Quit},
    {"state", State},      {"options", Options, 0, SIZE_MAX},
};

const Event* FindEvent(std::string_view command) {
    const auto* event = std::ranges::find(events, command, &Event::command);
    return event == std::end(events) ? nullptr : event;
}

}  // namespace

bool IsEvent(std::string_view command) { return FindEvent(command) != nullptr; }

bool RunEvent(ScriptTable& script, const ScriptLine& line) {
    assert(IsEvent(line.Command()));
    const Event& event = *FindEvent(line.Command());
    const bool running = script.started && !script.closed;
    const bool mayStart = event.run == Start && !script.closed;
    if (!running && !mayStart) throw BadLine("not started");
    line.ExpectValues(event.leastValues, event.mostValues);
    try {
        return event.run(script, line);
    } catch (const AnswerDoesNotFit&) {
        throw BadArgument();
    }
}
