#pragma once

#include <QApplication>

// Makes the parts of the program, hands them to each other and opens the first window. Returns the exit code when the
// last window has closed, or at once when the game is running already.
int Main(QApplication& app);
