#include "script/setting_values.h"

#include <algorithm>

#include "core/overloaded.h"
#include "core/setting_fields.h"
#include "script/script_line.h"

namespace {
bool ParseTruth(std::string_view value) {
    if (value != "True" && value != "False") throw BadArgument();
    return value == "True";
}
}  // namespace

void SetSetting(GameSettings& settings, std::string_view name, std::string_view value) {
    const auto* field = std::ranges::find(settingFields, name, &SettingField::name);
    if (field == std::end(settingFields)) throw BadArgument();
    const auto setNumber = [&](const NumberSetting& setting) {
        const int number = ParseNumber(value, setting.low, setting.high);
        if (!setting.Allows(number)) throw BadArgument();
        settings.*setting.field = number;
    };
    std::visit(Overloaded{setNumber, [&](bool GameSettings::*truth) { settings.*truth = ParseTruth(value); },
                          [&](std::string GameSettings::*text) { settings.*text = value; }},
               field->kind);
}
