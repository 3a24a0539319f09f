// SPDX-License-Identifier: AGPL-3.0-or-later
// Positional, directional and aspectual strength on a chart placed by hand, against figures
// worked out from the formulas, with the rounding at each figure.
#include "ShadBalaCharts.h"

#include "sky/Functions.h"
#include "strength/clsShadBala.h"

#include <utility>

namespace {
using Positional = ShadBalaChart;

QStringList sthanaParts(clsShadBala &sb, int planet)
{
    QStringList parts;
    for (int part = 1; part <= 6; ++part)
        parts << sb.GetSubSthanaBala(part, planet);
    return parts;
}
} // namespace

TEST_F(Positional, PartsOfThePositionalStrengthByHand)
{
    placeByHand();
    clsShadBala sb(chart);
    // Sun, Aries 12: 2 degrees past its exaltation; seven divisions Aries (Mars, great friend),
    // Cancer (Moon, great friend), Leo, Leo, Gemini (Mercury, enemy), Leo, Sagittarius (Jupiter,
    // neutral) = 22.5 + 22.5 + 30 + 30 + 3.75 + 30 + 7.5; odd sign, even navamsha; the 10th house.
    EXPECT_EQ(sthanaParts(sb, 1), QStringList({"59.33", "146.25", "15.00", "0.00", "60.00", "0.00"}));
    EXPECT_DOUBLE_EQ(sb.SBSthanaBala(1), 280.58);
    // Mercury, Virgo 17: moolatrikona in the sign, Gemini its own in the navamsha and saptamsha.
    EXPECT_EQ(sthanaParts(sb, 2), QStringList({"59.33", "146.25", "0.00", "15.00", "15.00", "15.00"}));
    // Venus, Libra 20: 121.875 in the divisions shows as 121.88, the navamsha number 0 of a
    // multiple of 40 degrees counts as even, and the sum adds the shown 7.67 (not 7.6667).
    EXPECT_EQ(sthanaParts(sb, 3), QStringList({"7.67", "121.88", "0.00", "15.00", "60.00", "0.00"}));
    EXPECT_DOUBLE_EQ(sb.SBSthanaBala(3), 204.55);
    EXPECT_EQ(sb.DinaRatriBala(3), "15.00");
    // Mars, Cancer 10: the drekkana part holds at exactly 10 degrees.
    EXPECT_EQ(sthanaParts(sb, 4), QStringList({"6.00", "135.00", "0.00", "0.00", "60.00", "15.00"}));
    // Saturn, Aquarius 6: a great enemy's navamsha gives 3.75 and a great enemy's twelfth 1.875;
    // 133.125 rounds half to even.
    EXPECT_EQ(sb.GetSubSthanaBala(2, 6), "133.12");
    EXPECT_EQ(sb.GetSubSthanaBala(5, 6), "30.00");
    // Jupiter at Sagittarius 10 stands on the last degree of its moolatrikona: 45, not 30.
    EXPECT_EQ(sb.GetSubSthanaBala(2, 5), "120.00");
    EXPECT_EQ(sb.GetSubSthanaBala(7, 1), "0.00");
    EXPECT_EQ(sb.GetSubSthanaBala(1, 8), "0.00");
}

TEST_F(Positional, ExaltationAndDirection)
{
    cast();
    const auto uccha = [&](double longitude) {
        place({{1, longitude}});
        return clsShadBala(chart).GetSubSthanaBala(1, 1);
    };
    EXPECT_EQ(uccha(10), "60.00");
    EXPECT_EQ(uccha(190), "0.00");
    EXPECT_EQ(uccha(280), "30.00") << "the shorter arc, the other way round";

    const auto dik = [&](int planet, double longitude) {
        place({{planet, Norm360(longitude)}});
        return clsShadBala(chart).SBDikBala(planet);
    };
    EXPECT_EQ(dik(1, chart.BhavMid(9)), "60.00");
    EXPECT_EQ(dik(1, chart.BhavMid(9) + 30), "50.00");
    EXPECT_EQ(dik(1, chart.BhavMid(9) + 100), "26.67");
    // Behind the strong point the figure climbs from the weak point.
    EXPECT_EQ(dik(1, chart.BhavMid(3) + 60), "20.00");
    EXPECT_EQ(dik(6, chart.BhavMid(6) + 45), "45.00");
    EXPECT_EQ(dik(6, chart.BhavMid(0) + 15), "5.00");
    EXPECT_EQ(dik(3, chart.BhavMid(3) + 12), "56.00");
}

TEST_F(Positional, AspectsWorkedByHand)
{
    placeByHand();
    clsShadBala sb(chart);
    // On the Sun: Mercury 205 degrees behind (47.5), Venus 172 (44), Mars 272 (-14), Jupiter 122
    // (28 made full: 60), Saturn 66 (21 made full: -60), the Moon 332 (0): 77.5 / 4 = 19.375.
    EXPECT_EQ(sb.SBDrigBala(1), "19.38");
    EXPECT_DOUBLE_EQ(sb.AspectAngle(1, 6), 66);
    EXPECT_DOUBLE_EQ(sb.SpecialAspect(1, 5), 32);
    EXPECT_DOUBLE_EQ(sb.SpecialAspect(1, 6), 39);
    // On Mars: -43 + 3.5 + 20 + 45 - 8 + 15 (the waxing Moon) = 32.5, a quarter 8.125, half to even.
    EXPECT_EQ(sb.SBDrigBala(4), "8.12");
    EXPECT_EQ(sb.SBDrigBala(9), "0.00");

    // Mercury in Virgo is a benefic, also beside a waning Moon or a node, until Saturn joins it.
    EXPECT_TRUE(sb.CondBenefic(2));
    place({{7, 170}, {1, 300}, {8, 160}});
    const clsShadBala waning(chart);
    EXPECT_FALSE(waning.CondBenefic(7));
    EXPECT_TRUE(waning.CondBenefic(2));
    place({{6, 175}});
    EXPECT_FALSE(clsShadBala(chart).CondBenefic(2));
    // The full Moon no longer counts as waxing.
    place({{1, 10}, {7, 190}});
    EXPECT_FALSE(clsShadBala(chart).CondBenefic(7));
}

TEST_F(Positional, DrigCurveAtItsBreakpoints)
{
    cast();
    // Planet b at 0 aspects the Moon (the Sun when b is the Moon) `angle` degrees on: the base
    // aspect and the aspect with what a full aspect adds.
    const auto drishti = [&](int b, double angle) {
        const int a = b == 7 ? 1 : 7;
        chart.setPlanetLongi(b, 0);
        chart.setPlanetLongi(a, angle);
        const clsShadBala sb(chart);
        return std::pair{sb.BaseAspect(a, b), sb.BaseAspect(a, b) + sb.SpecialAspect(a, b)};
    };
    struct Point
    {
        int b;
        double angle, base, whole;
    };
    // The broken line of every planet: 0 up to 30, 15 at 60, 45 at 90, 30 at 120, 0 at 150, 60
    // at 180, 0 again from 300. The full aspects hold from the first degree of their arcs and
    // end before the last.
    static constexpr Point kPoints[]{
        {1, 0, 0, 0},       {1, 30, 0, 0},      {1, 45, 7.5, 7.5},   {1, 60, 15, 15},    {1, 75, 30, 30},
        {1, 90, 45, 45},    {1, 105, 37.5, 37.5}, {1, 120, 30, 30},  {1, 135, 15, 15},   {1, 150, 0, 0},
        {1, 165, 30, 30},   {1, 180, 60, 60},   {1, 240, 30, 30},    {1, 299.5, 0.25, 0.25}, {1, 300, 0, 0},
        {1, 330, 0, 0},     {6, 59.5, 14.75, 14.75}, {6, 60, 15, 60}, {6, 89.5, 44.5, 60}, {6, 90, 45, 45},
        {6, 270, 15, 60},   {6, 300, 0, 0},     {5, 120, 30, 60},    {5, 150, 0, 0},     {5, 240, 30, 60},
        {5, 270, 15, 15},   {4, 90, 45, 60},    {4, 120, 30, 30},    {4, 210, 45, 60},   {4, 240, 30, 30},
        {3, 120, 30, 30},   {7, 90, 45, 45},
    };
    for (const Point &pt : kPoints)
        EXPECT_EQ(drishti(pt.b, pt.angle), std::pair(pt.base, pt.whole)) << pt.b << " at " << pt.angle;
}
