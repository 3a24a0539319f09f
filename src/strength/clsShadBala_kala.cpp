// SPDX-License-Identifier: AGPL-3.0-or-later
// Temporal strength (Kala Bala): its nine parts and their sum.
#include "strength/clsShadBala.h"

#include "strength/ShadBalaFigures.h"

#include "sky/Functions.h"
#include "sky/clsPlanets.h"

#include <algorithm>
#include <cmath>

using namespace ShadBalaFigures;

namespace {
// An hh.mm figure (hours and minutes, or minutes and seconds) as a count of the smaller unit.
double smallUnits(double hhmm) { return Fix(hhmm) * 60 + CLng(Frac(hhmm) * 100); }

int weekdayLordOfBirth(const clsPlanets &c) { return clsPlanets::WeekDayLordOfDay(c.Person().WeekDayOfBirth()); }
} // namespace

QString clsShadBala::SBNataUnnataBala(int planet)
{
    const clsPerson &p = m_c.Person();
    QString lon = p.GetLongi();
    while (!lon.isEmpty() && !lon.back().isDigit())
        lon.chop(1); // the direction letter, when there is one
    const double n = Val(lon);
    const double birth = smallUnits(Val(p.GetBirthTime()));
    const double correction = smallUnits(m_c.LTCorrection()) / 60;
    const double minutes = n >= 82.5 ? birth + correction : birth - correction;
    const double hours = Fix(minutes / 60);
    const double t = hours + (minutes - hours * 60) / 100; // hh.mm, read as a plain number
    double nata;
    if (t == 12)
        nata = 60;
    else if (t == 0)
        nata = 0;
    else if (t < 12)
        nata = 5 * t; // below 0 just after midnight where the clock runs ahead of local time
    else if (t < 24)
        nata = 60 - 5 * (t - 12);
    else
        nata = 0;
    switch (planet) {
    case 1: case 3: case 5: return text(nata);
    case 2: return text(60);
    case 4: case 6: case 7: return text(60 - nata);
    default: return text(0);
    }
}

QString clsShadBala::SBPakshaBala(int planet)
{
    if (!inRange(planet, 1, 7))
        return text(0);
    const double d = Norm360(m_c.PlanetLongi(7) - m_c.PlanetLongi(1));
    double benefic;
    if (d == 0 || d == 360)
        benefic = 0;
    else if (d < 180)
        benefic = d / 3;
    else if (d == 180)
        benefic = 60;
    else
        benefic = d / 3 - 60; // rising again from 0 after the full Moon
    const bool beneficGroup = planet == 7 || planet == 2 || planet == 5 || planet == 3;
    return text(beneficGroup ? benefic : 60 - benefic);
}

int clsShadBala::GetTriBhaga() const
{
    const double t = MinToDec(Val(m_c.Person().GetBirthTime()));
    const double rise = MinToDec(m_c.SunRiseTime());
    const double set = MinToDec(m_c.SunSetTime());
    const bool day = m_c.DayBirth();
    const double q = (day ? m_c.DayDuration() : m_c.NightDuration()) / 3;
    if (day) {
        if (t > rise && t <= rise + q)
            return 1;
        if (t > rise + q && t <= rise + 2 * q)
            return 2;
        if (t > rise + 2 * q && t <= set)
            return 3;
        return 0;
    }
    const double night = t < set ? t + 24 : t; // hours counted on from sunset across midnight
    if (night > set && night <= set + q)
        return 1;
    if (night > set + q && night <= set + 2 * q)
        return 2;
    if (night > set + 2 * q && night <= rise + 24)
        return 3;
    return 0;
}

QString clsShadBala::SBTriBhagaBala(int planet)
{
    if (planet == 5)
        return text(60);
    const int part = GetTriBhaga();
    if (part == 0)
        return text(0);
    // By day Mercury, the Sun, Saturn; by night the Moon, Venus, Mars.
    static constexpr std::array<int, 3> kDay{2, 1, 6}, kNight{7, 3, 4};
    const int lord = (m_c.DayBirth() ? kDay : kNight)[static_cast<size_t>(part - 1)];
    return text(lord == planet ? 60 : 0);
}

QString clsShadBala::SBVaraBala(int planet) { return text(weekdayLordOfBirth(m_c) == planet ? 45 : 0); }

int clsShadBala::HoraLordOfBirth() const
{
    const double r1 = MinToDec(m_c.SunRiseTime());
    const double r2 = MinToDec(m_c.NextSunRiseTime());
    const double h = (r2 + 24 - r1) / 24;
    const double t = MinToDec(Val(m_c.Person().GetBirthTime()));
    const int n = static_cast<int>(Norm7(1 + Fix((t - r1) / h)));
    const auto found = std::find(HoraSequence.begin() + 1, HoraSequence.end(), weekdayLordOfBirth(m_c));
    const int i = static_cast<int>(found - HoraSequence.begin());
    const int m = static_cast<int>(Norm7(i - 1 + n));
    return HoraSequence[static_cast<size_t>(m)]; // 0 at place 0
}

QString clsShadBala::SBHoraBala(int planet) { return text(HoraLordOfBirth() == planet && planet != 0 ? 60 : 0); }

QString clsShadBala::VarshaBala(int &planet)
{
    if (!m_yearWeekday)
        m_yearWeekday = m_c.FirstDayOfYear();
    return text(clsPlanets::WeekDayLordOfDay(*m_yearWeekday) == planet ? 15 : 0);
}

QString clsShadBala::MaasBala(int &planet)
{
    if (!m_monthWeekday)
        m_monthWeekday = m_c.FirstDayOfMonth();
    return text(clsPlanets::WeekDayLordOfDay(*m_monthWeekday) == planet ? 30 : 0);
}

QString clsShadBala::SBAyanaBala(int &planet)
{
    const double x = Norm360(m_c.PlanetLongi(planet) + m_c.PlanetLongi(13)); // tropical
    const int side = (x > 0 && x < 180) ? 1 : (x > 180 ? 2 : 0);
    double k;
    if (x <= 90)
        k = x / 90 * 23.45;
    else if (x <= 180)
        k = 23.45 - (x - 90) / 90 * 23.45;
    else if (x <= 270)
        k = (x - 180) / 90 * 23.45;
    else
        k = 23.45 - (x - 270) / 90 * 23.45;
    const double share = k / 23.45 * 30;
    switch (planet) {
    case 2: return text(30 + share);
    case 1: case 3: case 4: case 5: return text(side == 2 ? 30 - share : 30 + share);
    case 6: case 7: return text(side == 2 ? 30 + share : 30 - share);
    default: return text(0);
    }
}

// What a planet brings to a war: its temporal parts but the war and the declination, with its
// positional and directional strength, each as shown.
double clsShadBala::yuddhaSum(int planet)
{
    int p = planet;
    return value(SBPakshaBala(p)) + value(SBTriBhagaBala(p)) + value(VarshaBala(p)) + value(MaasBala(p)) +
           value(SBVaraBala(p)) + value(SBHoraBala(p)) + SBSthanaBala(p) + value(SBDikBala(p)) + value(SBNataUnnataBala(p));
}

QString clsShadBala::SBYuddhaBala(int /*ignored*/, int planet)
{
    if (!inRange(planet, 2, 6))
        return text(0);
    // The opponent: within a degree by the straight difference; a later one replaces an earlier.
    const double l = m_c.PlanetLongi(planet);
    int opponent = 0;
    for (int q = 2; q <= 6; ++q)
        if (q != planet && std::fabs(l - m_c.PlanetLongi(q)) <= 1)
            opponent = q;
    if (opponent == 0)
        return text(0);
    const double a = yuddhaSum(planet);
    const double b = yuddhaSum(opponent);
    const double share = std::fabs(a - b) / BimbaPariman(planet);
    return text(l < m_c.PlanetLongi(opponent) ? a + share : a - share);
}

QString clsShadBala::SBKaalaBala(int planet)
{
    if (!inRange(planet, 1, 7))
        return text(0);
    int p = planet;
    return text(value(SBPakshaBala(p)) + value(SBTriBhagaBala(p)) + value(VarshaBala(p)) + value(MaasBala(p)) +
                value(SBVaraBala(p)) + value(SBHoraBala(p)) + value(SBAyanaBala(p)) + value(SBYuddhaBala(2, p)) +
                value(SBNataUnnataBala(p)));
}
