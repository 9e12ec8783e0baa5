#pragma once

#include <QSize>
#include <QWidget>

// How large everything that the program shows is, in per cent of the normal places and sizes. It belongs to the look of
// the program as a whole, as its font and its palette do. Who changes it for open windows calls ChangeSize.
inline constexpr int smallestSize = 75, normalSize = 100, largestSize = 300, sizeStep = 25;

int Size();
void SetSize(int percent);  // one of the steps; any other is taken for normalSize

bool IsSize(int percent);

// A window that its screen could not hold at this size has one of its own, in which all that stands in it is shown.
void SetSizeOf(QWidget& window, int percent);
int SizeIn(const QWidget& widget);  // of its window, or else of the program

// While it lives, the size is that of a window which has one of its own.
class SizeWithin {
public:
    explicit SizeWithin(int percent) : before_(Size()) { SetSize(percent); }
    ~SizeWithin() { SetSize(before_); }
    SizeWithin(const SizeWithin&) = delete;
    SizeWithin& operator=(const SizeWithin&) = delete;

private:
    int before_;
};

// So many pixels of the normal size at the size that is now.
int Sized(int pixels);
qreal Sized(qreal pixels);
QSize Sized(QSize pixels);
// The same rounded down, for letters and lines, so that what fits its place does so at every size.
int SizedDown(int pixels);

// The largest step up to the wanted one at which the inside of a window, which has so many pixels at the normal size,
// fits an area with the frame of a desktop around it, which does not grow. The smallest step when none does.
int FittingSize(int wanted, QSize inside, QSize area);
