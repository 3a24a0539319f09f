// SPDX-License-Identifier: AGPL-3.0-or-later
// The states of the planets at the edges of their tests, the karaka ranks and the nine taras.
#include "maitri/HandChart.h"
#include "sky/Functions.h"
#include "strength/Avasthas.h"

#include <cmath>

namespace {
using States = HandChart;
} // namespace

TEST_F(States, FiveFoldBandsTurnRoundInEvenSigns)
{
    struct Case
    {
        double longitude;
        int state;
    };
    // Mars (4) in Aries, an odd sign, then in Taurus, an even one.
    const Case cases[] = {{0, 1}, {5.99, 1}, {6, 2}, {17.5, 3}, {24, 5}, {29.99, 5},
                          {30, 5}, {35.99, 5}, {36, 4}, {42, 3}, {48, 2}, {54, 1}, {59.99, 1}};
    for (const Case &k : cases) {
        place({{4, k.longitude}});
        EXPECT_EQ(Avasthas::Ava5(chart, 4), k.state) << k.longitude;
    }
}

TEST_F(States, ThreeAndNineFoldFollowDignityInTheirOrder)
{
    struct Case
    {
        int planet;
        double longitude;
        int ava3, ava9;
    };
    const Case cases[] = {
        {1, 10, 1, 1},  // Sun exalted in Aries
        {1, 125, 1, 2}, // Sun in Leo, its own
        {1, 70, 2, 4},  // Sun in Gemini, a friend's sign
        {1, 190, 3, 8}, // Sun debilitated in Libra, a sign neither listed nor a malefic's
        {1, 310, 3, 6}, // Sun in Aquarius, an enemy's: the enemy test comes before the friend's
        {4, 70, 2, 5},  // Mars in Gemini, neutral
        {6, 100, 2, 5}, // Saturn in Cancer, neutral
    };
    for (const Case &k : cases) {
        SCOPED_TRACE(testing::Message() << k.planet << " at " << k.longitude);
        place({{k.planet, k.longitude}});
        EXPECT_EQ(Avasthas::Ava3(chart, k.planet), k.ava3);
        EXPECT_EQ(Avasthas::Ava9(chart, k.planet), k.ava9);
    }
}

TEST_F(States, TenFoldSignTestCatchesEnemySignsAndTheSunDistanceIsOneSided)
{
    // The Sun in Taurus, Venus's sign and its enemy's: the fourth test reads only the sign.
    place({{1, 40}, {3, 200}});
    EXPECT_TRUE(chart.InEnemyHouse(1));
    EXPECT_EQ(Avasthas::Ava10(chart, 1), 4);

    // Mars in Aquarius, the Sun in Aquarius 2 degrees: 8.5 degrees ahead is the fifth state, 10 is
    // past its band and falls to Saturn's sign, 8.5 behind is not ahead at all.
    place({{1, 302}, {4, 310.5}});
    EXPECT_EQ(Avasthas::Ava10(chart, 4), 5);
    place({{1, 302}, {4, 312}});
    EXPECT_EQ(Avasthas::Ava10(chart, 4), 6);
    place({{1, 319}, {4, 310.5}});
    EXPECT_EQ(Avasthas::Ava10(chart, 4), 6);
    // Bounds included: exactly 8 and exactly 9 degrees ahead.
    place({{1, 302}, {4, 310}});
    EXPECT_EQ(Avasthas::Ava10(chart, 4), 5);
    place({{1, 301}, {4, 310}});
    EXPECT_EQ(Avasthas::Ava10(chart, 4), 5);

    // Saturn in Leo: an enemy's sign that is neither in the sign list nor a malefic's.
    place({{1, 20}, {6, 130}});
    EXPECT_EQ(Avasthas::Ava10(chart, 6), 7);
}

TEST_F(States, SixFoldTakesTheFirstTestThatHolds)
{
    placeByHand();
    // Jupiter exalted in Cancer, Saturn in Jupiter's Sagittarius.
    place({{5, 100}, {6, 250}});
    EXPECT_EQ(Avasthas::Ava6(chart, 5), 1);
    EXPECT_EQ(Avasthas::Ava6(chart, 6), 2);
    // Mercury in Scorpio, 4 signs on from a Cancer Lagna and a sign of Mars and Ketu: the third test
    // holds before the enemy test would.
    place({{2, 215}});
    ASSERT_EQ(Clock12(chart.PlanetRashiNum(2) - chart.PlanetRashiNum(0)), 4);
    EXPECT_EQ(Avasthas::Ava6(chart, 2), 3);
}

TEST_F(States, TwelveFoldWorkedByHand)
{
    placeByHand();
    // Sun at Aries 12: sign 1, star 1, serial 1, navamsha Int(12 / 3.33) + 1 = 4: 1 + g + 4.
    EXPECT_EQ(Avasthas::Ava12(chart, 1, 30), 11); // 35 -> 11
    EXPECT_EQ(Avasthas::Ava12(chart, 1, 7), 12);  // 12 stays 12, never 0
    // Moon at Taurus 15: sign 2, star 4, serial 2, navamsha 5: 2 + g + 40.
    EXPECT_EQ(Avasthas::Ava12(chart, 7, 30), 12); // 72
    EXPECT_EQ(Avasthas::Ava12(chart, 7, 31), 1);
    // Rahu at Gemini 15: sign 3, star 6, serial 8, navamsha 5: 3 + g + 240.
    EXPECT_EQ(Avasthas::Ava12(chart, 8, 0), 3);
}

TEST_F(States, GhatikasCountFromTheSunriseBeforeTheBirth)
{
    // Put the birth on the minute of sunrise: it counts from the sunrise of the day before, so a
    // whole day of 60 ghatikas has run.
    for (int i = 0; i < 3; ++i) {
        const double rise = chart.SunRiseTime();
        chart.Person().setHour(Fix(rise));
        chart.Person().setMinutes(std::round(Frac(rise) * 100));
        chart.Calculate();
    }
    const double rise = chart.SunRiseTime();
    ASSERT_NEAR(chart.Person().Hour() + chart.Person().Minutes() / 100.0, rise, 1e-9);
    EXPECT_EQ(Avasthas::Ghatikas(chart), 60);

    // An hour later: 1 / (24 + the drift of the sunrise) of 60, raised to a whole number.
    chart.Person().setHour(chart.Person().Hour() + 1);
    chart.Calculate();
    EXPECT_EQ(Avasthas::Ghatikas(chart), 3);
    // Before sunrise the count runs across midnight from the day before.
    chart.Person().setHour(2);
    chart.Person().setMinutes(0);
    chart.Calculate();
    const int g = Avasthas::Ghatikas(chart);
    EXPECT_GT(g, 50);
    EXPECT_LT(g, 60);
}

TEST_F(States, KarakasRankByDegreesWithRahuReversedAndTiesInNumberOrder)
{
    // Degrees in the sign: Sun 12, Mercury 17, Venus 20, Mars 10, Jupiter 10, Saturn 6, Moon 15,
    // Rahu 15 -> 15. Mars and Jupiter tie at 10.
    placeByHand();
    EXPECT_EQ(Avasthas::AshtaKarakas(chart), (std::array<int, 8>{3, 2, 7, 8, 1, 4, 5, 6}));
    EXPECT_EQ(Avasthas::SaptaKarakas(chart), (std::array<int, 7>{3, 2, 7, 1, 4, 5, 6}));
    // Rahu at Gemini 29 counts as 1 degree and comes last; at Gemini 1 it counts 29 and leads.
    place({{8, 89}});
    EXPECT_EQ(Avasthas::AshtaKarakas(chart).back(), 8);
    place({{8, 61}});
    EXPECT_EQ(Avasthas::AshtaKarakas(chart).front(), 8);
    EXPECT_DOUBLE_EQ(Avasthas::KarakaDegrees(chart, 8), 29);
}

TEST_F(States, NineTarasWrapAtRevati)
{
    place({{7, 355}}); // Revati, star 27
    const auto rows = Avasthas::NavTara(chart);
    EXPECT_EQ(rows[0], (std::array<int, 3>{27, 9, 18}));
    EXPECT_EQ(rows[1], (std::array<int, 3>{1, 10, 19}));
    EXPECT_EQ(rows[8], (std::array<int, 3>{8, 17, 26}));
}
