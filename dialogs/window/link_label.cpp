#include "dialogs/window/link_label.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>

#include "kit/size.h"

LinkLabel::LinkLabel(const char* name, QWidget* parent, const char* text, const std::string& target, const Place& place)
    : QAbstractButton(parent), place_(place) {
    setObjectName(name);
    setText(text);
    setToolTip(QString::fromStdString(target));
    setAccessibleDescription("Opens " + toolTip());
    setFocusPolicy(Qt::StrongFocus);
    QFont underlined;
    underlined.setUnderline(true);
    setFont(underlined);
    FitText();
}

void LinkLabel::FitText() {
    constexpr int focusRoom = 2;
    const SizeWithin window(SizeIn(*this));
    const QRect line = Pixels(place_);
    setGeometry(line.left() - focusRoom, line.top(), fontMetrics().horizontalAdvance(text()) + 2 * focusRoom,
                line.height());
}

void LinkLabel::changeEvent(QEvent* event) {
    QAbstractButton::changeEvent(event);
    if (event->type() == QEvent::StyleChange) FitText();
}

void LinkLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(palette().color(isDown() ? QPalette::LinkVisited : QPalette::Link));
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine, text());
    if (!hasFocus()) return;
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
}

void LinkLabel::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QAbstractButton::keyPressEvent(event);
}
