// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// A test fixture: the Delhi birth of 15 August 1980 in a chart that reads the English texts,
// with a throw-away settings store. The chart isn't cast; a test calls Calculate when it needs to.
#include "sky/clsPlanets.h"
#include "support/TestSupport.h"
#include "text/TextDB.h"

#include <gtest/gtest.h>

class EnglishChart : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(OpenTextDB("ENGLISH", db));
        chart.setTextDB(db, QSqlDatabase());
        chart.Person() = MakePerson(15, 8, 1980, 14, 35, "5.5", 28, 38, "N", 77, 12, "E");
    }
    void TearDown() override
    {
        chart.setTextDB(QSqlDatabase(), QSqlDatabase());
        CloseTextDB(db);
    }
    ScopedSettingsStore store;
    QSqlDatabase db;
    clsPlanets chart;
};
