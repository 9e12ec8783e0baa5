#include "kit/qt_clock.h"

#include <QEventLoop>
#include <QTimer>
#include <algorithm>

namespace {

// What dates are written with in that set are printable characters that have the same number in Unicode.
bool FitsRecord(const QString& text) {
    constexpr qsizetype places = 10;
    return text.size() <= places &&
           std::ranges::all_of(text, [](QChar c) { return c.isPrint() && c.unicode() <= 0xFF; });
}

}  // namespace

QString ShortDateText(const QLocale& locale, QDate date) {
    const QDate longest(2000, 12, 28);  // two digits for day and month
    const bool fits = FitsRecord(locale.toString(longest, QLocale::ShortFormat));
    return fits ? locale.toString(date, QLocale::ShortFormat) : date.toString(Qt::ISODate);
}

void QtClock::Wait(int ms) {
    QEventLoop loop;
    QTimer::singleShot(ms, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
}

double QtClock::TimeOfDay() {
    constexpr double day = 24 * 60 * 60 * 1000;
    return QTime::currentTime().msecsSinceStartOfDay() / day;
}

std::string QtClock::ShortDate() { return ShortDateText(QLocale::system(), QDate::currentDate()).toStdString(); }
