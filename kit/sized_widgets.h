#pragma once

#include <QWidget>

#include "kit/twips.h"

// What a widget is told it keeps, so that it stands right at every size of the program.

// Where it stands in its parent. A place without width or height is a line, to which its end point belongs.
void Put(QWidget& widget, const Place& place);
// A fixed width and height, in twips. A window's is that of its inside; one that its screen could not hold takes the
// largest step at which it can for its own size.
void FixSize(QWidget& widget, int width, int height);
// A font, in letters of so many pixels at the normal size.
void SetLetters(QWidget& widget, const QFont& font, int pixels = 11);

// Gives all windows another size, those that are open too. A widget with more to do than to keep what it was told
// learns of it by a change of style; its own parts have learned of it before.
void ChangeSize(int percent);

// Where the frame of a window stands so that as much of it as fits is seen, in any case its title.
QPoint IntoView(const QRect& frame, const QRect& screen);
void BringIntoView(QWidget& window);
