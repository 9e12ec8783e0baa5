#pragma once

#include <QProxyStyle>
#include <QStyleOptionMenuItem>

#include "kit/art.h"

// The desktop's font for menus in letters of 13 pixels. A desktop that names none leaves Qt's "Sans Serif", which can
// be anything: then it is the font of the table.
QFont GetMenuFont();

// Those that a window's bar and toolbar want for their first picture.
std::vector<Art::Wanted> MenuPictures(qreal devicePixelRatio);

// The look of a menu bar, its drop-downs and a toolbar: a tiled picture as ground, a small image beside each entry, a
// dark highlight, the shortcut at the right. It is for the widgets that it is set on, and for no others. It outlives
// them, and the pictures outlive it. All sizes are pixels of scale 1 and of the normal size of the program, with which
// they grow.
class MenuStyle final : public QProxyStyle {
public:
    // SkinOn: the ground is the tiled picture, otherwise it is of one colour.
    explicit MenuStyle(Art& art, bool SkinOn = true);

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    void polish(QWidget* widget) override;
    using QProxyStyle::polish;

private:
    QFont Letters() const;
    QSize MeasureODItem(const QStyleOptionMenuItem& item, bool barEntry) const;
    void DrawODItem(QPainter& painter, const QStyleOptionMenuItem& item) const;
    void DrawBarEntry(QPainter& painter, const QStyleOptionMenuItem& item, bool byKeyboard) const;
    void FillGround(QPainter& painter, const QRect& area, const QWidget& widget) const;

    Art& art_;
    bool SkinOn_;
    QFont font_;
};
