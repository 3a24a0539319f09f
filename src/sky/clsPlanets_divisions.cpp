// SPDX-License-Identifier: AGPL-3.0-or-later
// The divisional charts: the table of division signs filled at the end of every cast, and the
// lords of a planet's divisions, some of which work from the degrees again.
#include "sky/clsPlanets.h"

#include "sky/Functions.h"

#include <array>
#include <cmath>

namespace {

constexpr int kRows = 18;
constexpr int kFilledColumns = 13;

// Odd signs (Aries, Gemini, ...) are the masculine ones.
bool oddSign(int s) { return s % 2 == 1; }

// Trimshamsha by the degrees within the sign: upper bounds (exclusive) and signs.
struct TrimshaPart
{
    double below;
    int sign;
};
inline constexpr std::array<TrimshaPart, 5> kTrimshaOdd{{{5, 1}, {10, 11}, {18, 9}, {25, 3}, {30, 7}}};
static_assert(kTrimshaOdd.size() == 5);
inline constexpr std::array<TrimshaPart, 5> kTrimshaEven{{{5, 2}, {12, 6}, {20, 12}, {25, 10}, {30, 8}}};
static_assert(kTrimshaEven.size() == 5);

// Vimshamsha (row 10) and Akshavedamsha (row 15): the start counted by the sign's class
// (movable, fixed, dual).
inline constexpr std::array<int, 3> kVimshaStart{1, 9, 5};
static_assert(kVimshaStart.size() == 3);
inline constexpr std::array<int, 3> kAkshaStart{1, 5, 9};
static_assert(kAkshaStart.size() == 3);
// Saptavimshamsha (row 12): the start by the sign's element (fire, earth, air, water).
inline constexpr std::array<int, 4> kSaptaVimshaStart{1, 4, 7, 10};
static_assert(kSaptaVimshaStart.size() == 4);

// Lords of the navamsha numbers 1..12.
inline constexpr std::array<int, 12> kNavamshaLord{4, 3, 2, 7, 1, 2, 3, 4, 5, 6, 6, 5};
static_assert(kNavamshaLord.size() == 12);

// Panchamamsha and Shashtamsha lords: upper bounds (included) and lords; the last part is the rest.
struct LordPart
{
    double upTo;
    int lord;
};
inline constexpr std::array<LordPart, 5> kPanchamAmsha{{{6, 3}, {12, 2}, {18, 5}, {24, 6}, {30, 4}}};
static_assert(kPanchamAmsha.size() == 5);
inline constexpr std::array<LordPart, 6> kSastamsha{{{5, 3}, {10, 4}, {15, 5}, {20, 6}, {25, 6}, {30, 5}}};
static_assert(kSastamsha.size() == 6);

// Ashtamamsha lords: rows by the sign's class, columns the eight parts of 3.75 degrees (each
// bound included in the part below it).
inline constexpr std::array<std::array<int, 8>, 3> kAshtamamshaLord{{
    {4, 3, 2, 7, 1, 2, 3, 4}, // movable
    {1, 2, 3, 4, 5, 6, 6, 5}, // fixed
    {5, 6, 6, 5, 4, 3, 2, 7}, // dual
}};
static_assert(kAshtamamshaLord.size() == 3);

// The sixtieths of the sign (counted in an odd sign) that are malefic.
inline constexpr std::array<int, 26> kMaleficSashtiAmsha{1,  2,  7,  8,  9,  10, 11, 12, 15, 16, 30, 31, 32,
                                                         33, 36, 40, 41, 42, 43, 44, 47, 48, 51, 52, 55, 59};
static_assert(kMaleficSashtiAmsha.size() == 26);

int toInt(double v) { return static_cast<int>(v); }

// Part number of v counted from 1: a whole v closes the part it ends.
int partUpTo(double v) { return Frac(v) == 0 ? toInt(v) : toInt(Fix(v)) + 1; }

template <size_t N>
int lordUpTo(const std::array<LordPart, N> &parts, double x)
{
    for (const LordPart &part : parts)
        if (x <= part.upTo)
            return part.lord;
    return parts.back().lord;
}
} // namespace

// ---- the table ----

std::array<int, 19> clsPlanets::CalcVargas(double l)
{
    std::array<int, 19> v{};
    const int q = toInt(Int(l / 30));
    const int s = q + 1;
    const double x = std::fmod(l, 30);
    const bool odd = oddSign(s);

    v[1] = Norm12(s);
    if (odd)
        v[2] = x <= 15 ? 5 : 4;
    else
        v[2] = x <= 15 ? 4 : 5;
    v[3] = Norm12(x < 10 ? s : (x < 20 ? s + 4 : s + 8));
    v[4] = Norm12(x < 7.5 ? s : (x < 15 ? s + 3 : (x < 22.5 ? s + 6 : s + 9)));
    v[5] = Norm12(toInt(Int(1 + l * 7 / 30)));
    v[6] = Norm12(toInt(Int(1 + l * 9 / 30)));
    {
        const int k = toInt(Int(Frac(l / 30) * 10));
        v[7] = Norm12(odd ? k + q + 1 : k + q + 9);
    }
    {
        const int k = toInt(Int(Frac(l / 30) * 12));
        v[8] = Norm12(k + q + 1);
    }
    v[9] = Norm12(toInt(Int(1 + l / 30 * 16)));
    {
        const int k = toInt(Int(x / 1.5));
        v[10] = Norm12(k + kVimshaStart[static_cast<size_t>(SignClass(s) - 1)]);
    }
    {
        const int k = toInt(Int(x / 1.25));
        v[11] = Norm12(odd ? k + 5 : k + 4);
    }
    {
        const int k = toInt(Int(x / (30.0 / 27)));
        v[12] = Norm12(k + kSaptaVimshaStart[static_cast<size_t>((Norm12(s) - 1) % 4)]);
    }
    {
        // The odd sign's last part runs up to 30 inclusive; the even sign's takes the rest.
        const auto &parts = odd ? kTrimshaOdd : kTrimshaEven;
        v[13] = parts.back().sign;
        for (size_t i = 0; i + 1 < parts.size(); ++i)
            if (x < parts[i].below) {
                v[13] = parts[i].sign;
                break;
            }
    }
    {
        const int k = toInt(Int(x / (30.0 / 40)));
        v[14] = Norm12(odd ? k + 1 : k + 7);
    }
    {
        const int k = toInt(Int(x / (30.0 / 45)));
        v[15] = Norm12(k + kAkshaStart[static_cast<size_t>(SignClass(s) - 1)]);
    }
    // Half degrees counted from the sign itself; twelve of them make a round.
    v[16] = Norm12(toInt(Int(2 * std::fmod(l, 6))) + s);
    {
        const int k = toInt(Int(x / (30.0 / 11))) + 1;
        v[17] = Norm12(s - k);
    }

    for (int i = 0; i <= 16; ++i)
        if (v[static_cast<size_t>(i)] == 0)
            v[static_cast<size_t>(i)] = 12;
    return v;
}

void clsPlanets::FillVargas()
{
    // New positions: the kept degrees within the sign belong to the old ones.
    m_krishAmsha.fill(0);
    for (int n = 0; n < kFilledColumns; ++n) {
        const std::array<int, 19> v = CalcVargas(PlanetLongi(n));
        for (int k = 0; k < kRows; ++k)
            m_varga[static_cast<size_t>(k)][static_cast<size_t>(n)] = v[static_cast<size_t>(k)];
    }
}

std::optional<int> clsPlanets::PrediVargaValue(int n, int k) const
{
    if (n < 0 || n >= 14 || k < 0 || k >= kRows)
        return std::nullopt;
    return m_varga[static_cast<size_t>(k)][static_cast<size_t>(n)];
}

int clsPlanets::PrediVarga(int n, int k) const { return PrediVargaValue(n, k).value_or(0); }

bool clsPlanets::PlanetVargottama(int p) const { return PrediVarga(p, 1) == PrediVarga(p, 6); }

int clsPlanets::PlanetGopuramsa(int p) const
{
    const int own = PrediVarga(p, 1);
    int count = 0;
    for (int k = 1; k <= 16; ++k)
        if (PrediVarga(p, k) == own)
            ++count;
    return count >= 14 ? 0 : count;
}

int clsPlanets::AtmaKaraka() const
{
    int lead = 0;
    long held = 0;
    for (int p = 1; p <= 7; ++p) {
        const double x = std::fmod(PlanetLongi(p), 30);
        if (x > held) {
            lead = p;
            held = CLng(x);
        }
    }
    return lead;
}

int clsPlanets::KarakamsaLagna() const { return PrediVarga(AtmaKaraka(), 6); }

// ---- degrees within the sign ----

double clsPlanets::KrishAmsha(int p) const
{
    if (p < 0 || p > 26)
        return std::fmod(PlanetLongi(p), 30);
    double &memo = m_krishAmsha[static_cast<size_t>(p)];
    if (memo == 0)
        memo = std::fmod(PlanetLongi(p), 30);
    return memo;
}

int clsPlanets::Decanate() const
{
    const double x = std::fmod(PlanetLongi(1) + PlanetLongi(13), 30);
    if (x <= 10)
        return 1;
    if (x <= 20)
        return 2;
    return 3;
}

// ---- lords of the divisions ----

int clsPlanets::HoraLord(int n) const
{
    const bool firstHalf = KrishAmsha(n) <= 15;
    if (oddSign(PlanetRashiNum(n)))
        return firstHalf ? 1 : 7;
    return firstHalf ? 7 : 1;
}

int clsPlanets::DrekkanaLord(int n) const
{
    const int s = PlanetRashiNum(n);
    const double x = KrishAmsha(n);
    return SignLord(Norm12(x < 10 ? s : (x < 20 ? s + 4 : s + 8)));
}

int clsPlanets::ChaturthamshLord(int n) const
{
    const int s = PlanetRashiNum(n);
    const double x = KrishAmsha(n);
    return SignLord(Norm12(x < 7.5 ? s : (x < 15 ? s + 3 : (x < 22.5 ? s + 6 : s + 9))));
}

int clsPlanets::SaptamshaLord(int n) const { return SignLord(PrediVarga(n, 5)); }
int clsPlanets::DashamamshaLord(int n) const { return SignLord(PrediVarga(n, 7)); }
int clsPlanets::DwaDashamamshaLord(int n) const { return SignLord(PrediVarga(n, 8)); }
int clsPlanets::EkaDashamAmshaLord(int n) const { return SignLord(PrediVarga(n, 17)); }

int clsPlanets::PanchamAmshLord(int n) const { return lordUpTo(kPanchamAmsha, KrishAmsha(n)); }
int clsPlanets::SastamshLord(int n) const { return lordUpTo(kSastamsha, KrishAmsha(n)); }

int clsPlanets::VarAshtamamshaLord(int n) const
{
    const int c = RashiClass(PlanetRashiNum(n));
    if (c == 0)
        return 0;
    const double x = KrishAmsha(n);
    size_t part = 7;
    for (size_t i = 0; i < 7; ++i)
        if (x <= 3.75 * static_cast<double>(i + 1)) {
            part = i;
            break;
        }
    return kAshtamamshaLord[static_cast<size_t>(c - 1)][part];
}

// ---- navamsha and shashtiamsha by arithmetic ----

int clsPlanets::NavamshSign(int n) const
{
    const double y = std::fmod(PlanetLongi(n), 40) / (10.0 / 3);
    return partUpTo(y);
}

int clsPlanets::NavamshLord(int n) const
{
    const int nav = NavamshSign(n);
    return nav >= 1 && nav <= 12 ? kNavamshaLord[static_cast<size_t>(nav - 1)] : 0;
}

bool clsPlanets::SashtiAmshaBenefic(int n) const
{
    int part = partUpTo(2 * KrishAmsha(n));
    if (!oddSign(PlanetRashiNum(n)))
        part = 60 - part + 1;
    for (int m : kMaleficSashtiAmsha)
        if (m == part)
            return false;
    return true;
}
