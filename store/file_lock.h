#pragma once

#include <QString>

enum class LockOn { File, Folder };
enum class LockAttempt { Locked, HeldByAnother, NotPossible };

// An advisory lock that hangs on an open descriptor: it ends with its owner, however that ends. What it leaves behind
// is at most an empty file, which blocks nobody.
class FileLock {
public:
    FileLock() = default;
    ~FileLock();
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

    // A file is made when it is missing, and what lies in its place serves as well; neither is read or changed.
    // NotPossible when there is nothing that can be opened, or the disk knows no locks. Not again once it is Locked.
    LockAttempt Try(const QString& path, LockOn on);

private:
    qintptr handle_ = -1;
};
