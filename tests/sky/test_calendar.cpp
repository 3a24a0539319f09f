// SPDX-License-Identifier: AGPL-3.0-or-later
#include "sky/clsPlanets.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

TEST(Calendar, DecimalSpansFallThroughTheUnits)
{
    const QDateTime start(QDate(2000, 1, 1), QTime(0, 0), Qt::UTC);
    int unit = 1;
    // 1.5 years: one calendar year, then 0.5 * 365.2564 = 182.6282 days = 182 d 15 h 4 min 36 s.
    EXPECT_EQ(clsPlanets::AddDecValToDate(start, 1.5, unit), QDateTime(QDate(2001, 7, 2), QTime(15, 4, 36), Qt::UTC));
    EXPECT_EQ(unit, 6);
    unit = 3;
    EXPECT_EQ(clsPlanets::AddDecValToDate(start, -1.25, unit), QDateTime(QDate(1999, 12, 30), QTime(18, 0), Qt::UTC));
    unit = 2; // not a unit: nothing is added
    EXPECT_EQ(clsPlanets::AddDecValToDate(start, 5, unit), start);
    unit = 1; // a whole year from a leap day keeps the month
    EXPECT_EQ(clsPlanets::AddDecValToDate(QDateTime(QDate(2000, 2, 29), QTime(6, 0), Qt::UTC), 1, unit),
              QDateTime(QDate(2001, 2, 28), QTime(6, 0), Qt::UTC));
}

TEST(Calendar, AddDaysToDobStepsOneMonthEndAtATime)
{
    ScopedSettingsStore store;
    clsPlanets chart;
    chart.Person().setDay(30);
    chart.Person().setMonth(12);
    chart.Person().setYear(1999);
    long n = 40;
    int calls = 0;
    while (n != 0 && calls < 10) {
        chart.AddDaysToDOB(n);
        ++calls;
    }
    EXPECT_EQ(QDate(int(chart.Person().Year()), int(chart.Person().Month()), int(chart.Person().Day())), QDate(2000, 2, 8));
    EXPECT_EQ(calls, 3);
    n = -40;
    while (n != 0)
        chart.AddDaysToDOB(n);
    EXPECT_EQ(QDate(int(chart.Person().Year()), int(chart.Person().Month()), int(chart.Person().Day())), QDate(1999, 12, 30));
}

TEST(Calendar, NumberAndAngleTexts)
{
    EXPECT_EQ(clsPlanets::ConvertDateToNum(QDate(2001, 2, 3)), 20010203);
    EXPECT_EQ(clsPlanets::MaxDayInMonth(2, 2000), 29);
    EXPECT_EQ(clsPlanets::MaxDayInMonth(2, 1900), 28);
    EXPECT_EQ(clsPlanets::DecToDeg(123.5125), "123:30:45");
    EXPECT_EQ(clsPlanets::DecToDeg(5.0), "05:00:00");
    EXPECT_EQ(clsPlanets::ConvertValNoDeg(95.25), "05:15:00");
    EXPECT_EQ(clsPlanets::ConvertValNoDeg(60), "30:00:00"); // an exact multiple keeps 30
    EXPECT_DOUBLE_EQ(clsPlanets::DegToDec(10, 30, 0), 10.5);
    EXPECT_NEAR(clsPlanets::DegToDec(0, 0, 36), 0.01, 1e-12);
    EXPECT_EQ(clsPlanets::GetMin(10.75), 45);
    EXPECT_EQ(clsPlanets::DateAddEx(QDateTime(QDate(2000, 1, 31), QTime(0, 0), Qt::UTC), "m", 1).date(), QDate(2000, 2, 29));
    EXPECT_EQ(clsPlanets::DateAddEx(QDateTime(QDate(2000, 1, 1), QTime(0, 0), Qt::UTC), "n", 90).time(), QTime(1, 30));
}
