#include "script/options_changes.h"

#include <algorithm>

#include "script/script_line.h"
#include "script/setting_values.h"

namespace {

// What the user can change in frmOptions, by the setting that stands for the control.
struct OptionsControl {
    std::string_view name;
    void (*change)(Game&, OptionsForm&, const GameSettings& wanted);
};

constexpr OptionsControl optionsControls[] = {
    {"NumberOfColumns",
     [](Game&, OptionsForm& form, const GameSettings& wanted) { form.optYahtzee = wanted.NumberOfColumns == 1; }},
    {"NumberOfDice",
     [](Game&, OptionsForm& form, const GameSettings& wanted) { form.opt5Dice = wanted.NumberOfDice == 4; }},
    {"NumberOfPlayers",
     [](Game&, OptionsForm& form, const GameSettings& wanted) {
         wanted.NumberOfPlayers == 1 ? opt1Player_Click(form) : opt2Players_Click(form);
     }},
    {"Player1", [](Game&, OptionsForm& form, const GameSettings& wanted) { form.txtName1 = wanted.Player1; }},
    {"Player2",
     [](Game&, OptionsForm& form, const GameSettings& wanted) {
         if (form.txtName2Enabled) form.txtName2 = wanted.Player2;
     }},
    {"ShowStatusBar",
     [](Game&, OptionsForm& form, const GameSettings& wanted) {
         if (form.chkShowStatusBarEnabled) form.chkShowStatusBar = wanted.ShowStatusBar;
     }},
    {"ConfirmQuitGame",
     [](Game&, OptionsForm& form, const GameSettings& wanted) { form.chkQuitGame = wanted.ConfirmQuitGame; }},
    {"ConfirmOnExit",
     [](Game&, OptionsForm& form, const GameSettings& wanted) { form.chkConfirmExit = wanted.ConfirmOnExit; }},
    {"BGMusicVolume", [](Game& game, OptionsForm& form,
                         const GameSettings& wanted) { sldVolume_Change(game, form, wanted.BGMusicVolume); }},
};

struct OptionsChange {
    const OptionsControl* control;
    GameSettings wanted;  // the one setting of the control counts
};

OptionsChange ParseOptionsChange(std::string_view pair) {
    const auto equals = pair.find('=');
    if (equals == pair.npos) throw BadArgument();
    OptionsChange change;
    change.control = std::ranges::find(optionsControls, pair.substr(0, equals), &OptionsControl::name);
    if (change.control == std::end(optionsControls)) throw BadArgument();
    SetSetting(change.wanted, change.control->name, pair.substr(equals + 1));
    return change;
}

}  // namespace

OptionsVisit ParseOptionsChanges(const std::vector<std::string_view>& pairs) {
    std::vector<OptionsChange> changes;
    changes.reserve(pairs.size());
    for (std::string_view pair : pairs) changes.push_back(ParseOptionsChange(pair));
    return [changes = std::move(changes)](Game& game, OptionsForm& form) {
        for (const OptionsChange& change : changes) change.control->change(game, form, change.wanted);
    };
}
