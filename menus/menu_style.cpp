#include "menus/menu_style.h"

#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <algorithm>
#include <cmath>

#include "kit/controls.h"
#include "kit/size.h"
#include "kit/sized_widgets.h"
#include "menus/menu_colours.h"

namespace {
constexpr const char* skin = "menu_skin";
constexpr int iconGutter = 30;
constexpr int textLeft = iconGutter + 6;
constexpr int rightMargin = 10;
constexpr int imageLeft = 2;
constexpr int separatorInset = 5;
constexpr int rowPadding = 6;
constexpr int widthPadding = 6;
constexpr int textHeight = 16;  // the cell that letters of 13 pixels stand in
constexpr int letterHeight = 13;
constexpr int menuFrame = 1;
// The desktops for which the widths were made added a check mark's width to what an entry asked for. Without it a
// caption and its shortcut all but touch.
constexpr int checkMarkWidth = 12;

int Middle(int whole, int part) { return static_cast<int>(std::lround((whole - part) / 2.0)); }

// One tile, in device pixels.
QSize SkinSize(qreal deviceScale) { return (QSizeF(135, 64) * Sized(deviceScale)).toSize(); }

QSize ImageSize(const QIcon& icon) {
    return icon.isNull() ? QSize(0, 0) : icon.actualSize(Sized(QSize(iconGutter, iconGutter)));
}

// What QMenu adds to the width of its widest entry.
int ShortcutColumn(const QMenu& menu) {
    int widest = 0;
    for (const QAction* action : menu.actions())
        if (action->isVisible())
            widest = std::max(
                widest, menu.fontMetrics().horizontalAdvance(action->shortcut().toString(QKeySequence::NativeText)));
    return widest;
}

// The width of a line in device pixels.
int LineWidth(const QPainter& painter) { return std::max(1, static_cast<int>(Sized(DeviceScale(painter)))); }

void Fill(QPainter& painter, const QRect& area, const QColor& colour) {
    const QRect device = DeviceArea(painter, area);
    painter.save();
    UseDevicePixels(painter);
    painter.fillRect(device, colour);
    painter.restore();
}

// The edge of an area, which grows with the scale as the rest of the menus does.
void DrawEdge(QPainter& painter, const QRect& area, const QColor& topLeft, const QColor& bottomRight) {
    const QRect device = DeviceArea(painter, area);
    const int width = LineWidth(painter);
    painter.save();
    UseDevicePixels(painter);
    painter.fillRect(device.left(), device.bottom() + 1 - width, device.width(), width, bottomRight);
    painter.fillRect(device.right() + 1 - width, device.top(), width, device.height(), bottomRight);
    painter.fillRect(device.left(), device.top(), device.width(), width, topLeft);
    painter.fillRect(device.left(), device.top(), width, device.height(), topLeft);
    painter.restore();
}

void RaiseEdge(QPainter& painter, const QRect& area) { DrawEdge(painter, area, colour::white, colour::dark); }

// A dark line and below it a light one.
void EtchLine(QPainter& painter, const QRect& item) {
    const int top = item.top() + Middle(item.height(), Sized(2));
    const int width = LineWidth(painter), inset = Sized(separatorInset);
    QRect line = DeviceArea(painter, QRect(item.left() + inset, top, item.width() - 2 * inset, Sized(2)));
    line.setHeight(width);
    painter.save();
    UseDevicePixels(painter);
    painter.fillRect(line, colour::dark);
    painter.fillRect(line.translated(0, width), colour::white);
    painter.restore();
}

// The image in one colour, the stronger the darker it is.
QImage Silhouette(const QPixmap& image, const QColor& colour) {
    QImage shape = image.toImage().convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < shape.height(); ++y)
        for (int x = 0; x < shape.width(); ++x) {
            const QRgb pixel = shape.pixel(x, y);
            const int strength = qAlpha(pixel) * (255 - qGray(pixel)) / 255;
            shape.setPixelColor(x, y, QColor(colour.red(), colour.green(), colour.blue(), strength));
        }
    return shape;
}

// Sunk into the ground: a light shape, and the dark one that it sets off.
void DrawSunken(QPainter& painter, const QRect& place, const QIcon& icon) {
    const QRect device = DeviceArea(painter, place);
    const QPixmap image = icon.pixmap(device.size(), 1.0);
    const QPoint aside(LineWidth(painter), LineWidth(painter));
    painter.save();
    UseDevicePixels(painter);
    painter.drawImage(device.topLeft() + aside, Silhouette(image, colour::white));
    painter.drawImage(device.topLeft(), Silhouette(image, colour::dark));
    painter.restore();
}

void DrawIcon(QPainter& painter, const QStyleOptionMenuItem& item) {
    const QSize size = ImageSize(item.icon);
    const bool enabled = item.state & QStyle::State_Enabled;
    const QPoint corner(enabled ? Sized(imageLeft) : Middle(Sized(iconGutter), size.width()),
                        Middle(item.rect.height(), size.height()));
    const QRect place(item.rect.topLeft() + corner, size);
    if (enabled)
        item.icon.paint(&painter, place);
    else
        DrawSunken(painter, place, item.icon);
}

// One line of text in the vertical middle of a cell. It starts at a whole device pixel, so that the marks of the
// accelerators are equally thick in all rows.
void DrawCaption(QPainter& painter, const QRect& cell, Qt::Alignment side, const QString& text, const QColor& colour,
                 bool enabled) {
    const int height = Sized(textHeight);
    const QRect line(cell.left(), cell.top() + Middle(cell.height(), height), cell.width(), height);
    const QPoint corner = DeviceArea(painter, line).topLeft();
    // A desktop's letters may be taller than the line.
    const int flags =
        static_cast<int>(side | Qt::AlignVCenter) | Qt::TextSingleLine | Qt::TextShowMnemonic | Qt::TextDontClip;
    const qreal scale = DeviceScale(painter);
    const auto draw = [&](QPoint devicePixels, const QColor& ink) {
        painter.save();
        UseDevicePixels(painter);
        painter.translate(devicePixels);
        painter.scale(scale, scale);
        painter.setPen(ink);
        painter.drawText(QRect(QPoint(), line.size()), flags, text);
        painter.restore();
    };
    if (!enabled) draw(corner + QPoint(LineWidth(painter), LineWidth(painter)), colour::white);
    draw(corner, enabled ? colour : colour::dark);
}
}  // namespace

QFont GetMenuFont() {
    QFont font = QApplication::font("QMenu");
    if (font.family() == "Sans Serif") font.setFamilies(TableFont(false).families());
    font.setPixelSize(SizedDown(letterHeight));
    return font;
}

std::vector<Art::Wanted> MenuPictures(qreal devicePixelRatio) { return {{skin, SkinSize(devicePixelRatio)}}; }

MenuStyle::MenuStyle(Art& art, bool SkinOn) : QProxyStyle("Fusion"), art_(art), SkinOn_(SkinOn), font_(GetMenuFont()) {}

QFont MenuStyle::Letters() const {
    QFont font = font_;
    font.setPixelSize(SizedDown(letterHeight));
    return font;
}

QSize MenuStyle::MeasureODItem(const QStyleOptionMenuItem& item, bool barEntry) const {
    // The mark of the accelerator is measured with the text: it is the room between caption and shortcut.
    const int width =
        QFontMetrics(Letters()).horizontalAdvance(QString(item.text).replace('\t', ' ')) + Sized(widthPadding);
    const int height = std::max(ImageSize(item.icon).height(), Sized(textHeight)) + Sized(rowPadding);
    return {barEntry ? width : width + Sized(iconGutter), height};
}

void MenuStyle::FillGround(QPainter& painter, const QRect& area, const QWidget& widget) const {
    if (!SkinOn_) return Fill(painter, area, GetMenuColor(u"menubg", SkinOn_));
    // The tiles start at the window's corner, whichever part of it is painted.
    const QPointF corner(-widget.mapTo(widget.window(), QPoint()));
    const QPoint origin = painter.deviceTransform().map(corner).toPoint();
    const QRect device = DeviceArea(painter, area);
    const QSize tile = SkinSize(DeviceScale(painter));
    painter.save();
    UseDevicePixels(painter);
    painter.drawTiledPixmap(device, art_.Picture(skin, tile), device.topLeft() - origin);
    painter.restore();
}

void MenuStyle::DrawODItem(QPainter& painter, const QStyleOptionMenuItem& item) const {
    const QRect& area = item.rect;
    if (item.menuItemType == QStyleOptionMenuItem::Separator) return EtchLine(painter, area);
    const bool hasImage = !item.icon.isNull();
    const int gutter = Sized(iconGutter);
    const bool enabled = item.state & State_Enabled;
    const bool lit = enabled && item.state & State_Selected;
    if (lit && hasImage) RaiseEdge(painter, {area.topLeft(), QSize(gutter, area.height())});
    if (lit) Fill(painter, area.adjusted(hasImage ? gutter : 0, 0, 0, 0), GetMenuColor(u"Selected", SkinOn_));
    const QColor colour = GetMenuColor(lit ? u"SelectedText" : u"menutext", SkinOn_);
    painter.setFont(Letters());
    const QRect cell = area.adjusted(Sized(textLeft), 0, -Sized(rightMargin), 0);
    DrawCaption(painter, cell, Qt::AlignLeft, item.text.section('\t', 0, 0), colour, enabled);
    DrawCaption(painter, cell, Qt::AlignRight, item.text.section('\t', 1), colour, enabled);
    if (hasImage) DrawIcon(painter, item);
}

// Hot under the mouse; selected when its drop-down is open or the keyboard has come to it.
void MenuStyle::DrawBarEntry(QPainter& painter, const QStyleOptionMenuItem& item, bool byKeyboard) const {
    const bool enabled = item.state & State_Enabled;
    const bool current = item.state & State_Selected;
    const bool selected = current && (byKeyboard || item.state & State_Sunken);
    if (selected && enabled) {
        Fill(painter, item.rect, GetMenuColor(u"Selected", SkinOn_));
        const QColor border = GetMenuColor(u"BorderColor", SkinOn_);
        DrawEdge(painter, item.rect, border, border);
    } else if (current && !selected) {
        RaiseEdge(painter, item.rect);
    }
    const QColor colour = GetMenuColor(selected && enabled ? u"SelectedText" : u"GeneralText", SkinOn_);
    painter.setFont(Letters());
    DrawCaption(painter, item.rect, Qt::AlignHCenter, item.text, colour, enabled);
}

void MenuStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const {
    const auto* const item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    switch (element) {
        case CE_MenuItem:
            return DrawODItem(*painter, *item);
        case CE_MenuBarItem:
            FillGround(*painter, option->rect, *widget);
            return DrawBarEntry(*painter, *item, widget->hasFocus());
        case CE_MenuBarEmptyArea:
            return FillGround(*painter, option->rect, *widget);
        case CE_MenuEmptyArea:
            return;  // the panel below it is painted
        default:
            return QProxyStyle::drawControl(element, option, painter, widget);
    }
}

void MenuStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const {
    switch (element) {
        case PE_PanelMenu:
        case PE_PanelToolBar:
            return FillGround(*painter, option->rect, *widget);
        case PE_FrameMenu:
            return DrawEdge(*painter, option->rect, colour::dark, colour::dark);
        default:
            return QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

QSize MenuStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                  const QWidget* widget) const {
    const auto* const item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (type == CT_MenuBarItem && item) return MeasureODItem(*item, true);
    if (type != CT_MenuItem || !item) return QProxyStyle::sizeFromContents(type, option, size, widget);
    const auto* const menu = qobject_cast<const QMenu*>(widget);
    const int addedByMenu = menu ? ShortcutColumn(*menu) : 0;
    return MeasureODItem(*item, false) + QSize(Sized(checkMarkWidth) - addedByMenu, 0);
}

int MenuStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    switch (metric) {
        case PM_MenuPanelWidth:
            return std::max(1, Sized(menuFrame));
        case PM_MenuHMargin:
        case PM_MenuVMargin:
        case PM_MenuBarPanelWidth:
        case PM_MenuBarHMargin:
        case PM_MenuBarVMargin:
        case PM_MenuBarItemSpacing:
            return 0;
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

// With other letters a bar or menu would be measured in them, for nothing.
void MenuStyle::polish(QWidget* widget) {
    if (qobject_cast<QMenuBar*>(widget) || qobject_cast<QMenu*>(widget)) SetLetters(*widget, font_, letterHeight);
    QProxyStyle::polish(widget);
}
