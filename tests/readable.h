#pragma once

#include <gtest/gtest.h>

#include <QString>

#include "core/indexed.h"
#include "core/overloaded.h"
#include "core/setting_fields.h"

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
