#include "kit/regular_file.h"

#include <QFile>
#include <QFileInfo>

QByteArray StartOfFile(const QString& path, qint64 atMost) {
    QFile file(path);
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly)) return {};
    return file.read(atMost);
}
