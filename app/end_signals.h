#pragma once

#include <QCoreApplication>

// From now on SIGHUP, SIGINT and SIGTERM end the event loops of the application, those of open dialogs too, and with
// them the program in its own way, with status 0. One that the program was started to ignore stays ignored. Where no
// pipe can be had they end the process as ever.
void EndOnSignals(QCoreApplication& app);
