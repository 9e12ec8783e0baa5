#include "table/pointers.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <QWidget>

namespace {
constexpr QSize pointerSize(32, 32);
constexpr QPoint handHotSpot(15, 7);

// In a pointer file the hot spot stands in the first entry of its directory, two little-endian words.
constexpr int hotSpotAt = 10;
constexpr int directoryEnd = 22;

int WordAt(const QByteArray& bytes, int at) {
    return static_cast<unsigned char>(bytes[at]) + 256 * static_cast<unsigned char>(bytes[at + 1]);
}
}  // namespace

QCursor HandPointer(Art& art, qreal devicePixelRatio) {
    return QCursor(art.Scaled("pointer", pointerSize, devicePixelRatio), handHotSpot.x(), handHotSpot.y());
}

void SetBasePointer(QWidget& window, const QString& programFolder) {
    QFile file(programFolder + "base.cur");
    if (!file.open(QIODevice::ReadOnly)) return;
    QByteArray bytes = file.readAll();
    if (bytes.size() < directoryEnd) return;
    QBuffer buffer(&bytes);
    const QImage picture = QImageReader(&buffer, "cur").read();
    if (picture.isNull()) return;
    window.setCursor(QCursor(QPixmap::fromImage(picture), WordAt(bytes, hotSpotAt), WordAt(bytes, hotSpotAt + 2)));
}
