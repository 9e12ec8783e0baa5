#include "kit/pointers.h"

#include <QDir>
#include <QGuiApplication>
#include <QImageReader>
#include <QWidget>
#include <QtEndian>

#include "kit/regular_file.h"
#include "kit/size.h"

namespace {
constexpr QSize pointerSize(32, 32);
constexpr QPointF handHotSpot(15, 7);

// A pointer file begins with a directory of its pictures. What it tells of each are little-endian numbers: the hot spot
// as two words, then its size and place in the file as two double words.
constexpr qsizetype countAt = 4, directoryStart = 6, directoryEntry = 16;
constexpr qsizetype hotSpotInEntry = 4, sizeInEntry = 8, placeInEntry = 12;

constexpr qint64 longestPointer = 64 << 10;  // bytes; more than a picture of 96 by 96 needs

// Qt hands the X server the hot spot as it stands, though the picture there is in device pixels.
QCursor PointerOf(const QPixmap& picture, QPointF hotSpot) {
    if (QGuiApplication::platformName() == "xcb") hotSpot *= picture.devicePixelRatio();
    return QCursor(picture, qRound(hotSpot.x()), qRound(hotSpot.y()));
}

template <typename Number>
Number NumberAt(const QByteArray& bytes, qsizetype at) {
    return qFromLittleEndian<Number>(bytes.constData() + at);
}

// Whether all the pictures of the directory lie in these bytes. For one that promises more Qt would make room.
bool HoldsItsPictures(const QByteArray& bytes) {
    if (bytes.size() < directoryStart) return false;
    const qsizetype end = directoryStart + NumberAt<quint16>(bytes, countAt) * directoryEntry;
    if (bytes.size() < end) return false;
    for (qsizetype entry = directoryStart; entry < end; entry += directoryEntry) {
        const qint64 size = NumberAt<quint32>(bytes, entry + sizeInEntry);
        if (size + NumberAt<quint32>(bytes, entry + placeInEntry) > bytes.size()) return false;
    }
    return true;
}
}  // namespace

QCursor HandPointer(Art& art, qreal devicePixelRatio) {
    return PointerOf(art.Scaled("pointer", Sized(pointerSize), devicePixelRatio), handHotSpot * Sized(1.0));
}

void SetBasePointer(QWidget& window, const QString& programFolder) {
    const QString path = QDir(programFolder).filePath("base.cur");
    const QByteArray bytes = StartOfFile(path, longestPointer);
    if (!HoldsItsPictures(bytes)) return;
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
    const QPointF hotSpot(NumberAt<quint16>(bytes, hotSpotAt), NumberAt<quint16>(bytes, hotSpotAt + 2));
    QPixmap picture = QPixmap::fromImage(image).scaled(wanted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    picture.setDevicePixelRatio(ratio);
    window.setCursor(PointerOf(picture, hotSpot * wanted.width() / image.width() / ratio));
}
