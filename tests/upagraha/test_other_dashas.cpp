// SPDX-License-Identifier: AGPL-3.0-or-later
// The Tribhagi, Yogini and Shat Trimsha dashas: balances and bhuktis worked out by hand, rows that
// follow each other from birth, and the starting places of the eight-fold cycle.
#include "dasha/TribhagiDasha.h"
#include "dasha/YoginiDasha.h"
#include "support/EnglishChart.h"

namespace {

class OtherDashas : public EnglishChart
{
protected:
    // The Moon at l at the person's birth (15/08/1980 14:35), without a cast.
    void moonAt(double l)
    {
        for (int n = 0; n <= 25; ++n)
            chart.setPlanetLongi(n, 0);
        chart.setPlanetLongi(7, l);
    }
    QDateTime birth() const { return chart.Person().GetBirthDate(); }
};

} // namespace

TEST_F(OtherDashas, TribhagiBalanceAndTheBhuktisAfterBirthByHand)
{
    // 205 degrees: Vishakha (16), Jupiter's; 5/8 of it still to run. Jupiter's 32/3 years make a
    // balance of 6.667 years, 2435 days (2435.04 rounded).
    moonAt(205);
    const auto mahas = Tribhagi::Mahas(chart);
    const TribhagiMaha &first = mahas[0];
    EXPECT_EQ(first.Period.Lord, 5);
    EXPECT_NEAR(first.Years, 20 / 3.0, 1e-12);
    EXPECT_EQ(first.Period.Start, birth());
    EXPECT_EQ(first.Period.End, birth().addDays(2435));
    // Back from its end: Rahu 584 days (584.41), Mars 227, Moon 325 (324.67), Sun 195, Venus 649,
    // Ketu 227, and Mercury's 552 reach 2759 days back, past birth: seven bhuktis, from Mercury.
    const QList<int> lords{2, 9, 3, 1, 7, 4, 8};
    ASSERT_EQ(first.Bhuktis.size(), lords.size());
    for (qsizetype i = 0; i < lords.size(); ++i)
        EXPECT_EQ(first.Bhuktis[i].Lord, lords[i]) << i;
    EXPECT_EQ(first.Bhuktis.front().Start, first.Period.End.addDays(-2759));
    EXPECT_EQ(first.Bhuktis.back().Start, first.Period.End.addDays(-584));
    EXPECT_EQ(first.Bhuktis.back().End, first.Period.End);
    // Saturn follows with its whole 38/3 years: 4627 days (4626.58).
    EXPECT_EQ(mahas[1].Period.Lord, 6);
    EXPECT_EQ(mahas[1].Period.End, first.Period.End.addDays(4627));
}

TEST_F(OtherDashas, TribhagiRowsFollowEachOtherFromBirth)
{
    // The Moon at 0 and at the start of Magha: a whole first Maha of Ketu (14/3 years, 1705 days);
    // at the end of Revati Mercury's.
    for (const auto &[moon, lord, whole] : {std::tuple{0.0, 9, true}, std::tuple{120.0, 9, true}, std::tuple{359.9, 2, false}}) {
        moonAt(moon);
        EXPECT_EQ(Tribhagi::FirstPosition(moon), lord == 9 ? 1 : 9) << moon;
        const auto mahas = Tribhagi::Mahas(chart);
        EXPECT_EQ(mahas[0].Period.Lord, lord) << moon;
        if (whole)
            EXPECT_EQ(mahas[0].Period.End, birth().addDays(1705)) << moon;
        EXPECT_EQ(mahas[0].Period.Start, birth());
        for (size_t m = 1; m < 9; ++m) {
            const TribhagiMaha &maha = mahas[m];
            EXPECT_EQ(maha.Period.Start, mahas[m - 1].Period.End) << moon << " Maha " << m;
            const int position = static_cast<int>(m) + Tribhagi::FirstPosition(moon);
            EXPECT_EQ(maha.Period.Position, position > 9 ? position - 9 : position);
            // Nine bhuktis from the Maha's own lord, one after the other, ending within days of it.
            ASSERT_EQ(maha.Bhuktis.size(), 9);
            EXPECT_EQ(maha.Bhuktis.front().Lord, maha.Period.Lord);
            EXPECT_EQ(maha.Bhuktis.front().Start, maha.Period.Start);
            for (qsizetype b = 1; b < 9; ++b)
                EXPECT_EQ(maha.Bhuktis[b].Start, maha.Bhuktis[b - 1].End);
            EXPECT_LE(std::llabs(maha.Bhuktis.back().End.daysTo(maha.Period.End)), 4);
        }
        // Eighty years at most from birth, and more than the eight whole Mahas.
        const qint64 days = birth().daysTo(mahas[8].Period.End);
        EXPECT_LE(days, 80 * 365.2564 + 5) << moon; // each Maha rounded to whole days
        EXPECT_GT(days, 80 * 365.2564 - 40 / 3.0 * 365.2564) << moon;
    }
    EXPECT_FALSE(Tribhagi::TriPeriod(0));
    EXPECT_FALSE(Tribhagi::TriPeriod(10));
    double total = 0;
    for (int p = 1; p <= 9; ++p)
        total += *Tribhagi::TriPeriod(p);
    EXPECT_NEAR(total, 80, 1e-12);
}

TEST_F(OtherDashas, YoginiAndShatTrimshaByHand)
{
    // Vishakha (16): the Yogini starts at Ulka (6 years, Saturn), the Shat Trimsha at (16 + 3) and 7
    // = 3, Dhanya (3 years, Jupiter); 5/8 of each remains, at 365.25 days a year.
    moonAt(205);
    const YoginiRows yogini = Yogini::YoginiDasha(chart);
    EXPECT_EQ(yogini[0].K, 6);
    EXPECT_EQ(Yogini::Lord(6), 6);
    EXPECT_NEAR(yogini[0].Years, 3.75, 1e-12);
    EXPECT_EQ(yogini[0].End, birth().addDays(1370)); // 1369.69
    // Then Siddha 7 years (2556.75), Sankata 8 (2922), Mangala 1 (365.25) and Pingala 2, whose
    // 730.5 days round to the even 730.
    const std::array<std::pair<int, int>, 4> next{{{7, 2557}, {0, 2922}, {1, 365}, {2, 730}}};
    for (size_t i = 0; i < next.size(); ++i) {
        EXPECT_EQ(yogini[i + 1].K, next[i].first);
        EXPECT_EQ(yogini[i + 1].Start.daysTo(yogini[i + 1].End), next[i].second) << i;
    }
    EXPECT_EQ(yogini[2].Years, 8) << "Sankata, place 0, lasts 8 years";
    const YoginiRows shat = Yogini::ShatTrimshaDasha(chart);
    EXPECT_EQ(shat[0].K, 3);
    EXPECT_EQ(shat[0].End, birth().addDays(685)); // 1.875 years, 684.84 days
}

TEST_F(OtherDashas, TheEightFoldCyclesStartAndRunFromBirth)
{
    // The starting place by nakshatra: the run 7, 0, 1 ... repeats every eight stars up to the 21st;
    // the last six start again at 1.
    EXPECT_EQ(Yogini::FirstYogini(1), 7);
    EXPECT_EQ(Yogini::FirstYogini(2), 0);
    EXPECT_EQ(Yogini::FirstYogini(17), 7);
    EXPECT_EQ(Yogini::FirstYogini(21), 3);
    EXPECT_EQ(Yogini::FirstYogini(22), 1);
    EXPECT_EQ(Yogini::FirstYogini(27), 6);
    EXPECT_EQ(Yogini::FirstShatTrimsha(5), 0);
    EXPECT_EQ(Yogini::FirstShatTrimsha(27), 6);
    EXPECT_EQ(Yogini::Lord(0), 8);

    for (double moon : {0.0, 13.4, 200.0, 280.0, 359.9}) {
        moonAt(moon);
        for (const YoginiRows &rows : {Yogini::YoginiDasha(chart), Yogini::ShatTrimshaDasha(chart)}) {
            EXPECT_EQ(rows[0].Start, birth());
            for (size_t i = 1; i < rows.size(); ++i) {
                EXPECT_EQ(rows[i].Start, rows[i - 1].End) << moon << " row " << i;
                EXPECT_EQ(rows[i].K, (rows[i - 1].K + 1) % 8);
                EXPECT_EQ(rows[i].Years, Yogini::Years(rows[i].K));
            }
            // Two cycles of 36 years less the part of the first period before birth.
            const double years = birth().daysTo(rows[15].End) / 365.25;
            EXPECT_LE(years, 72 + 0.05) << moon; // each row rounded to whole days
            EXPECT_GE(years, 72 - Yogini::Years(rows[0].K) - 0.05) << moon;
        }
    }
    // At the very start of a nakshatra the first period is whole: Ashwini's Siddha, 7 years.
    moonAt(0);
    EXPECT_EQ(Yogini::YoginiDasha(chart)[0].End, birth().addDays(2557));
}
