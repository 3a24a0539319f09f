// SPDX-License-Identifier: AGPL-3.0-or-later
// The small facts of the general page: prahar, local mean time, name varga, birth number.
#include "sky/BirthFacts.h"
#include "sky/clsPlanets.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

TEST(BirthFacts, PraharsSplitTheDayAndTheNightInFour)
{
    // Sunrise 6:00, sunset 18:00: three hours a watch by day and by night.
    EXPECT_EQ(BirthFacts::Prahar(6.0, 6.0, 18.0), 1);
    EXPECT_EQ(BirthFacts::Prahar(8.99, 6.0, 18.0), 1);
    EXPECT_EQ(BirthFacts::Prahar(9.0, 6.0, 18.0), 2);
    EXPECT_EQ(BirthFacts::Prahar(17.99, 6.0, 18.0), 4);
    EXPECT_EQ(BirthFacts::Prahar(18.0, 6.0, 18.0), 5);
    EXPECT_EQ(BirthFacts::Prahar(23.5, 6.0, 18.0), 6);
    EXPECT_EQ(BirthFacts::Prahar(0.5, 6.0, 18.0), 7);   // after midnight, before sunrise
    EXPECT_EQ(BirthFacts::Prahar(5.99, 6.0, 18.0), 8);
    // A long summer day: 5:00 to 21:00 gives four-hour watches and two-hour night watches.
    EXPECT_EQ(BirthFacts::Prahar(20.9, 5.0, 21.0), 4);
    EXPECT_EQ(BirthFacts::Prahar(2.5, 5.0, 21.0), 7);
    // No sunrise or sunset: no prahar.
    EXPECT_EQ(BirthFacts::Prahar(12.0, 0.0, 0.0), 0);
    EXPECT_DOUBLE_EQ(BirthFacts::HoursOfClock(6.30), 6.5);
}

TEST(BirthFacts, LocalMeanTimeMovesFourMinutesADegree)
{
    ScopedSettingsStore store;
    clsPlanets c;
    // Delhi, 77:12 E on Indian time (82:30 E): 5 degrees 18 minutes west of the zone meridian.
    c.Person() = MakePerson(15, 8, 1980, 14, 35, "5.5", 28, 38, "N", 77, 12, "E");
    EXPECT_EQ(BirthFacts::LocalMeanTime(c), "14:13:48");
    // New York, 74:00 W on zone -5 (75 W): one degree east, four minutes later.
    c.Person() = MakePerson(1, 1, 2000, 0, 1, "-5", 40, 43, "N", 74, 0, "W");
    EXPECT_EQ(BirthFacts::LocalMeanTime(c), "00:05:00");
    // Across midnight backwards.
    c.Person() = MakePerson(1, 1, 2000, 0, 1, "5.5", 28, 38, "N", 77, 12, "E");
    EXPECT_EQ(BirthFacts::LocalMeanTime(c), "23:39:48");
}

TEST(BirthFacts, VargaByTheFirstLetterAndTheBirthNumber)
{
    EXPECT_EQ(BirthFacts::Varga("A"), 1);
    EXPECT_EQ(BirthFacts::Varga("Ke"), 2);
    EXPECT_EQ(BirthFacts::Varga("Chu"), 3);
    EXPECT_EQ(BirthFacts::Varga("Tha"), 5);
    EXPECT_EQ(BirthFacts::Varga("Bhu"), 6);
    EXPECT_EQ(BirthFacts::Varga("Lo"), 7);
    EXPECT_EQ(BirthFacts::Varga("She"), 8);
    EXPECT_EQ(BirthFacts::Varga(""), 0);
    EXPECT_EQ(BirthFacts::LuckyNumber(9), 9);
    EXPECT_EQ(BirthFacts::LuckyNumber(10), 1);
    EXPECT_EQ(BirthFacts::LuckyNumber(29), 2);
    EXPECT_EQ(BirthFacts::GoodYears(1), QList<int>({10, 19, 28, 37, 46, 55, 64, 73, 82}));
    EXPECT_TRUE(BirthFacts::GoodYears(0).isEmpty());
}
