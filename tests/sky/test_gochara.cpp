// SPDX-License-Identifier: AGPL-3.0-or-later
// The time search against the ephemeris: the moments it finds are worked out again here by
// bisection over universal time, from Swiss Ephemeris and the Lahiri formula.
#include "sky/clsGochara.h"
#include "sky/Functions.h"
#include "sky/clsPlanets.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>
#include <swephexp.h>

#include <cmath>
#include <functional>

namespace {

constexpr double kDelhiGmt = 5.5;

void castDelhi(clsPlanets &c, int d, int m, int y, int h, int min)
{
    c.setPerson(MakePerson(d, m, y, h, min, QStringLiteral("5.5"), 28, 38, QStringLiteral("N"), 77, 12, QStringLiteral("E")));
    c.Calculate();
}

double fold(double v)
{
    v = std::fmod(v, 360);
    return v > 180 ? v - 360 : (v < -180 ? v + 360 : v);
}

// Universal Julian day of a person's local clock.
double universalDay(const clsPerson &p, double gmt)
{
    return swe_julday(static_cast<int>(p.Year()), static_cast<int>(p.Month()), static_cast<int>(p.Day()),
                      p.Hour() + p.Minutes() / 60.0 - gmt, SE_GREG_CAL);
}

// Sidereal longitude of a body at a universal moment, with the chart's default ayanamsa.
double sidereal(double jdUt, int ipl)
{
    double xx[6];
    char serr[AS_MAXCH];
    swe_calc_ut(jdUt, ipl, 0, xx, serr);
    const double t = (jdUt - 2415020.0) / 36525;
    return Norm360(xx[0] - (22.460148 + 1.396042 * t + 0.000308 * t * t));
}

// The moment in [a, b] at which f, folded into -180..180, changes sign.
double bisect(const std::function<double(double)> &f, double a, double b)
{
    const bool rising = fold(f(a)) < 0;
    for (int i = 0; i < 50; ++i) {
        const double m = (a + b) / 2;
        if ((fold(f(m)) < 0) == rising)
            a = m;
        else
            b = m;
    }
    return (a + b) / 2;
}

} // namespace

// The Sun entering its sign (the search of FirstDayOfMonth), the Moon forty degrees on, and Rahu,
// which runs backward, half a degree on: each result stands on its target, at the moment the
// ephemeris gives, and the chart the search started from is left as it was.
TEST(Gochara, FindsTheMomentABodyReachesALongitude)
{
    ScopedSettingsStore store;
    clsPlanets chart;
    castDelhi(chart, 15, 8, 1980, 14, 35);
    const QDateTime birth = chart.Person().GetBirthDate();
    const double lagna = chart.PlanetLongi(0), moon = chart.PlanetLongi(7);
    const double start = universalDay(chart.Person(), kDelhiGmt);

    struct Case
    {
        long planet;
        double target, tolerance;
        int ipl;
        double windowDays; // where the moment lies from the start
        double minutesAllowed;
    };
    const Case cases[] = {
        {1, Fix(chart.PlanetLongi(1) / 30) * 30, 1.0, SE_SUN, -40, 30},
        {7, Norm360(chart.PlanetLongi(7) + 40), 1.0, SE_MOON, 5, 3},
    };
    clsGochara search;
    for (const Case &k : cases) {
        SCOPED_TRACE(k.planet);
        const auto found = search.Gochara(k.planet, k.target, k.tolerance, chart);
        ASSERT_TRUE(found);
        EXPECT_LE(std::fabs(fold(found->PlanetLongi(static_cast<int>(k.planet)) - k.target)) * 60, k.tolerance);
        const double lo = k.windowDays < 0 ? start + k.windowDays : start;
        const double hi = k.windowDays < 0 ? start : start + k.windowDays;
        const double truth = bisect([&](double jd) { return sidereal(jd, k.ipl) - k.target; }, lo, hi);
        EXPECT_NEAR((universalDay(found->Person(), kDelhiGmt) - truth) * 1440, 0, k.minutesAllowed);
    }

    // Rahu's longitude falls with time: a smaller longitude lies in the future.
    const double rahuTarget = Norm360(chart.PlanetLongi(8) - 0.5);
    const auto rahu = search.Gochara(8, rahuTarget, 1.0, chart);
    EXPECT_LE(std::fabs(fold(rahu->PlanetLongi(8) - rahuTarget)) * 60, 1.0);
    EXPECT_GT(rahu->Person().GetBirthDate(), chart.Person().GetBirthDate().addDays(5));

    EXPECT_EQ(chart.Person().GetBirthDate(), birth);
    EXPECT_EQ(chart.PlanetLongi(0), lagna);
    EXPECT_EQ(chart.PlanetLongi(7), moon);
}

// The targets 0 and 360 are met from either side of the 0/360 point.
TEST(Gochara, TargetZeroIsMetFromEitherSide)
{
    ScopedSettingsStore store;
    clsGochara search;
    for (int day : {9, 20}) { // the Sun a few degrees short of 0, and a few degrees past it
        clsPlanets chart;
        castDelhi(chart, day, 4, 1990, 12, 0);
        for (double target : {0.0, 360.0}) {
            SCOPED_TRACE(day * 1000 + target);
            const auto found = search.Gochara(1, target, 30.0, chart);
            EXPECT_LE(std::fabs(fold(found->PlanetLongi(1))) * 60, 30.0);
        }
    }
}

// A tolerance narrower than one minute of the Lagna's motion can't be met: the search swings
// across the target until its last pass and gives that pass's chart, next to the target. The
// swing repeats itself, so its end is known without casting every pass.
TEST(Gochara, ANarrowToleranceEndsBesideTheTargetWithoutCastingEveryPass)
{
    ScopedSettingsStore store;
    clsPlanets chart;
    castDelhi(chart, 15, 8, 1980, 14, 35);
    const double target = Norm360(chart.PlanetLongi(0) + 50);
    clsGochara search;
    const long before = clsPlanets::CalculateCount();
    const auto found = search.Gochara(0, target, 0.5, chart);
    const long cost = clsPlanets::CalculateCount() - before;
    const double miss = std::fabs(fold(found->PlanetLongi(0) - target));
    EXPECT_GT(miss * 60, 0.5);
    EXPECT_LT(miss, 0.5); // within one minute's motion
    EXPECT_LT(cost, 26);  // 26 passes with the Lagna's speed would cast about 50 charts

    // One object serves search after search: the state of the last one doesn't leak.
    const auto again = search.Gochara(0, target, 0.5, chart);
    EXPECT_EQ(again->Person().GetBirthDate(), found->Person().GetBirthDate());
    EXPECT_EQ(again->PlanetLongi(0), found->PlanetLongi(0));
}

// A number beyond the bodies has no rates and no speed: the search still ends, after its passes.
TEST(Gochara, ABodyNumberBeyondTheTableEndsAfterItsPasses)
{
    ScopedSettingsStore store;
    clsPlanets chart;
    castDelhi(chart, 15, 8, 1980, 14, 35);
    clsGochara search;
    for (long planet : {13L, 20L, 40L, -3L}) {
        SCOPED_TRACE(planet);
        const long before = clsPlanets::CalculateCount();
        const auto found = search.Gochara(planet, 123.0, 1.0, chart);
        ASSERT_TRUE(found);
        EXPECT_LE(clsPlanets::CalculateCount() - before, 1 + 26 + 1);
        EXPECT_TRUE(found->Person().GetBirthDate().isValid());
    }
}
