#include "store/settings_store.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <algorithm>
#include <cctype>
#include <cmath>

#include "core/leading_number.h"
#include "core/overloaded.h"
#include "core/setting_fields.h"
#include "store/replace_file.h"

namespace {

#ifdef Q_OS_WIN
constexpr bool keptInFile = false;  // but in the registry
#else
constexpr bool keptInFile = true;
#endif

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

std::string Stored(const NumberSetting& setting, const GameSettings& settings) {
    return std::to_string(settings.*setting.field);
}
std::string Stored(bool GameSettings::*truth, const GameSettings& settings) {
    return settings.*truth ? "True" : "False";
}
std::string Stored(std::string GameSettings::*name, const GameSettings& settings) { return settings.*name; }

constexpr qint64 longestStore = 16 << 20;  // names may be long

// Empty for what cannot be read.
QByteArray BytesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(std::min(longestStore, file.size())) : QByteArray();
}

bool CopyTo(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && file.write(bytes) == bytes.size();
}

bool IsStore(const QFileInfo& file) { return file.isFile() && file.size() <= longestStore; }

void Write(QSettings& key, const NamedTexts& texts) {
    for (const auto& [name, text] : texts) RegSetString(key, name, text);
    key.sync();
}

bool Holds(const QSettings& key, const NamedTexts& texts) {
    return std::ranges::all_of(texts, [&](const auto& entry) {
        const QVariant value = key.value(QString::fromStdString(entry.first));
        return value == QString::fromStdString(entry.second);
    });
}

// In memory, where the system has such a folder for its users; else beside the store. It has always the same name, so
// that what a save leaves that is killed goes with the next one.
QDir FolderForDrafts(const QFileInfo& store) {
    const QString own = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    return QDir(own.isEmpty() ? store.path() : own).filePath("LuckyCup.draft");
}

// A store's bytes with the texts written into them by way of the folder, empty when that fails. QSettings would wait
// for locks beside the file, and on a full disk of Qt 6.4 put an empty one in its place; so it is given a copy, and
// what it wrote is read back under another name, which it does not remember.
QByteArray WithTexts(const QByteArray& store, const NamedTexts& texts, const QDir& folder) {
    const QString draft = folder.filePath("draft.conf");
    const QString written = folder.filePath("written.conf");
    if (!QDir().mkdir(folder.path(), ownersOnly | QFileDevice::ExeOwner) || !CopyTo(draft, store)) return {};
    QSettings key(draft, QSettings::NativeFormat);
    Write(key, texts);
    if (!QFile::rename(draft, written)) return {};
    return Holds(QSettings(written, QSettings::NativeFormat), texts) ? BytesOf(written) : QByteArray();
}

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

QString UserSettingsPath() {
    if (!keptInFile) return "HKEY_CURRENT_USER\\Software\\LuckyCup\\LuckyCup2.2";
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation));
    return folder.filePath("LuckyCup/LuckyCup2.2.conf");
}

GameSettings RegistrySettings::LoadSettings() {
    GameSettings settings;
    if (keptInFile && !IsStore(QFileInfo(path_))) return settings;
    const QSettings key(path_, QSettings::NativeFormat);
    if (RegGetString(key, "NumberOfDice", "").empty()) return settings;

    const auto readName = [&](const SettingField& field, std::string GameSettings::*name) {
        settings.*name = RegGetString(key, field.name, settings.*name);
    };
    for (const SettingField& field : settingFields)
        std::visit(Overloaded{[&](std::string GameSettings::*name) { readName(field, name); },
                              [&](auto kind) { Read(RegGetString(key, field.name, ""), kind, settings); }},
                   field.kind);
    return settings;
}

void RegistrySettings::SaveSettings(const GameSettings& settings) {
    NamedTexts texts;
    for (const SettingField& field : settingFields)
        texts.emplace_back(field.name, std::visit([&](auto kind) { return Stored(kind, settings); }, field.kind));
    SaveTexts(path_, texts);
}

void SaveTexts(const QString& path, const NamedTexts& texts) {
    if (!keptInFile) {
        QSettings key(path, QSettings::NativeFormat);
        return Write(key, texts);
    }
    const QFileInfo old(path);
    if (old.exists() && !(old.isFile() && old.isWritable())) return;
    if (!QDir().mkpath(old.path())) return;
    QDir drafts = FolderForDrafts(old);
    drafts.removeRecursively();
    const QByteArray store = WithTexts(IsStore(old) ? BytesOf(path) : QByteArray(), texts, drafts);
    drafts.removeRecursively();
    if (!store.isEmpty()) ReplaceFile(path, store, ownersOnly);
}

std::string LoadText(const QString& path, std::string_view name) {
    if (keptInFile && !IsStore(QFileInfo(path))) return {};
    return RegGetString(QSettings(path, QSettings::NativeFormat), name, {});
}
