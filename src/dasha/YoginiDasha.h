// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The Yogini and Shat Trimsha dashas: one cycle of eight periods of 1 to 8 years (36 in all), run
// twice from birth in whole days of the year of 365.25 days; they differ in where they start.

#include <QDateTime>

#include <array>

class clsPlanets;

struct YoginiPeriod
{
    int K = 0;        // place in the cycle 0..7 (0 the eight-year Sankata)
    double Years = 0; // its years; the first row's is its balance at birth
    QDateTime Start, End;
};

// Sixteen rows, the first from birth.
using YoginiRows = std::array<YoginiPeriod, 16>;

namespace Yogini {
// Years of place k: k itself, 8 for 0.
int Years(int k);
// Planet number of the lord of place k: 0 Rahu, 1 Moon, 2 Sun, 3 Jupiter, 4 Mars, 5 Mercury,
// 6 Saturn, 7 Venus.
int Lord(int k);
// The place of the birth period of each scheme, from the Moon's nakshatra 1..27.
int FirstYogini(int nakshatra);
int FirstShatTrimsha(int nakshatra);
// The rows of a scheme whose birth period is at place first.
YoginiRows Rows(const clsPlanets &chart, int first);
YoginiRows YoginiDasha(const clsPlanets &chart);
YoginiRows ShatTrimshaDasha(const clsPlanets &chart);
} // namespace Yogini
