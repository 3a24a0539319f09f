// SPDX-License-Identifier: AGPL-3.0-or-later
// The divisional table and the lords of the divisions at the edges of their parts, against
// values worked out by hand from the division rules.
#include "sky/clsPlanets.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

#include <array>

namespace {

// A chart whose positions the test sets by hand.
class Divisions : public ::testing::Test
{
protected:
    void SetUp() override
    {
        for (int n = 0; n <= 25; ++n)
            chart.setPlanetLongi(n, 0);
    }
    // Puts planet n at l and refills the table.
    void put(int n, double l)
    {
        chart.setPlanetLongi(n, l);
        chart.FillVargas();
    }
    ScopedSettingsStore store;
    clsPlanets chart;
};

// Rows 0..17 of one longitude.
struct Column
{
    double l;
    std::array<int, 18> rows;
};
inline constexpr std::array<Column, 7> kColumns{{
    //        0   1  2  3   4   5   6   7   8  9 10 11 12 13 14 15 16 17
    {0, {{12, 1, 5, 1, 1, 1, 1, 1, 1, 1, 1, 5, 1, 1, 1, 1, 1, 12}}},         // Aries 0
    {29.999, {{12, 1, 4, 9, 10, 7, 9, 10, 12, 4, 8, 4, 3, 7, 4, 9, 12, 2}}},  // Aries 29.999
    {30, {{12, 2, 4, 2, 2, 8, 10, 10, 2, 5, 9, 4, 4, 2, 7, 5, 2, 1}}},        // Taurus 0
    {45, {{12, 2, 4, 6, 8, 11, 2, 3, 8, 1, 7, 4, 5, 12, 3, 3, 8, 8}}},        // Taurus 15
    {59.999, {{12, 2, 5, 10, 11, 2, 6, 7, 1, 8, 4, 3, 6, 8, 10, 1, 1, 3}}},   // Taurus 29.999
    {60, {{12, 3, 5, 3, 3, 3, 7, 3, 3, 9, 5, 5, 7, 1, 1, 9, 3, 2}}},          // Gemini 0
    {90, {{12, 4, 4, 4, 4, 10, 4, 12, 4, 1, 1, 4, 10, 2, 7, 1, 4, 3}}},        // Cancer 0
}};
static_assert(kColumns.size() == 7);

} // namespace

TEST_F(Divisions, EveryRowAtTheStartAndEndOfOddAndEvenSigns)
{
    for (const Column &c : kColumns) {
        put(1, c.l);
        for (int k = 0; k < 18; ++k)
            EXPECT_EQ(chart.PrediVarga(1, k), c.rows[static_cast<size_t>(k)]) << "longitude " << c.l << " row " << k;
    }
}

TEST_F(Divisions, PartBoundariesBelongToThePartAbove)
{
    struct Cell
    {
        double l;
        int row;
        int sign;
    };
    const std::array<Cell, 24> cells{{
        {15, 2, 5},      // Aries 15: still the Sun's hora
        {15.001, 2, 4},  //
        {10, 3, 5},      // the second drekkana starts at 10
        {20, 3, 9},      //
        {7.5, 4, 4},     // chaturthamsha parts of 7.5
        {22.5, 4, 10},   //
        {20, 6, 7},      // a navamsha boundary: the next sign
        {40, 6, 1},      //
        {1.5, 10, 2},    // vimshamsha parts of 1.5
        {0.75, 14, 2},   // khavedamsha parts of 0.75
        {4.999, 13, 1},  // trimshamsha, odd sign
        {5, 13, 11},     //
        {10, 13, 9},     //
        {18, 13, 3},     //
        {25, 13, 7},     //
        {34.999, 13, 2}, // trimshamsha, even sign
        {35, 13, 6},     //
        {42, 13, 12},    //
        {50, 13, 10},    //
        {55, 13, 8},     //
        {3, 16, 7},      // shashtiamsha: half degrees counted from the sign
        {5.5, 16, 12},   //
        {6, 16, 1},      // twelve half degrees make a round
        {36, 16, 2},     //
    }};
    for (const Cell &c : cells) {
        put(1, c.l);
        EXPECT_EQ(chart.PrediVarga(1, c.row), c.sign) << "longitude " << c.l << " row " << c.row;
    }
}

TEST_F(Divisions, TableShapeAndEmptyEntries)
{
    EXPECT_FALSE(chart.PrediVargaValue(1, 1).has_value()); // not filled yet
    put(5, 100);
    for (int n = 0; n <= 12; ++n)
        EXPECT_EQ(chart.PrediVarga(n, 0), 12) << n;
    EXPECT_FALSE(chart.PrediVargaValue(13, 1).has_value());
    EXPECT_EQ(chart.PrediVarga(13, 1), 0);
    EXPECT_EQ(chart.PrediVarga(0, 18), 0);
    EXPECT_EQ(chart.PlanetInNavamsha(5), 7); // Cancer 10 opens the fourth navamsha of Cancer, Libra
    EXPECT_FALSE(chart.PlanetVargottama(5));
    put(5, 91);
    EXPECT_TRUE(chart.PlanetVargottama(5));
}

TEST_F(Divisions, NavamshaByArithmeticKeepsABoundaryBelow)
{
    put(2, 20);
    EXPECT_EQ(chart.NavamshSign(2), 6);
    EXPECT_EQ(chart.PrediVarga(2, 6), 7);
    EXPECT_EQ(chart.NavamshLord(2), 2); // Virgo
    put(2, 40);
    EXPECT_EQ(chart.NavamshSign(2), 0);
    EXPECT_EQ(chart.NavamshLord(2), 0);
    EXPECT_EQ(chart.PrediVarga(2, 6), 1);
    put(2, 40.5);
    EXPECT_EQ(chart.NavamshSign(2), 1);
    EXPECT_EQ(chart.NavamshLord(2), 4);
    put(2, 359.9);
    EXPECT_EQ(chart.NavamshSign(2), 12);
    EXPECT_EQ(chart.NavamshLord(2), 5);
}

TEST_F(Divisions, LordsFromTheDegrees)
{
    put(3, 15); // Aries 15
    EXPECT_EQ(chart.HoraLord(3), 1);
    EXPECT_EQ(chart.DrekkanaLord(3), 1); // Leo
    put(3, 15.5);
    EXPECT_EQ(chart.HoraLord(3), 7);
    put(3, 45); // Taurus 15
    EXPECT_EQ(chart.HoraLord(3), 7);
    EXPECT_EQ(chart.DrekkanaLord(3), 2);     // Virgo
    EXPECT_EQ(chart.ChaturthamshLord(3), 4); // Scorpio
    put(3, 59);
    EXPECT_EQ(chart.HoraLord(3), 1);
    EXPECT_EQ(chart.DrekkanaLord(3), 6);     // Capricorn
    EXPECT_EQ(chart.ChaturthamshLord(3), 6); // Aquarius

    struct Part
    {
        double l;
        int panchama, shashta;
    };
    const std::array<Part, 8> parts{{
        {6, 3, 4}, {6.5, 2, 4}, {12, 2, 5}, {18, 5, 6}, {24, 6, 6}, {25, 4, 6}, {25.5, 4, 5}, {35, 3, 3},
    }};
    for (const Part &p : parts) {
        put(3, p.l);
        EXPECT_EQ(chart.PanchamAmshLord(3), p.panchama) << p.l;
        EXPECT_EQ(chart.SastamshLord(3), p.shashta) << p.l;
    }
}

TEST_F(Divisions, AshtamamshaLordsByTheSignsClass)
{
    struct Part
    {
        double l;
        int lord;
    };
    const std::array<Part, 8> parts{{
        {3.75, 4}, {3.8, 3}, {26.25, 3}, {26.3, 4}, // movable
        {45, 4}, {45.1, 5},                         // fixed
        {60.5, 5}, {89, 7},                         // dual
    }};
    for (const Part &p : parts) {
        put(4, p.l);
        EXPECT_EQ(chart.VarAshtamamshaLord(4), p.lord) << p.l;
    }
}

TEST_F(Divisions, LordsReadFromTheTable)
{
    put(6, 45); // Taurus 15: saptamsha Aquarius, dashamamsha Gemini, dwadashamamsha Scorpio, row 17 Scorpio
    EXPECT_EQ(chart.SaptamshaLord(6), 6);
    EXPECT_EQ(chart.DashamamshaLord(6), 2);
    EXPECT_EQ(chart.DwaDashamamshaLord(6), 4);
    EXPECT_EQ(chart.EkaDashamAmshaLord(6), 4);
}

TEST_F(Divisions, SashtiAmshaCountsBackwardsInEvenSigns)
{
    struct Case
    {
        double l;
        bool benefic;
    };
    const std::array<Case, 7> cases{{
        {0.5, false},  // part 1, whole
        {0.6, false},  // part 2
        {1.1, true},   // part 3
        {29.5, false}, // part 59
        {29.9, true},  // part 60
        {30.5, true},  // Taurus: part 1 reads as 60
        {59.9, false}, // Taurus: part 60 reads as 1
    }};
    for (const Case &c : cases) {
        put(7, c.l);
        EXPECT_EQ(chart.SashtiAmshaBenefic(7), c.benefic) << c.l;
    }
}

TEST_F(Divisions, GopuramsaCountsTheRowsOfTheOwnSign)
{
    put(1, 0); // Aries 0 repeats in 14 of the rows 1..16
    EXPECT_EQ(chart.PlanetGopuramsa(1), 0);
    put(1, 30); // Taurus 0: rows 1, 3, 4, 8, 13, 16
    EXPECT_EQ(chart.PlanetGopuramsa(1), 6);
    put(1, 29.999);
    EXPECT_EQ(chart.PlanetGopuramsa(1), 1);
}

TEST_F(Divisions, AtmaKarakaHoldsTheLeadRounded)
{
    // The Sun leads at 10.4 but holds 10, so Mercury's 10.2 takes the lead from it.
    const std::array<double, 7> degrees{10.4, 10.2, 5, 30 + 9.9, 60 + 3, 90 + 10, 120 + 0.5};
    for (int p = 1; p <= 7; ++p)
        chart.setPlanetLongi(p, degrees[static_cast<size_t>(p - 1)]);
    chart.FillVargas();
    EXPECT_EQ(chart.AtmaKaraka(), 2);
    EXPECT_EQ(chart.KarakamsaLagna(), 4); // 10.2 degrees of Aries: the fourth navamsha
    chart.setPlanetLongi(5, 80.6);
    EXPECT_EQ(chart.AtmaKaraka(), 5);
}

TEST_F(Divisions, DecanateOfTheTropicalSun)
{
    struct Case
    {
        double sun, ayanamsa;
        int decanate;
    };
    const std::array<Case, 5> cases{{{0, 10, 1}, {0, 10.001, 2}, {350, 30, 2}, {5, 23, 3}, {7, 23, 1}}};
    for (const Case &c : cases) {
        chart.setPlanetLongi(1, c.sun);
        chart.setPlanetLongi(13, c.ayanamsa);
        EXPECT_EQ(chart.Decanate(), c.decanate) << c.sun << " + " << c.ayanamsa;
    }
}

TEST_F(Divisions, KrishAmshaIsKeptUntilTheTableIsRefilled)
{
    put(2, 75.25);
    EXPECT_DOUBLE_EQ(chart.KrishAmsha(2), 15.25);
    chart.setPlanetLongi(2, 80);
    EXPECT_DOUBLE_EQ(chart.KrishAmsha(2), 15.25);
    chart.FillVargas();
    EXPECT_DOUBLE_EQ(chart.KrishAmsha(2), 20);
}

TEST(DivisionsCast, CalculateFillsTheTable)
{
    ScopedSettingsStore store;
    clsPlanets chart;
    chart.setPerson(MakePerson(15, 8, 1980, 14, 35, QStringLiteral("5.5"), 28, 38, QStringLiteral("N"), 77, 12,
                               QStringLiteral("E")));
    chart.Calculate();
    for (int n = 0; n <= 12; ++n) {
        EXPECT_EQ(chart.PrediVarga(n, 1), chart.PlanetRashiNum(n)) << n;
        for (int k = 0; k < 18; ++k) {
            const std::optional<int> v = chart.PrediVargaValue(n, k);
            ASSERT_TRUE(v.has_value()) << n << ' ' << k;
            EXPECT_GE(*v, 1);
            EXPECT_LE(*v, 12);
        }
    }
}
