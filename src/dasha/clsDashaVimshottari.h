// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The Vimshottari dasha: 120 years in nine periods from the Moon's nakshatra at birth, each
// divided again in the same proportions, five levels deep (Maha, Antar, Pratyantara, Sookshma,
// Prana). The tree is walked down one chosen period at a time and back up.

#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>

#include <array>

class clsPlanets;

struct DashaPeriod
{
    int Lord = 0;      // planet number
    double Years = 0;  // length in years
    QDateTime Start;   // the moment the period begins
    int CyclePos = 0;  // cycle position 1..9 of the lord
};

// The nine periods of a level, in order of time.
using DashaLevel = std::array<DashaPeriod, 9>;

namespace Vimshottari {
// The nine Mahas of a chart: the first begins before birth, by the part of the birth Maha that
// the Moon has already run through.
DashaLevel Mahas(const clsPlanets &chart);
// The nine sub-periods of a period: from its own lord round the cycle, filling it exactly.
DashaLevel SubPeriods(const DashaPeriod &parent);
// The moment a period ends.
QDateTime End(const DashaPeriod &p);
// The Maha running on day `today` (0..8): the first whose end is later; the last when today is
// past 120 years from birth; -1 when none ends later (today before the first Maha's end is
// impossible, so this means a chart without a birth moment).
int RunningMaha(const clsPlanets &chart, const DashaLevel &mahas, const QDateTime &today);
} // namespace Vimshottari

class clsDashaVimshottari
{
public:
    // Level 1 of the chart: the nine Mahas.
    void CalcDashaVimshottari(const clsPlanets &chart);
    // Opens row (0-based on entry, 1..9 on return) of the current level one level deeper;
    // nothing at level 5.
    void GoDeep(int &row);
    // Back one level, rebuilt from the root along the same choices; nothing at level 1.
    void GoUp();

    int Level() const { return m_level; }
    const DashaLevel &Periods() const { return m_periods; }
    // The lord numbers chosen on the way down, as decimal text, path[1] the Maha.
    const QStringList &Path() const { return m_path; }
    // The nine rows as the reckoner shows them: "Sun-5 March 1985 3:7 PM".
    const QStringList &Rows() const { return m_rows; }
    QString Heading() const { return m_heading; }
    QString PathText() const { return m_pathText; }
    // A lord's share of its parent: parentYears x its years / 120.
    static double SubPeriodYears(double parentYears, int lord);

private:
    void FillPeriods(int lord, int position, const QDateTime &start, double parentYears);
    void ShowPeriods();
    void ShowPath();
    int FindLordRow(int lord) const;

    const clsPlanets *m_chart = nullptr;
    int m_level = 1;
    DashaLevel m_periods{};
    QStringList m_path;
    QStringList m_rows;
    QString m_heading, m_pathText;
};
