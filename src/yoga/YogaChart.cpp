// SPDX-License-Identifier: AGPL-3.0-or-later
#include "yoga/YogaChart.h"

#include "sky/Functions.h"
#include "sky/clsPlanets.h"

#include <cmath>

YogaChart::YogaChart(const clsPlanets &c) : m_c(c)
{
    for (int p = 0; p <= 9; ++p)
        m_sign[static_cast<size_t>(p)] = static_cast<int>(Int(c.PlanetLongi(p) / 30)) % 12 + 1;
    for (int h = 1; h <= 12; ++h)
        m_lord[static_cast<size_t>(h)] = clsPlanets::GetRashiLordNum(H(h));
}

int YogaChart::H(int n) const { return Norm12(Lg() + n - 1); }

int YogaChart::lord(int sign) { return clsPlanets::GetRashiLordNum(sign); }

bool YogaChart::in(int p, std::initializer_list<int> houses) const
{
    for (int h : houses)
        if (S(p) != 0 && S(p) == H(h))
            return true;
    return false;
}

bool YogaChart::from(int p, std::initializer_list<int> counts, int q) const
{
    if (S(p) == 0 || S(q) == 0)
        return false;
    for (int n : counts)
        if (S(p) == Norm12(S(q) + n - 1))
            return true;
    return false;
}

bool YogaChart::signIn(int p, std::initializer_list<int> signs) const
{
    for (int s : signs)
        if (S(p) == s)
            return true;
    return false;
}

bool YogaChart::own(int p) const { return clsPlanets::CheckOwnHouse(p, S(p)); }
bool YogaChart::exalted(int p) const { return clsPlanets::CheckIfExalted(p, S(p)); }
bool YogaChart::debilitated(int p) const { return clsPlanets::CheckIfDebi(p, S(p)); }
double YogaChart::lon(int p) const { return m_c.PlanetLongi(p); }

bool YogaChart::aspects(int p, int s) const
{
    if (p == Ra || p == Ke)
        return Norm12(S(p) + 6) == s;
    return p >= 1 && p <= 7 && m_c.CheckIfPlanetAspects(p, s);
}

int YogaChart::countIn(std::initializer_list<int> houses) const
{
    int n = 0;
    for (int p = 1; p <= 7; ++p)
        n += in(p, houses) ? 1 : 0;
    return n;
}
