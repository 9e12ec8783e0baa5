#pragma once

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <algorithm>
#include <csignal>
#include <iterator>
#include <numeric>
#include <random>
#include <vector>

// A seed and a count for a long run; without them each test has a short one of its own:
//     LUCKYCUP_SEED=7 LUCKYCUP_COUNT=1000 build/release/tests/hard/hard_scores

inline unsigned Seed() { return static_cast<unsigned>(qEnvironmentVariableIntValue("LUCKYCUP_SEED")); }

inline int Rounds(int shortRun) {
    const int count = qEnvironmentVariableIntValue("LUCKYCUP_COUNT");
    return count > 0 ? count : shortRun;
}

// In memory where there is such a folder: flushing thousands of files to a busy disk takes its time.
inline QString FolderTemplate() {
    return (QFileInfo("/dev/shm").isWritable() ? "/dev/shm" : QDir::tempPath()) + "/luckycup-hard-XXXXXX";
}

inline QByteArray Bytes(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

// How much room a full disk may have left, 0 to most bytes: as many cases as are wanted, and always the last two.
inline std::vector<rlim_t> Rooms(rlim_t most, int wanted, std::mt19937& random) {
    std::vector<rlim_t> all(most - 1);
    std::iota(all.begin(), all.end(), rlim_t{0});
    std::vector<rlim_t> rooms;
    std::ranges::sample(all, std::back_inserter(rooms), wanted, random);
    rooms.insert(rooms.end(), {most - 1, most});
    return rooms;
}

inline void LimitFiles(rlim_t bytes) {
    const rlimit limit{bytes, bytes};
    std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &limit);
}

// The status with which a child ends that does the work; a hang ends it by SIGALRM.
template <typename Work>
pid_t Start(Work work) {
    const pid_t child = fork();
    if (child != 0) return child;
    alarm(20);
    work();
    _exit(0);
}

inline int StatusOf(pid_t child) {
    int status = 0;
    waitpid(child, &status, 0);
    return status;
}
