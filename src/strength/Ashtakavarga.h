// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The Ashtakavarga: the benefic-point tables of the seven planets, Rahu and the Lagna, and the
// reductions and pindas of the Ashtakavarga page. Signs are 1..12; arrays of signs are indexed
// 1..12 with entry 0 unused.

#include <array>
#include <cstdint>

class clsPlanets;

namespace Ashtakavarga {

using Signs = std::array<int, 13>;

// The tables in the order they are built, by planet number (0 the Lagna), and their totals.
inline constexpr std::array<int, 9> kTables{1, 7, 4, 2, 5, 3, 6, 8, 0};
inline constexpr std::array<int, 9> kTableTotals{48, 49, 39, 54, 56, 52, 39, 44, 49};
// The eight givers of every table, in order: Sun, Moon, Mars, Mercury, Jupiter, Venus, Saturn, Lagna.
inline constexpr std::array<int, 8> kGivers{1, 7, 4, 2, 5, 3, 6, 0};

// The twelve house flags (1 a point) of giver g (index into kGivers) in the table of planet p.
std::array<int, 12> Flags(int tablePlanet, int giverIndex);
// The signs a giver standing in startSign marks with its flags.
Signs Marks(const std::array<int, 12> &flags, int startSign);

// Trine reduction of the triplets (1,5,9), (2,6,10), (3,7,11), (4,8,12).
Signs TrikonaShodhan(const Signs &a);
// One triplet: all equal become 0; all nonzero lose the smallest; a triplet with a zero keeps its values.
std::array<int, 3> TrikonaGroup(int a, int b, int c);
// Reduction of the signs under one lord, (1,8), (2,7), (3,6), (9,12), (10,11); occupied[s] tells
// whether one of the planets 1..7 stands in sign s.
Signs EkadhipatyaShodhan(const Signs &t, const std::array<bool, 13> &occupied);
// One pair (A, B) with values a, b and their occupation: the new (a, b).
std::array<int, 2> EkadhipatyaPair(int a, int b, bool occupiedA, bool occupiedB);
// The signs where planets 1..7 of the chart stand.
std::array<bool, 13> OccupiedSigns(const clsPlanets &c);

// Sign multipliers 1..12 and planet multipliers of planets 1..7.
inline constexpr std::array<int, 13> kSignMultiplier{0, 7, 10, 8, 4, 10, 5, 7, 8, 9, 5, 11, 12};
inline constexpr std::array<int, 8> kPlanetMultiplier{0, 5, 5, 7, 8, 10, 5, 5};
// The pindas of a reduced table g: by sign, by the signs of planets 1..7, and their sum.
int RasiPinda(const Signs &g);
int GrahaPinda(const Signs &g, const clsPlanets &c);
int ShodhyaPinda(const Signs &g, const clsPlanets &c);

} // namespace Ashtakavarga
