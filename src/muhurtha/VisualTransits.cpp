// SPDX-License-Identifier: AGPL-3.0-or-later
#include "muhurtha/VisualTransits.h"

#include "sky/Functions.h"
#include "sky/clsPlanets.h"

#include <cmath>

namespace VisualTransits {

QDateTime Step(const QDateTime &from, Unit unit, int factor)
{
    switch (unit) {
    case Unit::Minutes:
        return from.addSecs(60LL * factor);
    case Unit::Hours:
        return from.addSecs(3600LL * factor);
    case Unit::Days:
        return from.addDays(factor);
    case Unit::Months:
        return from.addMonths(factor);
    case Unit::Years:
        return from.addYears(factor);
    case Unit::Centuries:
        return from.addYears(100 * factor);
    }
    return from;
}

double OrbitRadius(int body)
{
    if (body < 0 || body > 12)
        return 0;
    // 1 -> 2480, 2 -> 2330, ... 12 -> 830, and the Lagna (0) last, at 680.
    const int place = body == 0 ? 12 : body - 1;
    return 2480 - 150.0 * place;
}

QPointF PlaceBody(double radius, double longitude)
{
    const double a = longitude * 3.14 / 180;
    return {radius * std::sin(a) + kCentreX, kCentreY - radius * std::cos(a)};
}

QString ValueText(const clsPlanets &chart, int body)
{
    return QString::number(static_cast<long>(Int(chart.KrishAmsha(body)))) + QStringLiteral("° ")
           + chart.PlanetRashiNameEngSmall(body) + QLatin1Char(' ') + QString::number(clsPlanets::GetMin(chart.KrishAmsha(body)))
           + QStringLiteral("´");
}

QString ValueLine(const clsPlanets &chart, int body)
{
    QString line = clsPlanets::PlanetNameEng(body) + QStringLiteral(": ") + ValueText(chart, body);
    const QString mark = chart.ExaltClassEng(body);
    if (!mark.isEmpty())
        line += QStringLiteral(" (") + mark + QLatin1Char(')');
    return line;
}

} // namespace VisualTransits
