// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The Tribhagi dasha: the Vimshottari cycle of lords with every length at two thirds, 80 years in
// all, counted from birth in whole days of the mean year, with the bhuktis of each Maha.

#include <QDateTime>
#include <QList>

#include <array>
#include <optional>

class clsPlanets;

struct TribhagiPeriod
{
    int Position = 0; // cycle position 1..9 (Ketu first)
    int Lord = 0;     // planet number
    QDateTime Start, End;
};

struct TribhagiMaha
{
    TribhagiPeriod Period;
    double Years = 0; // its length in years; the first Maha's is the balance at birth
    // The bhuktis in order of time. The first Maha lists only those that run after birth, the
    // earliest of them reaching back to or before birth.
    QList<TribhagiPeriod> Bhuktis;
};

namespace Tribhagi {
// Years of cycle position 1..9: two thirds of the Vimshottari years; Empty outside.
std::optional<double> TriPeriod(int position);
// Cycle position 1..9 of the Maha running at birth, from the Moon's longitude.
int FirstPosition(double moon);
// The part of the Moon's nakshatra still to run at birth, in (0, 1].
double RemainingPart(double moon);
// The nine Mahas from birth: the first from the birth moment for its balance, the others whole.
std::array<TribhagiMaha, 9> Mahas(const clsPlanets &chart);
} // namespace Tribhagi
