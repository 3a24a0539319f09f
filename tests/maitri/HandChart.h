// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// A Delhi birth whose planets are then moved to places chosen for working the tables out by hand.
#include "sky/clsPlanets.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <utility>

class HandChart : public ::testing::Test
{
protected:
    void SetUp() override
    {
        chart.Person() = MakePerson(15, 8, 1980, 14, 35, "5.5", 28, 38, "N", 77, 12, "E");
        chart.Calculate();
    }
    void place(std::initializer_list<std::pair<int, double>> at)
    {
        for (const auto &[planet, longitude] : at)
            chart.setPlanetLongi(planet, longitude);
        chart.FillVargas();
        chart.CalcPanchang();
    }
    // Lagna Cancer 5, Sun Aries 12, Mercury Virgo 17, Venus Libra 20, Mars Cancer 10, Jupiter
    // Sagittarius 10, Saturn Aquarius 6, Moon Taurus 15, Rahu Gemini 15, Ketu Sagittarius 15.
    void placeByHand()
    {
        place({{0, 95}, {1, 12}, {2, 167}, {3, 200}, {4, 100}, {5, 250}, {6, 306}, {7, 45}, {8, 75}, {9, 255}});
    }
    ScopedSettingsStore store;
    clsPlanets chart;
};
