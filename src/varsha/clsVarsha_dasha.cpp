// SPDX-License-Identifier: AGPL-3.0-or-later
// The annual dashas: Patyayini from the sorted degrees of the annual chart, and the Mudda Yogini
// and Mudda Vimshottari from the natal Moon's nakshatra and the age.
#include "sky/Functions.h"
#include "sky/clsPlanets.h"
#include "varsha/clsVarsha.h"

#include <algorithm>
#include <array>

namespace {

constexpr double kYearDays = 365.2564;

// The planet of each place 0..7 of the Yogini cycle: Sankata (Rahu), Mangala (Moon), Pingala (Sun),
// Dhanya (Jupiter), Bhramari (Mars), Bhadrika (Mercury), Ulka (Saturn), Siddha (Venus).
inline constexpr std::array<int, 8> kYoginiLord{8, 7, 1, 5, 4, 2, 6, 3};

// Rows that run one after the other from start, each by its span rounded to whole days.
void runDates(std::vector<VarshaDashaRow> &rows, const QDateTime &start)
{
    QDateTime at = start;
    for (VarshaDashaRow &r : rows) {
        r.Start = at;
        at = clsPlanets::DateAddEx(at, QStringLiteral("d"), static_cast<double>(CLng(r.Days)));
        r.End = at;
    }
}

} // namespace

void clsVarsha::computePatyayini() const
{
    if (m_patDone)
        return;
    m_patDone = true;
    std::array<int, 8> body{0, 1, 2, 3, 4, 5, 6, 7};
    // Smallest degree first; equal degrees keep the order of their numbers.
    std::stable_sort(body.begin(), body.end(), [this](int a, int b) { return m_annual.KrishAmsha(a) < m_annual.KrishAmsha(b); });
    const double last = m_annual.KrishAmsha(body[7]);
    double before = 0;
    for (size_t i = 0; i < body.size(); ++i) {
        const double k = m_annual.KrishAmsha(body[i]);
        m_patPlanet[i] = body[i];
        m_patKrish[i] = k - before;
        // All eight at 0 degrees of their signs leave no span to share out.
        m_patDays[i] = last > 0 ? (k - before) / last * kYearDays : 0;
        before = k;
    }
}

long clsVarsha::PatPlanet(int i) const
{
    computePatyayini();
    return i >= 0 && i < 8 ? m_patPlanet[static_cast<size_t>(i)] : 0;
}

double clsVarsha::PatKrish(int i) const
{
    computePatyayini();
    return i >= 0 && i < 8 ? m_patKrish[static_cast<size_t>(i)] : 0;
}

double clsVarsha::PatPatyamsh(int i) const
{
    computePatyayini();
    return i >= 0 && i < 8 ? m_patDays[static_cast<size_t>(i)] : 0;
}

std::vector<VarshaDashaRow> clsVarsha::PatyayiniRows() const
{
    std::vector<VarshaDashaRow> rows;
    for (int i = 0; i < 8; ++i) {
        const int p = static_cast<int>(PatPlanet(i));
        rows.push_back({p, i, m_annual.PlanetNameFull(p), PatPatyamsh(i), {}, {}});
    }
    runDates(rows, m_annual.Person().GetBirthDate());
    return rows;
}

std::vector<VarshaDashaRow> clsVarsha::MuddaYoginiRows() const
{
    std::vector<VarshaDashaRow> rows;
    const int k = (m_age + m_birth.Nakshatra() + 3) % 8;
    for (int i = 0; i < 8; ++i) {
        int m = k + i;
        while (m > 8)
            m -= 8;
        // The eighth place is Sankata's, which the cycle numbers 0.
        const int place = m % 8;
        const double days = (m == 0 ? 80 : m * 10) * kYearDays / 360;
        rows.push_back({kYoginiLord[static_cast<size_t>(place)], place,
                        m_annual.GetHeadValue(1, place, QStringLiteral("YogiCycleName")).toString(), days, {}, {}});
    }
    runDates(rows, m_annual.Person().GetBirthDate());
    return rows;
}

std::vector<VarshaDashaRow> clsVarsha::MuddaVimshottariRows() const
{
    std::vector<VarshaDashaRow> rows;
    const int k = Norm9(m_age + m_birth.Nakshatra());
    for (int i = 0; i < 9; ++i) {
        const int m = Norm9(k + i);
        const double days = static_cast<double>(CLng(3.0 * m_annual.VimPeriod(m) * kYearDays / 360));
        rows.push_back({clsPlanets::GetVimSotPlanetLord(m), m, m_annual.VimName(m), days, {}, {}});
    }
    runDates(rows, m_annual.Person().GetBirthDate());
    return rows;
}
