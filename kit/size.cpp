#include "kit/size.h"

#include <QVariant>
#include <QtMath>

namespace {
int current = normalSize;
constexpr const char* sizeOfWindow = "sizeInPercent";
}  // namespace

int Size() { return current; }
void SetSize(int percent) { current = IsSize(percent) ? percent : normalSize; }

bool IsSize(int percent) {
    return percent >= smallestSize && percent <= largestSize && (percent - smallestSize) % sizeStep == 0;
}

void SetSizeOf(QWidget& window, int percent) { window.setProperty(sizeOfWindow, percent); }

int SizeIn(const QWidget& widget) {
    const QVariant own = widget.window()->property(sizeOfWindow);
    return own.isValid() ? own.toInt() : Size();
}

qreal Sized(qreal pixels) { return pixels * current / normalSize; }
int Sized(int pixels) { return qRound(Sized(qreal(pixels))); }
QSize Sized(QSize pixels) { return {Sized(pixels.width()), Sized(pixels.height())}; }
int SizedDown(int pixels) { return qFloor(Sized(qreal(pixels))); }

int FittingSize(int wanted, QSize inside, QSize area) {
    constexpr QSize widestFrame(10, 38);  // of the desktops of today
    const QSize room = (area - widestFrame) * normalSize;
    int size = wanted;
    while (size > smallestSize && (inside.width() * size > room.width() || inside.height() * size > room.height()))
        size -= sizeStep;
    return size;
}
