#include "app/qt_ports.h"

#include <QDate>
#include <QDesktopServices>
#include <QEventLoop>
#include <QLocale>
#include <QTimer>
#include <QUrl>

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

void SeededRandom::Reseed(double timeOfDay) {
    constexpr double seeds = 1ULL << 53;
    engine_.seed(static_cast<std::uint64_t>(timeOfDay * seeds));
}

double SeededRandom::Next() {
    constexpr double scale = 1.0 / (1ULL << 53);
    return static_cast<double>(engine_() >> 11) * scale;
}

void DesktopShell::Open(const std::string& target) { QDesktopServices::openUrl(QUrl(QString::fromStdString(target))); }
