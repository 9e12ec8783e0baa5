#pragma once

#include <QProxyStyle>

// The style of the windows: buttons of satin, with a golden rim for the one that Enter presses, and check marks,
// margins, scroll bars and the like as large as the program is.
class SizedStyle final : public QProxyStyle {
public:
    SizedStyle() : QProxyStyle("Fusion") {}

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    // None for the entries of a menu bar that have no room, which the game's always have: each bar would draw it.
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const override;
};
