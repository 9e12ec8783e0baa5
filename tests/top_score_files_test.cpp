#include "store/top_score_files.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <functional>

#include "tests/files.h"

namespace {

const QByteArray unused = QByteArray::fromHex("00202020202020202020 f1d8ffff 00202020202020202020");
const QByteArray trailer = QByteArray::fromHex("01000000");

// A slot as the program writes it, with a score of 0 to 65535.
QByteArray Slot(int score) {
    return "Ann       " + QByteArray(1, static_cast<char>(score & 0xFF)) +
           QByteArray(1, static_cast<char>(score >> 8)) + QByteArray(2, '\0') + "2/1/2003  ";
}

// The slots of falling scores from high down to low.
QByteArray Slots(int high, int low) {
    QByteArray bytes;
    for (int score = high; score >= low; --score) bytes += Slot(score);
    return bytes;
}

QByteArray Zeros(int count) { return QByteArray(24 * count, '\0'); }

class TopScoreFilesTest : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(QDir().mkdir(folder.filePath("scores"))); }
    void TearDown() override { ASSERT_EQ(seteuid(getuid()), 0); }

    QString Path() const { return folder.filePath("scores/scores1.dat"); }
    QStringList Names() const {
        return QDir(folder.filePath("scores")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    }
    int Record(int score) { return files.Record(1, {"Ann", score, "2/1/2003"}); }
    int CodeOf(const std::function<void()>& operation) const {
        try {
            operation();
        } catch (const ScoreFileError& error) {
            EXPECT_EQ(error.path, Path().toStdString());
            EXPECT_EQ(error.code == 53, error.what() == std::string("File not found"));
            return error.code;
        }
        return 0;
    }
    struct Codes {
        int recorded, loaded, deleted;
        bool operator==(const Codes&) const = default;
    };
    // Deletes last, when the others have met the same state.
    Codes CodesOfAll() {
        const int loaded = CodeOf([this] { files.LoadTopScores(1); });
        const int recorded = CodeOf([this] { Record(7); });
        return {recorded, loaded, CodeOf([this] { files.DeleteTopScores(1); })};
    }

    // In memory where there is such a folder: flushing hundreds of tables to a busy disk takes its time.
    QTemporaryDir folder{(QFileInfo("/dev/shm").isWritable() ? "/dev/shm" : QDir::tempPath()) + "/scores-XXXXXX"};
    TopScoreFiles files{(folder.path() + "/scores/").toStdString()};
};

TEST_F(TopScoreFilesTest, FirstRecordLaysTheWholeTable) {
    const std::pair<ScoreRecord, const char*> cases[] = {
        {{"Ann", 258, "2/1/2003"}, "416e6e20202020202020 02010000 322f312f323030332020"},
        {{"", 0, ""}, "20202020202020202020 00000000 20202020202020202020"},
        {{"  Bartholomew Q", -2, "2003-12-31 23"}, "202042617274686f6c6f feffffff 323030332d31322d3331"},
        {{"Žoë €“Ÿ", 2147483647, "ليلى"}, "8e6feb2080939f202020 ffffff7f 3f3f3f3f202020202020"},
        {{"王😀\u0081~\x7F", -2147483647 - 1, "\u0080\u00A0"}, "3f3f817e7f2020202020 00000080 3fa02020202020202020"},
    };
    for (const auto& [record, slot] : cases) {
        EXPECT_EQ(files.Record(1, record), 1);
        const QByteArray first = QByteArray::fromHex(slot);
        EXPECT_EQ(BytesOf(Path()).toHex(), (first + unused.repeated(19) + trailer).toHex()) << record.PlayerName;
        files.DeleteTopScores(1);
        EXPECT_FALSE(files.TopScoreFileExists(1));
    }
}

TEST_F(TopScoreFilesTest, LoadTellsWhatTheBytesSay) {
    WriteFile(Path(), QByteArray::fromHex("20808a9fe98120202020 0cfeffff 322f00ffffffffffffff") + unused + Zeros(1) +
                          Slot(9).left(15));
    const auto records = files.LoadTopScores(1);
    EXPECT_EQ(records[0], (ScoreRecord{" €ŠŸé\u0081", -500, "2/"}));
    EXPECT_EQ(records[1], ScoreRecord{});
    EXPECT_EQ(records[2], (ScoreRecord{"", 0, ""}));
    EXPECT_EQ(records[3], (ScoreRecord{"Ann", 9, "2"})) << "cut off in its date";
    for (std::size_t i = 4; i < records.size(); ++i) EXPECT_EQ(records.at(i), ScoreRecord{});
}

// What an update of the very file would leave: a table of twenty, and files that no table was ever written to.
TEST_F(TopScoreFilesTest, RecordUpdatesLikeInPlace) {
    struct Case {
        const char* what;
        QByteArray before;
        int score, place;
        QByteArray after;
    };
    const QByteArray full = Slots(120, 101);
    const QByteArray longer = Slots(1207, 1000) + QByteArray(8, 'x');
    const QByteArray lastCut = full.left(479) + '\0';
    const Case cases[] = {
        {"fills a free place", Slots(9, 8) + unused.repeated(18) + trailer, 1, 3,
         Slots(9, 8) + Slot(1) + unused.repeated(17) + trailer},
        {"below its equals", full + trailer, 116, 6, Slots(120, 116) + Slot(116) + Slots(115, 102) + trailer},
        {"0 bytes", "", 5, 1, Slot(5) + unused.repeated(19) + trailer},
        {"100 bytes, in between", full.left(100), 118, 4,
         Slots(120, 118) + Slot(118) + Slot(117) + Zeros(15) + trailer},
        {"479 bytes", full.left(479), 110, 12, Slots(120, 110) + Slot(110) + Slots(109, 102) + trailer},
        {"479 bytes, refused", full.left(479), 101, -1, lastCut + trailer},
        {"485 bytes", full + "abcde", 200, 1, Slot(200) + Slots(120, 102) + trailer + "e"},
        {"5000 bytes, past the table", longer, 1100, 109,
         Slots(1207, 1188) + trailer + Slots(1187, 1100).mid(4) + Slot(1100) + Slots(1098, 1000) + QByteArray(8, 'x')},
    };
    for (const Case& c : cases) {
        WriteFile(Path(), c.before);
        EXPECT_EQ(Record(c.score), c.place) << c.what;
        EXPECT_EQ(BytesOf(Path()).toHex(), c.after.toHex()) << c.what;
    }
    EXPECT_EQ(Names(), QStringList({"scores1.dat"}));
}

TEST_F(TopScoreFilesTest, NegativeScoresStandAboveFreePlacesOnly) {
    for (const auto& [score, place] :
         {std::pair{-40, 1}, {-30, 1}, {-9998, 3}, {-9999, -1}, {-30, 2}, {0, 1}, {-50, 5}})
        EXPECT_EQ(Record(score), place) << score;
}

TEST_F(TopScoreFilesTest, WhatIsNoTableFails) {
    const QByteArray scores = QFile::encodeName(folder.filePath("scores"));
    const QByteArray table = QFile::encodeName(Path());
    EXPECT_EQ(CodesOfAll(), (Codes{0, 53, 0})) << "missing, then created";
    EXPECT_EQ(CodeOf([this] { files.DeleteTopScores(1); }), 53);
    ASSERT_EQ(mkdir(table, 0777), 0);
    EXPECT_EQ(CodesOfAll(), (Codes{75, 75, 75})) << "a folder in its place";
    EXPECT_FALSE(files.TopScoreFileExists(1));
    ASSERT_EQ(rmdir(table) | mkfifo(table, 0666), 0);
    EXPECT_EQ(CodesOfAll(), (Codes{75, 75, 75})) << "a pipe in its place";
    ASSERT_EQ(unlink(table) | rmdir(scores), 0);
    EXPECT_EQ(CodesOfAll(), (Codes{76, 76, 76})) << "no folder";
    ASSERT_TRUE(QFile::copy("/dev/null", scores));
    EXPECT_EQ(CodesOfAll(), (Codes{76, 76, 76})) << "a file in the folder's place";
}

TEST_F(TopScoreFilesTest, ProtectedFilesFail) {
    WriteFile(Path(), Slots(9, 9) + unused.repeated(19) + trailer);
    const QByteArray scores = QFile::encodeName(folder.filePath("scores"));
    const QByteArray table = QFile::encodeName(Path());
    for (const QByteArray& path : {QFile::encodeName(folder.path()), scores, table})
        ASSERT_EQ(geteuid() == 0 ? chown(path, 65534, 65534) : 0, 0);
    ASSERT_EQ(geteuid() == 0 ? seteuid(65534) : 0, 0) << "root, whom nothing is forbidden, steps down";
    ASSERT_EQ(chmod(scores, 0000), 0);
    EXPECT_EQ(CodesOfAll(), (Codes{70, 70, 70})) << "closed folder";
    ASSERT_EQ(chmod(scores, 0555), 0);
    EXPECT_EQ(CodesOfAll(), (Codes{70, 0, 70})) << "read-only folder";
    ASSERT_EQ(chmod(table, 0444) | chmod(scores, 0755), 0);
    EXPECT_TRUE(files.TopScoreFileExists(1));
    EXPECT_EQ(CodesOfAll(), (Codes{70, 0, 0})) << "read-only table";
    EXPECT_EQ(Names(), QStringList());
}

}  // namespace
