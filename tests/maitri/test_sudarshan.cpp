// SPDX-License-Identifier: AGPL-3.0-or-later
// The three rings of the Sudarshan chakra.
#include "maitri/HandChart.h"
#include "strength/Sudarshan.h"

namespace {
using Rings = HandChart;
} // namespace

TEST_F(Rings, EachRingCountsFromItsPointAndListsThePlanetsOfItsSigns)
{
    placeByHand();
    const auto rings = SudarshanRings(chart);
    // Lagna Cancer, Moon Taurus, Sun Aries.
    const std::array<int, 3> first{4, 2, 1};
    for (size_t r = 0; r < 3; ++r) {
        SCOPED_TRACE(r);
        EXPECT_EQ(rings[r].sign[0], first[r]);
        for (int i = 1; i < 12; ++i)
            EXPECT_EQ(rings[r].sign[static_cast<size_t>(i)] % 12, (first[r] + i) % 12);
        int listed = 0;
        for (int i = 0; i < 12; ++i)
            for (int p : rings[r].planets[static_cast<size_t>(i)]) {
                EXPECT_EQ(chart.PlanetSign(p), rings[r].sign[static_cast<size_t>(i)]);
                ++listed;
            }
        EXPECT_EQ(listed, 9) << "every planet once in every ring";
    }
    EXPECT_EQ(rings[0].planets[0], (QList<int>{4}));        // Mars with the Lagna in Cancer
    EXPECT_EQ(rings[0].sign[11], 3);                         // Gemini closes the outer ring
    EXPECT_EQ(rings[0].planets[11], (QList<int>{8}));
    EXPECT_EQ(rings[1].planets[7], (QList<int>{5, 9}));      // the 8th from the Moon: Sagittarius
    EXPECT_EQ(rings[2].planets[0], (QList<int>{1}));
    EXPECT_EQ(rings[2].sign[11], 12);                        // Pisces, 12 and not 0
}
