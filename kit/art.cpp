#include "kit/art.h"

#include <QSvgRenderer>
#include <QThreadPool>
#include <memory>
#include <type_traits>

// The resources lie in a static library, which the linker would take without them. The macro must not stand in a
// namespace.
static void TakeResources() { Q_INIT_RESOURCE(art); }

namespace {
QString KeyOf(const QString& name, QSize size) {
    return QString("%1 %2x%3").arg(name).arg(size.width()).arg(size.height());
}

// An image and not a pixmap, which belongs to the thread of the windows.
QImage Render(const QString& name, QSize size) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QSvgRenderer renderer(":/art/" + name + ".svg");
    QPainter painter(&image);
    renderer.render(&painter, QRectF(QPointF(0, 0), size));
    return image;
}

// In a thread of Qt's pool. In any other, Qt splits every larger fill among the pool's threads and waits for them,
// which takes longer than the picture itself.
template <typename Work>
auto InPool(Work work) {
    const auto task = std::make_shared<std::packaged_task<std::invoke_result_t<Work>()>>(std::move(work));
    auto result = task->get_future();
    QThreadPool::globalInstance()->start([task] { (*task)(); });
    return result;
}
}  // namespace

Art::Art() { TakeResources(); }

// What is drawn must not outlive the application.
Art::~Art() {
    if (worker_.valid()) worker_.wait();
}

QSize Art::DrawnSize(const QString& name) { return QSvgRenderer(":/art/" + name + ".svg").viewBoxF().size().toSize(); }

Art::Wanted Art::WantedOver(const QString& name, const QRect& area, qreal devicePixelRatio) {
    const auto device = [=](int edge) { return qRound(edge * devicePixelRatio); };
    return {name,
            {device(area.left() + area.width()) - device(area.left()),
             device(area.top() + area.height()) - device(area.top())}};
}

void Art::RenderAhead(std::vector<Wanted> pictures) {
    for (const auto& [name, size] : pictures) ahead_.insert(KeyOf(name, size));
    worker_ = InPool([pictures = std::move(pictures)] {
        Images images;
        for (const auto& [name, size] : pictures) images[KeyOf(name, size)] = Render(name, size);
        return images;
    });
}

void Art::TakeRenderedAhead(const QString& key) {
    if (!ahead_.contains(key)) return;
    ahead_.clear();
    Images images = worker_.get();
    for (auto image = images.begin(); image != images.end(); ++image)
        rendered_[image.key()] = QPixmap::fromImage(std::move(image.value()));
}

const QPixmap& Art::Picture(const QString& name, QSize devicePixels) {
    const QString key = KeyOf(name, devicePixels);
    TakeRenderedAhead(key);
    QPixmap& picture = rendered_[key];
    if (picture.isNull()) picture = QPixmap::fromImage(InPool([&] { return Render(name, devicePixels); }).get());
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

qreal DeviceScale(const QPainter& painter) { return painter.deviceTransform().m11(); }

QRect DeviceArea(const QPainter& painter, const QRectF& area) {
    const QRectF device = painter.deviceTransform().mapRect(area);
    const QPoint topLeft = device.topLeft().toPoint();
    const QPoint bottomRight = device.bottomRight().toPoint();
    return {topLeft, QSize(bottomRight.x() - topLeft.x(), bottomRight.y() - topLeft.y())};
}

void UseDevicePixels(QPainter& painter) { painter.setWorldTransform(painter.deviceTransform().inverted(), true); }
