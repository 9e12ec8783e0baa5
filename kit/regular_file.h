#pragma once

#include <QByteArray>
#include <QString>

// What a file begins with, at most so many bytes; the way to read a file that lies beside the program. Empty where
// there is no file to read, and where a pipe, a device or a folder lies in its place, which is never opened.
QByteArray StartOfFile(const QString& path, qint64 atMost);
