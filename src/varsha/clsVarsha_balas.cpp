// SPDX-License-Identifier: AGPL-3.0-or-later
// The annual balas: Harsha Bala, Pancha Vargiya Bala and Dwadash Vargiya Bala of planets 1..7.
#include "sky/Functions.h"
#include "sky/clsPlanets.h"
#include "varsha/clsVarsha.h"

#include <array>
#include <cmath>

namespace {

bool isSeven(int p) { return p >= 1 && p <= 7; }
size_t at(int p) { return static_cast<size_t>(p); }

// The annual friends of planets 1..8 (Sun .. Moon, Rahu).
inline constexpr std::array<std::array<int, 3>, 9> kVarshaFriends{{
    {0, 0, 0},
    {4, 5, 7}, // Sun
    {3, 6, 8}, // Mercury
    {2, 6, 8}, // Venus
    {1, 5, 7}, // Mars
    {1, 4, 7}, // Jupiter
    {2, 3, 8}, // Saturn
    {1, 4, 5}, // Moon
    {2, 3, 6}, // Rahu
}};

// Hadda intervals [from, to) of absolute longitude, by lord; Saturn holds all the rest.
struct Hadda
{
    int lord;
    std::array<std::array<int, 2>, 12> spans;
};
inline constexpr std::array<Hadda, 4> kHadda{{
    {4, {{{20, 25}, {57, 60}, {77, 84}, {90, 97}, {144, 150}, {171, 178}, {208, 217}, {261, 266}, {296, 300}, {320, 325}, {349, 358}, {0, 0}}}},
    {2, {{{12, 20}, {38, 44}, {60, 66}, {103, 109}, {138, 144}, {150, 157}, {186, 194}, {221, 229}, {257, 261}, {270, 277}, {300, 307}, {346, 349}}}},
    {5, {{{0, 6}, {44, 52}, {72, 77}, {109, 116}, {120, 126}, {167, 171}, {194, 201}, {229, 234}, {240, 252}, {277, 284}, {313, 320}, {342, 346}}}},
    {3, {{{6, 12}, {30, 38}, {66, 72}, {97, 103}, {126, 131}, {157, 167}, {201, 208}, {217, 221}, {252, 257}, {284, 292}, {307, 313}, {330, 342}}}},
}};

// Deep exaltation and deep debilitation in degrees, planets 1..7.
inline constexpr std::array<std::array<double, 2>, 8> kDeep{{
    {0, 0}, {10, 190}, {165, 345}, {357, 177}, {298, 118}, {95, 275}, {200, 20}, {33, 213},
}};

// Harsha Bala: the house from the ascendant's sign that gladdens each planet, and the sets of the
// third condition.
inline constexpr std::array<int, 8> kHarshaHouse{0, 8, 0, 4, 5, 10, 11, 2};
inline constexpr std::array<int, 5> kMaleSet{3, 4, 5, 9, 11};
inline constexpr std::array<int, 4> kSoftSet{1, 2, 6, 7};
inline constexpr std::array<int, 5> kDarkSet{1, 2, 6, 7, 8};

} // namespace

bool clsVarsha::VarshaFriend(int a, int b)
{
    if (a < 1 || a > 8)
        return false;
    for (int f : kVarshaFriends[at(a)])
        if (f == b)
            return true;
    return false;
}

int clsVarsha::HaddaLord(double longitude)
{
    for (const Hadda &h : kHadda)
        for (const auto &s : h.spans)
            if (s[1] > s[0] && longitude >= s[0] && longitude < s[1])
                return h.lord;
    return 6;
}

bool clsVarsha::HBala1(int p) const
{
    return isSeven(p) && m_annual.Sign(p) == Norm12(m_annual.Sign(0) + kHarshaHouse[at(p)]);
}

bool clsVarsha::HBala2(int p) const { return isSeven(p) && strongPlace(p); }

bool clsVarsha::HBala3(int p) const
{
    if (!isSeven(p))
        return false;
    const auto in = [&](const auto &set) {
        for (int k : set)
            if (m_annual.Sign(p) == Norm12(m_annual.Sign(0) + k))
                return true;
        return false;
    };
    if (p == 1 || p == 4 || p == 5)
        return in(kMaleSet);
    if (p == 2 || p == 3)
        return in(kSoftSet);
    return in(kDarkSet);
}

bool clsVarsha::Hbala4(int p) const
{
    if (!isSeven(p))
        return false;
    const bool day = m_annual.DayBirth();
    return (p == 1 || p == 4 || p == 5) ? day : !day;
}

long clsVarsha::HarshaBalaDet(int p) const
{
    if (!isSeven(p))
        return 0;
    return 5L * (HBala1(p) + HBala2(p) + HBala3(p) + Hbala4(p));
}

double clsVarsha::KshetraBala(int p) const
{
    if (!isSeven(p))
        return 0;
    const int s = m_annual.Sign(p);
    if (clsPlanets::CheckOwnHouse(p, s))
        return RoundBala(7.5);
    return RoundBala(VarshaFriend(p, clsPlanets::SignLord(s)) ? 3.75 : 1.875);
}

double clsVarsha::UchchaBala(int p) const
{
    if (!isSeven(p))
        return 0;
    double d = std::fabs(m_annual.PlanetLongi(p) - kDeep[at(p)][1]);
    if (d > 180)
        d = 360 - d;
    return RoundBala(d * 5 / 180);
}

double clsVarsha::HaddaBala(int p) const
{
    if (!isSeven(p))
        return 0;
    const int h = HaddaLord(m_annual.PlanetLongi(p));
    return RoundBala(h == p ? 3.75 : VarshaFriend(h, p) ? 1.875 : 0.9375);
}

double clsVarsha::DrekkanBala(int p) const
{
    if (!isSeven(p))
        return 0;
    const int h = m_annual.DrekkanaLord(p);
    return RoundBala(h == p ? 2.5 : VarshaFriend(h, p) ? 1.25 : 0.625);
}

double clsVarsha::NavamshBala(int p) const
{
    if (!isSeven(p))
        return 0;
    const int h = m_annual.NavamshLord(p);
    return RoundBala(h == p ? 1.25 : VarshaFriend(h, p) ? 0.625 : 0.3125);
}

std::optional<double> clsVarsha::PanchBala(int i, int p) const
{
    switch (i) {
    case 1: return KshetraBala(p);
    case 2: return UchchaBala(p);
    case 3: return HaddaBala(p);
    case 4: return DrekkanBala(p);
    case 5: return NavamshBala(p);
    default: return std::nullopt;
    }
}

double clsVarsha::PanchBalaTotal(int p) const
{
    return KshetraBala(p) + UchchaBala(p) + HaddaBala(p) + DrekkanBala(p) + NavamshBala(p);
}

long clsVarsha::PanchaBalaStrength(double total) { return total < 7 ? 1 : total < 13 ? 2 : 3; }

long clsVarsha::DwaDashaBala(int i, int p) const
{
    if (!isSeven(p) || i < 1 || i > 12)
        return 0;
    const clsPlanets &c = m_annual;
    int lord = 0;
    switch (i) {
    case 1: lord = clsPlanets::SignLord(c.Sign(p)); break;
    case 2: lord = c.HoraLord(p); break;
    case 3: lord = c.DrekkanaLord(p); break;
    case 4: lord = c.ChaturthamshLord(p); break;
    case 5: lord = c.PanchamAmshLord(p); break;
    case 6: lord = c.SastamshLord(p); break;
    case 7: lord = c.SaptamshaLord(p); break;
    case 8: lord = c.VarAshtamamshaLord(p); break;
    case 9: lord = c.NavamshLord(p); break;
    case 10: lord = c.DashamamshaLord(p); break;
    case 11: lord = c.EkaDashamAmshaLord(p); break;
    case 12: lord = c.DwaDashamamshaLord(p); break;
    }
    return lord == p || VarshaFriend(p, lord) ? 1 : -1;
}

long clsVarsha::SumPosiDwaDashBala(int p) const
{
    long n = 0;
    for (int i = 1; i <= 12; ++i)
        n += DwaDashaBala(i, p) > 0;
    return n;
}

long clsVarsha::SumNegiDwaDashBala(int p) const
{
    long n = 0;
    for (int i = 1; i <= 12; ++i)
        n -= DwaDashaBala(i, p) < 0;
    return n;
}

long clsVarsha::DwaDashScore(int p) const { return SumPosiDwaDashBala(p) + SumNegiDwaDashBala(p); }

long clsVarsha::DwaDashBalaClass(int p) const
{
    if (!isSeven(p))
        return 0;
    const long s = DwaDashScore(p);
    if (s >= 10)
        return 1;
    if (s >= 7)
        return 2;
    if (s >= 4)
        return 3;
    if (s >= 2)
        return 4;
    if (s >= -1)
        return 5;
    if (s >= -3)
        return 6;
    if (s >= -6)
        return 7;
    if (s >= -9)
        return 8;
    return 9;
}
