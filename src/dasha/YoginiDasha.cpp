// SPDX-License-Identifier: AGPL-3.0-or-later
#include "dasha/YoginiDasha.h"

#include "sky/Functions.h"
#include "sky/clsPlanets.h"

namespace {
constexpr double kNakshatraSpan = 360.0 / 27.0;
constexpr double kYearDays = 365.25;

// The Yogini of the birth by the Moon's nakshatra less one (0..26). The last six stars don't go on
// with the run of the others: they start again at 1.
inline constexpr std::array<int, 27> kFirstYogini{7, 0, 1, 2, 3, 4, 5, 6, //
                                                  7, 0, 1, 2, 3, 4, 5, 6, //
                                                  7, 0, 1, 2, 3, 1, 2, 3, 4, 5, 6};
static_assert(kFirstYogini.size() == 27);

inline constexpr std::array<int, 8> kLords{8, 7, 1, 5, 4, 2, 6, 3};
} // namespace

int Yogini::Years(int k) { return k == 0 ? 8 : k; }

int Yogini::Lord(int k) { return k >= 0 && k <= 7 ? kLords[static_cast<size_t>(k)] : 0; }

int Yogini::FirstYogini(int nakshatra)
{
    return nakshatra >= 1 && nakshatra <= 27 ? kFirstYogini[static_cast<size_t>(nakshatra - 1)] : 0;
}

int Yogini::FirstShatTrimsha(int nakshatra) { return (nakshatra + 3) & 7; }

YoginiRows Yogini::Rows(const clsPlanets &chart, int first)
{
    YoginiRows rows{};
    const int n = chart.NakOf(7);
    const double f = (n * kNakshatraSpan - chart.PlanetLongi(7)) / kNakshatraSpan;
    QDateTime start = chart.Person().GetBirthDate();
    int k = first;
    for (size_t i = 0; i < rows.size(); ++i) {
        YoginiPeriod &r = rows[i];
        r.K = k;
        r.Years = i == 0 ? f * Years(k) : Years(k);
        r.Start = start;
        r.End = start.addDays(CLng(r.Years * kYearDays));
        start = r.End;
        k = k + 1 > 7 ? k + 1 - 8 : k + 1;
    }
    return rows;
}

YoginiRows Yogini::YoginiDasha(const clsPlanets &chart) { return Rows(chart, FirstYogini(chart.NakOf(7))); }

YoginiRows Yogini::ShatTrimshaDasha(const clsPlanets &chart) { return Rows(chart, FirstShatTrimsha(chart.NakOf(7))); }
