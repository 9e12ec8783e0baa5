#include "kit/satin.h"

#include "kit/colours.h"

namespace {
// From top to bottom.
QLinearGradient Shaded(const QRectF& area, std::initializer_list<QColor> colours) {
    QLinearGradient gradient(area.topLeft(), area.bottomLeft());
    const double steps = static_cast<double>(colours.size()) - 1;
    for (std::size_t i = 0; i < colours.size(); ++i)
        gradient.setColorAt(static_cast<double>(i) / steps, colours.begin()[i]);
    return gradient;
}

QColor EdgeOf(Rim rim) {
    switch (rim) {
        case Rim::Golden:
            return colour::goldEdge;
        case Rim::Blue:
            return colour::satinEdge;
        case Rim::Grey:
            return colour::boxGround;
    }
    return {};
}

QBrush BrushOf(const QRectF& area, SatinState state) {
    using namespace colour;
    switch (state.rim) {
        case Rim::Golden:
            return state.pressed ? Shaded(area, {goldLow, gold, goldHigh}) : Shaded(area, {goldHigh, gold, goldLow});
        case Rim::Blue:
            return state.pressed ? Shaded(area, {boxShade, boxShine}) : Shaded(area, {boxShine, boxShade});
        case Rim::Grey:
            return sumLabel;
    }
    return {};
}

QBrush SatinOf(const QRectF& area, SatinState state) {
    using namespace colour;
    if (state.rim == Rim::Grey) return Shaded(area, {light, sumLabel});
    if (state.pressed) return Shaded(area, {satinLow, satinHigh});
    return Shaded(area, {state.underMouse ? satinHot : satinHigh, satinLow});
}
}  // namespace

void PaintSatin(QPainter& painter, const QRect& area, qreal radius, qreal rim, SatinState state) {
    const QRectF outer = QRectF(area).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(EdgeOf(state.rim), 1));
    painter.setBrush(BrushOf(area, state));
    painter.drawRoundedRect(outer, radius, radius);
    painter.setPen(Qt::NoPen);
    painter.setBrush(SatinOf(area, state));
    painter.drawRoundedRect(outer.adjusted(rim, rim, -rim, -rim), radius - rim / 2, radius - rim / 2);
    painter.restore();
}
