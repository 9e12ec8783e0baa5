#include "store/settings_store.h"

#include <QFileInfo>
#include <QStorageInfo>
#include <cctype>
#include <cmath>

#include "core/leading_number.h"
#include "core/overloaded.h"
#include "core/setting_fields.h"

namespace {

// The number that a stored text stands for; -1 when it is none.
int StoredNumber(const std::string& text, const NumberSetting& setting) {
    if (setting.readFromStart) {
        const bool begins = !text.empty() && std::isdigit(static_cast<unsigned char>(text.front()));
        return begins ? LeadingNumber(text) : -1;
    }
    bool whole = false;
    const double number = std::nearbyint(QString::fromStdString(text).toDouble(&whole));
    return whole && setting.low <= number && number <= setting.high ? static_cast<int>(number) : -1;
}

void Read(const std::string& text, const NumberSetting& setting, GameSettings& settings) {
    const int number = StoredNumber(text, setting);
    if (setting.Allows(number)) settings.*setting.field = number;
}

void Read(const std::string& text, bool GameSettings::*truth, GameSettings& settings) {
    const QString stored = QString::fromStdString(text);
    if (stored.compare(QLatin1String("True"), Qt::CaseInsensitive) == 0) settings.*truth = true;
    if (stored.compare(QLatin1String("False"), Qt::CaseInsensitive) == 0) settings.*truth = false;
}

// On a full disk QSettings of Qt 6.4 puts an empty file in the place of the one that it could not write.
bool DiskHasRoom(const QSettings& key, const GameSettings& settings) {
    constexpr std::size_t allButNames = 1 << 16;
    constexpr std::size_t widestEscape = 8;
    const std::size_t needed = allButNames + widestEscape * (settings.Player1.size() + settings.Player2.size());
    const QStorageInfo disk(QFileInfo(key.fileName()).path());
    return !disk.isValid() || disk.bytesAvailable() >= static_cast<qint64>(needed);
}

std::string Stored(const NumberSetting& setting, const GameSettings& settings) {
    return std::to_string(settings.*setting.field);
}
std::string Stored(bool GameSettings::*truth, const GameSettings& settings) {
    return settings.*truth ? "True" : "False";
}
std::string Stored(std::string GameSettings::*name, const GameSettings& settings) { return settings.*name; }

}  // namespace

std::string RegGetString(const QSettings& key, std::string_view name, const std::string& otherwise) {
    const QVariant value = key.value(QLatin1String(name.data(), static_cast<qsizetype>(name.size())));
    if (value.typeId() != QMetaType::QString) return otherwise;
    const std::string text = value.toString().toStdString();
    return text.substr(0, text.find('\0'));
}

void RegSetString(QSettings& key, std::string_view name, const std::string& text) {
    key.setValue(QLatin1String(name.data(), static_cast<qsizetype>(name.size())), QString::fromStdString(text));
}

RegistrySettings::RegistrySettings() : key_("LuckyCup", "LuckyCup2.2") {
    key_.setFallbacksEnabled(false);  // what other keys and the system's own store hold is not the player's choice
}

GameSettings RegistrySettings::LoadSettings() {
    GameSettings settings;
    if (RegGetString(key_, "NumberOfDice", "").empty()) return settings;

    const auto readName = [&](const SettingField& field, std::string GameSettings::*name) {
        settings.*name = RegGetString(key_, field.name, settings.*name);
    };
    for (const SettingField& field : settingFields)
        std::visit(Overloaded{[&](std::string GameSettings::*name) { readName(field, name); },
                              [&](auto kind) { Read(RegGetString(key_, field.name, ""), kind, settings); }},
                   field.kind);
    return settings;
}

void RegistrySettings::SaveSettings(const GameSettings& settings) {
    if (!DiskHasRoom(key_, settings)) return;

    for (const SettingField& field : settingFields) {
        const std::string text = std::visit([&](auto kind) { return Stored(kind, settings); }, field.kind);
        RegSetString(key_, field.name, text);
    }
    key_.sync();
}
