// SPDX-License-Identifier: AGPL-3.0-or-later
// The chart wheel's model: where text lands in each style, the wrap of sign numbers, the number
// boxes after style changes, and the Chalit placement of planets in their bhavas.
#include "chartdraw/ChartFill.h"
#include "chartdraw/KundaliModel.h"
#include "sky/clsPlanets.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

#include <cmath>

TEST(KundaliModel, Expunger12KeepsTheEndsOfItsRange)
{
    const std::pair<int, int> cases[] = {{12, 12}, {24, 0}, {0, 0}, {-12, 12}, {13, 1}, {-1, 11}, {25, 1}, {-13, 11}, {5, 5}};
    for (auto [in, out] : cases)
        EXPECT_EQ(KundaliModel::Expunger12(in), out) << in;
}

TEST(KundaliModel, NorthCountsHousesFromTheRisingSignAndTheOthersFixSigns)
{
    KundaliModel k;
    k.setChartStyle(KundaliModel::North);
    k.setHouseNumber(5);
    k.PlanetPlace(5, "Su");
    k.PlanetPlace(4, "Mo");
    k.PlanetPlace(6, "Ma");
    EXPECT_EQ(k.HouseText(1), "Su ");
    EXPECT_EQ(k.HouseText(12), "Mo ");
    EXPECT_EQ(k.HouseText(2), "Ma ");
    EXPECT_EQ(k.LagnaNo(), 5);
    EXPECT_EQ(k.houseNoCaption(11), "4");

    k.Clear();
    k.setChartStyle(KundaliModel::South);
    k.PlanetPlace(5, "Su");
    EXPECT_EQ(k.HouseText(5), "Su ");
    EXPECT_EQ(k.LagnaNo(), 1);
    EXPECT_EQ(k.HouseText(0), "");
    EXPECT_EQ(k.HouseText(13), "");
}

TEST(KundaliModel, AppendingTrimsAndEndsWithOneBlank)
{
    KundaliModel k;
    k.setChartStyle(KundaliModel::East);
    k.PlanetPlace(3, " Ju");
    k.PlanetPlace(3, "Sa(R)  ");
    EXPECT_EQ(k.HouseText(3), "Ju Sa(R) ");
}

TEST(KundaliModel, NumberBoxesFollowTheStyleAfterClear)
{
    KundaliModel k;
    k.setChartStyle(KundaliModel::North);
    k.setHouseNumber(11);
    k.Clear();
    EXPECT_EQ(k.houseNoCaption(0), "11");
    EXPECT_EQ(k.houseNoCaption(1), "12");
    EXPECT_EQ(k.houseNoCaption(2), "1");

    k.setChartStyle(KundaliModel::East);
    QStringList shown;
    for (int i = 0; i < 12; ++i)
        if (k.houseNoBox(i))
            shown << k.houseNoCaption(i);
    EXPECT_EQ(shown, QStringList({"1", "4", "7", "10"}));

    k.setChartStyle(KundaliModel::South);
    shown.clear();
    for (int i = 0; i < 12; ++i)
        if (k.houseNoBox(i))
            shown << k.houseNoCaption(i);
    EXPECT_EQ(shown.size(), 12);
    EXPECT_EQ(shown.front(), "1");
    EXPECT_EQ(shown.back(), "12");
}

TEST(KundaliModel, HiddenNumbersStayHiddenInTheNorthStyle)
{
    KundaliModel k;
    k.setChartStyle(KundaliModel::North);
    k.MakeHouseInvisible();
    for (int i = 0; i < 12; ++i)
        EXPECT_FALSE(k.houseNoBox(i));
    k.setHouseNumber(3); // a new layout keeps them hidden
    EXPECT_FALSE(k.houseNoBox(0));
}

TEST(KundaliModel, GeometryOfTheThreeStyles)
{
    KundaliModel k;
    k.setChartStyle(KundaliModel::North);
    EXPECT_FALSE(k.lineVisible(6));
    EXPECT_FALSE(k.lineVisible(7));
    // The North diagonals run corner to corner; the inner diamond joins the mid-points.
    EXPECT_EQ(k.line(4).x2, 1000);
    EXPECT_EQ(k.line(0).x1, 500);
    k.setChartStyle(KundaliModel::South);
    for (int i = 0; i < 8; ++i)
        EXPECT_TRUE(k.lineVisible(i));
    // The twelve South cells stand in a ring: none overlaps another.
    for (int a = 0; a < 12; ++a)
        for (int b = a + 1; b < 12; ++b) {
            const KundaliRect p = k.planetBox(a), q = k.planetBox(b);
            const bool apart = p.left + p.width <= q.left || q.left + q.width <= p.left || p.top + p.height <= q.top ||
                               q.top + q.height <= p.top;
            EXPECT_TRUE(apart) << a << " and " << b;
        }
    const KundaliRect border = KundaliModel::border(0);
    EXPECT_EQ(border.left, 2) << "a width of 0 is drawn as 1";
    EXPECT_EQ(border.width, 998);
}

namespace {
// A chart whose bhavas and positions the test sets by hand.
class Chalit : public ::testing::Test
{
protected:
    ScopedSettingsStore store;
    clsPlanets chart;
};
} // namespace

TEST_F(Chalit, PlanetsStandInTheirBhavaAcrossTheStartOfAries)
{
    // Lagna at 355 degrees: the first bhava begins near 340 and runs over 0 degrees.
    for (int n = 0; n <= 25; ++n)
        chart.setPlanetLongi(n, 0);
    chart.setPlanetLongi(0, 355.0);
    for (int i = 0; i <= 12; ++i)
        chart.setBhavBegin(i, std::fmod(340.0 + 30.0 * i, 360.0));
    chart.setPlanetLongi(1, 5.0);     // past 360 from the first beginning: bhava 1
    chart.setPlanetLongi(2, 339.99);  // just before the first beginning: the twelfth
    chart.setPlanetLongi(3, 10.0);    // exactly on the second beginning: the bhava that begins there
    EXPECT_EQ(chart.ChalitBhava(1), 0);
    EXPECT_EQ(chart.ChalitBhava(2), 11);
    EXPECT_EQ(chart.ChalitBhava(3), 1);

    KundaliModel k;
    k.setChartStyle(KundaliModel::South);
    chart.FillBhavaKundaliEnglish(k);
    EXPECT_EQ(k.HouseNumber(), 12);
    EXPECT_TRUE(k.HouseText(12).contains(clsPlanets::PlanetNameEng(1)));
    EXPECT_TRUE(k.HouseText(11).contains(clsPlanets::PlanetNameEng(2)));
    EXPECT_TRUE(k.HouseText(1).contains(clsPlanets::PlanetNameEng(3)));
}

TEST_F(Chalit, EveryPlanetLandsInExactlyOneBhavaOfACastChart)
{
    chart.Person() = MakePerson(15, 8, 1980, 14, 35, "5.5", 28, 38, "N", 77, 12, "E");
    chart.Calculate();
    KundaliModel k;
    chart.FillBhavaKundaliEnglish(k);
    int names = 0;
    for (int i = 1; i <= 12; ++i)
        names += static_cast<int>(k.HouseText(i).split(' ', Qt::SkipEmptyParts).size());
    EXPECT_EQ(names, 13) << "the Lagna and twelve planets, each once";
    FillVargaKundali(k, chart, 6, true);
    EXPECT_EQ(k.HouseNumber(), chart.PrediVarga(0, 6));
}
