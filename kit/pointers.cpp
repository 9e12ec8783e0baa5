#include "kit/pointers.h"

#include <QBuffer>
#include <QDir>
#include <QGuiApplication>
#include <QImageReader>
#include <QWidget>

#include "kit/regular_file.h"
#include "kit/size.h"

namespace {
constexpr QSize pointerSize(32, 32);
constexpr QPointF handHotSpot(15, 7);

// A pointer file begins with a directory of its pictures. The hot spot of each stands there as two little-endian words.
constexpr qsizetype directoryStart = 6, directoryEntry = 16, hotSpotInEntry = 4;

constexpr qint64 longestPointer = 64 << 10;  // bytes; more than a picture of 96 by 96 needs

// Qt hands the X server the hot spot as it stands, though the picture there is in device pixels.
QCursor PointerOf(const QPixmap& picture, QPointF hotSpot) {
    if (QGuiApplication::platformName() == "xcb") hotSpot *= picture.devicePixelRatio();
    return QCursor(picture, qRound(hotSpot.x()), qRound(hotSpot.y()));
}

int WordAt(const QByteArray& bytes, qsizetype at) {
    return static_cast<unsigned char>(bytes[at]) + 256 * static_cast<unsigned char>(bytes[at + 1]);
}
}  // namespace

QCursor HandPointer(Art& art, qreal devicePixelRatio) {
    return PointerOf(art.Scaled("pointer", Sized(pointerSize), devicePixelRatio), handHotSpot * Sized(1.0));
}

void SetBasePointer(QWidget& window, const QString& programFolder) {
    const QString path = QDir(programFolder).filePath("base.cur");
    const QByteArray bytes = StartOfFile(path, longestPointer);
    if (bytes.isEmpty()) return;
    QImageReader reader(path);  // of a file whose name tells what it is Qt loads one reader, of bytes all of them
    QImage image = reader.read();
    if (image.isNull()) return;
    const qreal ratio = window.devicePixelRatioF();
    const QSize wanted = (QSizeF(image.size()) * Sized(ratio)).toSize();
    int chosen = 0;
    while (image.width() < wanted.width() && reader.jumpToImage(chosen + 1)) {
        const QImage larger = reader.read();
        if (larger.width() <= image.width()) break;
        image = larger;
        ++chosen;
    }
    const qsizetype hotSpotAt = directoryStart + chosen * directoryEntry + hotSpotInEntry;
    const QPointF hotSpot(WordAt(bytes, hotSpotAt), WordAt(bytes, hotSpotAt + 2));
    QPixmap picture = QPixmap::fromImage(image).scaled(wanted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    picture.setDevicePixelRatio(ratio);
    window.setCursor(PointerOf(picture, hotSpot * wanted.width() / image.width() / ratio));
}
