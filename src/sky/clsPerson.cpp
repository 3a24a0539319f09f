// SPDX-License-Identifier: AGPL-3.0-or-later
#include "sky/clsPerson.h"

#include "sky/Functions.h"

#include <cmath>
#include <cstdlib>

void clsPerson::setDay(double v) { m_day = CLng(v); }
void clsPerson::setMonth(double v) { m_month = CLng(v); }
void clsPerson::setYear(double v) { m_year = CLng(v); }
void clsPerson::setHour(double v) { m_hour = CLng(v); }
void clsPerson::setMinutes(double v) { m_minutes = CLng(v); }
void clsPerson::setSeconds(double v) { m_seconds = CLng(v); }
void clsPerson::setLatDeg(double v) { m_latDeg = CLng(v); }
void clsPerson::setLatMT(double v) { m_latMT = CLng(v); }
void clsPerson::setLongDeg(double v) { m_longDeg = CLng(v); }
void clsPerson::setLongMT(double v) { m_longMT = CLng(v); }

QString clsPerson::DayText() const { return Two(m_day); }
QString clsPerson::MonthText() const { return Two(m_month); }

double clsPerson::Latitude() const { return m_latDeg + m_latMT / 100.0; }
double clsPerson::Longitude() const { return m_longDeg + m_longMT / 100.0; }

QDateTime clsPerson::GetBirthDate() const
{
    const QDate date(static_cast<int>(m_year), static_cast<int>(m_month), static_cast<int>(m_day));
    if (!date.isValid())
        return {};
    return QDateTime(date, QTime(0, 0), Qt::UTC).addSecs(qint64(m_hour) * 3600 + qint64(m_minutes) * 60);
}

int clsPerson::WeekDayOfBirth() const
{
    const QDate date(static_cast<int>(m_year), static_cast<int>(m_month), static_cast<int>(m_day));
    return date.isValid() ? date.dayOfWeek() % 7 + 1 : 0; // Qt: Monday 1 .. Sunday 7
}

QString clsPerson::GetBirthTime() const { return Two(m_hour) + QLatin1Char('.') + Two(m_minutes); }

double clsPerson::GetBirthDecimalTime() const
{
    const long hundredths = std::lround(m_minutes / 60.0 * 100.0);
    return Val(Two(m_hour) + QLatin1Char('.') + Two(hundredths));
}

QString clsPerson::GetLatti() const { return QString::number(m_latDeg) + QLatin1Char('.') + Two(m_latMT) + m_textNS; }
QString clsPerson::GetLongi() const { return QString::number(m_longDeg) + QLatin1Char('.') + Two(m_longMT) + m_textEW; }
QString clsPerson::GetLatitudeFull() const
{
    return QString::number(m_latDeg) + QLatin1Char('.') + Two(m_latMT) + QLatin1Char(' ') + m_textNS;
}
QString clsPerson::GetLongitudeFull() const
{
    return QString::number(m_longDeg) + QLatin1Char('.') + Two(m_longMT) + QLatin1Char(' ') + m_textEW;
}

QString clsPerson::GetBirthPlace() const { return m_plob + QStringLiteral(", ") + m_country; }

QString clsPerson::GetBirthTimeFull()
{
    if (m_ampm == 0)
        m_ampm = m_hour >= 12 ? 2 : 1;
    return Two(static_cast<long>(Clock12(m_hour))) + QLatin1Char(':') + Two(m_minutes)
        + (m_ampm == 2 ? QStringLiteral(" PM") : QStringLiteral(" AM"));
}

void clsPerson::AddDays(long n)
{
    const QDateTime moved = GetBirthDate().addDays(n);
    if (!moved.isValid())
        return;
    m_day = moved.date().day();
    m_month = moved.date().month();
    m_year = moved.date().year();
}

double clsPerson::AddMinutes(double x)
{
    // The classic rule, kept as it stands because stored results depend on it: a move of a
    // whole number of hours also moves one minute (120 gives 2 h 1 min), and 0 moves one minute.
    const bool negative = x < 0;
    const double a = std::fabs(x);
    double hours = 0;
    double minutes = a;
    if (a > 60) {
        const long whole = CLng(a);
        hours = static_cast<double>(whole / 60);
        minutes = static_cast<double>(whole % 60);
    }
    if (minutes == 0)
        minutes = 1;
    if (negative) {
        hours = -hours;
        minutes = -minutes;
    }
    setHour(m_hour + hours);
    setMinutes(m_minutes + minutes);
    if (m_minutes >= 60) {
        m_hour += 1;
        m_minutes -= 60;
    }
    if (m_minutes < 0) {
        m_hour -= 1;
        m_minutes += 60;
    }
    long days = 0;
    if (std::labs(m_hour) >= 24) {
        days = m_hour / 24;   // truncates toward zero
        m_hour = m_hour % 24; // keeps the sign of the dividend
    }
    while (m_hour < 0) {
        days -= 1;
        m_hour += 24;
    }
    if (days != 0)
        AddDays(days);
    return Val(QString::number(m_hour) + QLatin1Char('.') + Two(m_minutes));
}

double clsPerson::AdjustHour(double hour, long day, long month, long year)
{
    const QDate date(static_cast<int>(year), static_cast<int>(month), static_cast<int>(day));
    QDate moved = date;
    if (hour > 24) {
        hour -= 24;
        moved = date.addDays(1);
    } else if (hour < 0) {
        hour += 24;
        moved = date.addDays(-1);
    }
    if (moved != date && moved.isValid()) {
        m_day = moved.day();
        m_month = moved.month();
        m_year = moved.year();
    }
    return hour;
}

void clsPerson::SetBirthDate(const QDateTime &moment)
{
    m_day = moment.date().day();
    m_month = moment.date().month();
    m_year = moment.date().year();
    m_hour = moment.time().hour();
    m_minutes = moment.time().minute();
    m_ampm = m_hour >= 12 ? 2 : 1;
}
