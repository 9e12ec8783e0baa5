#include "kit/sized_style.h"

#include <QStyleOptionButton>

#include "kit/satin.h"
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
    constexpr QSize leastButton(80, 26);
    const SizeWithin window(SizeFor(widget));
    const QSize told = QProxyStyle::sizeFromContents(type, option, size, widget);
    if (type != CT_PushButton) return told;
    return told.expandedTo(Sized(leastButton));
}

void SizedStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (element != PE_PanelButtonCommand || !button)
        return QProxyStyle::drawPrimitive(element, option, painter, widget);
    const SizeWithin window(SizeFor(widget));
    const QStyle::State state = button->state;
    const bool byEnter = button->features.testFlag(QStyleOptionButton::DefaultButton);
    const Rim rim = !state.testFlag(State_Enabled) ? Rim::Grey : byEnter ? Rim::Golden : Rim::Blue;
    PaintSatin(*painter, button->rect, Sized(4.0), rim == Rim::Golden ? Sized(2.0) : 1,
               {rim, state.testFlag(State_Sunken), state.testFlag(State_MouseOver)});
}
