// SPDX-License-Identifier: AGPL-3.0-or-later
#include "strength/Ashtakavarga.h"

#include "sky/clsPlanets.h"

#include <algorithm>
#include <initializer_list>

namespace Ashtakavarga {
namespace {

// The houses counted from a giver's sign (its own sign house 1) in which it gives a point.
constexpr std::uint16_t houses(std::initializer_list<int> list)
{
    std::uint16_t mask = 0;
    for (int h : list)
        mask = static_cast<std::uint16_t>(mask | (1u << (h - 1)));
    return mask;
}

using Table = std::array<std::uint16_t, 8>; // one row a giver, in the order of kGivers

// The nine tables in the order of kTables; rows Sun, Moon, Mars, Mercury, Jupiter, Venus, Saturn, Lagna.
inline constexpr std::array<Table, 9> kPoints{{
    // Sun (48)
    {houses({1, 2, 4, 7, 8, 9, 10, 11}), houses({3, 6, 10, 11}), houses({1, 2, 4, 7, 8, 9, 10, 11}),
     houses({3, 5, 6, 9, 10, 11, 12}), houses({5, 6, 9, 11}), houses({6, 7, 12}), houses({1, 2, 4, 7, 8, 9, 10, 11}),
     houses({3, 4, 6, 10, 11, 12})},
    // Moon (49)
    {houses({3, 6, 7, 8, 10, 11}), houses({1, 3, 6, 7, 10, 11}), houses({2, 3, 5, 6, 9, 10, 11}),
     houses({1, 3, 4, 5, 7, 8, 10, 11}), houses({1, 4, 7, 8, 10, 11, 12}), houses({3, 4, 5, 7, 9, 10, 11}),
     houses({3, 5, 6, 11}), houses({3, 6, 10, 11})},
    // Mars (39)
    {houses({3, 5, 6, 10, 11}), houses({3, 6, 11}), houses({1, 2, 4, 7, 8, 10, 11}), houses({3, 5, 6, 11}),
     houses({6, 10, 11, 12}), houses({6, 8, 11, 12}), houses({1, 4, 7, 8, 9, 10, 11}), houses({1, 3, 6, 10, 11})},
    // Mercury (54)
    {houses({5, 6, 9, 11, 12}), houses({2, 4, 6, 8, 10, 11}), houses({1, 2, 4, 7, 8, 9, 10, 11}),
     houses({1, 3, 5, 6, 9, 10, 11, 12}), houses({6, 8, 11, 12}), houses({1, 2, 3, 4, 5, 8, 9, 11}),
     houses({1, 2, 4, 7, 8, 9, 10, 11}), houses({1, 2, 4, 6, 8, 10, 11})},
    // Jupiter (56)
    {houses({1, 2, 3, 4, 7, 8, 9, 10, 11}), houses({2, 5, 7, 9, 11}), houses({1, 2, 4, 7, 8, 10, 11}),
     houses({1, 2, 4, 5, 6, 9, 10, 11}), houses({1, 2, 3, 4, 7, 8, 10, 11}), houses({2, 5, 6, 9, 10, 11}),
     houses({3, 5, 6, 12}), houses({1, 2, 4, 5, 6, 7, 9, 10, 11})},
    // Venus (52)
    {houses({8, 11, 12}), houses({1, 2, 3, 4, 5, 8, 9, 11, 12}), houses({3, 5, 6, 9, 11, 12}), houses({3, 5, 6, 9, 11}),
     houses({5, 8, 9, 10, 11}), houses({1, 2, 3, 4, 5, 8, 9, 10, 11}), houses({3, 4, 5, 8, 9, 10, 11}),
     houses({1, 2, 3, 4, 5, 8, 9, 11})},
    // Saturn (39)
    {houses({1, 2, 4, 7, 8, 10, 11}), houses({3, 6, 11}), houses({3, 5, 6, 10, 11, 12}), houses({6, 8, 9, 10, 11, 12}),
     houses({5, 6, 11, 12}), houses({6, 11, 12}), houses({3, 5, 6, 11}), houses({1, 3, 4, 6, 10, 11})},
    // Rahu (44)
    {houses({1, 2, 3, 5, 7, 8, 10}), houses({1, 3, 5, 7, 8, 9, 10}), houses({2, 3, 5, 7, 12}), houses({2, 4, 7, 8, 12}),
     houses({1, 3, 4, 6, 8}), houses({6, 7, 11, 12}), houses({3, 5, 7, 10, 11, 12}), houses({3, 4, 5, 9, 12})},
    // Lagna (49)
    {houses({3, 4, 6, 10, 11, 12}), houses({3, 6, 10, 11, 12}), houses({1, 3, 6, 10, 11}), houses({1, 2, 4, 6, 8, 10, 11}),
     houses({1, 2, 4, 5, 6, 7, 9, 10, 11}), houses({1, 2, 3, 4, 5, 8, 9}), houses({1, 3, 4, 6, 10, 11}),
     houses({3, 6, 10, 11})},
}};

constexpr int bits(std::uint16_t m)
{
    int n = 0;
    for (; m; m = static_cast<std::uint16_t>(m & (m - 1)))
        ++n;
    return n;
}

constexpr bool totalsAgree()
{
    for (size_t t = 0; t < kPoints.size(); ++t) {
        int sum = 0;
        for (std::uint16_t row : kPoints[t])
            sum += bits(row);
        if (sum != kTableTotals[t])
            return false;
    }
    return true;
}
static_assert(totalsAgree(), "every table holds its total of points");

inline constexpr std::array<std::array<int, 3>, 4> kTrines{{{1, 5, 9}, {2, 6, 10}, {3, 7, 11}, {4, 8, 12}}};
inline constexpr std::array<std::array<int, 2>, 5> kPairs{{{1, 8}, {2, 7}, {3, 6}, {9, 12}, {10, 11}}};

} // namespace

std::array<int, 12> Flags(int tablePlanet, int giverIndex)
{
    std::array<int, 12> flags{};
    const auto t = std::find(kTables.begin(), kTables.end(), tablePlanet);
    if (t == kTables.end() || giverIndex < 0 || giverIndex >= 8)
        return flags;
    const std::uint16_t mask = kPoints[static_cast<size_t>(t - kTables.begin())][static_cast<size_t>(giverIndex)];
    for (int h = 0; h < 12; ++h)
        flags[static_cast<size_t>(h)] = (mask >> h) & 1;
    return flags;
}

Signs Marks(const std::array<int, 12> &flags, int startSign)
{
    Signs out{};
    for (int i = 1; i <= 12; ++i) {
        if (flags[static_cast<size_t>(i - 1)] != 1)
            continue;
        int sign = i + startSign - 1;
        if (sign > 12)
            sign -= 12;
        if (sign >= 1 && sign <= 12)
            ++out[static_cast<size_t>(sign)];
    }
    return out;
}

std::array<int, 3> TrikonaGroup(int a, int b, int c)
{
    if (a == b && b == c)
        return {0, 0, 0};
    if (a != 0 && b != 0 && c != 0) {
        const int m = std::min({a, b, c});
        return {a - m, b - m, c - m};
    }
    // A triplet with a zero keeps its values, whether the other two differ or not.
    return {a, b, c};
}

Signs TrikonaShodhan(const Signs &a)
{
    Signs t{};
    for (const auto &trine : kTrines) {
        const auto r = TrikonaGroup(a[static_cast<size_t>(trine[0])], a[static_cast<size_t>(trine[1])], a[static_cast<size_t>(trine[2])]);
        for (size_t i = 0; i < 3; ++i)
            t[static_cast<size_t>(trine[i])] = r[i];
    }
    return t;
}

std::array<int, 2> EkadhipatyaPair(int a, int b, bool occA, bool occB)
{
    if (a == 0 || b == 0 || (occA && occB))
        return {a, b};
    if (!occA && !occB) {
        if (a == b)
            return {0, 0};
        return a > b ? std::array<int, 2>{a - b, 0} : std::array<int, 2>{0, b - a};
    }
    if (occA)
        return a >= b ? std::array<int, 2>{a, 0} : std::array<int, 2>{a, b - a};
    // Only B occupied: a smaller b gives (b, b), which is not the mirror of the line above.
    return b >= a ? std::array<int, 2>{0, b} : std::array<int, 2>{b, b};
}

Signs EkadhipatyaShodhan(const Signs &t, const std::array<bool, 13> &occupied)
{
    Signs e = t;
    for (const auto &pair : kPairs) {
        const size_t a = static_cast<size_t>(pair[0]), b = static_cast<size_t>(pair[1]);
        const auto r = EkadhipatyaPair(t[a], t[b], occupied[a], occupied[b]);
        e[a] = r[0];
        e[b] = r[1];
    }
    return e;
}

std::array<bool, 13> OccupiedSigns(const clsPlanets &c)
{
    std::array<bool, 13> occupied{};
    for (int p = 1; p <= 7; ++p) {
        const int s = c.PlanetRashiNum(p);
        if (s >= 1 && s <= 12)
            occupied[static_cast<size_t>(s)] = true;
    }
    return occupied;
}

int RasiPinda(const Signs &g)
{
    int sum = 0;
    for (int s = 1; s <= 12; ++s)
        sum += g[static_cast<size_t>(s)] * kSignMultiplier[static_cast<size_t>(s)];
    return sum;
}

int GrahaPinda(const Signs &g, const clsPlanets &c)
{
    int sum = 0;
    for (int q = 1; q <= 7; ++q) {
        const int s = c.PlanetRashiNum(q);
        if (s >= 1 && s <= 12)
            sum += g[static_cast<size_t>(s)] * kPlanetMultiplier[static_cast<size_t>(q)];
    }
    return sum;
}

int ShodhyaPinda(const Signs &g, const clsPlanets &c) { return RasiPinda(g) + GrahaPinda(g, c); }

} // namespace Ashtakavarga
