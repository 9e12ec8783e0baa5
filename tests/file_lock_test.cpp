#include "store/file_lock.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <functional>

namespace {

LockAttempt TryOnce(const QString& path, LockOn on) { return FileLock().Try(path, on); }

TEST(FileLock, IsHeldByOneAndEndsWithItsOwner) {
    const QTemporaryDir folder;
    ASSERT_TRUE(QFile::link(folder.path(), folder.filePath("link")));
    for (const auto& [path, on] : {std::pair{folder.filePath("lock"), LockOn::File},
                                   {folder.path(), LockOn::Folder},
                                   {folder.filePath("link"), LockOn::Folder}}) {
        int held[2];
        ASSERT_EQ(pipe(held), 0);
        const pid_t child = fork();
        if (child == 0) {
            FileLock lock;
            const bool locked = lock.Try(path, on) == LockAttempt::Locked;
            if (write(held[1], locked ? "y" : "n", 1) == 1) pause();
            _exit(1);
        }
        char answer = 0;
        ASSERT_EQ(read(held[0], &answer, 1), 1);
        EXPECT_EQ(answer, 'y');
        EXPECT_EQ(TryOnce(path, on), LockAttempt::HeldByAnother);
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        EXPECT_EQ(TryOnce(path, on), LockAttempt::Locked);
        EXPECT_EQ(TryOnce(path, on), LockAttempt::Locked) << "let go at the end of its object";
    }
    EXPECT_EQ(TryOnce(folder.filePath("missing"), LockOn::Folder), LockAttempt::NotPossible);
    EXPECT_FALSE(QFileInfo::exists(folder.filePath("missing")));
}

// As it would lie there after a crash, another program or a mishap.
TEST(FileLock, WhatLiesInItsPlaceBlocksNobody) {
    const QTemporaryDir folder;
    const QByteArray path = QFile::encodeName(folder.filePath("lock"));
    const auto file = [&](const char* bytes, mode_t mode) {
        QFile written(path);
        return written.open(QIODevice::WriteOnly) && written.write(bytes) >= 0 && chmod(path, mode) == 0;
    };
    const std::pair<const char*, std::function<bool()>> cases[] = {
        {"empty", [&] { return file("", 0600); }},
        {"garbage", [&] { return file("\xff\xfe 12 x\n\n", 0600); }},
        {"of a process on another machine", [&] { return file("1\nLuckyCup\nelsewhere\n", 0400); }},
        {"unreadable", [&] { return file("", 0); }},
        {"a folder", [&] { return mkdir(path, 0700) == 0; }},
        {"a pipe", [&] { return mkfifo(path, 0600) == 0; }},
        {"a link to nothing", [&] { return symlink("no/where", path) == 0; }},
    };
    for (const auto& [what, plant] : cases) {
        ASSERT_TRUE(plant()) << what;
        EXPECT_NE(TryOnce(path, LockOn::File), LockAttempt::HeldByAnother) << what;
        ASSERT_TRUE(QFile::remove(path) || rmdir(path) == 0) << what;
    }
}

}  // namespace
