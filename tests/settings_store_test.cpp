#include "store/settings_store.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <chrono>
#include <functional>

namespace {

class SettingsStoreTest : public testing::Test {
protected:
    void SetUp() override {
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(folder.path()));
        NewStore();
    }
    void TearDown() override { ASSERT_EQ(seteuid(getuid()), 0); }

    // A user's own store in a folder that was never used: for a file that it knows, Qt answers from memory.
    void NewStore() {
        const QString parent = folder.filePath(QString::number(++stores));
        path = parent + "/LuckyCup/LuckyCup2.2.conf";
        QDir().mkpath(QFileInfo(path).path());
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(parent));
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

    // In memory where there is such a folder: the flushes to a busy disk take their time.
    QTemporaryDir folder{(QFileInfo("/dev/shm").isWritable() ? "/dev/shm" : QDir::tempPath()) + "/settings-XXXXXX"};
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
}

// Where Qt's own store of that name lies, and in its words.
TEST_F(SettingsStoreTest, IsTheSystemsStoreOfThatName) {
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QFileInfo(QFileInfo(path).path()).path());
    {
        QSettings key("LuckyCup", "LuckyCup2.2");
        key.setValue("NumberOfDice", "4");
        key.setValue("Player1", "Žoë, \"王\"");
        key.setValue("Window/place", 7);
    }
    EXPECT_EQ(Load(), (GameSettings{.NumberOfDice = 4, .Player1 = "Žoë, \"王\""}));
    Save(changed);
    NewStore();
    EXPECT_EQ(Load(), GameSettings{});
    QSettings key("LuckyCup", "LuckyCup2.2");
    EXPECT_EQ(key.value("Player1"), "Ann");
    EXPECT_EQ(key.value("Window/place"), "7") << "what others keep there stays";
}

TEST_F(SettingsStoreTest, WhatIsNoStoreOrLiesBesideItKeepsNobodyWaiting) {
    const auto name = [this](const char* end = "") { return QFile::encodeName(path + end); };
    const std::pair<const char*, std::function<int()>> left[] = {
        {"a folder", [&] { return mkdir(name(), 0777); }},
        {"a pipe", [&] { return mkfifo(name(), 0666); }},
        {"a device", [&] { return symlink("/dev/zero", name()); }},
    };
    const std::pair<const char*, std::function<int()>> mended[] = {
        {"a huge file", [&] { return open(name(), O_CREAT | O_WRONLY, 0600) < 0 || truncate(name(), 5'000'000'000); }},
        {"a link to nothing", [&] { return symlink("nothing", name()); }},
        {"an empty lock", [&] { return open(name(".lock"), O_CREAT, 0) < 0; }},
        {"a folder for a lock", [&] { return mkdir(name(".lock"), 0); }},
        {"a pipe beside", [&] { return mkfifo(name(".new"), 0666); }},
    };
    const auto begin = std::chrono::steady_clock::now();
    for (const auto& [what, plant] : left) {
        NewStore();
        ASSERT_EQ(plant(), 0) << what;
        EXPECT_EQ(Load(), GameSettings{}) << what;
        Save(changed);
        EXPECT_FALSE(QFileInfo(path).isFile()) << what;
    }
    for (const auto& [what, plant] : mended) {
        NewStore();
        ASSERT_EQ(plant(), 0) << what;
        EXPECT_EQ(Load(), GameSettings{}) << what;
        Save(changed);
        EXPECT_EQ(LoadInNextRun(), changed) << what;
    }
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(5));
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
        Save(GameSettings{});
        const bool kept = full && before.startsWith("[General]") && Bytes() == before;
        rest.resize(0);
        Save(GameSettings{});
        _exit(kept && Bytes() != before ? 0 : 1);
    }
    int status = 0;
    waitpid(child, &status, 0);
    if (WEXITSTATUS(status) == noDisk) GTEST_SKIP() << "only root can make a small disk";
    EXPECT_EQ(status, 0);
}

}  // namespace
