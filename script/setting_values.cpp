#include "script/setting_values.h"

#include <algorithm>
#include <initializer_list>
#include <variant>

#include "script/script_line.h"

namespace {

struct NumberField {
    int GameSettings::*field;
    int low;
    int high;
    int step = 1;  // the values allowed are low, low + step, ...
};

struct Field {
    std::string_view name;
    std::variant<NumberField, bool GameSettings::*, std::string GameSettings::*> kind;
};

constexpr Field fields[] = {
    {"NumberOfDice", NumberField{&GameSettings::NumberOfDice, 4, 5}},
    {"NumberOfPlayers", NumberField{&GameSettings::NumberOfPlayers, 1, 2}},
    {"NumberOfColumns", NumberField{&GameSettings::NumberOfColumns, 1, 4, 3}},
    {"Player1", &GameSettings::Player1},
    {"Player2", &GameSettings::Player2},
    {"SoundEnabled", &GameSettings::SoundEnabled},
    {"hintAllways", &GameSettings::hintAllways},
    {"ShowDialog", &GameSettings::ShowDialog},
    {"ShowSplash", &GameSettings::ShowSplash},
    {"ShowStatusBar", &GameSettings::ShowStatusBar},
    {"ConfirmOnExit", &GameSettings::ConfirmOnExit},
    {"ConfirmQuitGame", &GameSettings::ConfirmQuitGame},
    {"BGMusicEnabled", &GameSettings::BGMusicEnabled},
    {"BGMusicVolume", NumberField{&GameSettings::BGMusicVolume, 0, 1000}},
    {"ShowGridLines", &GameSettings::ShowGridLines},
};

bool ParseTruth(std::string_view value) {
    if (value != "True" && value != "False") throw BadArgument();
    return value == "True";
}

struct Setter {
    GameSettings& settings;
    std::string_view value;

    void operator()(const NumberField& number) const {
        const int parsed = ParseNumber(value, number.low, number.high);
        if ((parsed - number.low) % number.step != 0) throw BadArgument();
        settings.*number.field = parsed;
    }
    void operator()(bool GameSettings::*field) const { settings.*field = ParseTruth(value); }
    void operator()(std::string GameSettings::*field) const { settings.*field = value; }
};

}  // namespace

void SetSetting(GameSettings& settings, std::string_view name, std::string_view value) {
    const auto* field = std::ranges::find(fields, name, &Field::name);
    if (field == std::end(fields)) throw BadArgument();
    std::visit(Setter{settings, value}, field->kind);
}
