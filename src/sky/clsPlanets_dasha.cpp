// SPDX-License-Identifier: AGPL-3.0-or-later
// The Vimshottari cycle of the chart: its lords and years, and the balance at birth.
#include "sky/clsPlanets.h"

#include "sky/Functions.h"

#include <array>

namespace {
struct CycleRow
{
    int lord, years;
};
// Cycle position 1..9: Ketu 7, Venus 20, Sun 6, Moon 10, Mars 7, Rahu 18, Jupiter 16, Saturn 19,
// Mercury 17; 120 years in all.
inline constexpr std::array<CycleRow, 9> kCycle{{{9, 7}, {3, 20}, {1, 6}, {7, 10}, {4, 7}, {8, 18}, {5, 16}, {6, 19}, {2, 17}}};
static_assert(kCycle.size() == 9);

constexpr double kNakshatraSpan = 360.0 / 27.0;

// The part of nakshatra n (1..27) that longitude l has still to run, in (0, 1].
double remaining(int n, double l) { return (kNakshatraSpan * n - l) / kNakshatraSpan; }
} // namespace

int clsPlanets::GetVimSotPlanetLord(int position)
{
    return position >= 1 && position <= 9 ? kCycle[static_cast<size_t>(position - 1)].lord : 0;
}

int clsPlanets::GetVimSotPeriods(int planet)
{
    for (const CycleRow &r : kCycle)
        if (r.lord == planet)
            return r.years;
    return 0;
}

QString clsPlanets::VimName(int position) const
{
    if (position < 0 || position > 10)
        return {};
    QString &name = m_vimName[static_cast<size_t>(position)];
    if (name.isEmpty())
        name = GetTextBetween(QStringLiteral("CNVT"), position, QStringLiteral("X1-")).toString();
    return name;
}

int clsPlanets::VimPeriod(int position) const
{
    if (position < 0 || position > 10)
        return 0;
    int &years = m_vimPeriod[static_cast<size_t>(position)];
    if (years == 0)
        years = static_cast<int>(static_cast<qint16>(Val(GetTextBetween(QStringLiteral("CNVT"), position, QStringLiteral("LysY1")).toString())));
    return years;
}

double clsPlanets::VimBalAtBirth() const
{
    const int n = NakOf(7);
    return remaining(n, PlanetLongi(7)) * VimPeriod(Mod9(n));
}

double clsPlanets::VimBalAtBirthKP() const
{
    const double l = Norm360(PlanetLongi(7) + PlanetLongi(13) - KPAyanVal());
    const int n = static_cast<int>(Int(l / kNakshatraSpan)) + 1;
    return remaining(n, l) * VimPeriod(Mod9(n));
}
