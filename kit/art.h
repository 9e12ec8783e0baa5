#pragma once

#include <QHash>
#include <QPainter>
#include <QPixmap>
#include <QSet>
#include <QString>
#include <future>
#include <vector>

// The pictures of the game, drawn from the vector art inside the program. A picture is rendered when it is first
// wanted at a size and kept.
class Art {
public:
    struct Wanted {
        QString name;
        QSize devicePixels;
    };

    Art();
    ~Art();
    Art(const Art&) = delete;
    Art& operator=(const Art&) = delete;

    // The picture as Draw will want it over an area of a window, in pixels.
    static Wanted WantedOver(const QString& name, const QRect& area, qreal devicePixelRatio);

    // Begins to render pictures that will be wanted soon, beside what else there is to do. Who wants one of them waits
    // for all; on a machine with one processor so does who wants any other. At most once.
    void RenderAhead(std::vector<Wanted> pictures);

    // The size that the picture was drawn for, in pixels; empty when there is no such picture.
    static QSize DrawnSize(const QString& name);

    // The picture with this name, such as "die_free_3", filling so many device pixels, for the thread of the windows.
    // The reference holds until the next call.
    const QPixmap& Picture(const QString& name, QSize devicePixels);

    // Draws the picture over an area in the painter's coordinates, snapped to whole device pixels so that it stays
    // sharp at every scale.
    void Draw(QPainter& painter, const QRectF& area, const QString& name);

    // The same picture for callers that want an icon or a pointer of a logical size.
    QPixmap Scaled(const QString& name, QSize size, qreal devicePixelRatio);

private:
    using Images = QHash<QString, QImage>;

    void TakeRenderedAhead(const QString& key);

    QHash<QString, QPixmap> rendered_;
    QSet<QString> ahead_;  // what the worker renders, until one of them is wanted
    std::future<Images> worker_;
};

// How many device pixels a painter puts in the place of one: also where a widget is drawn into a picture of another
// scale than the screen's.
qreal DeviceScale(const QPainter& painter);

// The area in whole device pixels that a painter covers when it is told to fill this one.
QRect DeviceArea(const QPainter& painter, const QRectF& area);

// From here on the painter works in device pixels.
void UseDevicePixels(QPainter& painter);
