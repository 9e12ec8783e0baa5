#pragma once

#include <gtest/gtest.h>

#include <QFile>

inline void WriteFile(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size()) << path.toStdString();
}

// What it holds, at most 16 MB; "none" for a file that cannot be read.
inline QByteArray BytesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(16 << 20) : QByteArray("none");
}
