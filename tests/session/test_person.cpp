// SPDX-License-Identifier: AGPL-3.0-or-later
#include "sky/clsPerson.h"

#include <gtest/gtest.h>

namespace {
clsPerson at(int d, int m, int y, int h, int min)
{
    clsPerson p;
    p.setDay(d);
    p.setMonth(m);
    p.setYear(y);
    p.setHour(h);
    p.setMinutes(min);
    return p;
}

QString dateTime(const clsPerson &p)
{
    return p.DayText() + '/' + p.MonthText() + '/' + QString::number(p.Year()) + ' ' + p.GetBirthTime();
}
} // namespace

TEST(Person, WholeFieldsRoundHalvesToEvenOnAssignment)
{
    clsPerson p;
    p.setMinutes(29.5);
    EXPECT_EQ(p.Minutes(), 30);
    p.setMinutes(30.5);
    EXPECT_EQ(p.Minutes(), 30);
    p.setHour(13.9999);
    EXPECT_EQ(p.Hour(), 14);
}

TEST(Person, AddDaysCrossesMonthAndLeapDay)
{
    clsPerson p = at(1, 3, 2000, 10, 15);
    p.AddDays(-1);
    EXPECT_EQ(dateTime(p), "29/02/2000 10.15");
    p = at(31, 12, 1999, 23, 0);
    p.AddDays(1);
    EXPECT_EQ(dateTime(p), "01/01/2000 23.00");
    p = at(1, 3, 1900, 0, 0); // 1900 is no leap year
    p.AddDays(-1);
    EXPECT_EQ(dateTime(p), "28/02/1900 00.00");
}

TEST(Person, AddMinutesFollowsTheClassicRule)
{
    clsPerson p = at(15, 6, 2001, 0, 30);
    p.AddMinutes(-90);
    EXPECT_EQ(dateTime(p), "14/06/2001 23.00");

    p = at(15, 6, 2001, 10, 0);
    EXPECT_DOUBLE_EQ(p.AddMinutes(120), 12.01); // whole hours also move one minute
    EXPECT_EQ(dateTime(p), "15/06/2001 12.01");

    p = at(15, 6, 2001, 10, 0);
    p.AddMinutes(60); // 60 itself is carried into the hour
    EXPECT_EQ(dateTime(p), "15/06/2001 11.00");

    p = at(15, 6, 2001, 10, 0);
    p.AddMinutes(0);
    EXPECT_EQ(dateTime(p), "15/06/2001 10.01");

    p = at(31, 12, 2001, 23, 30);
    p.AddMinutes(45);
    EXPECT_EQ(dateTime(p), "01/01/2002 00.15");

    p = at(1, 1, 2002, 0, 10);
    p.AddMinutes(-3 * 24 * 60 - 30); // three days and half an hour back
    EXPECT_EQ(dateTime(p), "28/12/2001 23.40");
}

TEST(Person, AdjustHourFoldsOnceAndKeeps24)
{
    clsPerson p = at(31, 12, 1999, 0, 0);
    EXPECT_DOUBLE_EQ(p.AdjustHour(24, p.Day(), p.Month(), p.Year()), 24);
    EXPECT_EQ(p.Day(), 31);
    EXPECT_DOUBLE_EQ(p.AdjustHour(25.5, p.Day(), p.Month(), p.Year()), 1.5);
    EXPECT_EQ(dateTime(p).left(10), "01/01/2000");
    EXPECT_DOUBLE_EQ(p.AdjustHour(-0.25, p.Day(), p.Month(), p.Year()), 23.75);
    EXPECT_EQ(dateTime(p).left(10), "31/12/1999");
    // Only one fold: a value two days out is brought one day in.
    EXPECT_DOUBLE_EQ(p.AdjustHour(50, p.Day(), p.Month(), p.Year()), 26);
}

TEST(Person, TimeTexts)
{
    clsPerson p = at(2, 9, 2000, 13, 30);
    EXPECT_EQ(p.GetBirthTime(), "13.30");
    EXPECT_DOUBLE_EQ(p.GetBirthDecimalTime(), 13.5);
    p.setMinutes(20);
    EXPECT_DOUBLE_EQ(p.GetBirthDecimalTime(), 13.33);
    EXPECT_EQ(p.GetBirthTimeFull(), "01:20 PM");
    EXPECT_EQ(p.AMPM(), 2);

    p = at(2, 9, 2000, 0, 15);
    EXPECT_EQ(p.GetBirthTimeFull(), "12:15 AM");
    p = at(2, 9, 2000, 12, 5);
    EXPECT_EQ(p.GetBirthTimeFull(), "12:05 PM");
    EXPECT_EQ(p.WeekDayOfBirth(), 7); // 2 September 2000 was a Saturday
    EXPECT_EQ(p.GetBirthDate(), QDateTime(QDate(2000, 9, 2), QTime(12, 5), Qt::UTC));

    p.setHour(24); // hour 24 is the next day's midnight
    EXPECT_EQ(p.GetBirthDate(), QDateTime(QDate(2000, 9, 3), QTime(0, 5), Qt::UTC));
}

TEST(Person, PlaceTexts)
{
    clsPerson p;
    p.setLatDeg(28);
    p.setLatMT(38);
    p.setTextNS("N");
    p.setLongDeg(77);
    p.setLongMT(5);
    p.setTextEW("E");
    p.setPLOB("Delhi");
    p.setCountry("India");
    EXPECT_EQ(p.GetLatti(), "28.38N");
    EXPECT_EQ(p.GetLongi(), "77.05E");
    EXPECT_EQ(p.GetLatitudeFull(), "28.38 N");
    EXPECT_DOUBLE_EQ(p.Latitude(), 28.38);
    EXPECT_DOUBLE_EQ(p.Longitude(), 77.05);
    EXPECT_EQ(p.GetBirthPlace(), "Delhi, India");
}

TEST(Person, SetBirthDateSetsAmPmFromTheHour)
{
    clsPerson p;
    p.SetBirthDate(QDateTime(QDate(1947, 8, 15), QTime(0, 0), Qt::UTC));
    EXPECT_EQ(p.AMPM(), 1);
    p.SetBirthDate(QDateTime(QDate(1947, 8, 15), QTime(12, 0), Qt::UTC));
    EXPECT_EQ(p.AMPM(), 2);
    EXPECT_EQ(p.Day(), 15);
    EXPECT_EQ(p.Hour(), 12);
}
