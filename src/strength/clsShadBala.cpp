// SPDX-License-Identifier: AGPL-3.0-or-later
// Positional, directional, natural and aspectual strength, the relations and the minima.
#include "strength/clsShadBala.h"

#include "strength/ShadBalaFigures.h"

#include "sky/Functions.h"
#include "sky/clsPlanets.h"

#include <algorithm>
#include <cmath>

using namespace ShadBalaFigures;

namespace {
// Natural relations 1..9 (Sun, Mercury, Venus, Mars, Jupiter, Saturn, Moon, Rahu, Ketu): row a,
// column b, b's relation as a sees it; 1 friend, 0 neutral, -1 enemy.
inline constexpr std::array<std::array<int, 9>, 9> kPerma{{
    {0, 0, -1, 1, 1, -1, 1, -1, -1},
    {1, 0, 1, 0, 0, 0, -1, 0, 0},
    {-1, 1, 0, 0, 0, 1, -1, 1, 1},
    {1, -1, 0, 0, 1, 0, 1, -1, 1},
    {1, -1, -1, 1, 0, 0, 1, 0, 0},
    {-1, 1, 1, -1, 0, 0, -1, 1, -1},
    {1, 1, 0, 0, 0, 0, 0, -1, -1},
    {-1, 0, 1, -1, 0, 1, -1, 0, -1},
    {-1, 0, 1, 1, 0, -1, -1, -1, 0},
}};

struct Minima
{
    int shad, sthana, dik, kala, chesta, ayana;
};
// Required minima of planets 1..7, in Virupas.
inline constexpr std::array<Minima, 7> kMinima{{
    {390, 165, 35, 112, 50, 30}, // Sun
    {420, 165, 35, 112, 50, 30}, // Mercury
    {330, 133, 50, 100, 30, 40}, // Venus
    {300, 96, 30, 67, 40, 20},   // Mars
    {390, 165, 35, 112, 50, 30}, // Jupiter
    {300, 96, 30, 67, 40, 20},   // Saturn
    {360, 133, 50, 100, 30, 40}, // Moon
}};

// Deep exaltation points of planets 1..7.
inline constexpr std::array<double, 8> kDeepExaltation{0, 10, 165, 357, 298, 95, 200, 33};
// Own signs of planets 1..9 as the strength reckons them (Mercury Gemini alone).
inline constexpr std::array<std::array<int, 2>, 10> kOwnSigns{{{0, 0}, {5, 0}, {3, 0}, {2, 7}, {1, 8}, {9, 12}, {10, 11}, {4, 0}, {11, 0}, {8, 0}}};
// Natural strength of planets 1..7: sevenths of 60 by the planets' natural order of brightness.
inline constexpr std::array<int, 8> kNaturalSevenths{0, 7, 3, 5, 2, 4, 1, 6};
// The strong and weak points of direction as bhava middles, planets 1..7.
inline constexpr std::array<std::array<int, 2>, 8> kDikPoints{{{0, 0}, {9, 3}, {0, 6}, {3, 9}, {9, 3}, {0, 6}, {6, 0}, {3, 9}}};

} // namespace

clsShadBala::clsShadBala(const clsPlanets &chart) : m_c(chart)
{
    DoPerma();
    DoTemporal();
    DoPanchadha();
    SetDrigBala();
}

// ---- relations ----

void clsShadBala::DoPerma()
{
    for (int a = 1; a <= 9; ++a)
        for (int b = 1; b <= 9; ++b)
            m_perma[static_cast<size_t>(a)][static_cast<size_t>(b)] = kPerma[static_cast<size_t>(a - 1)][static_cast<size_t>(b - 1)];
}

void clsShadBala::DoTemporal()
{
    for (int a = 1; a <= 9; ++a)
        for (int b = 1; b <= 9; ++b) {
            int v = 0;
            if (a != b) {
                const int k = static_cast<int>(Clock12(m_c.PlanetRashiNum(b) - m_c.PlanetRashiNum(a)));
                v = (k == 1 || k == 2 || k == 3 || k == 9 || k == 10 || k == 11) ? 1 : -1;
            }
            m_temporal[static_cast<size_t>(a)][static_cast<size_t>(b)] = v;
        }
}

void clsShadBala::DoPanchadha()
{
    for (int a = 1; a <= 9; ++a)
        for (int b = 1; b <= 9; ++b)
            m_panchadha[static_cast<size_t>(a)][static_cast<size_t>(b)] =
                m_perma[static_cast<size_t>(a)][static_cast<size_t>(b)] + m_temporal[static_cast<size_t>(a)][static_cast<size_t>(b)];
}

int clsShadBala::panchadhaWithLord(int planet, int sign) const
{
    const int lord = clsPlanets::GetRashiLordNum(sign);
    if (!inRange(planet, 1, 9) || !inRange(lord, 1, 9))
        return 0;
    return PanchadhaMatrix(planet, lord);
}

bool clsShadBala::SignInOwnHouse(int planet, int sign) const
{
    if (!inRange(planet, 1, 9))
        return false;
    const auto &own = kOwnSigns[static_cast<size_t>(planet)];
    return sign == own[0] || (own[1] != 0 && sign == own[1]);
}

bool clsShadBala::SignInAdhiMitraHouse(int planet, int sign) const { return panchadhaWithLord(planet, sign) == 2; }
bool clsShadBala::SignInMitraHouse(int planet, int sign) const { return panchadhaWithLord(planet, sign) == 1; }
bool clsShadBala::SignInSamaHouse(int planet, int sign) const { return panchadhaWithLord(planet, sign) == 0; }
bool clsShadBala::SignInSatruHouse(int planet, int sign) const { return panchadhaWithLord(planet, sign) == -1; }
bool clsShadBala::SignInAdhiSatruHouse(int planet, int sign) const { return panchadhaWithLord(planet, sign) == -2; }

// ---- positional strength ----

double clsShadBala::uccha(int planet) const
{
    const double x = Norm360(m_c.PlanetLongi(planet) - kDeepExaltation[static_cast<size_t>(planet)]);
    const double d = x > 180 ? 360 - x : x;
    return 60 - d / 3;
}

double clsShadBala::saptaVarga(int planet)
{
    DoTemporal();
    DoPerma();
    DoPanchadha();
    // Rashi, Navamsha, Hora, Drekkana, Saptamsha, Dwadashamsha, Trimshamsha.
    static constexpr std::array<int, 7> kCodes{1, 6, 2, 3, 5, 8, 13};
    double sum = 0;
    for (int code : kCodes) {
        const int sign = m_c.PrediVarga(planet, code);
        const bool rashi = code == 1, navamsha = code == 6;
        if (rashi && m_c.IsMoolTrikona(planet))
            sum += 45;
        else if (rashi ? m_c.InOwnHouse(planet) : SignInOwnHouse(planet, sign))
            sum += 30;
        else if (SignInAdhiMitraHouse(planet, sign))
            sum += 22.5;
        else if (SignInMitraHouse(planet, sign))
            sum += 15;
        else if (SignInSamaHouse(planet, sign))
            sum += 7.5;
        else if (SignInAdhiSatruHouse(planet, sign))
            sum += navamsha ? 3.75 : 1.875;
        else if (SignInSatruHouse(planet, sign))
            sum += navamsha ? 1.875 : 3.75;
    }
    return sum;
}

namespace {
// Sun, Mercury, Mars, Jupiter and Saturn gain in odd signs, Venus and the Moon in even ones.
double oddEven(int planet, int sign)
{
    const bool odd = sign % 2 == 1;
    const bool feminine = planet == 3 || planet == 7;
    return (feminine ? !odd : odd) ? 15 : 0;
}
} // namespace

double clsShadBala::ojaRashi(int planet) const { return oddEven(planet, m_c.PlanetRashiNum(planet)); }
double clsShadBala::ojaNavamsha(int planet) const { return oddEven(planet, m_c.NavamshSign(planet)); }

double clsShadBala::kendra(int planet) const
{
    if (m_c.PlanetInKendra(planet, 0))
        return 60;
    if (m_c.PlanetInPanaphara(planet, 0))
        return 30;
    if (m_c.PlanetInApoklima(planet, 0))
        return 15;
    return 0;
}

double clsShadBala::drekkana(int planet) const
{
    const double x = m_c.KrishAmsha(planet);
    switch (planet) {
    case 1: case 4: case 5: return x <= 10 ? 15 : 0;
    case 2: case 6: return x > 10 && x <= 20 ? 15 : 0;
    case 3: case 7: return x > 20 && x <= 30 ? 15 : 0;
    default: return 0;
    }
}

QString clsShadBala::GetSubSthanaBala(int part, int planet)
{
    if (!inRange(planet, 1, 7))
        return text(0);
    switch (part) {
    case 1: return text(uccha(planet));
    case 2: return text(saptaVarga(planet));
    case 3: return text(ojaRashi(planet));
    case 4: return text(ojaNavamsha(planet));
    case 5: return text(kendra(planet));
    case 6: return text(drekkana(planet));
    default: return text(0);
    }
}

double clsShadBala::SBSthanaBala(int planet)
{
    double sum = 0;
    for (int part = 1; part <= 6; ++part)
        sum += value(GetSubSthanaBala(part, planet));
    return rounded(sum);
}

QString clsShadBala::DinaRatriBala(int planet)
{
    return text(value(GetSubSthanaBala(3, planet)) + value(GetSubSthanaBala(4, planet)));
}

// ---- directional strength ----

QString clsShadBala::SBDikBala(int planet)
{
    if (!inRange(planet, 1, 7))
        return text(0);
    const double l = m_c.PlanetLongi(planet);
    const double strong = m_c.BhavMid(kDikPoints[static_cast<size_t>(planet)][0]);
    const double weak = m_c.BhavMid(kDikPoints[static_cast<size_t>(planet)][1]);
    if (l == strong)
        return text(60);
    const double x = Norm360(l - strong);
    if (x <= 180)
        return text(60 - x / 3);
    const double y = Norm360(l - weak);
    if (y <= 180)
        return text(y / 3);
    return text(0);
}

// ---- natural and aspectual strength ----

double clsShadBala::SBNaisargikaBala(int planet)
{
    if (!inRange(planet, 1, 7))
        return 0;
    return rounded(60.0 * kNaturalSevenths[static_cast<size_t>(planet)] / 7.0);
}

double clsShadBala::BimbaPariman(int planet)
{
    switch (planet) {
    case 2: return 6.6;
    case 3: return 16.6;
    case 4: return 9.4;
    case 5: return 190.4;
    case 6: return 158;
    default: return 1;
    }
}

bool clsShadBala::CondBenefic(int planet) const
{
    if (planet == 7)
        return Norm360(m_c.PlanetLongi(7) - m_c.PlanetLongi(1)) < 180; // the waxing Moon
    if (planet == 2) {
        // Mercury is benefic unless a malefic shares its sign.
        for (int q : {1, 4, 6})
            if (m_c.PlanetRashiNum(q) == m_c.PlanetRashiNum(2))
                return false;
        return true;
    }
    return planet == 3 || planet == 5;
}

namespace {
// The aspect of a planet on a point `angle` degrees ahead of it, in Virupas.
double baseAspect(double a)
{
    if (a < 30)
        return 0;
    if (a < 60)
        return (a - 30) / 2;
    if (a < 90)
        return a - 45;
    if (a < 120)
        return 30 + (120 - a) / 2;
    if (a < 150)
        return 150 - a;
    if (a < 180)
        return (a - 150) * 2;
    if (a < 300)
        return (300 - a) / 2;
    return 0;
}

// The full aspects of Mars (fourth and eighth), Jupiter (fifth and ninth) and Saturn (third and
// tenth): what they add to the base aspect to make 60.
double specialAspect(int planet, double a)
{
    const auto within = [a](double from, double to) { return a >= from && a < to; };
    const bool full = (planet == 4 && (within(90, 120) || within(210, 240))) ||
                      (planet == 5 && (within(120, 150) || within(240, 270))) ||
                      (planet == 6 && (within(60, 90) || within(270, 300)));
    return full ? 60 - baseAspect(a) : 0;
}
} // namespace

void clsShadBala::SetDrigBala()
{
    for (int a = 1; a <= 7; ++a)
        for (int b = 1; b <= 7; ++b) {
            const double angle = a == b ? 0 : Norm360(m_c.PlanetLongi(a) - m_c.PlanetLongi(b));
            m_angle[static_cast<size_t>(a)][static_cast<size_t>(b)] = angle;
            m_base[static_cast<size_t>(a)][static_cast<size_t>(b)] = a == b ? 0 : baseAspect(angle);
            m_special[static_cast<size_t>(a)][static_cast<size_t>(b)] = a == b ? 0 : specialAspect(b, angle);
        }
}

QString clsShadBala::SBDrigBala(int planet)
{
    if (!inRange(planet, 1, 7))
        return text(0);
    double sum = 0;
    for (int b = 1; b <= 7; ++b) {
        if (b == planet)
            continue;
        const double aspect = BaseAspect(planet, b) + SpecialAspect(planet, b);
        sum += CondBenefic(b) ? aspect : -aspect;
    }
    return text(sum / 4);
}

// ---- totals and minima ----

QString clsShadBala::TotalShadBala(int planet)
{
    if (!inRange(planet, 1, 7))
        return text(0);
    return text(SBSthanaBala(planet) + value(SBDikBala(planet)) + value(SBKaalaBala(planet)) + SBChestaBala(planet) +
                SBNaisargikaBala(planet) + value(SBDrigBala(planet)));
}

QString clsShadBala::RupaShadbala(int planet) { return text(value(TotalShadBala(planet)) / 60.0); }

int clsShadBala::DesireMinShadBala(int p) { return inRange(p, 1, 7) ? kMinima[static_cast<size_t>(p - 1)].shad : 0; }
int clsShadBala::DesireMinSthanaBala(int p) { return inRange(p, 1, 7) ? kMinima[static_cast<size_t>(p - 1)].sthana : 0; }
int clsShadBala::DesireMinDikBala(int p) { return inRange(p, 1, 7) ? kMinima[static_cast<size_t>(p - 1)].dik : 0; }
int clsShadBala::DesireMinKalaBala(int p) { return inRange(p, 1, 7) ? kMinima[static_cast<size_t>(p - 1)].kala : 0; }
int clsShadBala::DesireMinChestaBala(int p) { return inRange(p, 1, 7) ? kMinima[static_cast<size_t>(p - 1)].chesta : 0; }
int clsShadBala::DesireMinAyanBala(int p) { return inRange(p, 1, 7) ? kMinima[static_cast<size_t>(p - 1)].ayana : 0; }
