// SPDX-License-Identifier: AGPL-3.0-or-later
// Positional and directional strength, the relations, the aspects, the natural strength, the
// totals, the minima and the table of the page.
#include "strength/clsShadBala.h"

#include "strength/ShadBalaFigures.h"

#include "sky/Functions.h"
#include "sky/clsPlanets.h"

#include <algorithm>
#include <cmath>

using namespace ShadBalaFigures;

namespace {

// Natural relations: row a, column b (Sun, Mercury, Venus, Mars, Jupiter, Saturn, Moon, Rahu,
// Ketu), b as a sees it; 1 friend, 0 neutral, -1 enemy.
inline constexpr std::array<std::array<int, 9>, 9> kPerma{{
    // Sun Mer Ven Mar Jup Sat Moon Rahu Ketu
    {0, 0, -1, 1, 1, -1, 1, -1, -1},  // Sun
    {1, 0, 1, 0, 0, 0, -1, 0, 0},     // Mercury
    {-1, 1, 0, 0, 0, 1, -1, 1, 1},    // Venus
    {1, -1, 0, 0, 1, 0, 1, -1, 1},    // Mars
    {1, -1, -1, 1, 0, 0, 1, 0, 0},    // Jupiter
    {-1, 1, 1, -1, 0, 0, -1, 1, -1},  // Saturn
    {1, 1, 0, 0, 0, 0, 0, -1, -1},    // Moon
    {-1, 0, 1, -1, 0, 1, -1, 0, -1},  // Rahu
    {-1, 0, 1, 1, 0, -1, -1, -1, 0},  // Ketu
}};

// Required minima in Virupas: row by figure, column by planet Sun, Mercury, Venus, Mars, Jupiter,
// Saturn, Moon.
enum MinimumRow { MinShad, MinSthana, MinDik, MinKala, MinChesta, MinAyana };
inline constexpr std::array<std::array<int, 7>, 6> kMinima{{
    {390, 420, 330, 300, 390, 300, 360}, // Shad Bala
    {165, 165, 133, 96, 165, 96, 133},   // Sthana Bala
    {35, 35, 50, 30, 35, 30, 50},        // Dik Bala
    {112, 112, 100, 67, 112, 67, 100},   // Kala Bala
    {50, 50, 30, 40, 50, 40, 30},        // Chesta Bala
    {30, 30, 40, 20, 30, 20, 40},        // Ayana Bala
}};

int minimum(MinimumRow row, int planet)
{
    return inRange(planet, 1, 7) ? kMinima[static_cast<size_t>(row)][static_cast<size_t>(planet - 1)] : 0;
}

// Deep exaltation points of planets 1..7 in degrees.
inline constexpr std::array<double, 8> kDeepExaltation{0, 10, 165, 357, 298, 95, 200, 33};

// Own signs of planets 1..9 (0: none); Mercury owns Gemini alone here.
inline constexpr std::array<std::array<int, 2>, 10> kOwnSigns{
    {{0, 0}, {5, 0}, {3, 0}, {2, 7}, {1, 8}, {9, 12}, {10, 11}, {4, 0}, {11, 0}, {8, 0}}};

// The strong and the weak point of direction, as bhava middles, of planets 1..7.
struct DikPoints
{
    int strong, weak;
};
inline constexpr std::array<DikPoints, 8> kDikPoints{{{0, 0}, {9, 3}, {0, 6}, {3, 9}, {9, 3}, {0, 6}, {6, 0}, {3, 9}}};

// Natural strength of planets 1..7 in sevenths of 60, by brightness: the Sun 7 .. Saturn 1.
inline constexpr std::array<int, 8> kNaturalSevenths{0, 7, 3, 5, 2, 4, 1, 6};

// The divisions of the seven-fold part, as rows of the divisional table: Rashi, Navamsha, Hora,
// Drekkana, Saptamsha, Dwadashamsha, Trimshamsha.
inline constexpr std::array<int, 7> kSaptaVargaRows{1, 6, 2, 3, 5, 8, 13};

size_t at(int i) { return static_cast<size_t>(i); }

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
            m_perma[at(a)][at(b)] = kPerma[at(a - 1)][at(b - 1)];
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
            m_temporal[at(a)][at(b)] = v;
        }
}

void clsShadBala::DoPanchadha()
{
    for (int a = 1; a <= 9; ++a)
        for (int b = 1; b <= 9; ++b)
            m_panchadha[at(a)][at(b)] = m_perma[at(a)][at(b)] + m_temporal[at(a)][at(b)];
}

// The five-fold relation with the lord of the sign; 0 (neutral) where there is no such pair.
int clsShadBala::panchadhaWithLord(int planet, int sign) const
{
    return PanchadhaMatrix(planet, clsPlanets::GetRashiLordNum(sign));
}

bool clsShadBala::SignInOwnHouse(int planet, int sign) const
{
    if (!inRange(planet, 1, 9) || sign == 0)
        return false;
    const auto &own = kOwnSigns[at(planet)];
    return sign == own[0] || sign == own[1];
}

bool clsShadBala::SignInAdhiMitraHouse(int planet, int sign) const { return panchadhaWithLord(planet, sign) == 2; }
bool clsShadBala::SignInMitraHouse(int planet, int sign) const { return panchadhaWithLord(planet, sign) == 1; }
bool clsShadBala::SignInSamaHouse(int planet, int sign) const { return panchadhaWithLord(planet, sign) == 0; }
bool clsShadBala::SignInSatruHouse(int planet, int sign) const { return panchadhaWithLord(planet, sign) == -1; }
bool clsShadBala::SignInAdhiSatruHouse(int planet, int sign) const { return panchadhaWithLord(planet, sign) == -2; }

// ---- positional strength ----

double clsShadBala::uccha(int planet) const
{
    const double x = Norm360(m_c.PlanetLongi(planet) - kDeepExaltation[at(planet)]);
    const double d = x > 180 ? 360 - x : x;
    return 60 - d / 3;
}

double clsShadBala::saptaVarga(int planet)
{
    DoTemporal();
    DoPerma();
    DoPanchadha();
    double sum = 0;
    for (int row : kSaptaVargaRows) {
        const int sign = m_c.PrediVarga(planet, row);
        const bool rashi = row == 1, navamsha = row == 6;
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
            sum += navamsha ? 3.75 : 1.875; // the navamsha keeps its two lowest figures the other way round
        else if (SignInSatruHouse(planet, sign))
            sum += navamsha ? 1.875 : 3.75;
    }
    return sum;
}

namespace {
// Sun, Mercury, Mars, Jupiter and Saturn gain in odd signs, Venus and the Moon in even ones; a
// sign number 0 counts as even.
double oddEven(int planet, int sign)
{
    const bool odd = sign % 2 != 0;
    const bool even = planet == 3 || planet == 7;
    return (even ? !odd : odd) ? 15 : 0;
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
    const double strong = m_c.BhavMid(kDikPoints[at(planet)].strong);
    const double weak = m_c.BhavMid(kDikPoints[at(planet)].weak);
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

// ---- natural strength ----

double clsShadBala::SBNaisargikaBala(int planet)
{
    if (!inRange(planet, 1, 7))
        return 0;
    return rounded(60.0 * kNaturalSevenths[at(planet)] / 7.0);
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

// ---- aspectual strength ----

bool clsShadBala::CondBenefic(int planet) const
{
    switch (planet) {
    case 3: case 5: return true;
    case 7: return Norm360(m_c.PlanetLongi(7) - m_c.PlanetLongi(1)) < 180; // the waxing Moon
    case 2: {
        // Mercury is a benefic unless the Sun, Mars or Saturn shares its sign.
        const int sign = m_c.PlanetRashiNum(2);
        for (int q : {1, 4, 6})
            if (m_c.PlanetRashiNum(q) == sign)
                return false;
        return true;
    }
    default: return false;
    }
}

namespace {
// The aspect of a planet on a point `a` degrees ahead of it, in Virupas.
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

// The full aspects of Mars (its fourth and eighth signs' arcs), Jupiter (fifth and ninth) and
// Saturn (third and tenth): what they add to the base aspect to make 60.
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
            const bool self = a == b;
            const double angle = self ? 0 : Norm360(m_c.PlanetLongi(a) - m_c.PlanetLongi(b));
            m_angle[at(a)][at(b)] = angle;
            m_base[at(a)][at(b)] = self ? 0 : baseAspect(angle);
            m_special[at(a)][at(b)] = self ? 0 : specialAspect(b, angle);
        }
}

QString clsShadBala::SBDrigBala(int planet)
{
    if (!inRange(planet, 1, 7))
        return text(0);
    SetDrigBala();
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

int clsShadBala::DesireMinShadBala(int p) { return minimum(MinShad, p); }
int clsShadBala::DesireMinSthanaBala(int p) { return minimum(MinSthana, p); }
int clsShadBala::DesireMinDikBala(int p) { return minimum(MinDik, p); }
int clsShadBala::DesireMinKalaBala(int p) { return minimum(MinKala, p); }
int clsShadBala::DesireMinChestaBala(int p) { return minimum(MinChesta, p); }
int clsShadBala::DesireMinAyanBala(int p) { return minimum(MinAyana, p); }

// ---- the table of the page ----

clsShadBala::FigureColumn clsShadBala::figures(int planet)
{
    int p = planet;
    FigureColumn f;
    f[RowUchcha] = GetSubSthanaBala(1, p);
    f[RowSaptaVarga] = GetSubSthanaBala(2, p);
    f[RowOjaYugma] = DinaRatriBala(p);
    f[RowKendra] = GetSubSthanaBala(5, p);
    f[RowDrekkana] = GetSubSthanaBala(6, p);
    f[RowSthanaTotal] = text(SBSthanaBala(p));
    f[RowDik] = SBDikBala(p);
    f[RowNataUnnata] = SBNataUnnataBala(p);
    f[RowPaksha] = SBPakshaBala(p);
    f[RowTriBhaga] = SBTriBhagaBala(p);
    f[RowAbda] = VarshaBala(p);
    f[RowMasa] = MaasBala(p);
    f[RowVara] = SBVaraBala(p);
    f[RowHora] = SBHoraBala(p);
    f[RowAyana] = SBAyanaBala(p);
    f[RowYuddha] = SBYuddhaBala(2, p);
    f[RowKalaTotal] = SBKaalaBala(p);
    f[RowChesta] = text(SBChestaBala(p));
    f[RowNaisargika] = text(SBNaisargikaBala(p));
    f[RowDrig] = SBDrigBala(p);
    f[RowTotal] = TotalShadBala(p);
    f[RowRupa] = RupaShadbala(p);
    f[RowMinShad] = QString::number(DesireMinShadBala(p));
    f[RowMinSthana] = QString::number(DesireMinSthanaBala(p));
    f[RowMinDik] = QString::number(DesireMinDikBala(p));
    f[RowMinKala] = QString::number(DesireMinKalaBala(p));
    f[RowMinChesta] = QString::number(DesireMinChestaBala(p));
    f[RowMinAyana] = QString::number(DesireMinAyanBala(p));
    const double total = value(f[RowTotal]);
    f[RowRatio] = text(total / DesireMinShadBala(p));
    f[RowStrong] = total >= DesireMinShadBala(p) ? QStringLiteral("Yes") : QStringLiteral("No");
    return f;
}

std::array<clsShadBala::FigureColumn, 8> clsShadBala::FigureTable()
{
    std::array<FigureColumn, 8> table;
    std::array<double, 8> ratio{};
    for (int p = 1; p <= 7; ++p) {
        table[at(p)] = figures(p);
        ratio[at(p)] = value(table[at(p)][RowTotal]) / DesireMinShadBala(p);
    }
    // The rank goes by the ratio itself, not by its two shown decimals.
    for (int p = 1; p <= 7; ++p) {
        int rank = 1;
        for (int q = 1; q <= 7; ++q)
            if (ratio[at(q)] > ratio[at(p)])
                ++rank;
        table[at(p)][RowRank] = QString::number(rank);
    }
    return table;
}
