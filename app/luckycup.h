#pragma once

#include <QApplication>
#include <future>

// Makes the parts of the program, hands them to each other and opens the first window. Returns the exit code when the
// last window has closed, or at once when the game is running already. fonts: there when their list has been read.
int Main(QApplication& app, const std::future<void>& fonts);
