// The settings of a store that is damaged, of a process that is killed while it saves, and of a full disk.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <variant>

#include "core/overloaded.h"
#include "core/setting_fields.h"
#include "store/settings_store.h"
#include "tests/hard/hard_run.h"

namespace {

using Fields = std::vector<std::string>;  // the settings as texts, in the order of their table

Fields FieldsOf(const GameSettings& settings) {
    Fields fields;
    for (const SettingField& field : settingFields)
        fields.push_back(std::visit(
            Overloaded{[&](const NumberSetting& number) { return std::to_string(settings.*number.field); },
                       [&](bool GameSettings::*truth) { return std::string(settings.*truth ? "True" : "False"); },
                       [&](std::string GameSettings::*name) { return settings.*name; }},
            field.kind));
    return fields;
}

class HardSettings : public testing::Test {
protected:
    void SetUp() override { qputenv("XDG_RUNTIME_DIR", QFile::encodeName(folder.path())); }

    // In a folder of its own each time: of a file that it knows, Qt answers from memory.
    QString NewPath() {
        const QString parent = folder.filePath(QString::number(++stores));
        QDir().mkpath(parent);
        return parent + "/LuckyCup2.2.conf";
    }
    static void Write(const QString& path, const QByteArray& bytes) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
    static QByteArray Bytes(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
    }
    int Pick(int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); }
    bool Coin() { return Pick(2) == 0; }

    // None of the values is that of a first run.
    GameSettings Changed() {
        const auto name = [&] { return "Ann " + std::to_string(random()); };
        return {4, 2, 1, name(), name(), false, false, false, true, false, false, false, true, Pick(500), false};
    }
    static QByteArray StoreOf(const GameSettings& settings, const QString& path) {
        RegistrySettings(path).SaveSettings(settings);
        return Bytes(path);
    }

    GameSettings LoadedAnew(const QString& path) {
        const QString copy = NewPath();
        Write(copy, Bytes(path));
        return RegistrySettings(copy).LoadSettings();
    }

    QTemporaryDir folder{FolderTemplate()};
    int stores = 0;
    std::mt19937 random{Seed()};
};

// What lies before the damage is read as it was stored, and so is what lies behind it when the damaged line ends where
// it did. Everything else is at its first run's value or, as far as one can be read of it, at one that it may have.
TEST_F(HardSettings, Damaged) {
    const Fields first = FieldsOf({});
    for (int round = 0; round < Rounds(150); ++round) {
        const GameSettings settings = Changed();
        const Fields stored = FieldsOf(settings);
        QByteArray bytes = StoreOf(settings, NewPath());
        const qsizetype at = Pick(static_cast<int>(bytes.size()));
        const bool cut = Coin();
        const QByteArray whole = bytes;
        if (cut)
            bytes.truncate(at);
        else
            bytes[at] = static_cast<char>(bytes[at] ^ (1 << Pick(8)));
        const bool shiftsLines = cut || QByteArray("\"\\\r\n[;#").contains(bytes[at]) || whole[at] == '\n';

        const QString path = NewPath();
        Write(path, bytes);
        RegistrySettings store(path);
        const Fields read = FieldsOf(store.LoadSettings());
        if (read == first) {
            // Without a number of dice it is no store.
            const qsizetype end = whole.indexOf('\n', whole.indexOf("NumberOfDice="));
            ASSERT_LE(at, end) << bytes.toStdString();
        }
        for (std::size_t i = 0; i < read.size() && read != first; ++i) {
            const QByteArray key = QByteArray::fromStdString(std::string(settingFields[i].name)) + '=';
            const qsizetype begin = whole.indexOf('\n' + key) + 1;
            const qsizetype end = whole.indexOf('\n', begin);
            const bool hit = begin <= at && at <= end;
            if (end < at || (begin > at && !shiftsLines)) {
                ASSERT_EQ(read[i], stored[i]) << key.toStdString() << " in\n" << bytes.toStdString();
            } else if (!hit) {
                ASSERT_TRUE(read[i] == stored[i] || read[i] == first[i]) << key.toStdString() << " in\n"
                                                                         << bytes.toStdString();
            }
        }
        const GameSettings mended = Changed();
        store.SaveSettings(mended);
        ASSERT_EQ(FieldsOf(LoadedAnew(path)), FieldsOf(mended)) << bytes.toStdString();
    }
}

TEST_F(HardSettings, WrongValueOfOneField) {
    const char* const wrong[] = {
        "",    "-1",  "99999999999999999999", "1, 2",    "@ByteArray(x)", "@Variant(\\0\\0\\0\\x9)", "no", "\\x0",
        "0x2", "nan", "@Invalid()",           "\xff\xfe"};
    const Fields first = FieldsOf({});
    for (int round = 0; round < Rounds(150); ++round) {
        const GameSettings settings = Changed();
        const Fields stored = FieldsOf(settings);
        const auto i = static_cast<std::size_t>(1 + Pick(std::size(settingFields) - 1));  // not the number of dice
        const bool isName = std::holds_alternative<std::string GameSettings::*>(settingFields[i].kind);
        QByteArray bytes = StoreOf(settings, NewPath());
        const qsizetype begin = bytes.indexOf('\n' + QByteArray(settingFields[i].name.data()) + '=') + 2 +
                                static_cast<qsizetype>(settingFields[i].name.size());
        bytes.replace(begin, bytes.indexOf('\n', begin) - begin, wrong[Pick(std::size(wrong))]);
        const QString path = NewPath();
        Write(path, bytes);
        Fields read = FieldsOf(RegistrySettings(path).LoadSettings());
        ASSERT_TRUE(isName || read[i] == first[i]) << bytes.toStdString();
        read[i] = stored[i];
        ASSERT_EQ(read, stored) << bytes.toStdString();
    }
}

TEST_F(HardSettings, KilledWhileSaving) {
    const QString path = NewPath();
    for (int round = 0; round < Rounds(150) / 5; ++round) {
        const GameSettings old = Changed();
        const QByteArray before = StoreOf(old, path);
        const GameSettings wanted = Changed();
        const QByteArray after = StoreOf(wanted, NewPath());
        const pid_t child = Start([&] { RegistrySettings(path).SaveSettings(wanted); });
        usleep(static_cast<useconds_t>(random() % 2000));
        kill(child, SIGKILL);
        StatusOf(child);
        ASSERT_TRUE(Bytes(path) == before || Bytes(path) == after) << Bytes(path).toStdString();
    }
}

TEST_F(HardSettings, EveryPlaceOnAFullDisk) {
    const QString path = NewPath();
    const GameSettings old = Changed();
    const GameSettings wanted = Changed();
    const qsizetype needed = std::max(StoreOf(old, path).size(), StoreOf(wanted, NewPath()).size());
    for (const rlim_t room : Rooms(static_cast<rlim_t>(needed), Rounds(50), random)) {
        const pid_t child = Start([&] {
            LimitFiles(room);
            RegistrySettings(path).SaveSettings(wanted);
        });
        ASSERT_EQ(StatusOf(child), 0);
        const Fields kept = FieldsOf(LoadedAnew(path));
        ASSERT_TRUE(kept == FieldsOf(wanted) || (room < static_cast<rlim_t>(needed) && kept == FieldsOf(old))) << room;
    }
}

}  // namespace
