#include "kit/qt_clock.h"

#include <QDate>
#include <QEventLoop>
#include <QLocale>
#include <QTimer>

void QtClock::Wait(int ms) {
    QEventLoop loop;
    QTimer::singleShot(ms, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
}

double QtClock::TimeOfDay() {
    constexpr double day = 24 * 60 * 60 * 1000;
    return QTime::currentTime().msecsSinceStartOfDay() / day;
}

std::string QtClock::ShortDate() {
    const QLocale locale = QLocale::system();
    const QDate today = QDate::currentDate();
    // Where no language is set up there is no short date either: what Qt offers does not fit a score record.
    if (locale.language() == QLocale::C) return today.toString(Qt::ISODate).toStdString();
    return locale.toString(today, QLocale::ShortFormat).toStdString();
}
