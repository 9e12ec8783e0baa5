#pragma once

#include <QDate>
#include <QLocale>

#include "core/ports/clock.h"

// The date as people of that place write it when they are short, if that fits a score record, which takes ten
// characters of a western set; else 2026-11-23. A place has one form for all dates.
QString ShortDateText(const QLocale& locale, QDate date);

// The other half of the event gate: waits in an event loop that paints but leaves clicks and keys in their queue for
// later.
class QtClock final : public Clock {
public:
    void Wait(int ms) override;
    double TimeOfDay() override;
    std::string ShortDate() override;
};
