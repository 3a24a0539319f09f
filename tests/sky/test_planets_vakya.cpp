// SPDX-License-Identifier: AGPL-3.0-or-later
// The chart's Vakya path: the method's values carried through the ayanamsa in force.
#include "sky/Functions.h"
#include "sky/clsPlanets.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

namespace {
clsPerson chennai() { return MakePerson(14, 4, 1990, 6, 45, "5.5", 13, 5, "N", 80, 17, "E"); }

double gap(double a, double b)
{
    const double d = std::fmod(std::fabs(a - b), 360.0);
    return d > 180 ? 360 - d : d;
}
} // namespace

TEST(PlanetsVakya, LahiriChoiceKeepsTheMethodsOwnValues)
{
    ScopedSettingsStore store;
    AppSettings::setValue("Init", "Vakya", true);
    clsPlanets chart;
    chart.setPerson(chennai());
    chart.Calculate();

    clsVakya v;
    v.Calculate(14, 4, 1990, 6, 45, 0, 13, 5, 80, 17, 0);
    const double expected[10] = {v.Lagna(), v.Sun(), v.Mercury(), v.Venus(), v.Mars(), v.Jupiter(), v.Saturn(), v.Moon(), v.Rahu(), v.Ketu()};
    for (int n = 0; n <= 9; ++n)
        EXPECT_LT(gap(chart.PlanetLongi(n), expected[n]), 1e-9) << n;

    v.Calculate(15, 4, 1990, 6, 45, 0, 13, 5, 80, 17, 0);
    EXPECT_LT(gap(chart.PlanetLongi(14), v.Sun()), 1e-9);
    EXPECT_LT(gap(chart.PlanetLongi(20), v.Moon()), 1e-9);
    EXPECT_LT(gap(chart.PlanetLongi(22), v.Ketu()), 1e-9);
    // a day later: the Moon moves its twelve-odd degrees a day, Ketu goes back
    EXPECT_NEAR(chart.PlanetSpeed(7), 13, 2);
    EXPECT_LT(chart.PlanetSpeed(9), 0);
    EXPECT_TRUE(chart.LagnaValid());
}

TEST(PlanetsVakya, AnotherAyanamsaShiftsEveryMethodValueAlike)
{
    ScopedSettingsStore store;
    AppSettings::setValue("Init", "Vakya", true);
    clsPlanets lahiri;
    lahiri.setPerson(chennai());
    lahiri.Calculate();

    AppSettings::setAyanType(15);
    clsPlanets own;
    own.setPerson(chennai());
    own.Calculate();
    const double lysAyan = lahiri.PlanetLongi(13);
    const double vakyaAyan = clsVakya::CalcVakyaAyanamsha(clsVakya::KaliDinOf(14, 4, 1990));
    EXPECT_NEAR(own.PlanetLongi(13), vakyaAyan, 1e-12);
    for (int n : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 14, 20})
        EXPECT_LT(gap(own.PlanetLongi(n), lahiri.PlanetLongi(n) + lysAyan - vakyaAyan), 1e-9) << n;

    AppSettings::setAyanType(12); // no ayanamsa: the method's values plus the Lahiri value
    clsPlanets sayana;
    sayana.setPerson(chennai());
    sayana.Calculate();
    EXPECT_LT(gap(sayana.PlanetLongi(1), lahiri.PlanetLongi(1) + lysAyan), 1e-9);
    // Uranus to Pluto stay the ephemeris' on both paths.
    AppSettings::setValue("Init", "Vakya", false);
    clsPlanets modern;
    modern.setPerson(chennai());
    modern.Calculate();
    EXPECT_LT(gap(sayana.PlanetLongi(10), modern.PlanetLongi(10)), 1e-9);
}

TEST(PlanetsVakya, VakyaAyanamsaOnTheEphemerisPathNeedsNoVakyaCast)
{
    ScopedSettingsStore store;
    AppSettings::setAyanType(15);
    clsPlanets chart;
    chart.setPerson(MakePerson(1, 1, 2000, 0, 10, "5.5", 28, 38, "N", 77, 12, "E"));
    chart.Calculate();
    // The local date stands when the ayanamsa is applied, though universal time was the day before.
    EXPECT_NEAR(chart.PlanetLongi(13), clsVakya::CalcVakyaAyanamsha(clsVakya::KaliDinOf(1, 1, 2000)), 1e-12);
    EXPECT_NEAR(chart.PlanetLongi(13), 24.19, 0.05);
}

TEST(PlanetsVakya, FarNorthTheLagnaIsFlaggedNotInvented)
{
    ScopedSettingsStore store;
    AppSettings::setValue("Init", "Vakya", true);
    clsPlanets chart;
    chart.setPerson(MakePerson(21, 6, 1990, 12, 0, "1", 69, 39, "N", 18, 57, "E"));
    chart.Calculate();
    EXPECT_FALSE(chart.LagnaValid());
    EXPECT_GE(chart.PlanetLongi(0), 0);
    EXPECT_LE(chart.PlanetLongi(0), 360);
}
