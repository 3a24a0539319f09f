// SPDX-License-Identifier: AGPL-3.0-or-later
// The Sun-based upagrahas against values worked by hand, and their signs, nakshatras and names.
#include "support/EnglishChart.h"

namespace {

using Upagrahas = EnglishChart;

TEST_F(Upagrahas, SunBasedChainFromTheSun)
{
    chart.Calculate();
    chart.setPlanetLongi(1, 10);
    // Sun 10: Dhuma 143.333, its mirror 216.667, opposite 36.667, mirrored 323.333, on 16.667;
    // Bhukampa 90, then 40, 66.667 and 80 further.
    const std::array<double, 10> want{0, 143 + 1 / 3.0, 216 + 2 / 3.0, 36 + 2 / 3.0, 323 + 1 / 3.0, 340, 90, 130, 196 + 2 / 3.0, 276 + 2 / 3.0};
    for (int n = 1; n <= 9; ++n)
        EXPECT_NEAR(chart.UpagrahaLongi(n), want[static_cast<size_t>(n)], 1e-9) << n;
    EXPECT_EQ(chart.UpagrahaLongi(0), 0);
    EXPECT_EQ(chart.UpagrahaSign(1), 5);     // 143.3 is Leo
    EXPECT_EQ(chart.UpagrahaSign(5), 12);    // 340 is Pisces
    EXPECT_EQ(chart.UpagrahaNak(6), 7);      // 90 begins Punarvasu's fourth pada
    EXPECT_EQ(chart.UpaNakPada(6), 4);
    EXPECT_EQ(chart.UpagrahaName(1), "Dhuma");
    EXPECT_EQ(clsPlanets::UpagrahaLord(2), 8);
    EXPECT_EQ(clsPlanets::UpagrahaLord(6), 0);
}

TEST_F(Upagrahas, TheChainWrapsRoundTheZodiac)
{
    chart.Calculate();
    chart.setPlanetLongi(1, 300);
    EXPECT_NEAR(chart.DhumaLongi(), 73 + 1 / 3.0, 1e-9);
    EXPECT_NEAR(chart.BhukampaLongi(), 20, 1e-9);
    EXPECT_NEAR(chart.DhwajaLongi(), 206 + 2 / 3.0, 1e-9);
}

} // namespace
