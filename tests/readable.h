#pragma once

#include <gtest/gtest.h>

#include <QString>
#include <concepts>

#include "core/indexed.h"
#include "core/overloaded.h"
#include "core/setting_fields.h"

// The eight variants: bit 0 five dice, bit 1 two players, bit 2 one column.
GameSettings VariantOf(std::integral auto bits) {
    return {.NumberOfDice = bits & 1 ? 4 : 5, .NumberOfPlayers = bits & 2 ? 2 : 1, .NumberOfColumns = bits & 4 ? 1 : 4};
}

// How a failed test writes the records of the game.

template <typename T, std::size_t count, typename Index, int first>
void PrintTo(const Indexed<T, count, Index, first>& array, std::ostream* out) {
    *out << testing::PrintToString(array.values);
}

inline void PrintTo(const GameSettings& settings, std::ostream* out) {
    for (const SettingField& field : settingFields)
        std::visit(
            Overloaded{[&](const NumberSetting& number) { *out << field.name << '=' << settings.*number.field << ' '; },
                       [&](auto member) { *out << field.name << '=' << settings.*member << ' '; }},
            field.kind);
}

inline void PrintTo(const QString& text, std::ostream* out) { *out << '"' << text.toStdString() << '"'; }
