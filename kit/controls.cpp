#include "kit/controls.h"

#include <QTextOption>
#include <algorithm>

QFont TableFont(bool bold, int pixels) {
    QFont font;
    font.setFamilies({"Arial", "Liberation Sans", "DejaVu Sans"});
    font.setPixelSize(pixels);
    font.setBold(bold);
    return font;
}

QFont BoxFont() {
    QFont font = TableFont(true);
    font.setFamilies(QStringList{"MS Sans Serif", "Microsoft Sans Serif"} + font.families());
    return font;
}

void PaintEdges(QPainter& painter, const QRect& area, const QColor& topLeft, const QColor& bottomRight) {
    const QRect device = DeviceArea(painter, area);
    const int width = std::max(1, static_cast<int>(DeviceScale(painter)));
    painter.save();
    UseDevicePixels(painter);
    if (bottomRight.isValid()) {
        painter.fillRect(QRect(device.bottomLeft() - QPoint(0, width - 1), device.bottomRight()), bottomRight);
        painter.fillRect(QRect(device.topRight() - QPoint(width - 1, 0), device.bottomRight()), bottomRight);
    }
    if (topLeft.isValid()) {
        painter.fillRect(QRect(device.topLeft(), device.topRight() + QPoint(0, width - 1)), topLeft);
        painter.fillRect(QRect(device.topLeft(), device.bottomLeft() + QPoint(width - 1, 0)), topLeft);
    }
    painter.restore();
}

Shape::Shape(const QString& name, QWidget* parent, QColor fill, QColor topLeftEdge, QColor bottomRightEdge)
    : QWidget(parent), fill_(fill), topLeftEdge_(topLeftEdge), bottomRightEdge_(bottomRightEdge) {
    setObjectName(name);
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void Shape::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (fill_.isValid()) painter.fillRect(rect(), fill_);
    PaintEdges(painter, rect(), topLeftEdge_, bottomRightEdge_);
}

TextLabel::TextLabel(const QString& name, QWidget* parent, const LabelLook& look, Qt::Alignment alignment)
    : QLabel(parent), look_(look) {
    setObjectName(name);
    setTextFormat(Qt::PlainText);
    setAlignment(alignment | Qt::AlignVCenter);
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void TextLabel::SetLook(const LabelLook& look) {
    look_ = look;
    update();
}

void TextLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), look_.ground);
    PaintEdges(painter, rect(), look_.topLeftEdge, look_.bottomRightEdge);
    painter.setPen(look_.text);
    painter.drawText(contentsRect(), static_cast<int>(alignment()) | Qt::TextSingleLine, text());
}

Picture::Picture(const QString& name, QWidget* parent, Art& art, const QString& picture)
    : QWidget(parent), art_(art), picture_(picture) {
    setObjectName(name);
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void Picture::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    art_.Draw(painter, rect(), picture_);
}

PictureButton::PictureButton(const QString& name, QWidget* parent, Art& art, const Looks& looks)
    : QAbstractButton(parent), art_(art), looks_(looks) {
    setObjectName(name);
    setFocusPolicy(Qt::NoFocus);
}

void PictureButton::SetLooks(const Looks& looks) {
    looks_ = looks;
    update();
}

void PictureButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QString& wanted = !isEnabled() ? looks_.disabled : underMouse() ? looks_.underMouse : looks_.plain;
    art_.Draw(painter, rect(), wanted.isEmpty() ? looks_.plain : wanted);
}

void PictureButton::enterEvent(QEnterEvent* event) {
    QAbstractButton::enterEvent(event);
    update();
}

void PictureButton::leaveEvent(QEvent* event) {
    QAbstractButton::leaveEvent(event);
    update();
}

CaptionButton::CaptionButton(const QString& name, QWidget* parent) : QAbstractButton(parent) {
    setObjectName(name);
    setAttribute(Qt::WA_Hover);
    setAttribute(Qt::WA_NoMousePropagation);
    setFocusPolicy(Qt::NoFocus);
}

void CaptionButton::SetCaption(const QString& caption) {
    caption_ = caption.simplified();
    setText(QString(caption).replace('&', "&&"));
    setAccessibleName(caption_);
    update();
}

void CaptionButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QLinearGradient satin(0, 0, 0, height());
    satin.setColorAt(0, underMouse() ? colour::satinHot : colour::satinHigh);
    satin.setColorAt(1, colour::satinLow);
    painter.fillRect(rect(), satin);
    const QColor light = Qt::white;
    PaintEdges(painter, rect(), isDown() ? colour::satinEdge : light, isDown() ? light : colour::satinEdge);
    const QRect area = rect().adjusted(6, 4, -6, -4);
    const int lines = area.height() / fontMetrics().lineSpacing();
    const int room = area.width() * std::max(1, lines - 2);  // a broken line is never quite full
    QTextOption wrapped(Qt::AlignCenter);
    wrapped.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    painter.setPen(palette().color(QPalette::ButtonText));
    painter.drawText(area, fontMetrics().elidedText(caption_, Qt::ElideMiddle, room), wrapped);
}
