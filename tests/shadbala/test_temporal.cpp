// SPDX-License-Identifier: AGPL-3.0-or-later
// Temporal strength and the strength of motion: figures worked out from the formulas, and the
// edges of the clock, the weekday, the phase, the declination and the war.
#include "ShadBalaCharts.h"

#include "sky/Functions.h"
#include "strength/clsShadBala.h"

namespace {
using Temporal = ShadBalaChart;

// The strengths of planets 1..7 in one figure, as "Sun Mercury Venus Mars Jupiter Saturn Moon".
template <typename F> QString row(F figure)
{
    QStringList out;
    for (int p = 1; p <= 7; ++p)
        out << figure(p);
    return out.join(QLatin1Char(' '));
}
} // namespace

TEST_F(Temporal, MidnightAndNoonByTheLocalClock)
{
    const auto nata = [&](int hour, int minutes, int lonDeg, int lonMin, int planet) {
        cast(15, 8, 1980, hour, minutes, lonDeg, lonMin);
        return clsShadBala(chart).SBNataUnnataBala(planet);
    };
    // 77 E 12 runs 21 min 12 s behind the zone: 14.35 is 853.8 minutes, read back as 14.138.
    EXPECT_EQ(nata(14, 35, 77, 12, 1), "49.31");
    EXPECT_EQ(nata(14, 35, 77, 12, 4), "10.69");
    EXPECT_EQ(nata(14, 35, 77, 12, 2), "60.00");
    // The correction is added only from 82.50 read as a number: 82 E 40 (82.40) still subtracts.
    EXPECT_EQ(nata(14, 35, 82, 40, 1), "48.28");
    EXPECT_EQ(nata(14, 35, 82, 50, 1), "48.18");
    // At 82 E 30 the local clock is the zone's; the clock is read as hh.mm, 6.45 not 6.75.
    EXPECT_EQ(nata(12, 0, 82, 30, 3), "60.00");
    EXPECT_EQ(nata(0, 0, 82, 30, 5), "0.00");
    EXPECT_EQ(nata(0, 0, 82, 30, 7), "60.00");
    EXPECT_EQ(nata(6, 45, 82, 30, 1), "32.25");
    EXPECT_EQ(nata(18, 30, 82, 30, 6), "31.50");
    // Ten past midnight less 21.2 minutes lies before midnight: -0.112 as hh.mm, five times that.
    EXPECT_EQ(nata(0, 10, 77, 12, 1), "-0.56");
    EXPECT_EQ(nata(0, 10, 77, 12, 6), "60.56");
}

TEST_F(Temporal, ThePhaseRisesAgainAfterTheFullMoon)
{
    cast();
    const auto paksha = [&](double elongation) {
        place({{1, 100}, {7, Norm360(100 + elongation)}});
        clsShadBala sb(chart);
        return row([&](int p) { return sb.SBPakshaBala(p); });
    };
    EXPECT_EQ(paksha(0), "60.00 0.00 0.00 60.00 0.00 60.00 0.00");
    EXPECT_EQ(paksha(90), "30.00 30.00 30.00 30.00 30.00 30.00 30.00");
    EXPECT_EQ(paksha(180), "0.00 60.00 60.00 0.00 60.00 0.00 60.00");
    EXPECT_EQ(paksha(200), "53.33 6.67 6.67 53.33 6.67 53.33 6.67");
    EXPECT_EQ(paksha(345), "5.00 55.00 55.00 5.00 55.00 5.00 55.00");
    // The Moon's motion is its phase.
    EXPECT_DOUBLE_EQ(clsShadBala(chart).SBChestaBala(7), 55);
}

TEST_F(Temporal, DeclinationBySide)
{
    cast();
    const double ayanamsa = chart.PlanetLongi(13);
    const auto ayana = [&](double tropical) {
        for (int p = 1; p <= 7; ++p)
            chart.setPlanetLongi(p, Norm360(tropical - ayanamsa));
        clsShadBala sb(chart);
        return row([&](int p) { return sb.SBAyanaBala(p); });
    };
    EXPECT_EQ(ayana(45), "45.00 45.00 45.00 45.00 45.00 15.00 15.00");
    EXPECT_EQ(ayana(90), "60.00 60.00 60.00 60.00 60.00 0.00 0.00");
    EXPECT_EQ(ayana(200), "23.33 36.67 23.33 23.33 23.33 36.67 36.67");
    EXPECT_EQ(ayana(270), "0.00 60.00 0.00 0.00 0.00 60.00 60.00");
    // The Sun's motion is its declination.
    int sun = 1;
    clsShadBala sb(chart);
    EXPECT_DOUBLE_EQ(sb.SBChestaBala(1), sb.SBAyanaBala(sun).toDouble());
}

TEST_F(Temporal, TheDayTheHourAndTheThirdOfTheNight)
{
    // Friday 15 August 1980, 14.35: the ninth hour from sunrise, Mercury's.
    cast();
    clsShadBala friday(chart);
    EXPECT_EQ(row([&](int p) { return friday.SBVaraBala(p); }), "0.00 0.00 45.00 0.00 0.00 0.00 0.00");
    EXPECT_EQ(friday.HoraLordOfBirth(), 2);
    EXPECT_EQ(row([&](int p) { return friday.SBHoraBala(p); }), "0.00 60.00 0.00 0.00 0.00 0.00 0.00");

    // Sunday 17 August at 4.00, before sunrise: still Sunday for the weekday, the last third of
    // the night (Mars), and the hour before sunrise falls on place 0 of the hours: no lord.
    cast(17, 8, 1980, 4, 0);
    clsShadBala sunday(chart);
    EXPECT_FALSE(chart.DayBirth());
    EXPECT_EQ(row([&](int p) { return sunday.SBVaraBala(p); }), "45.00 0.00 0.00 0.00 0.00 0.00 0.00");
    EXPECT_EQ(sunday.GetTriBhaga(), 3);
    EXPECT_EQ(row([&](int p) { return sunday.SBTriBhagaBala(p); }), "0.00 0.00 0.00 60.00 60.00 0.00 0.00");
    EXPECT_EQ(sunday.HoraLordOfBirth(), 0);
    EXPECT_EQ(row([&](int p) { return sunday.SBHoraBala(p); }), "0.00 0.00 0.00 0.00 0.00 0.00 0.00");

    // Monday at the same hour: the hour before sunrise goes back one place, to Mercury.
    cast(18, 8, 1980, 4, 0);
    EXPECT_EQ(clsShadBala(chart).HoraLordOfBirth(), 2);
}

TEST_F(Temporal, AWarBetweenTwoPlanets)
{
    // The Delhi birth with Saturn moved to Leo 21.5, half a degree past Jupiter (Leo 20.97).
    cast();
    place({{6, 141.5}});
    clsShadBala sb(chart);
    // What each brings, worked from its figures: paksha, third, year, month, day, hour,
    // positional, directional and the midday part.
    // Jupiter 16.98 + 60 + 0 + 0 + 0 + 0 + 269.68 + 29.70 + 49.31 = 425.67;
    // Saturn 43.02 + 0 + 0 + 0 + 0 + 0 + 235.50 + 30.12 + 10.69 = 319.33; apart by 106.34.
    EXPECT_DOUBLE_EQ(sb.SBSthanaBala(5), 269.68);
    EXPECT_DOUBLE_EQ(sb.SBSthanaBala(6), 235.50);
    EXPECT_EQ(sb.SBDikBala(6), "30.12");
    // Jupiter, the one behind, gains 106.34 / 190.4; Saturn loses 106.34 / 158. The whole sum
    // goes into the temporal strength.
    EXPECT_EQ(sb.SBYuddhaBala(2, 5), "426.23");
    EXPECT_EQ(sb.SBYuddhaBala(2, 6), "318.66");
    EXPECT_EQ(sb.SBKaalaBala(5), "587.67");
    EXPECT_EQ(sb.SBKaalaBala(6), "397.40");
    EXPECT_EQ(sb.TotalShadBala(5), "942.11");
    EXPECT_EQ(sb.TotalShadBala(6), "684.57");
    for (int p : {1, 2, 3, 4, 7})
        EXPECT_EQ(sb.SBYuddhaBala(2, p), "0.00") << p;

    // The Sun and the Moon never fight, and the difference doesn't wrap round 0 degrees.
    place({{1, 141}, {7, 141.2}, {4, 359.8}, {2, 0.5}});
    clsShadBala wrap(chart);
    for (int p : {1, 7, 4, 2})
        EXPECT_EQ(wrap.SBYuddhaBala(2, p), "0.00") << p;
}

TEST_F(Temporal, TheYearBeganOnTheWeekdayOfTheMomentFoundAtMidnightBirths)
{
    // 15 August 1980 at 00:00 in Delhi: the cast leaves the clock at 24:00 of the 14th. The walk
    // goes back 117 days (118.51 x 360 / 365.2564) to 20 April 00:00, then six days to
    // 14 April 00:00, where the Sun stands at 0.39: a Monday, found in seven casts.
    cast(15, 8, 1980, 0, 0);
    ASSERT_EQ(chart.Person().Hour(), 24);
    long before = clsPlanets::CalculateCount();
    EXPECT_EQ(chart.FirstDayOfYear(), 2);
    EXPECT_EQ(clsPlanets::CalculateCount() - before, 7);
    clsShadBala delhi(chart);
    int moon = 7, sun = 1;
    EXPECT_EQ(delhi.VarshaBala(moon), "15.00");
    EXPECT_EQ(delhi.VarshaBala(sun), "0.00");
    EXPECT_EQ(delhi.TotalShadBala(1), "382.74");
    EXPECT_EQ(delhi.TotalShadBala(7), "387.80");

    // The same date at 00:00 in New York (74 W, zone -5): the clock stays at 00:00. Back 117
    // days, six days to 14 April 00:00 (0.82), then eight hours to 13 April 16:00 (0.49): a
    // Sunday, in fifteen casts.
    chart.Person() = MakePerson(15, 8, 1980, 0, 0, "-5", 40, 43, "N", 74, 0, "W");
    chart.Calculate();
    ASSERT_EQ(chart.Person().Hour(), 0);
    before = clsPlanets::CalculateCount();
    EXPECT_EQ(chart.FirstDayOfYear(), 1);
    EXPECT_EQ(clsPlanets::CalculateCount() - before, 15);
    clsShadBala newYork(chart);
    EXPECT_EQ(newYork.VarshaBala(sun), "15.00");
    // Midnight less the correction of 4 minutes west of 82.5: t is -0.04, the midday part -0.2.
    EXPECT_EQ(newYork.SBNataUnnataBala(1), "-0.20");
    EXPECT_EQ(newYork.SBNataUnnataBala(4), "60.20");
}

TEST_F(Temporal, MotionTablesReadDigitByDigit)
{
    cast();
    clsShadBala sb(chart);
    // 14.35 at 77.2 E is 14.4922 at the reference longitude; 80 years, 226 days.
    const double days = sb.DaysSince1900();
    EXPECT_NEAR(days, 29447.1158426, 1e-6);
    // 272.0531 + 230.4239 + 34.2411 + 39.524 + 6.8992 + 0.1158 x 0.9856, plus 257.4568.
    EXPECT_NEAR(sb.MeanLongiOfPlanets(days, 1), 120.7122745, 1e-6);

    // 1999.6 days round to two thousand less 0.4 of a day; 99.6 reads its ten as 9 tens and 9.6.
    EXPECT_NEAR(sb.MeanLongiOfPlanets(1999.6, 2), 328.26786, 1e-9);
    EXPECT_NEAR(sb.MeanLongiOfPlanets(99.6, 3), 355.62256, 1e-9);
    EXPECT_NEAR(sb.MeanLongiOfPlanets(-1.5, 1), 255.9784, 1e-9);
    // Ten thousand days, 80 years after 1900.
    EXPECT_NEAR(sb.MeanLongiOfPlanets(10000, 1), 43.4833, 1e-9);
    EXPECT_NEAR(sb.MeanLongiOfPlanets(10000, 5), 327.134, 1e-9);
    EXPECT_NEAR(sb.MeanLongiOfPlanets(10000, 6), 216.21, 1e-9);
    EXPECT_NEAR(sb.SheeghrochchaOfPlanets(10000, 2), 53.7436, 1e-9);
    EXPECT_NEAR(sb.SheeghrochchaOfPlanets(10000, 3), 144.962, 1e-9);
    EXPECT_EQ(sb.MeanLongiOfPlanets(100, 7), 0);

    // At the reference longitude the clock needs no correction: midnight of 1 January 1900 is -1.
    chart.Person() = MakePerson(1, 1, 1900, 0, 0, "5.5", 20, 0, "N", 75, 50, "E");
    EXPECT_NEAR(clsShadBala(chart).DaysSince1900(), -1.0, 1e-12);
}

// At 75 N the Sun doesn't set on 1 June 2021 nor rise on 15 December: the thirds of the day and
// night and the hours are counted on the equal day, 6:00 to 18:00 local mean time (5.44 to 17.44 on
// this meridian and zone), as they would be were those the sunrise and sunset.
TEST_F(Temporal, ThePartsOfADayWithoutSunriseFollowTheEqualDay)
{
    // Tuesday 9.50 under the midnight sun: 4 h 6 min into the day, the second third (the Sun's)
    // and the fifth hour (Mars, Sun, Venus, Mercury, Moon).
    chart.Person() = MakePerson(1, 6, 2021, 9, 50, "1", 75, 0, "N", 18, 57, "E");
    chart.Calculate();
    clsShadBala june(chart);
    EXPECT_TRUE(chart.DayBirth());
    EXPECT_EQ(june.GetTriBhaga(), 2);
    EXPECT_EQ(row([&](int p) { return june.SBTriBhagaBala(p); }), "60.00 0.00 0.00 0.00 60.00 0.00 0.00");
    EXPECT_EQ(june.HoraLordOfBirth(), 7);
    EXPECT_EQ(row([&](int p) { return june.SBHoraBala(p); }), "0.00 0.00 0.00 0.00 0.00 0.00 60.00");

    // Wednesday 20.00 in the polar night: 2 h 16 min after the equal day's end, the first third of
    // the night (the Moon's); the fifteenth hour from 5.44, which is Mercury's like the first.
    chart.Person() = MakePerson(15, 12, 2021, 20, 0, "1", 75, 0, "N", 18, 57, "E");
    chart.Calculate();
    clsShadBala december(chart);
    EXPECT_FALSE(chart.DayBirth());
    EXPECT_EQ(december.GetTriBhaga(), 1);
    EXPECT_EQ(row([&](int p) { return december.SBTriBhagaBala(p); }), "0.00 0.00 0.00 0.00 60.00 0.00 60.00");
    EXPECT_EQ(december.HoraLordOfBirth(), 2);
    for (int p = 1; p <= 7; ++p)
        EXPECT_TRUE(std::isfinite(december.TotalShadBala(p).toDouble())) << p;
}
