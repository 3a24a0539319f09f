// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The charts of the Shadbala tests: a birth in Delhi, cast as the entry screen would, and the same
// chart with its planets moved to places chosen for working the figures out by hand.
#include "sky/clsPlanets.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <utility>

class ShadBalaChart : public ::testing::Test
{
protected:
    // Delhi (28 N 38, 77 E 12, zone 5.5), 15 August 1980 at 14.35, unless told otherwise.
    void cast(int day = 15, int month = 8, int year = 1980, int hour = 14, int minutes = 35, int lonDeg = 77, int lonMin = 12)
    {
        chart.Person() = MakePerson(day, month, year, hour, minutes, "5.5", 28, 38, "N", lonDeg, lonMin, "E");
        chart.Calculate();
    }
    // Moves planets to the given longitudes and refreshes what the chart keeps of its positions.
    void place(std::initializer_list<std::pair<int, double>> at)
    {
        for (const auto &[planet, longitude] : at)
            chart.setPlanetLongi(planet, longitude);
        chart.FillVargas();
        chart.CalcPanchang();
    }
    // The hand-worked chart: Lagna Cancer 5, Sun Aries 12, Mercury Virgo 17, Venus Libra 20,
    // Mars Cancer 10, Jupiter Sagittarius 10, Saturn Aquarius 6, Moon Taurus 10, Rahu Gemini 15,
    // Ketu Sagittarius 15.
    void placeByHand()
    {
        cast();
        place({{0, 95}, {1, 12}, {2, 167}, {3, 200}, {4, 100}, {5, 250}, {6, 306}, {7, 40}, {8, 75}, {9, 255}});
    }
    ScopedSettingsStore store;
    clsPlanets chart;
};
