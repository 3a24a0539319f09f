// SPDX-License-Identifier: AGPL-3.0-or-later
// The Lagna and the twelve bhavas, from the local sidereal time by the program's own trigonometry.
#include "sky/clsPlanets.h"

#include "sky/Functions.h"

#include <algorithm>
#include <cmath>

namespace {
constexpr double kDegToRad = 0.017453292519944444;
// The ascendant formula and its choice of half circle hold up to this latitude, north and south.
// Nearer the poles the choice fails for part of the day (from about 65.8 degrees south), and
// beyond the polar circle the rising point of the ecliptic jumps and runs backward, so that the
// Sun's point may not rise at all. A place beyond the bound gets the Lagna and bhavas of the bound
// on its own meridian: the Lagna keeps moving forward and every point of the ecliptic still rises
// and sets each day.
constexpr double kLagnaLatitudeBound = 65.0;
}

void clsPlanets::calcBhavas()
{
    const clsPerson &p = Person();
    const double ayan = PlanetLongi(13);
    m_obliq = 23.452294 - m_t * 0.0130125;
    const double g = Frac(m_t * 100.00214 + 0.2769) * 24; // mean Sun's right ascension, hours
    const double h = m_dayFraction * 24 + 12;             // universal hour
    double lonH = (p.LongDeg() + p.LongMT() / 60.0) / 15;
    if (p.TextEW().compare(QLatin1String("W"), Qt::CaseInsensitive) == 0)
        lonH = -lonH;
    m_sidrealTime = Frac((h + g + lonH) / 24) * 24;
    if (m_sidrealTime < 0)
        m_sidrealTime += 24;

    // The ascendant at the equator six hours earlier is the culminating point.
    const double mc = calcAscendant(m_sidrealTime - 6, 0);
    double lat = p.LatDeg() + p.LatMT() / 60.0;
    if (p.TextNS().compare(QLatin1String("S"), Qt::CaseInsensitive) == 0)
        lat = -lat;
    const double asc = calcAscendant(m_sidrealTime, lat);

    double arc = (mc + 180 - asc) / 3;
    if (mc > asc)
        arc -= 120;
    const double other = 60 - arc;
    fillHouseRun(asc, arc, 0);
    fillHouseRun(mc + 180, other, 3);
    fillHouseRun(asc + 180, arc, 6);
    fillHouseRun(mc, other, 9);

    double b = m_bhavMid[0] + m_bhavMid[11];
    if (m_bhavMid[11] > m_bhavMid[0])
        b += 360;
    b /= 2;
    for (int k = 0; k < 2 && b >= 360; ++k)
        b -= 360;
    m_bhavBegin[0] = b;
    for (size_t i = 1; i <= 12; ++i) {
        double v = (m_bhavMid[i] + m_bhavMid[i - 1]) / 2;
        if (m_bhavMid[i] < m_bhavMid[i - 1])
            v += 180;
        if (v > 360)
            v -= 360;
        m_bhavBegin[i] = v;
    }
    m_kpHouse[0] = PlanetLongi(0) + ayan - KPAyanVal();
}

double clsPlanets::calcAscendant(double st, double lat) const
{
    lat = std::clamp(lat, -kLagnaLatitudeBound, kLagnaLatitudeBound);
    double a = st * 15 + 90;
    if (a >= 360)
        a -= 360;
    const double stR = st * 3.14159265359 / 12;
    const double latR = lat * kDegToRad;
    const double oblR = m_obliq * kDegToRad;
    const double v = -std::cos(stR) / (std::sin(oblR) * std::sin(latR) / std::cos(latR) + std::cos(oblR) * std::sin(stR));
    double asc = std::atan(v) / kDegToRad;
    if (asc < 0)
        asc += 180;
    if (a - asc > 75)
        asc += 180;
    asc -= PlanetLongi(13);
    if (asc < 0)
        asc += 360;
    else if (asc >= 360)
        asc -= 360;
    return asc;
}

void clsPlanets::fillHouseRun(double start, double step, int first)
{
    for (int i = 0; i < 4; ++i) {
        double v = start + i * step;
        if (v >= 360)
            v -= 360;
        m_bhavMid[static_cast<size_t>(first + i)] = v;
    }
}

int clsPlanets::PlanetHouse(int n) const { return Norm12(PlanetRashiNum(n) - PlanetRashiNum(0) + 1); }

int clsPlanets::GetHouseLord(int s) { return SignLord(s); }

int clsPlanets::ChalitBhava(int p) const
{
    // Unroll the circle from the first beginning, then take the first bhava whose end lies beyond
    // the planet. A planet exactly on a boundary belongs to the bhava that begins there; one in the
    // rounding sliver past the last end stays in the twelfth.
    const double first = BhavBegin(0);
    const auto unrolled = [first](double v) { return first > v ? v + 360.0 : v; };
    const double l = unrolled(PlanetLongi(p));
    for (int k = 0; k < 12; ++k) {
        if (l >= unrolled(BhavBegin(k)) && l < unrolled(BhavBegin(k + 1)))
            return k;
    }
    return 11;
}

void clsPlanets::setBhavBegin(int i, double v)
{
    if (i >= 0 && i < static_cast<int>(m_bhavBegin.size()))
        m_bhavBegin[static_cast<size_t>(i)] = v;
}
