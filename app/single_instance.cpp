#include "app/single_instance.h"

#include <QDir>
#include <QStandardPaths>

namespace {
QString LockPath() {
    const QString own = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    return QDir(own.isEmpty() ? QDir::homePath() : own).filePath("LuckyCup.lock");
}
}  // namespace

bool TakeOnlyInstance(FileLock& lock) { return lock.Try(LockPath(), LockOn::File) != LockAttempt::HeldByAnother; }
