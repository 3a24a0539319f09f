// SPDX-License-Identifier: AGPL-3.0-or-later
// The Vimshottari dasha: balance at birth worked out by hand, the calendar arithmetic of spans,
// the tree's invariants over many charts, and the walk down and back up.
#include "dasha/clsDashaVimshottari.h"
#include "sky/clsPlanets.h"
#include "support/EnglishChart.h"
#include "text/TextDB.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

class VimshottariDasha : public EnglishChart
{
protected:
    // The Moon at l on the person's birth moment, without a cast.
    void moonAt(double l)
    {
        for (int n = 0; n <= 25; ++n)
            chart.setPlanetLongi(n, 0);
        chart.setPlanetLongi(7, l);
    }
    static qint64 seconds(const QDateTime &a, const QDateTime &b) { return std::llabs(a.secsTo(b)); }
};

} // namespace

TEST_F(VimshottariDasha, BalanceAtBirthByHand)
{
    // 205 degrees lies in Vishakha (16), Jupiter's; 5/8 of it, 8.333 degrees, is still to run: 10 of 16 years.
    moonAt(205);
    EXPECT_NEAR(chart.VimBalAtBirth(), 10.0, 1e-9);
    // At the very start of Magha the whole of Ketu's 7 years remain, and the first Maha begins at birth.
    moonAt(120);
    EXPECT_NEAR(chart.VimBalAtBirth(), 7.0, 1e-9);
    const DashaLevel mahas = Vimshottari::Mahas(chart);
    EXPECT_EQ(mahas[0].Lord, 9);
    EXPECT_EQ(mahas[0].Start, chart.Person().GetBirthDate());
    // The ninth, eighteenth and last nakshatras belong to Mercury: position 9, never 0.
    for (double l : {110.0, 230.0, 359.0}) {
        moonAt(l);
        EXPECT_EQ(Vimshottari::Mahas(chart)[0].Lord, 2) << l;
        EXPECT_EQ(Vimshottari::Mahas(chart)[0].CyclePos, 9) << l;
    }
}

TEST_F(VimshottariDasha, TheKPBalanceUsesTheMoonInTheKPAyanamsa)
{
    chart.Calculate();
    const double kpMoon = chart.PlanetLongi(7) + chart.PlanetLongi(13) - chart.KPAyanVal();
    const double span = 360.0 / 27.0;
    const int n = static_cast<int>(kpMoon / span) + 1;
    const int years = clsPlanets::GetVimSotPeriods(clsPlanets::GetVimSotPlanetLord((n - 1) % 9 + 1));
    EXPECT_NEAR(chart.VimBalAtBirthKP(), (span * n - kpMoon) / span * years, 1e-9);
}

TEST_F(VimshottariDasha, SpansAddCalendarYearsThenDaysOfTheMeanYear)
{
    int unit = 1;
    const QDateTime leap(QDate(1980, 2, 29), QTime(10, 0), Qt::UTC);
    EXPECT_EQ(clsPlanets::AddDecValToDate(leap, 1.0, unit), QDateTime(QDate(1981, 2, 28), QTime(10, 0), Qt::UTC));
    EXPECT_EQ(unit, 6) << "the unit comes back moved on";
    unit = 1;
    // Half a year is 182.6282 days: 182 days, 15 hours, 4 minutes, 36 seconds (the rest is dropped).
    EXPECT_EQ(clsPlanets::AddDecValToDate(leap, 0.5, unit), QDateTime(QDate(1980, 8, 30), QTime(1, 4, 36), Qt::UTC));
    unit = 1;
    EXPECT_EQ(clsPlanets::AddDecValToDate(QDateTime(QDate(2000, 1, 1), QTime(0, 0), Qt::UTC), -1.5, unit),
              QDateTime(QDate(1998, 7, 2), QTime(8, 55, 24), Qt::UTC));
}

TEST_F(VimshottariDasha, EveryLevelOfEveryChartFillsItsParent)
{
    for (int step = 0; step < 40; ++step) {
        chart.Person() = MakePerson(1 + step % 28, 1 + step % 12, 1900 + 3 * step, step % 24, (7 * step) % 60, "5.5", 28, 38, "N",
                                    77, 12, "E");
        chart.Calculate();
        const DashaLevel mahas = Vimshottari::Mahas(chart);
        double total = 0;
        for (const DashaPeriod &m : mahas)
            total += m.Years;
        EXPECT_NEAR(total, 120.0, 1e-9);
        EXPECT_LE(mahas[0].Start, chart.Person().GetBirthDate());
        int unit = 1;
        EXPECT_LE(seconds(Vimshottari::End(mahas[8]), clsPlanets::AddDecValToDate(mahas[0].Start, 120.0, unit)), 3 * 86400);
        // Down one branch to the Prana: nine periods from the parent's own lord, summing to it.
        DashaPeriod parent = mahas[static_cast<size_t>(step % 9)];
        for (int level = 2; level <= 5; ++level) {
            const DashaLevel subs = Vimshottari::SubPeriods(parent);
            double sum = 0;
            for (const DashaPeriod &s : subs)
                sum += s.Years;
            EXPECT_NEAR(sum, parent.Years, 1e-9 * parent.Years);
            EXPECT_EQ(subs[0].Lord, parent.Lord);
            EXPECT_EQ(subs[0].Start, parent.Start);
            for (int i = 1; i < 9; ++i)
                EXPECT_EQ(subs[static_cast<size_t>(i)].CyclePos, (subs[static_cast<size_t>(i - 1)].CyclePos % 9) + 1);
            // Whole years are calendar years and fractions mean years, so the ends agree within days.
            EXPECT_LE(seconds(Vimshottari::End(subs[8]), Vimshottari::End(parent)), 3 * 86400);
            parent = subs[static_cast<size_t>((step + level) % 9)];
        }
    }
}

TEST_F(VimshottariDasha, TheTreeGoesDownAndComesBackTheSameWay)
{
    chart.Calculate();
    clsDashaVimshottari tree;
    tree.CalcDashaVimshottari(chart);
    EXPECT_EQ(tree.PathText(), "Mahadasha");
    const QStringList mahas = tree.Rows();
    tree.GoUp();
    EXPECT_EQ(tree.Level(), 1);
    EXPECT_EQ(tree.Rows(), mahas);

    int row = 2;
    tree.GoDeep(row);
    EXPECT_EQ(row, 3);
    const QStringList antars = tree.Rows();
    EXPECT_EQ(tree.Heading(), "Vimshottari Dasha-Antar Dasha");
    row = 4;
    tree.GoDeep(row);
    EXPECT_EQ(tree.Level(), 3);
    EXPECT_TRUE(tree.PathText().startsWith("Dasha: ")) << tree.PathText().toStdString();
    EXPECT_TRUE(tree.PathText().contains("->"));
    tree.GoUp();
    EXPECT_EQ(tree.Level(), 2);
    EXPECT_EQ(tree.Rows(), antars) << "rebuilt from the root along the same choice";

    for (int i = 0; i < 6; ++i) {
        row = 0;
        tree.GoDeep(row);
    }
    EXPECT_EQ(tree.Level(), 5);
    const QStringList prana = tree.Rows();
    row = 0;
    tree.GoDeep(row);
    EXPECT_EQ(tree.Rows(), prana) << "no level below the Prana";
    EXPECT_EQ(tree.Heading(), "Vimshottari Dasha-Prana Dasha");
}

TEST_F(VimshottariDasha, RowsReadTwelveAsAMAndMinutesUnpadded)
{
    // The Moon at the start of Ashwini: Ketu's Maha begins at birth, 12:05 and 00:05 on two births.
    moonAt(0.0);
    chart.Person().setHour(12);
    chart.Person().setMinutes(5);
    clsDashaVimshottari tree;
    tree.CalcDashaVimshottari(chart);
    EXPECT_EQ(tree.Rows().first(), "Ket-15 August 1980 12:5 AM");
    chart.Person().setHour(0);
    tree.CalcDashaVimshottari(chart);
    EXPECT_EQ(tree.Rows().first(), "Ket-15 August 1980 12:5 AM");
    chart.Person().setHour(13);
    tree.CalcDashaVimshottari(chart);
    EXPECT_EQ(tree.Rows().first(), "Ket-15 August 1980 1:5 PM");
}

TEST_F(VimshottariDasha, TheRunningMahaEndsStrictlyLater)
{
    moonAt(0.0); // Ketu from birth: 7 years, then Venus 20
    const DashaLevel mahas = Vimshottari::Mahas(chart);
    const QDateTime birth = chart.Person().GetBirthDate();
    EXPECT_EQ(Vimshottari::RunningMaha(chart, mahas, birth), 0);
    EXPECT_EQ(Vimshottari::RunningMaha(chart, mahas, Vimshottari::End(mahas[0])), 1) << "a period ending today is over";
    EXPECT_EQ(Vimshottari::RunningMaha(chart, mahas, birth.addYears(130)), 8);
}
