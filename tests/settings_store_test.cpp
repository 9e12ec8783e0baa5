#include "store/settings_store.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <functional>

#include "tests/files.h"

namespace {

class SettingsStoreTest : public testing::Test {
protected:
    void SetUp() override {
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(folder.path()));
        NewStore();
    }

    // A user's own store in a folder that was never used: for a file that it knows, Qt answers from memory.
    void NewStore() {
        const QString parent = folder.filePath(QString::number(++stores));
        path = parent + "/LuckyCup/LuckyCup2.2.conf";
        QDir().mkpath(QFileInfo(path).path());
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(parent));
    }
    static GameSettings Load() { return RegistrySettings().LoadSettings(); }
    static void Save(const GameSettings& settings) { RegistrySettings().SaveSettings(settings); }
    GameSettings LoadInNextRun() {
        const QByteArray written = BytesOf(path);
        NewStore();
        WriteFile(path, written);
        return Load();
    }

    // In memory where there is such a folder: the flushes to a busy disk take their time.
    QTemporaryDir folder{(QFileInfo("/dev/shm").isWritable() ? "/dev/shm" : QDir::tempPath()) + "/settings-XXXXXX"};
    int stores = 0;
    QString path;
};

const GameSettings changed{4, 2, 1, "Ann", "", false, false, false, true, false, false, false, true, 1000, false};

TEST_F(SettingsStoreTest, EveryValueIsWrittenAsText) {
    EXPECT_EQ(Load(), GameSettings{});
    EXPECT_EQ(BytesOf(path), "none") << "reading writes nothing";
    Save(changed);
    EXPECT_EQ(BytesOf(path),
              "[General]\nBGMusicEnabled=True\nBGMusicVolume=1000\nConfirmOnExit=False\nConfirmQuitGame=False\n"
              "NumberOfColumns=1\nNumberOfDice=4\nNumberOfPlayers=2\nPlayer1=Ann\nPlayer2=\nShowDialog=False\n"
              "ShowGridLines=False\nShowSplash=True\nShowStatusBar=False\nSoundEnabled=False\nhintAllways=False\n");
    EXPECT_EQ(LoadInNextRun(), changed);
    Save(GameSettings{});
    EXPECT_EQ(LoadInNextRun(), GameSettings{});
}

TEST_F(SettingsStoreTest, NamesComeBackAsTheyWere) {
    for (const std::string& name :
         std::vector<std::string>{" a, b ", "\"\\x41\\0;=%20#[x]", "@Invalid()", "@@", "4", "a\r\nb\t\x01 f",
                                  "Žoë 王小明 😀 ليلى", std::string(200, ','), std::string(1 << 20, 'W')}) {
        Save({.Player1 = name, .Player2 = name + ' '});
        EXPECT_EQ(LoadInNextRun(), (GameSettings{.Player1 = name, .Player2 = name + ' '})) << name.substr(0, 200);
    }
    Save({.Player1 = std::string("ab\0cd", 5)});
    EXPECT_EQ(LoadInNextRun().Player1, "ab");
}

TEST_F(SettingsStoreTest, WhatAFieldCannotHaveGivesItsDefault) {
    const GameSettings kept{.NumberOfDice = 4, .Player2 = "Bob"};
    const std::pair<const char*, GameSettings> cases[] = {
        {"", kept},
        {"NumberOfPlayers=-2\nNumberOfColumns=2\nBGMusicVolume=1001\nSoundEnabled=0\nPlayer1=a, b", kept},
        {"NumberOfPlayers=\" 2\"\nBGMusicVolume=-1\nShowSplash=True, True\nPlayer1=@ByteArray(Ann)", kept},
        {"NumberOfPlayers=99999999999999999999\nNumberOfColumns=.9\nBGMusicVolume=70 %\nhintAllways=", kept},
        {"NumberOfPlayers=2.5 people\nShowSplash=TRUE",
         {.NumberOfDice = 4, .NumberOfPlayers = 2, .Player2 = "Bob", .ShowSplash = true}},
        {"NumberOfColumns=1e9\nSoundEnabled=fALSE\nPlayer1=", {4, 1, 1, "", "Bob", false}},
        {"NumberOfDice=6", {.Player2 = "Bob"}},
        {"NumberOfDice=", {}},
    };
    for (const auto& [lines, expected] : cases) {
        NewStore();
        WriteFile(path, QByteArray("[General]\nNumberOfDice=4\nPlayer2=Bob\n") + lines + "\n");
        EXPECT_EQ(Load(), expected) << lines;
    }
}

TEST_F(SettingsStoreTest, DamagedStoreStillStartsAndIsMended) {
    const QByteArray noise = QByteArray::fromHex("00ff5b3d5d0a22c3285c78ffff0a403d400a").repeated(60'000);
    for (const QByteArray& damage : {QByteArray(), QByteArray("[Gen"), noise, "NumberOfDice\n=\n" + noise}) {
        NewStore();
        WriteFile(path, damage);
        EXPECT_EQ(Load(), GameSettings{});
        Save(changed);
        EXPECT_EQ(LoadInNextRun(), changed);
    }
}

TEST_F(SettingsStoreTest, WhatIsNoStoreOrLiesBesideItKeepsNobodyWaiting) {
    const auto name = [this](const char* end = "") { return QFile::encodeName(path + end); };
    const std::tuple<const char*, bool, std::function<int()>> cases[] = {
        {"a folder", false, [&] { return mkdir(name(), 0777); }},
        {"a pipe", false, [&] { return mkfifo(name(), 0666); }},
        {"a device", false, [&] { return symlink("/dev/zero", name()); }},
        {"a link to nothing", true, [&] { return symlink("nothing", name()); }},
        {"an empty lock", true, [&] { return open(name(".lock"), O_CREAT, 0) < 0; }},
        {"a folder for a lock", true, [&] { return mkdir(name(".lock"), 0); }},
        {"a pipe beside", true, [&] { return mkfifo(name(".new"), 0666); }},
    };
    for (const auto& [what, mended, plant] : cases) {
        NewStore();
        ASSERT_EQ(plant(), 0) << what;
        EXPECT_EQ(Load(), GameSettings{}) << what;
        Save(changed);
        EXPECT_EQ(QFileInfo(path).isFile(), mended) << what;
        EXPECT_EQ(mended ? LoadInNextRun() : changed, changed) << what;
    }
}

}  // namespace
