#include "table/art.h"

#include <QSvgRenderer>

// The resources lie in a static library, which the linker would take without them.
static void TakeResources() { Q_INIT_RESOURCE(art); }

namespace {
QPixmap Render(const QString& name, QSize size) {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QSvgRenderer renderer(":/art/" + name + ".svg");
    QPainter painter(&pixmap);
    renderer.render(&painter, QRectF(QPointF(0, 0), size));
    return pixmap;
}
}  // namespace

Art::Art() { TakeResources(); }

const QPixmap& Art::Picture(const QString& name, QSize devicePixels) {
    QPixmap& picture = rendered_[QString("%1 %2x%3").arg(name).arg(devicePixels.width()).arg(devicePixels.height())];
    if (picture.isNull()) picture = Render(name, devicePixels);
    return picture;
}

void Art::Draw(QPainter& painter, const QRectF& area, const QString& name) {
    const QRect target = DeviceArea(painter, area);
    if (target.isEmpty()) return;
    painter.save();
    UseDevicePixels(painter);
    painter.drawPixmap(target.topLeft(), Picture(name, target.size()));
    painter.restore();
}

QPixmap Art::Scaled(const QString& name, QSize size, qreal devicePixelRatio) {
    QPixmap picture = Picture(name, (QSizeF(size) * devicePixelRatio).toSize());
    picture.setDevicePixelRatio(devicePixelRatio);
    return picture;
}

QRect DeviceArea(const QPainter& painter, const QRectF& area) {
    const QRectF device = painter.deviceTransform().mapRect(area);
    const QPoint topLeft = device.topLeft().toPoint();
    const QPoint bottomRight = device.bottomRight().toPoint();
    return {topLeft, QSize(bottomRight.x() - topLeft.x(), bottomRight.y() - topLeft.y())};
}

void UseDevicePixels(QPainter& painter) { painter.setWorldTransform(painter.deviceTransform().inverted(), true); }
