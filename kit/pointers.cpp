#include "kit/pointers.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QImageReader>
#include <QWidget>

#include "kit/regular_file.h"

namespace {
constexpr QSize pointerSize(32, 32);
constexpr QPoint handHotSpot(15, 7);

// In a pointer file the hot spot stands in the first entry of its directory, two little-endian words.
constexpr int hotSpotAt = 10;
constexpr int directoryEnd = 22;

constexpr qint64 longestPointer = 64 << 10;  // bytes; more than a picture of 96 by 96 needs

// Qt hands the X server the hot spot as it stands, though the picture there is in device pixels.
QCursor PointerOf(const QPixmap& picture, QPoint hotSpot) {
    if (QGuiApplication::platformName() == "xcb") hotSpot = (QPointF(hotSpot) * picture.devicePixelRatio()).toPoint();
    return QCursor(picture, hotSpot.x(), hotSpot.y());
}

int WordAt(const QByteArray& bytes, int at) {
    return static_cast<unsigned char>(bytes[at]) + 256 * static_cast<unsigned char>(bytes[at + 1]);
}
}  // namespace

QCursor HandPointer(Art& art, qreal devicePixelRatio) {
    return PointerOf(art.Scaled("pointer", pointerSize, devicePixelRatio), handHotSpot);
}

void SetBasePointer(QWidget& window, const QString& programFolder) {
    QByteArray bytes = StartOfFile(programFolder + "base.cur", longestPointer);
    if (bytes.size() < directoryEnd) return;
    QBuffer buffer(&bytes);
    const QImage image = QImageReader(&buffer, "cur").read();
    if (image.isNull()) return;
    const qreal ratio = window.devicePixelRatioF();
    QPixmap picture = QPixmap::fromImage(image).scaled((QSizeF(image.size()) * ratio).toSize(), Qt::KeepAspectRatio,
                                                       Qt::SmoothTransformation);
    picture.setDevicePixelRatio(ratio);
    window.setCursor(PointerOf(picture, {WordAt(bytes, hotSpotAt), WordAt(bytes, hotSpotAt + 2)}));
}
