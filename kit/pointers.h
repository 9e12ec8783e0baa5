#pragma once

#include <QCursor>

#include "kit/art.h"

// Pointers are as large as the program is.

// The pointer over what can be clicked. It points with the tip of its finger.
QCursor HandPointer(Art& art, qreal devicePixelRatio);

// Gives the window the pointer of base.cur in the program's folder, with the hot spot that the file names. The first of
// the file's pictures has the normal size; others are larger ones of the same for where more pixels are wanted. Without
// the file, or with one that is no pointer, the window keeps the pointer it has.
void SetBasePointer(QWidget& window, const QString& programFolder);
