// SPDX-License-Identifier: AGPL-3.0-or-later
// The karakas, the Yogada of a planet and the Sphutas.
#include "jaimini/clsJaimini.h"

#include "sky/Functions.h"
#include "sky/clsPlanets.h"

#include <array>

namespace {
inline constexpr std::array<int, 7> kSthiraKaraka{1, 2, 4, 7, 5, 6, 3};
static_assert(kSthiraKaraka.size() == 7);

inline constexpr std::array<const char *, 8> kAshtaKarakaName{"Atma Karaka",  "Amatya Karaka", "Bhratri Karaka", "Matri Karaka",
                                                              "Pitri Karaka", "Apatya Karaka", "Jnati Karaka",   "Dara Karaka"};
static_assert(kAshtaKarakaName.size() == 8);

// Tie numbers of the Upa Karaka, planets 1..7: the greater wins an exact tie.
inline constexpr std::array<int, 7> kUpaKarakaTie{38, 40, 41, 37, 42, 36, 39};
static_assert(kUpaKarakaTie.size() == 7);

inline constexpr std::array<const char *, 6> kYogadaWord{"None",       "Poorna Vali", "Tripad Vali",
                                                         "Ardha Vali", "Sadharana",   "Kevala"};
} // namespace

// Rank i of the planets 1..count (count 8 takes Rahu in, counted backward from the sign's end).
// The exchange sort swaps only when the later value is greater, so equal degrees keep the order
// in which the sort meets them.
int clsJaimini::karakaRank(int i, int count) const
{
    if (i < 1 || i > count)
        return 0;
    std::array<int, 9> planet{};
    std::array<double, 9> degrees{};
    for (int p = 1; p <= count; ++p) {
        planet[static_cast<size_t>(p)] = p;
        degrees[static_cast<size_t>(p)] = p == 8 ? 30 - KrishAmsha(8) : KrishAmsha(p);
    }
    for (int a = 1; a < count; ++a)
        for (int b = a + 1; b <= count; ++b)
            if (degrees[static_cast<size_t>(a)] < degrees[static_cast<size_t>(b)]) {
                std::swap(degrees[static_cast<size_t>(a)], degrees[static_cast<size_t>(b)]);
                std::swap(planet[static_cast<size_t>(a)], planet[static_cast<size_t>(b)]);
            }
    return planet[static_cast<size_t>(i)];
}

int clsJaimini::AshtaCharaKaraka(int i) const
{
    return karakaRank(i, 8);
}
int clsJaimini::SaptaCharaKaraka(int i) const
{
    return karakaRank(i, 7);
}

int clsJaimini::SaptaSthiraKaraka(int i)
{
    return i >= 1 && i <= 7 ? kSthiraKaraka[static_cast<size_t>(i - 1)] : 0;
}

int clsJaimini::SaptaBhavaKaraka(int i) const
{
    return i >= 1 && i <= 7 ? SignLord(Clock12(Sign(0) + i - 1)) : 0;
}

QString clsJaimini::AshtaCharaKarakaName(int i)
{
    return i >= 1 && i <= 8 ? QString::fromLatin1(kAshtaKarakaName[static_cast<size_t>(i - 1)]) : QString();
}

QString clsJaimini::SaptaCharaKarakaName(int i)
{
    if (i < 1 || i > 7)
        return {};
    return AshtaCharaKarakaName(i < 5 ? i : i + 1);
}

int clsJaimini::AtmaKarakaSign() const
{
    return Sign(AshtaCharaKaraka(1));
}

int clsJaimini::UpaKarakaGraha() const
{
    int best = 0;
    double bestValue = -1;
    for (int p = 1; p <= 7; ++p) {
        const bool risingHalf = Clock12(Sign(p) - Sign(0)) <= 5 || Sign(p) == Sign(0);
        const double v = Norm360(PlanetLongi(p) - m_chart.BhavMid(risingHalf ? 0 : 6));
        const auto tie = [](int q) { return kUpaKarakaTie[static_cast<size_t>(q - 1)]; };
        if (best == 0 || v > bestValue || (v == bestValue && tie(p) > tie(best))) {
            best = p;
            bestValue = v;
        }
    }
    return best;
}

int clsJaimini::SubhaPatiGraha() const
{
    return SignLord(Sign(7));
}

int clsJaimini::VmPltDasConst() const
{
    const int position = Mod9(m_chart.NakOf(7));
    const int years = m_chart.VimPeriod(position);
    return years != 0 ? years : clsPlanets::GetVimSotPeriods(clsPlanets::GetVimSotPlanetLord(position));
}

// ---- Yogada ----

int clsJaimini::GetYogada(int p) const
{
    const bool a1 = IfPlanetJAspects(0, p);
    double seventh = m_chart.BhavMid(6);
    const bool a2 = IfPlanetJAspects(0, p, seventh);
    const bool inDrekkana = IfDrekPlanetJAspects(0, p);
    const bool inNavamsha = IfNavPlanetJAspects(0, p);
    if (a1 && inDrekkana && inNavamsha)
        return 1;
    if (a1 && (inDrekkana || inNavamsha))
        return 2;
    const int lord = SubhaPatiGraha();
    const bool x = IfPlanetJAspects(0, lord);
    const bool y = IfPlanetJAspects(7, lord);
    if (x && y)
        return 3;
    if (!a1)
        return x ? 5 : 0;
    return a2 ? 3 : 4;
}

QString clsJaimini::YogadaStrength(int code)
{
    return QString::fromLatin1(kYogadaWord[static_cast<size_t>(code >= 1 && code <= 5 ? code : 0)]);
}

// ---- Sphutas ----

double clsJaimini::SphutasLongi(int which, int kind) const
{
    const std::array<int, 3> by = kind == 1 ? std::array<int, 3>{1, 5, 3} : std::array<int, 3>{7, 5, 4};
    const double a = PlanetLongi(by[0]), b = PlanetLongi(by[1]), c = PlanetLongi(by[2]);
    switch (which) {
    case 1:
        return Norm360(27 * Norm360(a + b + c));
    case 2:
        return Norm360(a + b + c);
    case 3:
        return Norm360(4 * a + 3 * b + 3 * c);
    default:
        return 0;
    }
}

int clsJaimini::SphutasConcl(int which, int kind) const
{
    if ((kind == 1) != (Sex() == 1))
        return 0;
    const double x = SphutasLongi(which, kind);
    const int s = static_cast<int>(Fix(x / 30)) + 1;
    const int n = static_cast<int>(Fix((x - (s - 1) * 30) / (10.0 / 3))) + 1;
    const bool oddSign = s % 2 != 0, oddPart = n % 2 != 0;
    if (oddSign)
        return oddPart ? 1 : 2;
    return oddPart ? 3 : 4;
}
