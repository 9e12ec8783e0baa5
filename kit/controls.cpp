#include "kit/controls.h"

#include <QFontDatabase>
#include <QTextOption>
#include <algorithm>
#include <utility>

#include "kit/satin.h"
#include "kit/size.h"
#include "kit/twips.h"

namespace {
// With those first that are there. For one that is not Qt would search what stands for it with each new font.
QStringList ThereFirst(QStringList families) {
    const QStringList there = QFontDatabase::families();
    std::stable_partition(families.begin(), families.end(),
                          [&](const QString& family) { return there.contains(family); });
    return families;
}
}  // namespace

QFont TableFont(bool bold, int pixels) {
    static const QStringList families =
        ThereFirst({"Arial", "Liberation Sans", "DejaVu Sans Condensed", "DejaVu Sans"});
    QFont font;
    font.setFamilies(families);
    font.setPixelSize(SizedDown(pixels));
    font.setBold(bold);
    return font;
}

QFont BoxFont() {
    static const QStringList families =
        ThereFirst(QStringList{"MS Sans Serif", "Microsoft Sans Serif"} + TableFont(true).families());
    QFont font;
    font.setFamilies(families);
    return font;
}

QFont FittedFont(QFont font, const QString& text, int width) {
    const int smallest = SizedDown(7);
    while (font.pixelSize() > smallest && QFontMetrics(font).horizontalAdvance(text) > width)
        font.setPixelSize(font.pixelSize() - 1);
    return font;
}

void PaintEdges(QPainter& painter, const QRect& area, const QColor& topLeft, const QColor& bottomRight) {
    const QRect device = DeviceArea(painter, area);
    painter.save();
    UseDevicePixels(painter);
    if (bottomRight.isValid()) {
        painter.fillRect(QRect(device.bottomLeft(), device.bottomRight()), bottomRight);
        painter.fillRect(QRect(device.topRight(), device.bottomRight()), bottomRight);
    }
    if (topLeft.isValid()) {
        painter.fillRect(QRect(device.topLeft(), device.topRight()), topLeft);
        painter.fillRect(QRect(device.topLeft(), device.bottomLeft()), topLeft);
    }
    painter.restore();
}

Shape::Shape(const QString& name, QWidget* parent, QColor fill, QColor topLeftEdge, QColor bottomRightEdge)
    : QWidget(parent), fill_(fill), topLeftEdge_(topLeftEdge), bottomRightEdge_(bottomRightEdge) {
    setObjectName(name);
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void Shape::SetFill(QColor fill) {
    fill_ = fill;
    update();
}

void Shape::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (fill_.isValid()) painter.fillRect(rect(), fill_);
    if (fill_.isValid() && topLeftEdge_.isValid()) {
        QLinearGradient sheen(0, 0, 0, height());
        sheen.setColorAt(0, colour::sheen);
        sheen.setColorAt(0.55, QColor(0, 0, 0, 0));
        painter.fillRect(rect(), sheen);
    }
    PaintEdges(painter, rect(), topLeftEdge_, bottomRightEdge_);
}

Well::Well(const QString& name, QWidget* parent, QColor fill) : QWidget(parent), fill_(fill) {
    setObjectName(name);
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void Well::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRect area = DeviceArea(painter, rect());
    const qreal unit = Sized(DeviceScale(painter));
    UseDevicePixels(painter);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    QLinearGradient shadow(area.topLeft(), area.topLeft() + QPointF(0, 5 * unit));
    shadow.setColorAt(0, colour::shade);
    shadow.setColorAt(1, QColor(0, 0, 0, 0));
    for (const QBrush& brush : {QBrush(fill_), QBrush(shadow)}) {
        painter.setBrush(brush);
        painter.drawRoundedRect(area, 4 * unit, 4 * unit);
    }
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

void TextLabel::SetMargins(int left, int right) {
    leftMargin_ = left;
    rightMargin_ = right;
}

void TextLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (look_.ground.isValid()) painter.fillRect(rect(), look_.ground);
    PaintEdges(painter, rect(), look_.topLeftEdge, look_.bottomRightEdge);
    painter.setPen(look_.text);
    const QRect area = rect().adjusted(Sized(leftMargin_), 0, -Sized(rightMargin_), 0);
    painter.setFont(FittedFont(font(), text(), area.width()));
    const int flags = static_cast<int>(alignment()) | Qt::TextSingleLine | Qt::TextDontClip;
    painter.drawText(area.translated(0, Pixels(drop_)), flags, text());
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

void PictureButton::SetMarked(std::optional<bool> on) {
    if (std::exchange(marked_, on) != on) update();
}

void PictureButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QString& wanted = !isEnabled()                     ? looks_.disabled
                            : isDown()                       ? looks_.pressed
                            : marked_.value_or(underMouse()) ? looks_.underMouse
                                                             : looks_.plain;
    art_.Draw(painter, rect(), wanted.isEmpty() ? looks_.plain : wanted);
    if (isEnabled() && !looks_.mark.isEmpty()) art_.Draw(painter, rect(), looks_.mark);
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
    constexpr qreal radius = 4.5, rim = 2.5;  // covers the corners of the Roll button
    PaintSatin(painter, rect(), Sized(radius), Sized(rim), {Rim::Golden, isDown(), underMouse()});
    PaintCaption(painter);
}

void CaptionButton::PaintCaption(QPainter& painter) {
    const QRect area = rect().adjusted(Sized(6), Sized(4), -Sized(6), -Sized(4));
    const int lines = area.height() / fontMetrics().lineSpacing();
    const int room = area.width() * std::max(1, lines - 2);  // a broken line is never quite full
    QTextOption wrapped(Qt::AlignCenter);
    wrapped.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    painter.setPen(palette().color(QPalette::ButtonText));
    painter.drawText(area, fontMetrics().elidedText(caption_, Qt::ElideMiddle, room), wrapped);
}
