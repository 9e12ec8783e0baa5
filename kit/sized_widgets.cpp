#include "kit/sized_widgets.h"

#include <QApplication>
#include <QLayout>
#include <QScreen>
#include <QVariant>
#include <algorithm>

#include "kit/look.h"
#include "kit/size.h"

namespace {
// In twips, and for letters in pixels of the normal size.
constexpr const char* placeKey = "place";
constexpr const char* fixedKey = "fixedSize";
constexpr const char* lettersKey = "letters";

QRect Area(const QRect& twips) {
    QRect area = Pixels(Place{twips.x(), twips.y(), twips.width(), twips.height()});
    if (twips.width() == 0) area.setBottom(area.bottom() + 1);
    if (twips.height() == 0) area.setRight(area.right() + 1);
    return area;
}

void FitToScreen(QWidget& widget) {
    const QVariant fixed = widget.property(fixedKey);
    if (!widget.isWindow() || !fixed.isValid()) return;
    constexpr int twipsPerPixel = 15;
    const QSize inside = fixed.toSize() / twipsPerPixel;
    SetSizeOf(widget, FittingSize(Size(), inside, widget.screen()->availableSize()));
}

void SetPlace(QWidget& widget, const QRect& twips) {
    const SizeWithin window(SizeIn(widget));
    widget.setGeometry(Area(twips));
}

void Fix(QWidget& widget, QSize twips) {
    const SizeWithin window(SizeIn(widget));
    widget.setFixedSize(Pixels(twips.width()), Pixels(twips.height()));
}

void Keep(QWidget& widget) {
    const QVariant place = widget.property(placeKey), fixed = widget.property(fixedKey);
    if (place.isValid()) SetPlace(widget, place.toRect());
    if (fixed.isValid()) Fix(widget, fixed.toSize());
}

void KeepLetters(QWidget& widget) {
    const QVariant letters = widget.property(lettersKey);
    if (!letters.isValid()) return;
    const SizeWithin window(SizeIn(widget));
    QFont font = widget.font();
    font.setPixelSize(SizedDown(letters.toInt()));
    widget.setFont(font);
}

void TellStyleChange(QWidget& widget) {
    QEvent change(QEvent::StyleChange);
    QApplication::sendEvent(&widget, &change);
}
}  // namespace

void Put(QWidget& widget, const Place& place) {
    const QRect twips(place.left, place.top, place.width, place.height);
    widget.setProperty(placeKey, twips);
    SetPlace(widget, twips);
}

void FixSize(QWidget& widget, int width, int height) {
    const QSize twips(width, height);
    widget.setProperty(fixedKey, twips);
    FitToScreen(widget);
    Fix(widget, twips);
}

void SetLetters(QWidget& widget, const QFont& font, int pixels) {
    widget.setProperty(lettersKey, pixels);
    widget.setFont(font);
    KeepLetters(widget);
}

void ChangeSize(int percent) {
    SetSize(percent);
    ApplyFonts();
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget* widget : widgets) FitToScreen(*widget);
    for (QWidget* widget : widgets) KeepLetters(*widget);
    for (QWidget* widget : widgets) Keep(*widget);
    for (QWidget* widget : widgets)
        if (!widget->isWindow()) TellStyleChange(*widget);
    for (QWidget* window : QApplication::topLevelWidgets()) {
        TellStyleChange(*window);
        if (window->layout()) window->layout()->activate();
        if (window->isVisible() && window->windowType() != Qt::Popup) BringIntoView(*window);
    }
}

QPoint IntoView(const QRect& frame, const QRect& screen) {
    const int right = screen.left() + screen.width() - frame.width();
    const int bottom = screen.top() + screen.height() - frame.height();
    return {std::max(screen.left(), std::min(frame.left(), right)),
            std::max(screen.top(), std::min(frame.top(), bottom))};
}

void BringIntoView(QWidget& window) {
    const QPoint place = IntoView(window.frameGeometry(), window.screen()->availableGeometry());
    if (place != window.pos()) window.move(place);
}
