// SPDX-License-Identifier: AGPL-3.0-or-later
// Calendar and number helpers of the chart. All clock moments are naive (UTC-tagged) values.
#include "sky/clsPlanets.h"

#include "sky/Functions.h"

#include <cmath>

long clsPlanets::ConvertDateToNum(const QDate &date)
{
    return QStringLiteral("%1%2%3").arg(date.year()).arg(Two(date.month())).arg(Two(date.day())).toLong();
}

int clsPlanets::MaxDayInMonth(int month, int year)
{
    const QDate d(year, month, 1);
    return d.isValid() ? d.daysInMonth() : 0;
}

QDateTime clsPlanets::DateAddEx(const QDateTime &date, const QString &unit, double value)
{
    const QString u = unit.toLower();
    const auto whole = static_cast<qint64>(std::trunc(value));
    if (u == QLatin1String("yyyy"))
        return date.addYears(static_cast<int>(whole));
    if (u == QLatin1String("q"))
        return date.addMonths(static_cast<int>(whole * 3));
    if (u == QLatin1String("m"))
        return date.addMonths(static_cast<int>(whole));
    if (u == QLatin1String("ww"))
        return date.addDays(whole * 7);
    if (u == QLatin1String("d") || u == QLatin1String("y") || u == QLatin1String("w"))
        return date.addDays(whole);
    if (u == QLatin1String("h"))
        return date.addSecs(whole * 3600);
    if (u == QLatin1String("n"))
        return date.addSecs(whole * 60);
    if (u == QLatin1String("s"))
        return date.addSecs(whole);
    return date;
}

QDateTime clsPlanets::AddDecValToDate(const QDateTime &date, double value, int &unit)
{
    QDateTime d = date;
    double v = value;
    if (unit == 1) {
        d = d.addYears(static_cast<int>(Fix(v)));
        v = Frac(v) * 365.2564;
        unit = 3;
    }
    if (unit == 3) {
        d = d.addDays(static_cast<qint64>(Fix(v)));
        v = Frac(v) * 24;
        unit = 4;
    }
    if (unit == 4) {
        d = d.addSecs(static_cast<qint64>(Fix(v)) * 3600);
        v = Frac(v) * 60;
        unit = 5;
    }
    if (unit == 5) {
        d = d.addSecs(static_cast<qint64>(Fix(v)) * 60);
        v = Frac(v) * 60;
        unit = 6;
    }
    if (unit == 6)
        d = d.addSecs(static_cast<qint64>(Fix(v)));
    return d;
}

namespace {
QString degMinSec(double x)
{
    const double deg = Int(x);
    const double minutesFull = (x - deg) * 60;
    const double minutes = Int(minutesFull);
    const double secs = Int((minutesFull - minutes) * 60);
    return Two(static_cast<long>(deg)) + QLatin1Char(':') + Two(static_cast<long>(minutes)) + QLatin1Char(':')
        + Two(static_cast<long>(secs));
}
} // namespace

QString clsPlanets::DecToDeg(double x) { return degMinSec(x); }

double clsPlanets::DegToDec(double d, double m, double s)
{
    return d + m * (100.0 / 60) / 100 + s * (100.0 / 60 / 60) / 100;
}

QString clsPlanets::ConvertValNoDeg(double x)
{
    while (x > 30)
        x -= 30;
    return degMinSec(x);
}

long clsPlanets::GetMin(double x) { return static_cast<long>(Int(Frac(x) * 60)); }
