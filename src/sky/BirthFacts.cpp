// SPDX-License-Identifier: AGPL-3.0-or-later
#include "sky/BirthFacts.h"

#include "sky/Functions.h"
#include "sky/SunEvents.h"
#include "sky/clsPlanets.h"

#include <cmath>

namespace BirthFacts {

double HoursOfClock(double hhmm)
{
    const double h = std::trunc(hhmm);
    return h + std::round((hhmm - h) * 100.0) / 60.0;
}

QString LocalMeanTime(const clsPlanets &c)
{
    const clsPerson &p = c.Person();
    double lon = p.LongDeg() + p.LongMT() / 60.0;
    if (p.TextEW().toUpper() == QLatin1String("W"))
        lon = -lon;
    const double zoneHours = Val(p.GMTDIFF());
    long secs = p.Hour() * 3600 + p.Minutes() * 60 + p.seconds() + std::lround((lon * 4.0 - zoneHours * 60.0) * 60.0);
    secs = ((secs % 86400) + 86400) % 86400;
    return Two(secs / 3600) + QLatin1Char(':') + Two(secs / 60 % 60) + QLatin1Char(':') + Two(secs % 60);
}

int Prahar(double birth, double rise, double set)
{
    const double day = set - rise;
    if (day <= 0 || day >= 24)
        return 0; // no sunrise and sunset on this day at this place
    if (birth >= rise && birth < set)
        return 1 + std::min(3, static_cast<int>((birth - rise) / (day / 4.0)));
    const double night = 24.0 - day;
    const double sinceSet = birth >= set ? birth - set : birth + 24.0 - set;
    return 5 + std::min(3, static_cast<int>(sinceSet / (night / 4.0)));
}

int Prahar(const clsPlanets &c)
{
    const clsPerson &p = c.Person();
    const double birth = p.Hour() + p.Minutes() / 60.0 + p.seconds() / 3600.0;
    return Prahar(birth, HoursOfClock(c.SunRiseTime()), HoursOfClock(c.SunSetTime()));
}

QString SunDayWords(const clsPlanets &c)
{
    switch (SunDayKind(c)) {
    case SunDay::MidnightSun: return QStringLiteral("Sun does not set (midnight sun)");
    case SunDay::PolarNight: return QStringLiteral("Sun does not rise (polar night)");
    case SunDay::Normal: break;
    }
    return {};
}

QString SunDayRule(const clsPlanets &c)
{
    switch (SunDayKind(c)) {
    case SunDay::MidnightSun: return QStringLiteral("Midnight sun: day parts reckoned from 6:00 and 18:00 local mean time");
    case SunDay::PolarNight: return QStringLiteral("Polar night: day parts reckoned from 6:00 and 18:00 local mean time");
    case SunDay::Normal: break;
    }
    return {};
}

int Varga(const QString &syllable)
{
    const QString s = syllable.trimmed().toLower();
    if (s.isEmpty())
        return 0;
    switch (s.at(0).unicode()) {
    case 'a': case 'e': case 'i': case 'o': case 'u': return 1;
    case 'k': case 'g': case 'q': return 2;
    case 'c': case 'j': case 'z': return 3;
    case 't': case 'd': case 'n': return 5;
    case 'p': case 'f': case 'b': case 'm': return 6;
    case 'y': case 'r': case 'l': case 'v': case 'w': return 7;
    case 's': case 'h': case 'x': return 8;
    default: return 0;
    }
}

int LuckyNumber(int day)
{
    if (day <= 0)
        return 0;
    return (day - 1) % 9 + 1;
}

QList<int> GoodYears(int n)
{
    QList<int> out;
    if (n < 1 || n > 9)
        return out;
    for (int y = n + 9; y <= 90; y += 9)
        out.append(y);
    return out;
}

} // namespace BirthFacts
