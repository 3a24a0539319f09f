// SPDX-License-Identifier: AGPL-3.0-or-later
#include "dasha/TribhagiDasha.h"

#include "sky/Functions.h"
#include "sky/clsPlanets.h"

namespace {
constexpr double kNakshatraSpan = 360.0 / 27.0;
constexpr double kYearDays = 365.2564;
constexpr double kCycleYears = 80;

int next(int position) { return position > 9 ? position - 9 : position; }

// Days of a bhukti of lord position j in the Maha of position k, rounded to whole days.
long bhuktiDays(int k, int j) { return CLng(*Tribhagi::TriPeriod(k) * *Tribhagi::TriPeriod(j) / kCycleYears * kYearDays); }

TribhagiPeriod period(int position, const QDateTime &start, const QDateTime &end)
{
    return {position, clsPlanets::GetVimSotPlanetLord(position), start, end};
}
} // namespace

std::optional<double> Tribhagi::TriPeriod(int position)
{
    if (position < 1 || position > 9)
        return std::nullopt;
    return clsPlanets::GetVimSotPeriods(clsPlanets::GetVimSotPlanetLord(position)) * 2 / 3.0;
}

int Tribhagi::FirstPosition(double moon)
{
    // The nakshatra's number reduced by the sum of its first and last digit.
    int k = static_cast<int>(Int(moon / kNakshatraSpan)) + 1;
    while (k >= 10)
        k = k / 10 + k % 10;
    return k;
}

double Tribhagi::RemainingPart(double moon)
{
    const int n = static_cast<int>(Int(moon / kNakshatraSpan)) + 1;
    return (n * kNakshatraSpan - moon) / kNakshatraSpan;
}

std::array<TribhagiMaha, 9> Tribhagi::Mahas(const clsPlanets &chart)
{
    std::array<TribhagiMaha, 9> out{};
    const double moon = chart.PlanetLongi(7);
    const int k = FirstPosition(moon);
    const QDateTime birth = chart.Person().GetBirthDate();

    // The Maha running at birth, for its balance; its bhuktis walk back from its end and stop at
    // the one that reaches back to birth.
    TribhagiMaha &first = out[0];
    first.Years = RemainingPart(moon) * *TriPeriod(k);
    first.Period = period(k, birth, birth.addDays(CLng(first.Years * kYearDays)));
    QDateTime cursor = first.Period.End;
    int j = next(k + 8);
    for (int i = 0; i < 9; ++i) {
        const QDateTime start = cursor.addDays(-bhuktiDays(k, j));
        first.Bhuktis.prepend(period(j, start, cursor));
        if (start <= birth)
            break;
        cursor = start;
        j = j == 1 ? 9 : j - 1;
    }

    // The eight Mahas after it, whole, each bhukti from the Maha's own lord on.
    for (int m = 1; m < 9; ++m) {
        TribhagiMaha &maha = out[static_cast<size_t>(m)];
        const int p = next(k + m);
        const QDateTime start = out[static_cast<size_t>(m - 1)].Period.End;
        maha.Years = *TriPeriod(p);
        maha.Period = period(p, start, start.addDays(CLng(maha.Years * kYearDays)));
        QDateTime b = start;
        for (int i = 0; i < 9; ++i) {
            const int q = next(p + i);
            const QDateTime end = b.addDays(bhuktiDays(p, q));
            maha.Bhuktis.append(period(q, b, end));
            b = end;
        }
    }
    return out;
}
