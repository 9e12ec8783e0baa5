#include "table/window/table_area.h"

#include <QHelpEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QTimer>
#include <QToolTip>
#include <utility>

#include "kit/controls.h"
#include "kit/sized_widgets.h"

namespace {
// The topmost widget with a tool tip that stands at the place, be it one that takes no mouse; null for none.
const QWidget* ToldAt(const QWidget& parent, QPoint place) {
    const QObjectList& children = parent.children();
    for (auto child = children.rbegin(); child != children.rend(); ++child) {
        const auto* widget = qobject_cast<const QWidget*>(*child);
        if (!widget || !widget->isVisible() || !widget->geometry().contains(place)) continue;
        if (const QWidget* inner = ToldAt(*widget, place - widget->pos())) return inner;
        if (!widget->toolTip().isEmpty()) return widget;
    }
    return nullptr;
}
}  // namespace

TableArea::TableArea(QWidget* window, std::function<void()> afterFirstPicture)
    : QWidget(window), afterFirstPicture_(std::move(afterFirstPicture)) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    SetLetters(*this, TableFont(true));
}

// Labels and pictures take no mouse, so their tool tips are looked up here.
bool TableArea::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const QWidget* told = ToldAt(*this, help->pos());
    if (told)
        QToolTip::showText(help->globalPos(), told->toolTip(), this,
                           QRect(told->mapTo(this, QPoint(0, 0)), told->size()));
    else
        QToolTip::hideText();
    return true;
}

void TableArea::paintEvent(QPaintEvent* event) {
    QPainter(this).fillRect(event->rect(), colour::window);
    if (afterFirstPicture_) QTimer::singleShot(0, this, std::exchange(afterFirstPicture_, nullptr));
}
