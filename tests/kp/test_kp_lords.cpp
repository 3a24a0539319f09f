// SPDX-License-Identifier: AGPL-3.0-or-later
// The KP recast: sub-lord spans and their edges, sub lords of hand-worked longitudes, the fold of
// longitudes that cross 0 Aries, the Part of Fortune, and the occupation of houses at the cusps.
#include "kp/clsKPSystem.h"
#include "sky/clsPlanets.h"
#include "support/EnglishChart.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <span>

namespace {

constexpr int Sun = 1, Mercury = 2, Venus = 3, Mars = 4, Jupiter = 5, Saturn = 6, Moon = 7, Rahu = 8, Ketu = 9;
constexpr double kNak = 360.0 / 27;

// A cast chart whose position 13 is the KP ayanamsa, so that a position set on the chart is its
// KP longitude as it stands.
class KPChart : public EnglishChart
{
protected:
    void SetUp() override
    {
        EnglishChart::SetUp();
        chart.Calculate();
        chart.setPlanetLongi(13, chart.KPAyanVal());
    }
};

} // namespace

TEST(KPSubLordSpans, EachSpanEndsOnItsWholeYearAndTakesItsUpperEnd)
{
    struct Span
    {
        double end;
        int lord;
    };
    // A star of the Sun and a star of Ketu, span by span.
    const Span sun[] = {{6, Sun}, {16, Moon}, {23, Mars}, {41, Rahu}, {57, Jupiter}, {76, Saturn}, {93, Mercury}, {100, Ketu}, {120, Venus}};
    const Span ketu[] = {{7, Ketu}, {27, Venus}, {33, Sun}, {43, Moon}, {50, Mars}, {68, Rahu}, {84, Jupiter}, {103, Saturn}, {120, Mercury}};
    for (const auto &[star, spans] : {std::pair{Sun, std::span<const Span>(sun)}, std::pair{Ketu, std::span<const Span>(ketu)}}) {
        double begin = 0;
        for (const Span &s : spans) {
            EXPECT_EQ(clsKPSystem::SubLordInStar(star, s.end), s.lord) << "end " << s.end << " of star lord " << star;
            EXPECT_EQ(clsKPSystem::SubLordInStar(star, begin + 1e-9), s.lord) << "just after " << begin;
            EXPECT_EQ(clsKPSystem::SubLordInStar(star, (begin + s.end) / 2), s.lord);
            begin = s.end;
        }
    }
}

TEST(KPSubLordSpans, NoSubLordOutsideTheStar)
{
    for (int star : {Sun, Moon, Rahu, Ketu, Mercury}) {
        EXPECT_EQ(clsKPSystem::SubLordInStar(star, 0), 0) << star;
        EXPECT_EQ(clsKPSystem::SubLordInStar(star, -3), 0) << star;
        EXPECT_EQ(clsKPSystem::SubLordInStar(star, 120.0000001), 0) << star;
        EXPECT_NE(clsKPSystem::SubLordInStar(star, 120), 0) << star;
    }
    // Position 0 (the Lagna) and the outer planets rule no star.
    EXPECT_EQ(clsKPSystem::SubLordInStar(0, 50), 0);
    EXPECT_EQ(clsKPSystem::SubLordInStar(10, 50), 0);
}

TEST(KPSubLordSpans, EveryStarEndsWithTheLordBeforeItsOwn)
{
    // The nine spans fill the star; the last belongs to the lord that precedes the star lord in
    // the cycle Ketu, Venus, Sun, Moon, Mars, Rahu, Jupiter, Saturn, Mercury.
    const int cycle[] = {Ketu, Venus, Sun, Moon, Mars, Rahu, Jupiter, Saturn, Mercury};
    for (int i = 0; i < 9; ++i) {
        const int star = cycle[i];
        const int before = cycle[(i + 8) % 9];
        EXPECT_EQ(clsKPSystem::SubLordInStar(star, 119.99), before) << star;
        EXPECT_EQ(clsKPSystem::SubLordInStar(star, 0.01), star) << star;
    }
}

TEST(KPSubLordOf, HandWorkedLongitudes)
{
    // 3 degrees of Ashwini (Ketu's): 27 units, exactly the end of Venus's span.
    EXPECT_EQ(clsKPSystem::SubLordOf(1, 3.0), Venus);
    EXPECT_EQ(clsKPSystem::SubLordOf(1, 3.001), Sun);
    // 10 degrees into Magha (Ketu's, from 120): 90 units lie in Saturn's span from 84 to 103.
    EXPECT_EQ(clsKPSystem::SubLordOf(10, 130.0), Saturn);
    // 5 degrees into Rohini (the Moon's, from 40): 45 units; Moon 10, Mars 17, Rahu 35, Jupiter 51.
    EXPECT_EQ(clsKPSystem::SubLordOf(4, 45.0), Jupiter);
    // 2 degrees into Krittika (the Sun's, from 26.667): 18 units, Mars's span from 16 to 23.
    EXPECT_EQ(clsKPSystem::SubLordOf(3, 2 * kNak + 2), Mars);
    // A degree short of 0 Aries is late Revati (Mercury's): 111 units, Saturn's span from 101.
    EXPECT_EQ(clsKPSystem::SubLordOf(27, -1.0), Saturn);
    EXPECT_EQ(clsKPSystem::SubLordOf(27, 359.0), Saturn);
}

TEST(KPSubLordOf, ExactlyAtTheStartOfAStarThereIsNone)
{
    EXPECT_EQ(clsKPSystem::SubLordOf(1, 0.0), 0);
    EXPECT_EQ(clsKPSystem::SubLordOf(2, kNak), 0);
    EXPECT_EQ(clsKPSystem::SubLordOf(10, 120.0), 0);
    EXPECT_EQ(clsKPSystem::SubLordOf(1, 360.0), 0);
}

TEST(KPSignAndStar, LongitudesAreFoldedIntoTheCircle)
{
    EXPECT_EQ(clsKPSystem::SignOfLongi(-0.5), 12);
    EXPECT_EQ(clsKPSystem::NakOfLongi(-0.5), 27);
    EXPECT_EQ(clsKPSystem::SignOfLongi(360.25), 1);
    EXPECT_EQ(clsKPSystem::NakOfLongi(360.25), 1);
    EXPECT_EQ(clsKPSystem::SignOfLongi(0), 1);
    EXPECT_EQ(clsKPSystem::SignOfLongi(29.999), 1);
    EXPECT_EQ(clsKPSystem::SignOfLongi(30), 2);
    EXPECT_DOUBLE_EQ(clsKPSystem::Fold360(-360), 0);
    EXPECT_DOUBLE_EQ(clsKPSystem::Fold360(720.5), 0.5);
}

TEST_F(KPChart, ThePositionsAreRecastUnderTheKPAyanamsa)
{
    // Chart ayanamsa 1.5 degrees above the KP one: every position moves forward by 1.5.
    chart.setPlanetLongi(13, chart.KPAyanVal() + 1.5);
    chart.setPlanetLongi(Sun, 100);
    // A Moon at 359 of the chart becomes 0.5 of Aries, not 360.5.
    chart.setPlanetLongi(Moon, 359);
    clsKPSystem kp(chart);
    EXPECT_NEAR(kp.PlntLongi(Sun), 101.5, 1e-9);
    EXPECT_NEAR(kp.PlntLongi(Moon), 0.5, 1e-9);
    EXPECT_EQ(kp.Sign(Moon), 1);
    EXPECT_EQ(kp.NakOf(Moon), 1);
    EXPECT_EQ(kp.SignLord(Moon), Mars);
    EXPECT_EQ(kp.StarLord(Moon), Ketu);
    // 0.5 degrees into Ashwini is 4.5 units: Ketu's own first span.
    EXPECT_EQ(kp.SubLord(Moon), Ketu);
}

TEST_F(KPChart, ASunBehindTheKPAyanamsaReadsAsPisces)
{
    // With nothing taken off (a tropical chart), a Sun at 10 degrees lies about 13.6 degrees
    // back in Pisces in the KP ayanamsa.
    chart.setPlanetLongi(13, 0);
    chart.setPlanetLongi(Sun, 10);
    clsKPSystem kp(chart);
    const double expected = 370 - chart.KPAyanVal();
    EXPECT_NEAR(kp.PlntLongi(Sun), expected, 1e-9);
    EXPECT_EQ(kp.Sign(Sun), 12);
    EXPECT_EQ(kp.SignLord(Sun), Jupiter);
    EXPECT_EQ(kp.NakOf(Sun), clsPlanets::NakshatraNum(expected));
    EXPECT_EQ(kp.SubLord(Sun), clsKPSystem::SubLordOf(kp.NakOf(Sun), expected));
}

TEST_F(KPChart, ThePartOfFortuneIsMoonLessSunPlusLagnaByDayAndNight)
{
    chart.setPlanetLongi(0, 10);
    chart.setPlanetLongi(Sun, 200);
    chart.setPlanetLongi(Moon, 50);
    EXPECT_NEAR(clsKPSystem(chart).ParsFortLongi(), 220, 1e-9);
    // The Sun below the horizon (opposite side of the Lagna) gives the same formula.
    chart.setPlanetLongi(Sun, 10);
    chart.setPlanetLongi(Moon, 5);
    chart.setPlanetLongi(0, 100);
    EXPECT_NEAR(clsKPSystem(chart).ParsFortLongi(), 95, 1e-9);
}

TEST_F(KPChart, CuspSubLordsFollowTheCuspLongitudes)
{
    clsKPSystem kp(chart);
    for (int k = 1; k <= 12; ++k) {
        const double l = kp.CuspLongi(k);
        EXPECT_EQ(kp.AgeCuspSubLord(k), clsKPSystem::SubLordOf(clsKPSystem::NakOfLongi(l), l)) << k;
        EXPECT_NE(kp.AgeCuspSubLord(k), 0) << k;
    }
    EXPECT_EQ(kp.AgeCuspSubLord(0), 0);
    EXPECT_EQ(kp.AgeCuspSubLord(13), 0);
}

TEST_F(KPChart, OccupationAtTheCuspsThemselves)
{
    clsKPSystem probe(chart);
    // A house that doesn't wrap past 0 Aries and one that does (or the first if none wraps).
    int plain = 0, wrapping = 0;
    for (int k = 1; k <= 12; ++k)
        (probe.CuspLongi(k) <= probe.CuspLongi(k % 12 + 1) ? plain : wrapping) = k;
    ASSERT_NE(plain, 0);
    const double a = probe.CuspLongi(plain), b = probe.CuspLongi(plain % 12 + 1);

    chart.setPlanetLongi(Mars, a);
    chart.setPlanetLongi(Jupiter, b);
    chart.setPlanetLongi(Venus, (a + b) / 2);
    clsKPSystem kp(chart);
    // On its cusp a planet is in the Bhava chart's house but no occupant for the significators.
    EXPECT_FALSE(kp.FindSignIfOccup(plain, Mars));
    EXPECT_TRUE(kp.PlanetInBhava(Mars, plain));
    EXPECT_TRUE(kp.PlanetInBhava(Jupiter, plain));
    EXPECT_TRUE(kp.PlanetInBhava(Jupiter, plain % 12 + 1));
    EXPECT_FALSE(kp.FindSignIfOccup(plain, Jupiter));
    EXPECT_TRUE(kp.FindSignIfOccup(plain, Venus));
    EXPECT_TRUE(kp.PlanetInBhava(Venus, plain));
    // Every planet off the cusps occupies exactly one house.
    for (int p = 1; p <= 9; ++p) {
        int houses = 0;
        for (int k = 1; k <= 12; ++k)
            houses += kp.FindSignIfOccup(k, p) ? 1 : 0;
        EXPECT_LE(houses, 1) << p;
        if (p != Mars && p != Jupiter) {
            EXPECT_EQ(houses, 1) << p;
        }
    }
    if (wrapping != 0) {
        // In the house across 0 Aries both sides of the circle count.
        const double w = probe.CuspLongi(wrapping);
        chart.setPlanetLongi(Saturn, std::min(359.9, w + 0.01));
        chart.setPlanetLongi(Mercury, 0.001);
        clsKPSystem kw(chart);
        EXPECT_TRUE(kw.FindSignIfOccup(wrapping, Saturn));
        if (probe.CuspLongi(wrapping % 12 + 1) > 0.001) {
            EXPECT_TRUE(kw.FindSignIfOccup(wrapping, Mercury));
            EXPECT_TRUE(kw.PlanetInBhava(Mercury, wrapping));
        }
    }
}
