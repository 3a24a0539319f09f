// SPDX-License-Identifier: AGPL-3.0-or-later
// The Muntha, the five officials, the lord of the year and the Tri-pataka signs.
#include "varsha/clsVarsha.h"

#include "sky/Functions.h"
#include "sky/clsPlanets.h"
#include "varsha/clsSaham.h"
#include "varsha/clsVarshaYoga.h"

#include <algorithm>
#include <array>

namespace {

// The three-sign lord by the annual ascendant's sign (row 1..12): by day, by night.
inline constexpr std::array<std::array<int, 2>, 12> kTriRashiLord{{
    {1, 5}, // Aries: Sun, Jupiter
    {3, 7}, // Taurus: Venus, Moon
    {6, 2}, // Gemini: Saturn, Mercury
    {3, 4}, // Cancer: Venus, Mars
    {5, 1}, // Leo: Jupiter, Sun
    {7, 3}, // Virgo: Moon, Venus
    {2, 6}, // Libra: Mercury, Saturn
    {4, 3}, // Scorpio: Mars, Venus
    {6, 6}, // Sagittarius: Saturn, Saturn
    {4, 4}, // Capricorn: Mars, Mars
    {5, 5}, // Aquarius: Jupiter, Jupiter
    {7, 7}, // Pisces: Moon, Moon
}};
static_assert(kTriRashiLord.size() == 12);

// The weight that settles an exact tie of the Pancha Vargiya totals, planets 1..7.
inline constexpr std::array<double, 8> kTieWeight{0, 0.3, 0.5, 0.6, 0.2, 0.7, 0.1, 0.4};

bool isHarsh(int p) { return p == 1 || p == 4 || p == 6; }

} // namespace

clsVarsha::clsVarsha(const clsPlanets &birth, const clsPlanets &annual, int age) : m_birth(birth), m_annual(annual), m_age(age) {}

clsVarsha::~clsVarsha() = default;

int clsVarsha::Muntha() const
{
    if (m_muntha == 0)
        m_muntha = Norm12(m_birth.Sign(0) + m_age % 12);
    return m_muntha;
}

int clsVarsha::MunthaHouse() const { return Norm12(Muntha() - m_annual.Sign(0) + 1); }

int clsVarsha::MunthaLord() const { return clsPlanets::SignLord(Muntha()); }

double clsVarsha::MunthaLongi() const
{
    if (m_munthaLongi < 0)
        m_munthaLongi = (Muntha() - 1) * 30.0 + m_birth.KrishAmsha(0);
    return m_munthaLongi;
}

bool clsVarsha::MunthaAspByPlanet(int planet) const
{
    const int s = m_annual.Sign(planet);
    const auto at = [&](int k) { return Muntha() == Norm12(s + k); };
    switch (planet) {
    case 1:
    case 2:
    case 3:
    case 7: return at(6);
    case 4: return at(3) || at(6) || at(7);
    case 5: return at(4) || at(6) || at(8);
    case 6: return at(2) || at(6) || at(9);
    default: return false;
    }
}

bool clsVarsha::MunthaAspByBenefic() const
{
    return MunthaAspByPlanet(5) || MunthaAspByPlanet(3) || MunthaAspByPlanet(7) || MunthaAspByPlanet(2);
}

int clsVarsha::DinaRatriLord() const { return clsPlanets::SignLord(m_annual.Sign(m_annual.DayBirth() ? 1 : 7)); }

int clsVarsha::TriRashiLord() const
{
    const int s = m_annual.Sign(0);
    if (s < 1 || s > 12)
        return 0;
    return kTriRashiLord[static_cast<size_t>(s - 1)][m_annual.DayBirth() ? 0 : 1];
}

int clsVarsha::Panchadhikari(int i) const
{
    switch (i) {
    case 1: return DinaRatriLord();
    case 2: return clsPlanets::SignLord(m_annual.Sign(0));
    case 3: return clsPlanets::SignLord(m_birth.Sign(0));
    case 4: return MunthaLord();
    case 5: return TriRashiLord();
    default: return 0;
    }
}

std::vector<int> clsVarsha::OtherPlanets() const
{
    std::array<bool, 8> official{};
    for (int i = 1; i <= 5; ++i)
        official[static_cast<size_t>(Panchadhikari(i))] = true;
    std::vector<int> out;
    for (int p = 1; p <= 7; ++p)
        if (!official[static_cast<size_t>(p)])
            out.push_back(p);
    return out;
}

bool clsVarsha::inOrb(int planet, double angle) const
{
    const double x = Norm360(m_annual.PlanetLongi(planet) + angle);
    const double orb = m_annual.PlanetOrb(planet);
    const double a = m_annual.PlanetLongi(0);
    return a >= x - orb && a <= x + orb;
}

bool clsVarsha::strongPlace(int planet) const
{
    const int s = m_annual.Sign(planet);
    return clsPlanets::CheckIfExalted(planet, s) || clsPlanets::CheckOwnHouse(planet, s);
}

bool clsVarsha::Stronger(int a, double ta, int b, double tb)
{
    if (ta != tb)
        return ta > tb;
    const auto weight = [](int p) { return p >= 1 && p <= 7 ? kTieWeight[static_cast<size_t>(p)] : 0.0; };
    return ta + weight(a) >= tb + weight(b);
}

bool clsVarsha::stronger(int a, int b) const { return Stronger(a, PanchBalaTotal(a), b, PanchBalaTotal(b)); }

int clsVarsha::strongest(const std::vector<int> &candidates) const
{
    for (int c : candidates) {
        const bool beaten = std::any_of(candidates.begin(), candidates.end(), [&](int o) { return o != c && stronger(o, c); });
        if (!beaten)
            return c;
    }
    return 0;
}

int clsVarsha::chooseLord(std::vector<int> c, int (clsVarsha::*fallback)() const) const
{
    const auto removeIf = [&c](auto test) { c.erase(std::remove_if(c.begin(), c.end(), test), c.end()); };
    // Planets square to the ascendant drop out, and the cruel ones conjoined or opposed.
    removeIf([this](int p) { return inOrb(p, 90) || inOrb(p, 270); });
    removeIf([this](int p) { return isHarsh(p) && (inOrb(p, 0) || inOrb(p, 180)); });
    if (c.empty())
        return (this->*fallback)();
    const auto strong = static_cast<size_t>(std::count_if(c.begin(), c.end(), [this](int p) { return strongPlace(p); }));
    if (strong > 0 && strong != c.size())
        removeIf([this](int p) { return !strongPlace(p); });
    if (c.size() == 1)
        return c.front();
    // The cruel ones stay only with a friendly aspect to the ascendant.
    removeIf([this](int p) { return isHarsh(p) && !(inOrb(p, 60) || inOrb(p, 120) || inOrb(p, 300) || inOrb(p, 240)); });
    if (c.size() == 1)
        return c.front();
    if (c.empty())
        return (this->*fallback)();
    return strongest(c);
}

int clsVarsha::Varsheswara() const
{
    // The five officials in their order; a planet named twice keeps only its last place.
    std::vector<int> c;
    for (int i = 1; i <= 5; ++i) {
        const int p = Panchadhikari(i);
        c.erase(std::remove(c.begin(), c.end(), p), c.end());
        c.push_back(p);
    }
    return chooseLord(c, &clsVarsha::NCVarsheswara);
}

int clsVarsha::NCVarsheswara() const
{
    const std::vector<int> others = OtherPlanets();
    if (others.empty())
        return UltVarsheswara();
    return chooseLord(others, &clsVarsha::UltVarsheswara);
}

int clsVarsha::UltVarsheswara() const
{
    std::vector<int> c;
    const double sun = m_annual.PlanetLongi(1);
    for (int p = 1; p <= 7; ++p) {
        const bool debi = clsPlanets::CheckIfDebi(p, m_annual.Sign(p));
        const bool combust = clsPlanets::CheckIfCombust(p, sun, m_annual.PlanetLongi(p)).value_or(false);
        if (!debi && !combust && !m_annual.RetroGrade(p))
            c.push_back(p);
    }
    const auto strong = static_cast<size_t>(std::count_if(c.begin(), c.end(), [this](int p) { return strongPlace(p); }));
    if (strong == c.size() || strong == 0) {
        if (c.size() == 1)
            return c.front();
        return strongest(c);
    }
    if (strong == 1)
        return c.front(); // the lowest-numbered of those standing
    c.erase(std::remove_if(c.begin(), c.end(), [this](int p) { return !strongPlace(p); }), c.end());
    return strongest(c);
}

int clsVarsha::FindHouse(int sign) const
{
    const int l = static_cast<int>(Int(m_annual.PlanetLongi(0) / 30)) + 1;
    if (sign < l)
        sign += 12;
    return sign - l + 1;
}

int clsVarsha::TriSign(int planet) const
{
    const int a = m_age + 1;
    switch (planet) {
    case 1:
    case 2:
    case 3:
    case 5:
    case 6: return Norm12(m_annual.Sign(planet) + a % 4 - 1);
    case 4:
    case 8: return Norm12(m_annual.Sign(planet) + a % 6 - 1);
    case 7: return Norm12(m_annual.Sign(planet) + a % 9 - 1);
    case 9: return Norm12(m_annual.Sign(8) + a % 6 - 1 + 6);
    default: return 0;
    }
}

int clsVarsha::TriHouse(int planet) const
{
    const int s = TriSign(planet);
    return s == 0 ? 0 : Norm12(s - m_annual.Sign(0) + 1);
}

clsSaham &clsVarsha::Saham() const
{
    if (!m_saham)
        m_saham = std::make_unique<clsSaham>(m_annual);
    return *m_saham;
}

clsVarshaYoga &clsVarsha::VarshaYoga() const
{
    if (!m_yoga)
        m_yoga = std::make_unique<clsVarshaYoga>(m_annual);
    return *m_yoga;
}
