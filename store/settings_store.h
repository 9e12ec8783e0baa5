#pragma once

#include <QSettings>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/ports/settings_store.h"

// A value of the key, up to its first NUL. otherwise when it is missing or is no text. Texts are UTF-8.
std::string RegGetString(const QSettings& key, std::string_view name, const std::string& otherwise);
void RegSetString(QSettings& key, std::string_view name, const std::string& text);

// Where the user's settings lie: a file or, on Windows, a key of the registry.
QString UserSettingsPath();

// One text of a store, empty when it is not there, and a change of some that leaves the others as they are. They keep
// the promises that RegistrySettings makes below.
using NamedTexts = std::vector<std::pair<std::string, std::string>>;
std::string LoadText(const QString& path, std::string_view name);
void SaveTexts(const QString& path, const NamedTexts& texts);

// The user's settings: fifteen named texts. A store that cannot be read counts as empty, and one that cannot be
// written stays as it is; neither is told. Nor does what lies in its place, or beside it, ever keep the program
// waiting: what is no file, or far longer than settings are, is not read, and what is no file is left alone. A file is
// replaced in one step, so at any instant it holds the old or the new settings.
class RegistrySettings final : public SettingsStore {
public:
    explicit RegistrySettings(const QString& path = UserSettingsPath()) : path_(path) {}

    // A store without NumberOfDice is new and gives a first run's settings. In any other a value that is missing, or
    // not one that its field can have, gives the first run's for that field.
    GameSettings LoadSettings() override;
    void SaveSettings(const GameSettings& settings) override;

private:
    QString path_;
};
