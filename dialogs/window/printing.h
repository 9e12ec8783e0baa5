#pragma once

#include <QTextDocument>
#include <QWidget>

#include "kit/art.h"

// For documents that are to be printed: letters in points, since the pixels of a printer are much smaller than those of
// a screen, and pictures that are as fine.
QFont PaperFont();
inline constexpr qreal paperRatio = 4;

// Prints at once on the default printer. Where there is none the print dialog opens, which can also make a PDF file.
// When nothing was printed, a message over the window says so; a file that could not be written whole is left as it
// was. title: the name of what is printed.
void Print(QWidget& window, Art& art, const QTextDocument& document, const QString& title);
