#include "table/window/table_area.h"

#include <QPaintEvent>
#include <QPainter>
#include <QTimer>
#include <utility>

#include "kit/controls.h"

TableArea::TableArea(QWidget* window, std::function<void()> afterFirstPicture)
    : QWidget(window), afterFirstPicture_(std::move(afterFirstPicture)) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFont(TableFont(true));
}

void TableArea::paintEvent(QPaintEvent* event) {
    QPainter(this).fillRect(event->rect(), colour::window);
    if (afterFirstPicture_) QTimer::singleShot(0, this, std::exchange(afterFirstPicture_, nullptr));
}
