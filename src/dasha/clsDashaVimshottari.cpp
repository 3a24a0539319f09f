// SPDX-License-Identifier: AGPL-3.0-or-later
#include "dasha/clsDashaVimshottari.h"

#include "sky/Functions.h"
#include "sky/clsPlanets.h"

#include <array>

namespace {
constexpr double kNakshatraSpan = 360.0 / 27.0;
constexpr double kLife = 120.0;

QDateTime addYears(const QDateTime &d, double years)
{
    int unit = 1;
    return clsPlanets::AddDecValToDate(d, years, unit);
}

// The nine periods from lord at position, starting at start, within parentYears.
DashaLevel fill(int lord, int position, const QDateTime &start, double parentYears)
{
    DashaLevel level{};
    QDateTime cursor = start;
    for (DashaPeriod &p : level) {
        p.Lord = lord;
        p.Years = clsDashaVimshottari::SubPeriodYears(parentYears, lord);
        p.Start = cursor;
        p.CyclePos = position;
        cursor = addYears(cursor, p.Years);
        position = static_cast<int>(ModOneBased(position + 1, 9));
        lord = clsPlanets::GetVimSotPlanetLord(position);
    }
    return level;
}

inline constexpr std::array<const char *, 5> kHeadings{
    "Vimshottari Dasha-Maha Dasha", "Vimshottari Dasha-Antar Dasha", "Vimshottari Dasha-Pratyantara Dasha",
    "Vimshottari Dasha-Sookshma Dasha", "Vimshottari Dasha-Prana Dasha"};
} // namespace

namespace Vimshottari {

DashaLevel Mahas(const clsPlanets &chart)
{
    const int n = chart.NakOf(7);
    const int position = static_cast<int>(ModOneBased(n, 9));
    const double f = (kNakshatraSpan * n - chart.PlanetLongi(7)) / kNakshatraSpan;
    const int lord = clsPlanets::GetVimSotPlanetLord(position);
    const int years = clsPlanets::GetVimSotPeriods(lord);
    const QDateTime birth = chart.Person().GetBirthDate();
    const QDateTime end = addYears(birth, f * years);
    const QDateTime start = addYears(end, -years);
    return fill(lord, position, start, kLife);
}

DashaLevel SubPeriods(const DashaPeriod &parent) { return fill(parent.Lord, parent.CyclePos, parent.Start, parent.Years); }

QDateTime End(const DashaPeriod &p) { return addYears(p.Start, p.Years); }

int RunningMaha(const clsPlanets &chart, const DashaLevel &mahas, const QDateTime &today)
{
    if (today > addYears(chart.Person().GetBirthDate(), kLife))
        return 8;
    for (int i = 0; i < 9; ++i)
        if (End(mahas[static_cast<size_t>(i)]) > today)
            return i;
    return -1;
}

} // namespace Vimshottari

void clsDashaVimshottari::CalcDashaVimshottari(const clsPlanets &chart)
{
    m_chart = &chart;
    m_level = 1;
    m_path.clear();
    const DashaLevel mahas = Vimshottari::Mahas(chart);
    FillPeriods(mahas[0].Lord, mahas[0].CyclePos, mahas[0].Start, kLife);
    ShowPeriods();
}

double clsDashaVimshottari::SubPeriodYears(double parentYears, int lord)
{
    return parentYears * (clsPlanets::GetVimSotPeriods(lord) / kLife);
}

void clsDashaVimshottari::FillPeriods(int lord, int position, const QDateTime &start, double parentYears)
{
    // The path holds the lord chosen at each level, from index 1.
    while (m_path.size() < m_level + 2)
        m_path.append(QString());
    m_path[m_level] = QString::number(lord);
    m_periods = fill(lord, position, start, parentYears);
}

void clsDashaVimshottari::GoDeep(int &row)
{
    ++row;
    if (m_level >= 5 || row < 1 || row > 9)
        return;
    const DashaPeriod p = m_periods[static_cast<size_t>(row - 1)];
    FillPeriods(p.Lord, p.CyclePos, p.Start, p.Years);
    ++m_level;
    ShowPeriods();
}

int clsDashaVimshottari::FindLordRow(int lord) const
{
    for (int i = 0; i < 9; ++i)
        if (m_periods[static_cast<size_t>(i)].Lord == lord)
            return i + 1;
    return 0;
}

void clsDashaVimshottari::GoUp()
{
    if (m_level <= 1 || !m_chart)
        return;
    const QStringList path = m_path;
    const int k = m_level;
    CalcDashaVimshottari(*m_chart);
    for (int i = 1; i <= k - 2; ++i) {
        const int row = FindLordRow(path.value(i).toInt());
        if (row == 0)
            break;
        const DashaPeriod p = m_periods[static_cast<size_t>(row - 1)];
        FillPeriods(p.Lord, p.CyclePos, p.Start, p.Years);
        ++m_level;
    }
    ShowPeriods();
}

void clsDashaVimshottari::ShowPeriods()
{
    m_rows.clear();
    for (const DashaPeriod &p : m_periods) {
        const QDateTime &s = p.Start;
        const int hour = s.time().hour();
        m_rows << clsPlanets::PlanetNameEng(p.Lord) + QLatin1Char('-') + QString::number(s.date().day()) + QLatin1Char(' ')
                      + (m_chart ? m_chart->GetMonthNameByNumEng(s.date().month()) : QString::number(s.date().month()))
                      + QLatin1Char(' ') + QString::number(s.date().year()) + QLatin1Char(' ')
                      + QString::number(static_cast<int>(Clock12(hour))) + QLatin1Char(':') + QString::number(s.time().minute())
                      + (hour > 12 ? QStringLiteral(" PM") : QStringLiteral(" AM"));
    }
    m_heading = QString::fromLatin1(kHeadings[static_cast<size_t>(m_level - 1)]);
    ShowPath();
}

void clsDashaVimshottari::ShowPath()
{
    if (m_level == 1) {
        m_pathText = QStringLiteral("Mahadasha");
        return;
    }
    QStringList names;
    for (int i = 1; i <= m_level - 1; ++i)
        names << clsPlanets::PlanetNameEng(m_path.value(i).toInt());
    m_pathText = QStringLiteral("Dasha: ") + names.join(QStringLiteral("->"));
}
