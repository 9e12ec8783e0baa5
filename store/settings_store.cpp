#include "store/settings_store.h"

#include <QFileInfo>
#include <QStorageInfo>
#include <algorithm>
#include <charconv>
#include <cmath>
#include <initializer_list>

namespace {

constexpr int loudest = 1000;

// The decimal number that the text begins with, rounded with ties to even; 0 when it begins with no digit.
double LeadingNumber(const std::string& text) {
    if (text.empty() || text.front() < '0' || text.front() > '9') return 0;
    double number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed);
    return std::nearbyint(number);
}

void ReadCount(const QSettings& key, const char* name, std::initializer_list<int> allowed, int& count) {
    const double number = LeadingNumber(RegGetString(key, name, ""));
    const auto* found = std::find(allowed.begin(), allowed.end(), number);
    if (found != allowed.end()) count = *found;
}

void ReadVolume(const QSettings& key, const char* name, int& volume) {
    bool whole = false;
    const double number = std::nearbyint(QString::fromStdString(RegGetString(key, name, "")).toDouble(&whole));
    if (whole && number >= 0 && number <= loudest) volume = static_cast<int>(number);
}

void ReadTruth(const QSettings& key, const char* name, bool& truth) {
    const QString text = QString::fromStdString(RegGetString(key, name, ""));
    if (text.compare(QLatin1String("True"), Qt::CaseInsensitive) == 0) truth = true;
    if (text.compare(QLatin1String("False"), Qt::CaseInsensitive) == 0) truth = false;
}

// On a full disk QSettings of Qt 6.4 puts an empty file in the place of the one that it could not write.
bool DiskHasRoom(const QSettings& key, const GameSettings& settings) {
    constexpr std::size_t allButNames = 1 << 16;
    constexpr std::size_t widestEscape = 8;
    const std::size_t needed = allButNames + widestEscape * (settings.Player1.size() + settings.Player2.size());
    const QStorageInfo disk(QFileInfo(key.fileName()).path());
    return !disk.isValid() || disk.bytesAvailable() >= static_cast<qint64>(needed);
}

void WriteNumber(QSettings& key, const char* name, int number) { RegSetString(key, name, std::to_string(number)); }

void WriteTruth(QSettings& key, const char* name, bool truth) { RegSetString(key, name, truth ? "True" : "False"); }

}  // namespace

std::string RegGetString(const QSettings& key, const char* name, const std::string& otherwise) {
    const QVariant value = key.value(QLatin1String(name));
    if (value.typeId() != QMetaType::QString) return otherwise;
    const std::string text = value.toString().toStdString();
    return text.substr(0, text.find('\0'));
}

void RegSetString(QSettings& key, const char* name, const std::string& text) {
    key.setValue(QLatin1String(name), QString::fromStdString(text));
}

RegistrySettings::RegistrySettings() : key("LuckyCup", "LuckyCup2.2") {
    key.setFallbacksEnabled(false);  // what other keys and the system's own store hold is not the player's choice
}

GameSettings RegistrySettings::LoadSettings() {
    GameSettings settings;
    if (RegGetString(key, "NumberOfDice", "").empty()) return settings;

    ReadCount(key, "NumberOfDice", {4, 5}, settings.NumberOfDice);
    ReadTruth(key, "ShowDialog", settings.ShowDialog);
    ReadTruth(key, "ShowSplash", settings.ShowSplash);
    ReadTruth(key, "ShowStatusBar", settings.ShowStatusBar);
    ReadTruth(key, "ConfirmOnExit", settings.ConfirmOnExit);
    ReadTruth(key, "ConfirmQuitGame", settings.ConfirmQuitGame);
    ReadTruth(key, "BGMusicEnabled", settings.BGMusicEnabled);
    ReadVolume(key, "BGMusicVolume", settings.BGMusicVolume);
    ReadCount(key, "NumberOfPlayers", {1, 2}, settings.NumberOfPlayers);
    ReadCount(key, "NumberOfColumns", {1, 4}, settings.NumberOfColumns);
    settings.Player1 = RegGetString(key, "Player1", settings.Player1);
    settings.Player2 = RegGetString(key, "Player2", settings.Player2);
    ReadTruth(key, "SoundEnabled", settings.SoundEnabled);
    ReadTruth(key, "hintAllways", settings.hintAllways);
    ReadTruth(key, "ShowGridLines", settings.ShowGridLines);
    return settings;
}

void RegistrySettings::SaveSettings(const GameSettings& settings) {
    if (!DiskHasRoom(key, settings)) return;

    WriteNumber(key, "NumberOfDice", settings.NumberOfDice);
    WriteNumber(key, "NumberOfPlayers", settings.NumberOfPlayers);
    WriteNumber(key, "NumberOfColumns", settings.NumberOfColumns);
    RegSetString(key, "Player1", settings.Player1);
    RegSetString(key, "Player2", settings.Player2);
    WriteTruth(key, "SoundEnabled", settings.SoundEnabled);
    WriteTruth(key, "hintAllways", settings.hintAllways);
    WriteTruth(key, "ShowDialog", settings.ShowDialog);
    WriteTruth(key, "ShowSplash", settings.ShowSplash);
    WriteTruth(key, "ShowStatusBar", settings.ShowStatusBar);
    WriteTruth(key, "ConfirmOnExit", settings.ConfirmOnExit);
    WriteTruth(key, "ConfirmQuitGame", settings.ConfirmQuitGame);
    WriteTruth(key, "BGMusicEnabled", settings.BGMusicEnabled);
    WriteNumber(key, "BGMusicVolume", settings.BGMusicVolume);
    WriteTruth(key, "ShowGridLines", settings.ShowGridLines);
    key.sync();
}
