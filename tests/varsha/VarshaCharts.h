// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// Charts for the annual tests: births cast with the English texts, and a way to stand planets
// at chosen longitudes after the cast.
#include "sky/clsPlanets.h"
#include "support/TestSupport.h"
#include "text/TextDB.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <memory>
#include <utility>

class VarshaTest : public ::testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(OpenTextDB("ENGLISH", db)); }
    void TearDown() override { CloseTextDB(db); }

    std::unique_ptr<clsPlanets> cast(const clsPerson &p)
    {
        auto c = std::make_unique<clsPlanets>();
        c->setTextDB(db, QSqlDatabase());
        c->Person() = p;
        c->Calculate();
        return c;
    }
    // Delhi, 15 August 1980, 14:35.
    std::unique_ptr<clsPlanets> delhi() { return cast(MakePerson(15, 8, 1980, 14, 35, "5.5", 28, 38, "N", 77, 12, "E")); }
    // Stands the given bodies at new longitudes and refreshes what the chart keeps from them.
    static void place(clsPlanets &c, std::initializer_list<std::pair<int, double>> at)
    {
        for (const auto &[n, l] : at)
            c.setPlanetLongi(n, l);
        c.CalcPanchang();
        c.FillVargas();
    }

    ScopedSettingsStore store;
    QSqlDatabase db;
};
