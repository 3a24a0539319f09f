// SPDX-License-Identifier: AGPL-3.0-or-later
// The KP recast: sub-lord spans and their edges, sub lords of hand-worked longitudes, the fold of
// longitudes that cross 0 Aries, the Part of Fortune, the occupation of houses at the cusps, and
// the significators: 30 only with all four tests, each test's own score, the nodes as occupants,
// the chart's own star of the planet.
#include "kp/clsKPSystem.h"
#include "sky/clsPlanets.h"
#include "support/EnglishChart.h"

#include <gtest/gtest.h>

namespace {

constexpr int Sun = 1, Mercury = 2, Venus = 3, Mars = 4, Jupiter = 5, Saturn = 6, Moon = 7, Rahu = 8, Ketu = 9;
constexpr double kNak = 360.0 / 27;

// A cast chart whose position 13 is the KP ayanamsa: a position set on it is its KP longitude.
class KPChart : public EnglishChart
{
protected:
    void SetUp() override
    {
        EnglishChart::SetUp();
        chart.Calculate();
        chart.setPlanetLongi(13, chart.KPAyanVal());
    }
    // The middle of house k in this chart.
    double middle(int k)
    {
        clsKPSystem probe(chart);
        const double a = probe.CuspLongi(k);
        return clsKPSystem::Fold360(a + clsKPSystem::Fold360(probe.CuspLongi(k % 12 + 1) - a) / 2);
    }
    // Every body into one house, so that no other house has an occupant.
    void parkAll(int k)
    {
        const double at = middle(k);
        for (int p = 1; p <= 12; ++p)
            chart.setPlanetLongi(p, at);
    }
};

} // namespace

TEST(KPSubLords, SpansEndOnWholeYearsAndNothingLiesOutsideTheStar)
{
    // A star of the Sun and one of Ketu, span by span: an end belongs to the span it closes.
    const std::pair<int, std::vector<std::pair<double, int>>> stars[] = {
        {Sun, {{6, Sun}, {16, Moon}, {23, Mars}, {41, Rahu}, {57, Jupiter}, {76, Saturn}, {93, Mercury}, {100, Ketu}, {120, Venus}}},
        {Ketu, {{7, Ketu}, {27, Venus}, {33, Sun}, {43, Moon}, {50, Mars}, {68, Rahu}, {84, Jupiter}, {103, Saturn}, {120, Mercury}}},
    };
    for (const auto &[star, spans] : stars) {
        double begin = 0;
        for (const auto &[end, lord] : spans) {
            EXPECT_EQ(clsKPSystem::SubLordInStar(star, end), lord) << "end " << end << " of star lord " << star;
            EXPECT_EQ(clsKPSystem::SubLordInStar(star, begin + 1e-9), lord) << "just after " << begin;
            begin = end;
        }
        for (double x : {0.0, -3.0, 120.0000001})
            EXPECT_EQ(clsKPSystem::SubLordInStar(star, x), 0) << x;
    }
    EXPECT_EQ(clsKPSystem::SubLordInStar(0, 50), 0); // the Lagna rules no star
}

TEST(KPSubLords, HandWorkedLongitudes)
{
    // 3 degrees of Ashwini (Ketu's) are 27 units, exactly the end of Venus's span.
    EXPECT_EQ(clsKPSystem::SubLordOf(1, 3.0), Venus);
    EXPECT_EQ(clsKPSystem::SubLordOf(1, 3.001), Sun);
    // 10 degrees into Magha (Ketu's): 90 units, in Saturn's span from 84 to 103.
    EXPECT_EQ(clsKPSystem::SubLordOf(10, 130.0), Saturn);
    // 5 degrees into Rohini (the Moon's): 45 units; Moon 10, Mars 17, Rahu 35, Jupiter 51.
    EXPECT_EQ(clsKPSystem::SubLordOf(4, 45.0), Jupiter);
    // A degree short of 0 Aries is late Revati (Mercury's): 111 units, Saturn's span from 101.
    EXPECT_EQ(clsKPSystem::SubLordOf(27, -1.0), Saturn);
    EXPECT_EQ(clsKPSystem::SubLordOf(27, 359.0), Saturn);
    // Exactly at the start of a star there is no place in it and no sub lord.
    for (const auto &[nak, l] : {std::pair{1, 0.0}, {2, kNak}, {10, 120.0}, {1, 360.0}})
        EXPECT_EQ(clsKPSystem::SubLordOf(nak, l), 0) << l;
    // Signs and stars of any value are read on the circle.
    EXPECT_EQ(clsKPSystem::SignOfLongi(-0.5), 12);
    EXPECT_EQ(clsKPSystem::NakOfLongi(-0.5), 27);
    EXPECT_EQ(clsKPSystem::SignOfLongi(360.25), 1);
    EXPECT_EQ(clsKPSystem::NakOfLongi(360.25), 1);
}

TEST_F(KPChart, ThePositionsAreRecastUnderTheKPAyanamsaAndStayOnTheCircle)
{
    // Chart ayanamsa 1.5 degrees above the KP one: a Moon at 359 becomes 0.5 of Aries, not 360.5.
    chart.setPlanetLongi(13, chart.KPAyanVal() + 1.5);
    chart.setPlanetLongi(Sun, 100);
    chart.setPlanetLongi(Moon, 359);
    clsKPSystem kp(chart);
    EXPECT_NEAR(kp.PlntLongi(Sun), 101.5, 1e-9);
    EXPECT_NEAR(kp.PlntLongi(Moon), 0.5, 1e-9);
    EXPECT_EQ(kp.Sign(Moon), 1);
    EXPECT_EQ(kp.SignLord(Moon), Mars);
    EXPECT_EQ(kp.StarLord(Moon), Ketu);
    EXPECT_EQ(kp.SubLord(Moon), Ketu); // 4.5 units: Ketu's own first span

    // A tropical chart: a Sun at 10 degrees lies some 13.6 degrees back in Pisces.
    chart.setPlanetLongi(13, 0);
    chart.setPlanetLongi(Sun, 10);
    clsKPSystem tropical(chart);
    EXPECT_NEAR(tropical.PlntLongi(Sun), 370 - chart.KPAyanVal(), 1e-9);
    EXPECT_EQ(tropical.Sign(Sun), 12);
    EXPECT_EQ(tropical.SignLord(Sun), Jupiter);
}

TEST_F(KPChart, ThePartOfFortuneIsMoonLessSunPlusLagnaByDayAndNight)
{
    for (const auto &[lagna, sun, moon, fortune] : {std::tuple{10.0, 200.0, 50.0, 220.0}, {100.0, 10.0, 5.0, 95.0}}) {
        chart.setPlanetLongi(0, lagna);
        chart.setPlanetLongi(Sun, sun);
        chart.setPlanetLongi(Moon, moon);
        EXPECT_NEAR(clsKPSystem(chart).ParsFortLongi(), fortune, 1e-9);
    }
}

TEST_F(KPChart, OccupationAtTheCuspsThemselves)
{
    clsKPSystem probe(chart);
    int plain = 0;
    for (int k = 1; k <= 12; ++k)
        plain = probe.CuspLongi(k) <= probe.CuspLongi(k % 12 + 1) ? k : plain;
    ASSERT_NE(plain, 0);
    const int next = plain % 12 + 1;
    const double a = probe.CuspLongi(plain), b = probe.CuspLongi(next);
    chart.setPlanetLongi(Mars, a);
    chart.setPlanetLongi(Jupiter, b);
    chart.setPlanetLongi(Venus, (a + b) / 2);
    clsKPSystem kp(chart);
    // On a cusp a planet belongs to the Bhava chart's houses on both sides, and occupies neither.
    EXPECT_FALSE(kp.FindSignIfOccup(plain, Mars));
    EXPECT_TRUE(kp.PlanetInBhava(Mars, plain));
    EXPECT_FALSE(kp.FindSignIfOccup(plain, Jupiter));
    EXPECT_FALSE(kp.FindSignIfOccup(next, Jupiter));
    EXPECT_TRUE(kp.PlanetInBhava(Jupiter, plain) && kp.PlanetInBhava(Jupiter, next));
    EXPECT_TRUE(kp.FindSignIfOccup(plain, Venus));
    // Off the cusps each graha occupies exactly one house, the one across 0 Aries included.
    for (int p : {Sun, Mercury, Venus, Saturn, Moon, Rahu, Ketu}) {
        int houses = 0;
        for (int k = 1; k <= 12; ++k)
            houses += kp.FindSignIfOccup(k, p) ? 1 : 0;
        EXPECT_EQ(houses, 1) << p;
    }
}

TEST_F(KPChart, AllFourTestsTogetherScoreThirty)
{
    // The cusp's sign lord inside its house, in one of its own stars, is lord (9), occupant (8), in
    // the star of the cusp lord (6) and in the star of an occupant, itself (7).
    clsKPSystem probe(chart);
    bool found = false;
    for (int k = 1; k <= 12 && !found; ++k) {
        const int lord = probe.CuspSignLord(k);
        const double a = probe.CuspLongi(k), width = clsKPSystem::Fold360(probe.CuspLongi(k % 12 + 1) - a);
        for (double t = 0.05; t < width - 0.05 && !found; t += 0.05) {
            const double l = clsKPSystem::Fold360(a + t);
            if (clsPlanets::NakLordNum(clsKPSystem::NakOfLongi(l)) != lord)
                continue;
            chart.setPlanetLongi(lord, l);
            EXPECT_EQ(clsKPSystem(chart).PlanetSignifScore(lord, k), 30) << "house " << k;
            found = true;
        }
    }
    EXPECT_TRUE(found) << "no house of the test chart holds a star of its cusp's lord";
}

TEST_F(KPChart, EachTestAddsItsOwnScore)
{
    parkAll(1);
    clsKPSystem kp(chart);
    // House 7 has no occupant: its cusp lord scores 9 (and 6 more in its own star), any other
    // planet 6 in the star of that lord, else nothing.
    const int lord = kp.CuspSignLord(7);
    for (int p = 1; p <= 9; ++p) {
        const int inStar = kp.StarLord(p) == lord ? 6 : 0;
        EXPECT_EQ(kp.PlanetSignifScore(p, 7), (p == lord ? 9 : 0) + inStar) << p;
        EXPECT_EQ(kp.PlanetIsSignificator(p, 7), kp.PlanetSignifScore(p, 7) > 0) << p;
        EXPECT_GE(kp.PlanetSignifScore(p, 1), 8) << p; // every graha occupies house 1
        for (int k = 1; k <= 12; ++k)
            EXPECT_LE(kp.PlanetSignifScore(p, k), 30);
    }
}

TEST_F(KPChart, TheNodesOccupyButRuleNoStars)
{
    // Rahu alone in house 4; everyone else in house 5.
    parkAll(5);
    chart.setPlanetLongi(Rahu, middle(4));
    clsKPSystem kp(chart);
    ASSERT_TRUE(kp.FindSignIfOccup(4, Rahu));
    EXPECT_GE(kp.PlanetSignifScore(Rahu, 4), 8);
    for (int p = 1; p <= 9; ++p)
        EXPECT_FALSE(kp.FindSignIfNakOccup(4, p)) << p;
    EXPECT_FALSE(kp.PlanetINNakof(Sun, Rahu));
}

TEST_F(KPChart, TheStarOfAnOccupantIsReadOnTheChartsOwnNakshatra)
{
    // Everyone in house 10, Jupiter among them; the chart's ayanamsa a degree above the KP one.
    parkAll(10);
    chart.setPlanetLongi(13, chart.KPAyanVal() + 1);
    // The Sun at 79.5 of the chart is in Ardra (Rahu's), though at 80.5 in the KP ayanamsa it is
    // in Punarvasu (Jupiter's): the chart's star decides, and Rahu rules none.
    chart.setPlanetLongi(Sun, 79.5);
    EXPECT_FALSE(clsKPSystem(chart).FindSignIfNakOccup(10, Sun));
    chart.setPlanetLongi(Sun, 80.5);
    clsKPSystem kp(chart);
    ASSERT_TRUE(kp.FindSignIfOccup(10, Jupiter));
    EXPECT_TRUE(kp.FindSignIfNakOccup(10, Sun));
}
