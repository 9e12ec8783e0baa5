// The settings of a store on a full disk.

#include <gtest/gtest.h>

#include <QDir>

#include "store/settings_store.h"
#include "tests/hard/hard_run.h"

namespace {

class HardSettings : public testing::Test {
protected:
    void SetUp() override { qputenv("XDG_RUNTIME_DIR", QFile::encodeName(folder.path())); }

    // In a folder of its own each time: of a file that it knows, Qt answers from memory.
    QString NewPath() {
        const QString parent = folder.filePath(QString::number(++stores));
        QDir().mkpath(parent);
        return parent + "/LuckyCup2.2.conf";
    }
    GameSettings Changed() {
        const auto name = [&] { return "Ann " + std::to_string(random()); };
        return {.NumberOfDice = 4, .Player1 = name(), .Player2 = name(), .SoundEnabled = false};
    }
    static QByteArray StoreOf(const GameSettings& settings, const QString& path) {
        RegistrySettings(path).SaveSettings(settings);
        return Bytes(path);
    }
    GameSettings LoadedAnew(const QString& path) {
        const QString copy = NewPath();
        QFile::copy(path, copy);
        return RegistrySettings(copy).LoadSettings();
    }

    QTemporaryDir folder{FolderTemplate()};
    int stores = 0;
    std::mt19937 random{Seed()};
};

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
        const GameSettings kept = LoadedAnew(path);
        ASSERT_TRUE(kept == wanted || (room < static_cast<rlim_t>(needed) && kept == old)) << room;
    }
}

}  // namespace
