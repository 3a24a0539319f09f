// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The karakas, the planetary states (avasthas) of six families and the nine taras of the birth
// star, for the page "Planetary Avasthas". Each state is the number of a head in category "Ava3",
// "Ava5", ...; 0 where no test of the family holds (the page shows "---"). Nothing is kept.

#include <array>

class clsPlanets;

namespace Avasthas {
// The families in the order of the page's columns, and their heads in category "Avastha".
inline constexpr std::array<int, 6> kFamilies{3, 5, 6, 9, 10, 12};

// Three-fold: 1 exalted or own sign, 2 a friend's or neutral sign, 3 an enemy's sign or debilitated.
int Ava3(const clsPlanets &c, int p);
// Five-fold by degrees in the sign: bands of six degrees, 1..5 in odd signs, 5..1 in even ones.
int Ava5(const clsPlanets &c, int p);
// Six-fold (exalted, friendly, in the 4th from the Lagna in a malefic's sign, with or aspected by
// an enemy, in a watery sign so aspected, in the Sun's sign so aspected or aspected by a malefic).
int Ava6(const clsPlanets &c, int p);
// Nine-fold by dignity and the lord of the sign.
int Ava9(const clsPlanets &c, int p);
// Ten-fold: dignity, sign, distance from the Sun, combustion.
int Ava10(const clsPlanets &c, int p);
// Twelve-fold, from the sign, the ghatikas since sunrise, the star, the planet's place in the
// order Sun, Moon, Mars, ... and its navamsha within the sign: 1..12. g is the ghatika count of
// the birth (Ghatikas).
int Ava12(const clsPlanets &c, int p, int g);
// The ghatikas from the sunrise before the birth to the birth, raised to a whole number: the day
// from that sunrise to the next is 60. A birth at sunrise itself counts from the sunrise before.
int Ghatikas(const clsPlanets &c);
// The state of family (3, 5, 6, 9, 10 or 12) for planet p; g as for Ava12.
int State(const clsPlanets &c, int family, int p, int g);

// The eight chara karakas: planets 1..8 by their degrees in the sign, the highest first, Rahu
// counted as 30 less its degrees; equal degrees keep the order of the planet numbers.
// Entry 0 is the Atma Karaka.
std::array<int, 8> AshtaKarakas(const clsPlanets &c);
// The same over the seven planets 1..7.
std::array<int, 7> SaptaKarakas(const clsPlanets &c);
// The fixed karakas: Sun, Mercury, Mars, Moon, Jupiter, Saturn, Venus.
inline constexpr std::array<int, 7> kSthiraKarakas{1, 2, 4, 7, 5, 6, 3};
// The degrees by which the chara karakas are ranked (Rahu reversed).
double KarakaDegrees(const clsPlanets &c, int p);

// The nine taras: row t (1..9) holds the three stars counted t from the Moon's star, 9 apart.
std::array<std::array<int, 3>, 9> NavTara(const clsPlanets &c);
} // namespace Avasthas
