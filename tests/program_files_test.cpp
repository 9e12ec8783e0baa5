#include "app/program_files.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "store/top_score_files.h"

namespace {

// A system with the program in its usual place, and a user, who is made at need.
class ProgramFilesTest : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(QDir(root.path()).mkpath("usr/games")); }
    void Install() { ASSERT_TRUE(QDir(root.path()).mkpath("usr/share/games/luckycup")); }
    ProgramFiles Find() { return FindProgramFiles(Path("usr/games"), Path("home/.local/share/LuckyCup")); }
    QString Path(const char* name) { return root.filePath(name); }
    std::string Folder(const char* name) { return Path(name).toStdString() + "/"; }

    QTemporaryDir root;
};

TEST_F(ProgramFilesTest, ProgramWithItsDataIsWholeInItself) {
    EXPECT_EQ(Find().data, Folder("usr/games")) << "its pointer is missing";
    Install();
    ASSERT_TRUE(QFile(Path("usr/games/base.cur")).open(QIODevice::WriteOnly));
    const ProgramFiles files = Find();
    EXPECT_EQ(files.data, Folder("usr/games"));
    EXPECT_EQ(files.plugIns, Folder("usr/games"));
    EXPECT_EQ(files.scores, Folder("usr/games/scores"));
    // A folder that has gone missing stays so.
    EXPECT_FALSE(QDir(Path("usr/games/scores")).exists());
    EXPECT_FALSE(QDir(Path("home")).exists());
}

TEST_F(ProgramFilesTest, InstalledProgramKeepsScoresWithTheUser) {
    Install();
    for (const char* start : {"first", "second"}) {
        const ProgramFiles files = Find();
        EXPECT_EQ(files.data, Folder("usr/share/games/luckycup")) << start;
        EXPECT_TRUE(files.plugIns.starts_with(Folder("usr/lib")) && files.plugIns.ends_with("/luckycup/")) << start;
        EXPECT_EQ(files.scores, Folder("home/.local/share/LuckyCup/scores")) << start;
        EXPECT_EQ(TopScoreFiles(files.scores).Record(1, {"Ann", 7, "1/1/2026"}), *start == 'f' ? 1 : 2);
    }
    EXPECT_EQ(QDir(root.path()).entryList(QDir::Dirs | QDir::NoDotAndDotDot), QStringList({"home", "usr"}));
}

TEST_F(ProgramFilesTest, UserWithoutRoomForScoresHasNone) {
    Install();
    ASSERT_TRUE(QFile(Path("home")).open(QIODevice::WriteOnly));
    const ProgramFiles files = Find();
    EXPECT_EQ(files.scores, Folder("home/.local/share/LuckyCup/scores"));
    EXPECT_FALSE(TopScoreFiles(files.scores).TopScoreFileExists(1));
}

}  // namespace
