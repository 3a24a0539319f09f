// SPDX-License-Identifier: AGPL-3.0-or-later
// Sunrise, sunset and the lengths of day and night. Sunrise and sunset are the moments at which
// the Sun's ecliptic point rises and sets: the Lagna standing on the Sun, or opposite it. On a
// day when the point doesn't rise or set (SunDayKind), they are the equal day's 6:00 and 18:00
// local mean time, so that everything counted from them keeps one stated rule.
#include "sky/clsPlanets.h"

#include "sky/Functions.h"
#include "sky/SunEvents.h"

#include <cmath>

namespace {
// The sunset walk moves the clock forward by three minutes per degree still to go. Where the Lagna
// runs faster than that it overshoots, and from there the walk would go round a whole day and
// more; where it runs slower the walk creeps up in a few passes (ten at most in trials at every
// latitude up to 60 degrees). So the walk stops when it has passed the Sun, or after this many
// passes, and the sunset is then found by halving the last move, or by strides from where the
// walk stands.
constexpr int kSunSetPasses = 12;

double clockOf(const clsPerson &p)
{
    return Val(QString::number(p.Hour()) + QLatin1Char('.') + Two(p.Minutes()));
}
} // namespace

void clsPlanets::ClearSunMemos()
{
    m_sunRise = m_sunSet = m_nightDuration = m_nextSunRise = 0;
    m_sunMemoKey.clear();
}

// The kept values belong to one moment and place: a person moved since, or a chart recast for
// another moment, gets them worked out again.
void clsPlanets::refreshSunMemos() const
{
    const clsPerson &p = Person();
    const QString key = QStringLiteral("%1/%2/%3 %4:%5 %6.%7%8 %9.%10%11 %12")
                            .arg(p.Day())
                            .arg(p.Month())
                            .arg(p.Year())
                            .arg(p.Hour())
                            .arg(p.Minutes())
                            .arg(p.LatDeg())
                            .arg(p.LatMT())
                            .arg(p.TextNS().toUpper())
                            .arg(p.LongDeg())
                            .arg(p.LongMT())
                            .arg(p.TextEW().toUpper())
                            .arg(p.GMTDIFF());
    if (key != m_sunMemoKey) {
        m_sunRise = m_sunSet = m_nightDuration = m_nextSunRise = 0;
        m_sunMemoKey = key;
    }
}

double clsPlanets::SunRiseTime() const
{
    refreshSunMemos();
    if (m_sunRise == 0)
        m_sunRise = NeighbourSunEvent(*this, SunEvent::Rise, 0);
    return m_sunRise;
}

double clsPlanets::SunSetTime() const
{
    refreshSunMemos();
    if (m_sunSet == 0)
        m_sunSet = SunDayKind(*this) == SunDay::Normal ? iterateSunSet() : EqualDayClock(*this, SunEvent::Set);
    return m_sunSet;
}

double clsPlanets::iterateSunSet() const
{
    clsPlanets copy;
    copy.setRahuKetuMode(m_rahuKetuMode);
    CopySettingTo(copy);
    copy.Calculate();
    clsPerson &p = copy.Person();

    for (int pass = 0; pass < kSunSetPasses; ++pass) {
        // How far the Sun stands ahead of the setting point, 0..360 degrees.
        const double a = Norm360(copy.PlanetLongi(0) + 180);
        const double s = copy.PlanetLongi(1);
        double diff = a > s ? (s + 360) - a : s - a;
        const QDateTime before = p.GetBirthDate();
        // Three minutes of clock per degree, split into hours and minutes.
        double x = diff * 3;
        double h = 0;
        while (x <= -60) {
            h -= 1;
            x += 60;
        }
        while (x >= 60) {
            h += 1;
            x -= 60;
        }
        if (diff < 0) {
            p.setHour(p.Hour() - h);
            p.setMinutes(p.Minutes() - x);
        } else {
            p.setHour(p.Hour() + h);
            p.setMinutes(p.Minutes() + x);
        }
        copy.Calculate();
        // The Sun's lead over the setting point now, by the same reading.
        const double a2 = Norm360(copy.PlanetLongi(0) + 180);
        const double lead = a2 > s ? (s + 360) - a2 : s - a2;
        // Settled within a third of a degree either side. The walk's own test reads the plain
        // difference of the two longitudes and so never settles across the 0/360 point (where a
        // move under half a minute would leave the clock where it stands for good); this one does.
        if (lead * 3 < 1 || (360 - lead) * 3 < 1)
            return clockOf(p);
        // A lead grown instead of shrunk: the setting point went past the Sun, and the walk, which
        // moves only forward, would go round a whole day from here. The sunset lies within the
        // last move; halving it finds the minute.
        if (lead > diff)
            return Val(LagnaPassBetween(copy, before, p.GetBirthDate(), Norm360(s + 180))->Person().GetBirthTime());
    }
    // Still short of the Sun: walk on in strides.
    return Val(LagnaPassChart(copy, Norm360(copy.PlanetLongi(1) + 180), 1)->Person().GetBirthTime());
}

bool clsPlanets::DayBirth() const
{
    const double t = Val(Person().GetBirthTime());
    const double rise = SunRiseTime();
    const double set = SunSetTime();
    if (rise <= set)
        return t >= rise && t <= set;
    // A sunset after midnight: the day runs over it.
    return t >= rise || t <= set;
}

double clsPlanets::DayDuration() const
{
    double d = MinToDec(SunSetTime()) - MinToDec(SunRiseTime());
    if (d < 0) // a sunset after midnight
        d += 24;
    return d;
}

double clsPlanets::NextSunRiseTime() const
{
    refreshSunMemos();
    if (m_nextSunRise == 0)
        m_nextSunRise = NeighbourSunEvent(*this, SunEvent::Rise, 1);
    return m_nextSunRise;
}

double clsPlanets::NightDuration() const
{
    refreshSunMemos();
    if (m_nightDuration != 0)
        return m_nightDuration;
    double n;
    if (Person().Hour() < 12)
        n = std::fabs(MinToDec(NeighbourSunEvent(*this, SunEvent::Set, -1)) - (MinToDec(SunRiseTime()) + 24));
    else
        n = std::fabs(MinToDec(SunSetTime()) - (MinToDec(NextSunRiseTime()) + 24));
    if (n > 24) // a sunset after midnight
        n -= 24;
    m_nightDuration = n;
    return n;
}
