// SPDX-License-Identifier: AGPL-3.0-or-later
#include "kp/clsKPSystem.h"

#include "chartdraw/KundaliModel.h"
#include "sky/Functions.h"
#include "sky/clsPlanets.h"

#include <QString>

#include <algorithm>
#include <cmath>

namespace {
constexpr double kNakSpan = 360.0 / 27;
// The star's length on the scale of the nine-year cycle.
constexpr double kStarUnits = 120;

bool isPlanet(int p) { return p >= 1 && p <= 12; }
bool isCusp(int k) { return k >= 1 && k <= 12; }
} // namespace

clsKPSystem::clsKPSystem(const clsPlanets &chart) : m_chart(chart), m_kpAyan(chart.KPAyanVal()) {}

double clsKPSystem::Fold360(double l)
{
    const double r = l - 360.0 * std::floor(l / 360.0);
    return r >= 360.0 ? 0.0 : r;
}

int clsKPSystem::SignOfLongi(double l) { return static_cast<int>(Int(Fold360(l) / 30)) + 1; }

int clsKPSystem::NakOfLongi(double l) { return std::min(27, static_cast<int>(Int(Fold360(l) / kNakSpan)) + 1); }

void clsKPSystem::fillLongitudes() const
{
    if (m_longiDone)
        return;
    const double ayan = m_chart.PlanetLongi(13);
    for (int i = 0; i <= 26; ++i) {
        // An empty position stays empty rather than reading as 360 less the ayanamsa difference.
        if (!m_chart.PlanetLongiIsEmpty(i))
            m_longi[static_cast<size_t>(i)] = Fold360(m_chart.PlanetLongi(i) + ayan - m_kpAyan);
        m_sign[static_cast<size_t>(i)] = SignOfLongi(m_longi[static_cast<size_t>(i)]);
    }
    m_longiDone = true;
}

double clsKPSystem::PlntLongi(int n) const
{
    fillLongitudes();
    return m_longi.at(static_cast<size_t>(n));
}

int clsKPSystem::Sign(int n) const
{
    fillLongitudes();
    return m_sign.at(static_cast<size_t>(n));
}

int clsKPSystem::NakOf(int n) const { return NakOfLongi(PlntLongi(n)); }

int clsKPSystem::SignLord(int n) const { return clsPlanets::GetRashiLordNum(Sign(n)); }

int clsKPSystem::StarLord(int n) const { return clsPlanets::NakLordNum(NakOf(n)); }

int clsKPSystem::SubLordInStar(int starLord, double x)
{
    if (!(x > 0) || x > kStarUnits)
        return 0;
    int first = 0;
    for (int pos = 1; pos <= 9; ++pos)
        if (clsPlanets::GetVimSotPlanetLord(pos) == starLord)
            first = pos;
    if (first == 0)
        return 0;
    // Whole years as the spans' ends: the boundaries are integers on the scale of 120.
    int end = 0;
    for (int i = 0; i < 9; ++i) {
        const int lord = clsPlanets::GetVimSotPlanetLord((first - 1 + i) % 9 + 1);
        end += clsPlanets::GetVimSotPeriods(lord);
        if (x <= end)
            return lord;
    }
    return 0;
}

int clsKPSystem::SubLordOf(int nakshatra, double longitude)
{
    // The place in the star; a longitude exactly at a star's start has none.
    const double d = longitude - Int(longitude / kNakSpan) * kNakSpan;
    if (!(d > 0) || !(d < kNakSpan))
        return 0;
    return SubLordInStar(clsPlanets::NakLordNum(nakshatra), d * 9);
}

int clsKPSystem::SubLord(int n) const
{
    if (!m_subLord) {
        std::array<int, 13> s{};
        for (int i = 0; i <= 12; ++i)
            s[static_cast<size_t>(i)] = SubLordOf(NakOf(i), PlntLongi(i));
        m_subLord = s;
    }
    return m_subLord->at(static_cast<size_t>(n));
}

double clsKPSystem::ParsFortLongi() const
{
    if (!m_parsFort)
        m_parsFort = Norm360(PlntLongi(7) - PlntLongi(1) + PlntLongi(0));
    return *m_parsFort;
}

double clsKPSystem::CuspLongi(int cusp) const { return isCusp(cusp) ? Fold360(m_chart.KPHouse(cusp)) : 0; }

int clsKPSystem::CuspSignLord(int cusp) const
{
    return isCusp(cusp) ? clsPlanets::GetRashiLordNum(SignOfLongi(CuspLongi(cusp))) : 0;
}

int clsKPSystem::AgeCuspSubLord(int cusp) const
{
    if (!isCusp(cusp))
        return 0;
    if (!m_cuspSubLord) {
        std::array<int, 13> s{};
        for (int i = 1; i <= 12; ++i) {
            const double l = CuspLongi(i);
            s[static_cast<size_t>(i)] = SubLordOf(NakOfLongi(l), l);
        }
        m_cuspSubLord = s;
    }
    return m_cuspSubLord->at(static_cast<size_t>(cusp));
}

bool clsKPSystem::PlanetINNakof(int planet, int lord) const
{
    // Each of the seven lords rules three stars nine apart; the star table is that of the cycle.
    return isPlanet(planet) && lord >= 1 && lord <= 7 && StarLord(planet) == lord;
}

bool clsKPSystem::FindSignifCuspLord(int cusp, int planet) const
{
    return isCusp(cusp) && isPlanet(planet) && CuspSignLord(cusp) == planet;
}

bool clsKPSystem::FindSignIfOccup(int cusp, int planet) const
{
    if (!isCusp(cusp) || !isPlanet(planet))
        return false;
    const double a = CuspLongi(cusp);
    const double b = CuspLongi(cusp % 12 + 1);
    const double p = PlntLongi(planet);
    if (a <= b)
        return p > a && p < b;
    return (p >= a && p < 360) || (p <= b && p > 0);
}

bool clsKPSystem::FindSignIfNakCusp(int cusp, int planet) const
{
    return isCusp(cusp) && planet >= 1 && planet <= 9 && PlanetINNakof(planet, CuspSignLord(cusp));
}

bool clsKPSystem::FindSignIfNakOccup(int cusp, int planet) const
{
    if (!isCusp(cusp) || !isPlanet(planet))
        return false;
    // The chart's own star of the planet, against each occupant as a star lord.
    for (int i = 1; i <= 9; ++i)
        if (FindSignIfOccup(cusp, i) && m_chart.PlanetINNakof(i, planet))
            return true;
    return false;
}

bool clsKPSystem::PlanetIsSignificator(int planet, int cusp) const { return PlanetSignifScore(planet, cusp) > 0; }

int clsKPSystem::PlanetSignifScore(int planet, int cusp) const
{
    int score = 0;
    if (FindSignifCuspLord(cusp, planet))
        score += kScoreCuspLord;
    if (FindSignIfOccup(cusp, planet))
        score += kScoreOccupant;
    if (FindSignIfNakCusp(cusp, planet))
        score += kScoreInStarOfCuspLord;
    if (FindSignIfNakOccup(cusp, planet))
        score += kScoreInStarOfOccupant;
    return score;
}

int clsKPSystem::SignifBand(int score) { return score < 8 ? 0 : score <= 14 ? 1 : score <= 21 ? 2 : 3; }

bool clsKPSystem::PlanetInBhava(int planet, int cusp) const
{
    if (!isCusp(cusp) || !isPlanet(planet))
        return false;
    const double a = CuspLongi(cusp);
    const double b = CuspLongi(cusp % 12 + 1);
    const double p = PlntLongi(planet);
    if (b >= a)
        return p >= a && p <= b;
    return (p >= a && p <= 360) || (p >= 0 && p <= b);
}

namespace {
QString nameOf(const clsPlanets &c, int n, bool english) { return english ? clsPlanets::PlanetNameEng(n) : c.PlanetName(n); }
} // namespace

void clsKPSystem::FillSignKundali(KundaliModel &k, bool english) const
{
    k.Clear();
    k.setHouseNumber(Sign(0));
    k.PlanetPlace(Sign(0), nameOf(m_chart, 0, english));
    for (int n = 1; n <= 12; ++n)
        k.PlanetPlace(Sign(n), nameOf(m_chart, n, english));
}

void clsKPSystem::FillBhavaKundali(KundaliModel &k, bool english) const
{
    k.Clear();
    const int rising = Sign(0);
    k.setHouseNumber(rising);
    k.PlanetPlace(rising, nameOf(m_chart, 0, english));
    for (int p = 1; p <= 12; ++p) {
        // On a cusp a planet is in both houses that meet there; it is shown in the one that begins.
        int shown = 0;
        for (int house = 1; house <= 12; ++house)
            if (PlanetInBhava(p, house) && (shown == 0 || PlntLongi(p) == CuspLongi(house)))
                shown = house;
        if (shown != 0)
            k.PlanetPlace(Norm12(rising + shown - 1), nameOf(m_chart, p, english));
    }
}
