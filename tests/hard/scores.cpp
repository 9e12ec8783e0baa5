// The score files of a process that is killed, of a full disk, of several processes at once and of a folder that others
// write to as well.

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDir>
#include <functional>

#include "store/top_score_files.h"
#include "tests/hard/hard_run.h"

namespace {

class HardScores : public testing::Test {
protected:
    int Record(int score) { return files.Record(1, {"Ann", score, "1/2/2026"}); }
    QString Path(const char* end = "") const { return folder.filePath(QString("scores1.dat") + end); }
    QStringList Names() const {
        return QDir(folder.path()).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
    }
    std::vector<int> Scores() {
        EXPECT_EQ(QFileInfo(Path()).size(), 484) << "a table is whole or not there";
        std::vector<int> scores;
        for (const ScoreRecord& record : files.LoadTopScores(1))
            if (record.Score != unusedScore) scores.push_back(record.Score);
        return scores;
    }
    // The best twenty when the scores from 1 to best were recorded.
    static std::vector<int> BestOf(int best) {
        std::vector<int> scores;
        for (int score = best; score > std::max(0, best - scoreRecords); --score) scores.push_back(score);
        return scores;
    }

    QTemporaryDir folder{FolderTemplate()};
    TopScoreFiles files{folder.path().toStdString() + '/'};
    std::mt19937 random{Seed()};
};

// Tells each score when it is recorded. What was told is never lost; at most the one on its way is there besides.
TEST_F(HardScores, KilledWhileRecording) {
    int best = 0;
    for (int round = 0; round < Rounds(100); ++round) {
        int told[2];
        ASSERT_EQ(pipe(told), 0);
        const pid_t child = Start([&] {
            for (int score = best + 1;; ++score)
                if (Record(score) != 1 || write(told[1], &score, sizeof score) != sizeof score) _exit(1);
        });
        close(told[1]);
        int last = 0;
        ASSERT_EQ(read(told[0], &last, sizeof last), static_cast<ssize_t>(sizeof last));
        usleep(static_cast<useconds_t>(random() % 1000));
        kill(child, SIGKILL);
        EXPECT_EQ(StatusOf(child), SIGKILL);
        while (read(told[0], &last, sizeof last) > 0) continue;
        close(told[0]);

        const std::vector<int> scores = Scores();
        best = scores.front();
        ASSERT_TRUE(best == last || best == last + 1) << best << " after " << last;
        ASSERT_EQ(scores, BestOf(best));
        ASSERT_LE(Names().size(), 2);
    }
    Record(best + 1);
    EXPECT_EQ(Names(), QStringList("scores1.dat")) << "what was left is cleared away";
}

TEST_F(HardScores, EveryPlaceOnAFullDisk) {
    for (int score = 1; score <= 25; ++score) Record(score);
    for (const rlim_t room : Rooms(484, Rounds(50), random)) {
        const pid_t child = Start([&] {
            LimitFiles(room);
            try {
                Record(26);
            } catch (const ScoreFileError&) {
                _exit(1);
            }
        });
        ASSERT_EQ(WEXITSTATUS(StatusOf(child)), room < 484 ? 1 : 0) << room;
        ASSERT_EQ(Scores(), BestOf(room < 484 ? 25 : 26)) << room;
        ASSERT_EQ(Names(), QStringList("scores1.dat")) << room;
    }
}

// Five processes at once, of which one is killed somewhere.
TEST_F(HardScores, AtOnceLosesNothing) {
    for (int round = 0; round < Rounds(200) / 10; ++round) {
        QFile::remove(Path());
        std::vector<pid_t> children;
        for (int process = 0; process < 5; ++process)
            children.push_back(Start([&] {
                const int first = process == 4 ? -100 : 1 + 4 * process;
                for (int score = first; score < first + 4; ++score) Record(score);
            }));
        usleep(static_cast<useconds_t>(random() % 2000));
        kill(children.back(), SIGKILL);
        StatusOf(children.back());
        children.pop_back();
        for (const pid_t child : children) ASSERT_EQ(StatusOf(child), 0);
        std::vector<int> scores = Scores();
        std::erase_if(scores, [](int score) { return score < 0; });
        ASSERT_EQ(scores, BestOf(16));
    }
}

// A folder that all can write to, the game run by its owner or by a stranger: the score stands in the table or an error
// is told, and what lies there besides stays as it is.
TEST_F(HardScores, WhateverLiesInTheFolder) {
    const QTemporaryDir other{FolderTemplate()};
    const QString theirs = other.filePath("theirs");
    const QByteArray target = QFile::encodeName(theirs);
    ASSERT_EQ(chmod(QFile::encodeName(folder.path()), 0777) | chmod(QFile::encodeName(other.path()), 0755), 0);
    const std::function<int(const char*)> plants[] = {
        [](const char* at) { return mkfifo(at, 0666); },
        [](const char* at) { return mkdir(at, 0777); },
        [](const char* at) { return mkdir(at, 0); },
        [](const char* at) { return symlink("/dev/full", at); },
        [](const char* at) { return symlink("/dev/zero", at); },
        [](const char* at) { return symlink("scores1.dat", at); },
        [](const char* at) { return symlink("no/where", at); },
        [&](const char* at) { return symlink(target, at); },
        [&](const char* at) { return link(target, at); },
        [](const char* at) { return QFile::copy("/bin/true", at) ? 0 : 1; },
        [](const char*) { return 0; },
    };
    const auto plant = [&](const char* end) {
        return plants[random() % std::size(plants)](QFile::encodeName(Path(end)));
    };
    for (int round = 0; round < Rounds(150); ++round) {
        for (const QString& name : Names())
            ASSERT_TRUE(QFile::remove(folder.filePath(name)) || QDir(folder.path()).rmdir(name));
        QFile::remove(theirs);
        ASSERT_TRUE(QFile::copy("/proc/self/comm", theirs));
        const QByteArray before = Bytes(theirs);
        ASSERT_EQ(plant("") | plant(".new"), 0);
        const bool tableIsTheirs = QFileInfo(Path()).canonicalFilePath() == QFileInfo(theirs).canonicalFilePath();
        const bool stranger = geteuid() == 0 && random() % 2 == 0;
        const pid_t child = Start([&] {
            if (stranger && setuid(65534) != 0) _exit(2);
            try {
                const int place = Record(7);
                _exit(place != -1 && files.LoadTopScores(1).at(static_cast<std::size_t>(place - 1)).Score != 7);
            } catch (const ScoreFileError& error) {
                _exit(std::ranges::count(std::array{7, 57, 70, 75, 76}, error.code) != 1);
            }
        });
        ASSERT_EQ(StatusOf(child), 0) << "round " << round;
        ASSERT_TRUE(tableIsTheirs || Bytes(theirs) == before) << "round " << round;
    }
}

}  // namespace
