#include "kit/sized_style.h"

#include <algorithm>

#include "kit/size.h"

namespace {
int SizeFor(const QWidget* widget) { return widget ? SizeIn(*widget) : Size(); }
}  // namespace

int SizedStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    const int told = QProxyStyle::pixelMetric(metric, option, widget);
    const SizeWithin window(SizeFor(widget));
    switch (metric) {  // those that the style does not work out from each other
        case PM_ButtonMargin:
        case PM_CheckBoxLabelSpacing:
        case PM_ExclusiveIndicatorHeight:
        case PM_ExclusiveIndicatorWidth:
        case PM_HeaderMargin:
        case PM_IndicatorHeight:
        case PM_IndicatorWidth:
        case PM_LayoutBottomMargin:
        case PM_LayoutHorizontalSpacing:
        case PM_LayoutLeftMargin:
        case PM_LayoutRightMargin:
        case PM_LayoutTopMargin:
        case PM_LayoutVerticalSpacing:
        case PM_RadioButtonLabelSpacing:
        case PM_ScrollBarExtent:
        case PM_ScrollBarSliderMin:
        case PM_SliderControlThickness:
        case PM_SliderLength:
        case PM_SliderThickness:
        case PM_SmallIconSize:
        case PM_SplitterWidth:
        case PM_TabBarTabHSpace:
        case PM_TabBarTabVSpace:
        case PM_ToolTipLabelFrameWidth:
        case PM_TreeViewIndentation:
            return told > 0 ? Sized(told) : told;
        default:
            return told;
    }
}

QIcon SizedStyle::standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const {
    return icon == SP_ToolBarHorizontalExtensionButton ? QIcon() : QProxyStyle::standardIcon(icon, option, widget);
}

QSize SizedStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                   const QWidget* widget) const {
    constexpr int leastButtonWidth = 80;
    const SizeWithin window(SizeFor(widget));
    const QSize told = QProxyStyle::sizeFromContents(type, option, size, widget);
    if (type != CT_PushButton) return told;
    return {std::max(told.width(), Sized(leastButtonWidth)), told.height()};
}
