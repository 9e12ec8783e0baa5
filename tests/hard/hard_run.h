#pragma once

#include <sys/wait.h>
#include <unistd.h>

#include <QFileInfo>
#include <QTemporaryDir>
#include <algorithm>
#include <csignal>
#include <random>

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
