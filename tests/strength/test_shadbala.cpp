// SPDX-License-Identifier: AGPL-3.0-or-later
// Shadbala: figures worked out by hand from the formulas, the motion tables read digit by digit,
// the sums of rounded figures over a sweep of charts, and the chart casts a full table costs.
#include "sky/Functions.h"
#include "sky/clsPlanets.h"
#include "strength/clsShadBala.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

namespace {

class ShadBala : public ::testing::Test
{
protected:
    void SetUp() override
    {
        chart.Person() = MakePerson(15, 8, 1980, 14, 35, "5.5", 28, 38, "N", 77, 12, "E");
        chart.Calculate();
    }
    double num(const QString &t) const { return t.toDouble(); }
    ScopedSettingsStore store;
    clsPlanets chart;
};

} // namespace

TEST_F(ShadBala, ExaltationAndDirectionByHand)
{
    chart.setPlanetLongi(1, 10);
    EXPECT_EQ(clsShadBala(chart).GetSubSthanaBala(1, 1), "60.00");
    chart.setPlanetLongi(1, 190);
    EXPECT_EQ(clsShadBala(chart).GetSubSthanaBala(1, 1), "0.00");
    chart.setPlanetLongi(1, 280); // 90 degrees short of the other side
    EXPECT_EQ(clsShadBala(chart).GetSubSthanaBala(1, 1), "30.00");

    // The Sun at the middle of the tenth bhava is at its strongest, at the fourth's at its weakest.
    chart.setPlanetLongi(1, chart.BhavMid(9));
    EXPECT_EQ(clsShadBala(chart).SBDikBala(1), "60.00");
    chart.setPlanetLongi(1, chart.BhavMid(3));
    EXPECT_EQ(clsShadBala(chart).SBDikBala(1), "0.00");
    chart.setPlanetLongi(1, Norm360(chart.BhavMid(9) + 30));
    EXPECT_EQ(clsShadBala(chart).SBDikBala(1), "50.00");
}

TEST_F(ShadBala, ThePhaseOfTheMoonRisesAgainAfterTheFullMoon)
{
    const auto paksha = [&](double elongation, int planet) {
        chart.setPlanetLongi(1, 100);
        chart.setPlanetLongi(7, Norm360(100 + elongation));
        return clsShadBala(chart).SBPakshaBala(planet);
    };
    EXPECT_EQ(paksha(0, 7), "0.00");
    EXPECT_EQ(paksha(0, 1), "60.00");
    EXPECT_EQ(paksha(90, 5), "30.00");
    EXPECT_EQ(paksha(180, 3), "60.00");
    EXPECT_EQ(paksha(180, 6), "0.00");
    EXPECT_EQ(paksha(270, 7), "30.00") << "not the mirror of the waxing half";
    EXPECT_EQ(paksha(345, 7), "55.00");
    EXPECT_EQ(paksha(345, 4), "5.00");
}

TEST_F(ShadBala, DeclinationOfTheSolsticesAndEquinoxes)
{
    const double ayanamsa = chart.PlanetLongi(13);
    const auto ayana = [&](int planet, double tropical) {
        chart.setPlanetLongi(planet, Norm360(tropical - ayanamsa));
        int p = planet;
        return clsShadBala(chart).SBAyanaBala(p);
    };
    EXPECT_EQ(ayana(1, 90), "60.00");
    EXPECT_EQ(ayana(6, 90), "0.00");
    EXPECT_EQ(ayana(2, 270), "60.00") << "Mercury gains on either side";
    EXPECT_EQ(ayana(1, 270), "0.00");
    EXPECT_EQ(ayana(7, 270), "60.00");
    EXPECT_EQ(ayana(5, 45), "45.00");
}

TEST_F(ShadBala, MotionTablesReadDigitByDigit)
{
    const clsShadBala sb(chart);
    // 12345.6 days: 146.0265 + 71.2053 + 295.6808 + 39.524 + 4.928 + 0.6 x 0.9856, plus the epoch.
    EXPECT_NEAR(sb.MeanLongiOfPlanets(12345.6, 1), Norm360(Norm360(557.95596) + 257.4568), 1e-9);
    // 1999.6 rounds to two thousand less 0.4 of a day.
    EXPECT_NEAR(sb.MeanLongiOfPlanets(1999.6, 1), Norm360(71.2053 - 0.4 * 0.9856 + 257.4568), 1e-9);
    // The slow planets share the Sun's mean longitude as the apex of their fast motion.
    EXPECT_DOUBLE_EQ(sb.SheeghrochchaOfPlanets(30000, 6), sb.MeanLongiOfPlanets(30000, 1));
    EXPECT_EQ(sb.MeanLongiOfPlanets(100, 7), 0);

    // At the reference longitude, midnight of 1 January 1900 is day -1.
    chart.Person() = MakePerson(1, 1, 1900, 0, 0, "5.5", 20, 0, "N", 75, 50, "E");
    EXPECT_NEAR(clsShadBala(chart).DaysSince1900(), -1.0, 1e-9);
}

TEST_F(ShadBala, RelationsAreNotSymmetric)
{
    chart.setPlanetLongi(1, 5);  // the Sun in Aries
    chart.setPlanetLongi(6, 35); // Saturn in Taurus, the 2nd from it
    clsShadBala sb(chart);
    sb.DoTemporal();
    EXPECT_EQ(sb.TemporalMatrix(1, 6), 1);
    EXPECT_EQ(sb.TemporalMatrix(6, 1), 1) << "the 12th counts as a friend's place too";
    EXPECT_EQ(sb.TemporalMatrix(1, 1), 0);
    EXPECT_EQ(sb.PermaMatrix(2, 7), -1);
    EXPECT_EQ(sb.PermaMatrix(7, 2), 1);
    sb.DoPanchadha();
    EXPECT_EQ(sb.PanchadhaMatrix(1, 6), 0); // enemy by nature, friend by place
    EXPECT_TRUE(sb.SignInOwnHouse(2, 3));
    EXPECT_FALSE(sb.SignInOwnHouse(2, 6)) << "Mercury's Virgo is not reckoned its own here";
}

TEST_F(ShadBala, TotalsAddTheRoundedFiguresOnEveryChart)
{
    for (int step = 0; step < 12; ++step) {
        chart.Person() = MakePerson(1 + step * 2, 1 + step, 1950 + step * 4, (step * 5) % 24, (step * 17) % 60, "5.5",
                                    10 + step * 3, 0, "N", 72 + step, 30, "E");
        chart.Calculate();
        clsShadBala sb(chart);
        for (int p = 1; p <= 7; ++p) {
            double sthana = 0;
            for (int part = 1; part <= 6; ++part) {
                const double v = num(sb.GetSubSthanaBala(part, p));
                EXPECT_GE(v, 0);
                sthana += v;
            }
            EXPECT_NEAR(sb.SBSthanaBala(p), sthana, 1e-9);
            const double total = sb.SBSthanaBala(p) + num(sb.SBDikBala(p)) + num(sb.SBKaalaBala(p)) + sb.SBChestaBala(p) +
                                 sb.SBNaisargikaBala(p) + num(sb.SBDrigBala(p));
            EXPECT_NEAR(num(sb.TotalShadBala(p)), total, 0.0051);
            EXPECT_EQ(sb.RupaShadbala(p), FormatHalfEven2(num(sb.TotalShadBala(p)) / 60));
            EXPECT_GE(num(sb.SBDikBala(p)), 0);
            EXPECT_LE(num(sb.SBDikBala(p)), 60);
            int q = p;
            EXPECT_GE(num(sb.SBAyanaBala(q)), 0);
            EXPECT_LE(num(sb.SBAyanaBala(q)), 60);
        }
        // One weekday lord each for the year, the month, the day and the hour.
        int year = 0, month = 0, vara = 0, hora = 0;
        for (int p = 1; p <= 7; ++p) {
            int q = p;
            year += num(sb.VarshaBala(q)) > 0;
            month += num(sb.MaasBala(q)) > 0;
            vara += num(sb.SBVaraBala(p)) > 0;
            hora += num(sb.SBHoraBala(p)) > 0;
        }
        EXPECT_EQ(year, 1);
        EXPECT_EQ(month, 1);
        EXPECT_EQ(vara, 1);
        EXPECT_EQ(hora, 1);
    }
    EXPECT_EQ(clsShadBala::DesireMinShadBala(8), 0);
    EXPECT_EQ(clsShadBala::DesireMinShadBala(2), 420);
}

TEST_F(ShadBala, NaturalStrengthInSevenths)
{
    clsShadBala sb(chart);
    EXPECT_EQ(sb.SBNaisargikaBala(1), 60);
    EXPECT_DOUBLE_EQ(sb.SBNaisargikaBala(7), 51.43);
    EXPECT_DOUBLE_EQ(sb.SBNaisargikaBala(2), 25.71);
    EXPECT_DOUBLE_EQ(sb.SBNaisargikaBala(6), 8.57);
}

TEST_F(ShadBala, AFullTableCostsOnlyTheCastsOfItsTimeSearches)
{
    clsShadBala sb(chart);
    const long before = clsPlanets::CalculateCount();
    for (int p = 1; p <= 7; ++p)
        sb.TotalShadBala(p);
    const long first = clsPlanets::CalculateCount() - before;
    EXPECT_GT(first, 0);
    EXPECT_LT(first, 60);
    for (int p = 1; p <= 7; ++p)
        sb.TotalShadBala(p);
    EXPECT_EQ(clsPlanets::CalculateCount() - before, first) << "the second table casts nothing";
}
