#include "store/settings_store.h"

#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace {

class SettingsStoreTest : public testing::Test {
protected:
    void SetUp() override { NewStore(); }
    void TearDown() override { ASSERT_EQ(seteuid(getuid()), 0); }

    // A user's own store in a folder that was never used: for a file that it knows, Qt answers from memory.
    void NewStore() {
        const QString parent = folder.filePath(QString::number(++stores));
        path = parent + "/LuckyCup/LuckyCup2.2.conf";
        QDir().mkpath(QFileInfo(path).path());
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, parent);
    }
    void Write(const QByteArray& bytes) const {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
    QByteArray Bytes() const {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
    }
    static GameSettings Load() { return RegistrySettings().LoadSettings(); }
    static void Save(const GameSettings& settings) { RegistrySettings().SaveSettings(settings); }
    GameSettings LoadInNextRun() {
        const QByteArray written = Bytes();
        NewStore();
        Write(written);
        return Load();
    }

    QTemporaryDir folder;
    int stores = 0;
    QString path;
};

const GameSettings changed{4, 2, 1, "Ann", "", false, false, false, true, false, false, false, true, 1000, false};

TEST_F(SettingsStoreTest, EveryValueIsWrittenAsText) {
    EXPECT_EQ(Load(), GameSettings{});
    EXPECT_EQ(Bytes(), "none") << "reading writes nothing";
    RegistrySettings open;
    open.SaveSettings(changed);
    EXPECT_EQ(Bytes(),
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
        {"NumberOfPlayers=\nNumberOfColumns=0x1\nBGMusicVolume=nan\nShowDialog=no", kept},
        {"NumberOfPlayers=1.5\nBGMusicVolume=0",
         {.NumberOfDice = 4, .NumberOfPlayers = 2, .Player2 = "Bob", .BGMusicVolume = 0}},
        {"NumberOfPlayers=2.5 people\nShowSplash=TRUE",
         {.NumberOfDice = 4, .NumberOfPlayers = 2, .Player2 = "Bob", .ShowSplash = true}},
        {"NumberOfColumns=1e9\nSoundEnabled=fALSE\nPlayer1=", {4, 1, 1, "", "Bob", false}},
        {"NumberOfDice=6", {.Player2 = "Bob"}},
        {"NumberOfDice=five", {.Player2 = "Bob"}},
        {"NumberOfDice=", {}},
        {"NumberOfDice=@Invalid()", {}},
    };
    for (const auto& [lines, expected] : cases) {
        NewStore();
        Write(QByteArray("[General]\nNumberOfDice=4\nPlayer2=Bob\n") + lines + "\n");
        EXPECT_EQ(Load(), expected) << lines;
    }
    NewStore();
    path = QFileInfo(QFileInfo(path).path()).path() + "/LuckyCup.conf";
    Write("[General]\nNumberOfDice=4\n");
    EXPECT_EQ(Load(), GameSettings{}) << "another key's values";
}

TEST_F(SettingsStoreTest, DamagedStoreStillStartsAndIsMended) {
    const QByteArray noise = QByteArray::fromHex("00ff5b3d5d0a22c3285c78ffff0a403d400a").repeated(60'000);
    for (const QByteArray& damage : {QByteArray(), QByteArray("[Gen"), noise, "NumberOfDice\n=\n" + noise}) {
        NewStore();
        Write(damage);
        EXPECT_EQ(Load(), GameSettings{});
        Save(changed);
        EXPECT_EQ(LoadInNextRun(), changed);
    }
    NewStore();
    QDir().mkpath(path);
    EXPECT_EQ(Load(), GameSettings{}) << "a folder";
    Save(changed);
}

TEST_F(SettingsStoreTest, ReadOnlyStoreStaysAsItIs) {
    Save(changed);
    const QByteArray before = Bytes();
    const QByteArray parent = QFile::encodeName(QFileInfo(path).path());
    ASSERT_EQ(chmod(QFile::encodeName(path), 0444) | chmod(parent, 0555), 0);
    ASSERT_EQ(chmod(QFile::encodeName(folder.path()), 0755), 0);
    if (geteuid() == 0) {
        ASSERT_EQ(seteuid(65534), 0);  // whom it is forbidden
    }
    Save(GameSettings{});
    ASSERT_EQ(seteuid(getuid()) | chmod(parent, 0755), 0);
    EXPECT_EQ(Bytes(), before);
    EXPECT_EQ(LoadInNextRun(), changed);
}

TEST_F(SettingsStoreTest, FullDiskLosesNothing) {
    constexpr int noDisk = 77;
    const pid_t child = fork();
    if (child == 0) {
        if (unshare(CLONE_NEWNS) != 0) _exit(noDisk);
        mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr);
        if (mount("tmpfs", QFile::encodeName(folder.path()), "tmpfs", 0, "size=200k") != 0) _exit(noDisk);
        NewStore();
        Save(changed);
        const QByteArray before = Bytes();
        QFile rest(folder.filePath("rest"));
        const bool full =
            rest.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && rest.write(Bytes().repeated(2000)) > 0;
        rest.resize(rest.size() - 4096);  // Qt's lock file still fits in
        Save(GameSettings{});
        _exit(full && before.startsWith("[General]") && Bytes() == before ? 0 : 1);
    }
    int status = 0;
    waitpid(child, &status, 0);
    if (WEXITSTATUS(status) == noDisk) GTEST_SKIP() << "only root can make a small disk";
    EXPECT_EQ(status, 0);
}

}  // namespace
