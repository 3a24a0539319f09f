// SPDX-License-Identifier: AGPL-3.0-or-later
#include "marriage/MatchFacts.h"

#include "sky/Functions.h"
#include "sky/clsPlanets.h"

#include <cmath>

namespace MatchFacts {

QString LocalTimeCorrection(const clsPlanets &c)
{
    const clsPerson &p = c.Person();
    double lon = p.LongDeg() + p.LongMT() / 60.0;
    if (p.TextEW().trimmed().toUpper() != QLatin1String("E"))
        lon = -lon;
    const long secs = std::lround((lon * 4.0 - Val(p.GMTDIFF()) * 60.0) * 60.0);
    const long a = std::labs(secs);
    return (secs < 0 ? QStringLiteral("-") : QStringLiteral("+")) + Two(a / 60) + QLatin1Char(':') + Two(a % 60);
}

QString SiderealTime(const clsPlanets &c)
{
    const long secs = std::lround(c.SidrealTime() * 3600.0) % 86400;
    return Two(secs / 3600) + QLatin1Char(':') + Two(secs / 60 % 60) + QLatin1Char(':') + Two(secs % 60);
}

QString BirthDate(const clsPlanets &c)
{
    const clsPerson &p = c.Person();
    return Two(p.Day()) + QLatin1Char('/') + Two(p.Month()) + QLatin1Char('/') + QString::number(p.Year());
}

} // namespace MatchFacts
