// SPDX-License-Identifier: AGPL-3.0-or-later
// The Ashtakavarga: totals over a sweep of charts, a table counted by hand, the two reductions
// case by case, and the pindas.
#include "sky/clsPlanets.h"
#include "strength/Ashtakavarga.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

using namespace Ashtakavarga;

namespace {
int sum(const Signs &s)
{
    int n = 0;
    for (int i = 1; i <= 12; ++i)
        n += s[static_cast<size_t>(i)];
    return n;
}
} // namespace

TEST(AshtakavargaTables, EveryChartOfASweepHoldsTheTotals)
{
    ScopedSettingsStore store;
    clsPlanets c;
    for (int step = 0; step < 60; ++step) {
        c.Person() = MakePerson(1 + (step * 7) % 28, 1 + step % 12, 1920 + step, (step * 5) % 24, (step * 13) % 60, "5.5",
                                10 + step % 50, 0, step % 2 ? "N" : "S", 70 + step, 0, "E");
        c.Calculate();
        c.AshTable();
        int total = 0, planets = 0;
        for (size_t t = 0; t < kTables.size(); ++t) {
            int table = 0;
            for (int s = 1; s <= 12; ++s)
                table += c.AshVarga(kTables[t], s);
            EXPECT_EQ(table, kTableTotals[t]) << "table of planet " << kTables[t];
        }
        for (int s = 1; s <= 12; ++s) {
            total += c.AshTotal(s);
            for (int p = 1; p <= 7; ++p)
                planets += c.AshVarga(p, s);
            EXPECT_EQ(c.Ashtak(s), 0) << "the scratch tally is left empty";
        }
        EXPECT_EQ(total, 381);
        EXPECT_EQ(planets, 337);
        const int first = c.AshTotal(5);
        c.AshTable();
        EXPECT_EQ(c.AshTotal(5), first) << "a second build starts from zero";
    }
    EXPECT_THROW(c.Ashtak(13), std::out_of_range);
    EXPECT_NO_THROW(c.AshTotal(13));
}

TEST(AshtakavargaTables, AllGiversInAriesCountedByHand)
{
    ScopedSettingsStore store;
    clsPlanets c;
    for (int n = 0; n <= 25; ++n)
        c.setPlanetLongi(n, 5);
    c.AshTable();
    // The Sun's table: Aries is house 1 of every giver; the Sun, Mars and Saturn give there.
    EXPECT_EQ(c.AshVarga(1, 1), 3);
    // Aquarius is house 11, where every giver but Venus gives.
    EXPECT_EQ(c.AshVarga(1, 11), 7);
    // The Moon's table in Cancer (house 4): Mercury, Jupiter and Venus.
    EXPECT_EQ(c.AshVarga(7, 4), 3);
    // A giver in Pisces marks Aries with its second house.
    std::array<int, 12> second{};
    second[1] = 1;
    EXPECT_EQ(Marks(second, 12)[1], 1);
}

TEST(AshtakavargaReductions, TrinesLoseTheirSmallestUnlessOneIsEmpty)
{
    EXPECT_EQ(TrikonaGroup(3, 3, 3), (std::array<int, 3>{0, 0, 0}));
    EXPECT_EQ(TrikonaGroup(0, 0, 0), (std::array<int, 3>{0, 0, 0}));
    EXPECT_EQ(TrikonaGroup(2, 5, 4), (std::array<int, 3>{0, 3, 2}));
    EXPECT_EQ(TrikonaGroup(0, 3, 5), (std::array<int, 3>{0, 3, 5}));
    // A zero with two equal values keeps them too.
    EXPECT_EQ(TrikonaGroup(0, 5, 5), (std::array<int, 3>{0, 5, 5}));
    EXPECT_EQ(TrikonaGroup(0, 0, 5), (std::array<int, 3>{0, 0, 5}));
    Signs a{0, 4, 1, 2, 6, 3, 1, 2, 5, 2, 1, 2, 6};
    const Signs t = TrikonaShodhan(a);
    EXPECT_EQ(t[1], 2); // (4, 3, 2) less 2
    EXPECT_EQ(t[5], 1);
    EXPECT_EQ(t[9], 0);
    EXPECT_EQ(t[4], 1); // (6, 5, 6) less 5
    EXPECT_EQ(t[8], 0);
    EXPECT_EQ(t[12], 1);
}

TEST(AshtakavargaReductions, SignsOfOneLordByTheirOccupation)
{
    // A zero, or both occupied: unchanged.
    EXPECT_EQ(EkadhipatyaPair(0, 4, false, false), (std::array<int, 2>{0, 4}));
    EXPECT_EQ(EkadhipatyaPair(3, 4, true, true), (std::array<int, 2>{3, 4}));
    // Neither occupied: the smaller is taken from the larger.
    EXPECT_EQ(EkadhipatyaPair(3, 3, false, false), (std::array<int, 2>{0, 0}));
    EXPECT_EQ(EkadhipatyaPair(5, 3, false, false), (std::array<int, 2>{2, 0}));
    EXPECT_EQ(EkadhipatyaPair(3, 5, false, false), (std::array<int, 2>{0, 2}));
    // One occupied.
    EXPECT_EQ(EkadhipatyaPair(5, 3, true, false), (std::array<int, 2>{5, 0}));
    EXPECT_EQ(EkadhipatyaPair(3, 5, true, false), (std::array<int, 2>{3, 2}));
    EXPECT_EQ(EkadhipatyaPair(3, 5, false, true), (std::array<int, 2>{0, 5}));
    EXPECT_EQ(EkadhipatyaPair(5, 3, false, true), (std::array<int, 2>{3, 3})) << "not the mirror of the line above";

    Signs t{0, 5, 2, 2, 7, 6, 2, 2, 3, 1, 1, 1, 1};
    std::array<bool, 13> occupied{};
    occupied[4] = occupied[5] = true;
    const Signs e = EkadhipatyaShodhan(t, occupied);
    EXPECT_EQ(e[4], 7) << "Cancer and Leo have one sign each and pass unchanged";
    EXPECT_EQ(e[5], 6);
    EXPECT_EQ(e[1], 2); // (5, 3) unoccupied
    EXPECT_EQ(e[8], 0);
    EXPECT_EQ(e[2], 0); // (2, 2) unoccupied
    EXPECT_EQ(e[7], 0);
}

TEST(AshtakavargaReductions, OnlyTheSevenPlanetsOccupyASign)
{
    ScopedSettingsStore store;
    clsPlanets c;
    for (int n = 0; n <= 25; ++n)
        c.setPlanetLongi(n, 100); // everything in Cancer
    c.setPlanetLongi(0, 5);      // the Lagna in Aries
    c.setPlanetLongi(8, 35);     // Rahu in Taurus
    const std::array<bool, 13> occupied = OccupiedSigns(c);
    EXPECT_TRUE(occupied[4]);
    EXPECT_FALSE(occupied[1]);
    EXPECT_FALSE(occupied[2]);
}

TEST(AshtakavargaPindas, MultipliersOfSignsAndPlanets)
{
    ScopedSettingsStore store;
    clsPlanets c;
    for (int n = 0; n <= 25; ++n)
        c.setPlanetLongi(n, 0);
    Signs ones{};
    for (int s = 1; s <= 12; ++s)
        ones[static_cast<size_t>(s)] = 1;
    EXPECT_EQ(RasiPinda(ones), 96);
    EXPECT_EQ(GrahaPinda(ones, c), 45);
    Signs aries{};
    aries[1] = 3;
    EXPECT_EQ(RasiPinda(aries), 21);
    EXPECT_EQ(GrahaPinda(aries, c), 3 * 45) << "all seven stand in Aries";
    EXPECT_EQ(ShodhyaPinda(aries, c), 21 + 135);
    EXPECT_EQ(sum(aries), 3);
}
