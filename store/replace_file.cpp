#include "store/replace_file.h"

#include <QFileInfo>
#include <filesystem>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace fs = std::filesystem;

namespace {

fs::path NativePath(const QString& path) { return path.toStdU16String(); }

bool FlushToDisk(const QFile& file) {
#ifdef Q_OS_UNIX
    return fsync(file.handle()) == 0;
#else
    return true;
#endif
}

// The error's own kind, or, where a flush to the disk told none, that of a failed write.
QFileDevice::FileError FailureOf(const QFile& file) {
    return file.error() == QFileDevice::NoError ? QFileDevice::WriteError : file.error();
}

QFileDevice::FileError WriteAnew(const QString& path, const QByteArray& bytes, QFileDevice::Permissions ofNew,
                                 const QFileInfo& old) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered, ofNew)) return FailureOf(file);
    if (old.exists()) file.setPermissions(old.permissions());
    const bool done = file.write(bytes) == bytes.size() && FlushToDisk(file);
    return done ? QFileDevice::NoError : FailureOf(file);
}

// A pipe, a link or an empty folder too; what a link leads to stays.
void Remove(const QString& path) {
    std::error_code ignored;
    fs::remove(NativePath(path), ignored);
}

}  // namespace

QFileDevice::FileError ReplaceFile(const QString& path, const QByteArray& bytes, QFileDevice::Permissions ofNew) {
    const QFileInfo old(path);
    const QString target = old.exists() ? old.canonicalFilePath() : path;
    const QString fresh = target + ".new";
    Remove(fresh);
    QFileDevice::FileError failure = WriteAnew(fresh, bytes, ofNew, old);
    std::error_code error;
    if (failure == QFileDevice::NoError) fs::rename(NativePath(fresh), NativePath(target), error);
    if (error) failure = QFileDevice::RenameError;
    if (failure != QFileDevice::NoError) Remove(fresh);
    return failure;
}
