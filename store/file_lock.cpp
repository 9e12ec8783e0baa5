#include "store/file_lock.h"

#include <QDir>
#include <QFile>
#include <cassert>

#ifdef Q_OS_WIN
#include <windows.h>

// A file of its own that only one can open and that goes with its last handle.
LockAttempt FileLock::Try(const QString& path, LockOn) {
    const std::wstring name = (QDir::toNativeSeparators(path) + ".lock").toStdWString();
    const HANDLE handle =
        CreateFileW(name.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS, FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return GetLastError() == ERROR_SHARING_VIOLATION ? LockAttempt::HeldByAnother : LockAttempt::NotPossible;
    handle_ = reinterpret_cast<qintptr>(handle);
    return LockAttempt::Locked;
}

FileLock::~FileLock() {
    if (handle_ != -1) CloseHandle(reinterpret_cast<HANDLE>(handle_));
}

#else
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>

namespace {

// Never waits, be it a pipe that lies there. With the wish to make a file a folder cannot be opened.
int OpenForLock(const QString& path, LockOn on) {
    constexpr int flags = O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    const QByteArray name = QFile::encodeName(path);
    if (on == LockOn::Folder) return open(name, flags | O_DIRECTORY);
    const int made = open(name, flags | O_NOFOLLOW | O_CREAT, 0600);
    return made >= 0 ? made : open(name, flags | O_NOFOLLOW);
}

}  // namespace

LockAttempt FileLock::Try(const QString& path, LockOn on) {
    assert(handle_ < 0);
    const int descriptor = OpenForLock(path, on);
    if (descriptor < 0) return LockAttempt::NotPossible;
    if (flock(descriptor, LOCK_EX | LOCK_NB) == 0) {
        handle_ = descriptor;
        return LockAttempt::Locked;
    }
    const bool held = errno == EWOULDBLOCK;
    close(descriptor);
    return held ? LockAttempt::HeldByAnother : LockAttempt::NotPossible;
}

FileLock::~FileLock() {
    if (handle_ != -1) close(static_cast<int>(handle_));
}
#endif
