// SPDX-License-Identifier: AGPL-3.0-or-later
// The day-based upagrahas and Mandi: the moments of the parts of the day and night worked out by
// hand from the chart's own sunrise, sunset and lengths, the Lagna of a second chart cast at that
// moment, the two schools, the kept values, and places where the Sun doesn't rise or set.
#include "sky/AppSettings.h"
#include "sky/Functions.h"
#include "sky/SunEvents.h"
#include "support/EnglishChart.h"

#include <cmath>

namespace {

class DayUpagrahas : public EnglishChart
{
protected:
    // Delhi on the given date and clock.
    void born(int day, int month, int year, int hour, int minutes, int latDeg = 28, const char *gmt = "5.5")
    {
        chart.Person() = MakePerson(day, month, year, hour, minutes, gmt, latDeg, 38, "N", 77, 12, "E");
        chart.Calculate();
    }
    // The clock moment `hours` after midnight of date, to the minute as the moment chart takes it.
    static QDateTime at(const QDate &date, double hours)
    {
        const long h = static_cast<long>(Fix(hours));
        return QDateTime(date, QTime(0, 0), Qt::UTC).addSecs(h * 3600 + CLng(Frac(hours) * 60) * 60);
    }
    // The Lagna of this place at a clock moment, cast from scratch.
    double lagnaAt(const QDateTime &moment)
    {
        clsPlanets other;
        other.Person() = chart.Person();
        other.Person().SetBirthDate(moment);
        other.Calculate();
        return other.PlanetLongi(0);
    }
    double rise() { return MinToDec(chart.SunRiseTime()); }
    double set() { return MinToDec(chart.SunSetTime()); }
};

} // namespace

TEST_F(DayUpagrahas, TheDayPartsStartFromTheWeekdaysOwnPart)
{
    // Sunday afternoon: the parts count from the first, so in the school of starts Kala rises with
    // the Sun and Gulika begins the seventh part, three quarters through the day.
    born(17, 8, 1980, 14, 35);
    ASSERT_TRUE(chart.DayBirth());
    ASSERT_TRUE(chart.DayPartsHaveSun());
    const QDate sunday(1980, 8, 17);
    EXPECT_EQ(chart.UpagrahaMoment(10, 2), at(sunday, rise()));
    EXPECT_NEAR(chart.DayPartUpagraha(10, 2), lagnaAt(at(sunday, rise())), 1e-9);
    EXPECT_EQ(chart.UpagrahaMoment(16, 2), at(sunday, rise() + chart.DayDuration() / 8 * 6));
    // The Lagna at sunrise lies on the Sun's own point, to the time search's few arc minutes.
    EXPECT_LT(std::fabs(Norm360(chart.DayPartUpagraha(10, 2) - chart.PlanetLongi(1) + 180) - 180), 1.0);

    // Saturday: Gulika's part 6 less six is 0, so it too rises with the Sun.
    born(16, 8, 1980, 10, 0);
    ASSERT_TRUE(chart.DayBirth());
    EXPECT_EQ(chart.UpagrahaMoment(16, 2), at(QDate(1980, 8, 16), rise()));

    // Wednesday: Kala's part 1 in the school of ends less three is -2, which gains 7: the sixth part.
    born(20, 8, 1980, 9, 0);
    ASSERT_TRUE(chart.DayBirth());
    EXPECT_EQ(chart.UpagrahaMoment(10, 1), at(QDate(1980, 8, 20), rise() + chart.DayDuration() / 8 * 5));
    // Paridhi's part 2 less three is -1: part 6, the seventh; Mrityu's 3 less three stays 0.
    EXPECT_EQ(chart.UpagrahaMoment(11, 1), at(QDate(1980, 8, 20), rise() + chart.DayDuration() / 8 * 6));
    EXPECT_EQ(chart.UpagrahaMoment(12, 1), at(QDate(1980, 8, 20), rise()));
}

TEST_F(DayUpagrahas, NightPartsRunPastMidnightAndSmallHoursBelongToTheEveningBefore)
{
    // Sunday evening: Ardhaprahara of the school of ends takes night part 7, the eighth, which
    // begins after midnight and so on Monday's date.
    born(17, 8, 1980, 22, 10);
    ASSERT_FALSE(chart.DayBirth());
    const double night = chart.NightDuration();
    const double eighth = set() + night / 8 * 7;
    ASSERT_GE(eighth, 24);
    EXPECT_EQ(chart.UpagrahaMoment(13, 1), at(QDate(1980, 8, 18), eighth - 24));
    EXPECT_NEAR(chart.ArdhaPraharLong(), lagnaAt(at(QDate(1980, 8, 18), eighth - 24)), 1e-9);
    // Mandi on a Sunday night: 10 ghatis, a third of the night, after sunset.
    EXPECT_EQ(chart.UpagrahaMoment(17, 1), at(QDate(1980, 8, 17), set() + 10 / 30.0 * night));

    // Three in the morning on Monday is still Sunday's night: its parts count from Sunday's sunset
    // and by Sunday's rule (Kala of the school of starts in part 3, Mandi at 10 ghatis).
    born(18, 8, 1980, 3, 0);
    ASSERT_FALSE(chart.DayBirth());
    const double sundaySet = MinToDec(NeighbourSunEvent(chart, SunEvent::Set, -1));
    const double span = chart.NightDuration();
    EXPECT_EQ(chart.UpagrahaMoment(10, 2), at(QDate(1980, 8, 17), sundaySet + span / 8 * 3));
    EXPECT_EQ(chart.UpagrahaMoment(17, 1), at(QDate(1980, 8, 17), sundaySet + 10 / 30.0 * span));
    // The night before Monday's dawn lasts from about 19:00 to about 5:50.
    EXPECT_NEAR(span, 10.8, 0.3);
}

TEST_F(DayUpagrahas, TheSchoolOfEndsIsOnePartLaterThanTheSchoolOfStarts)
{
    for (const auto &[hour, day] : {std::pair{11, true}, std::pair{23, false}}) {
        born(15, 8, 1980, hour, 0);
        ASSERT_EQ(chart.DayBirth(), day);
        for (int n = 10; n <= 15; ++n)
            EXPECT_EQ(chart.DayPartUpagraha(n, 1), chart.DayPartUpagraha(n + 1, 2)) << n << (day ? " by day" : " by night");
        EXPECT_NE(chart.DayPartUpagraha(16, 1), chart.DayPartUpagraha(16, 2));
    }
}

TEST_F(DayUpagrahas, PointsAreKeptUntilTheNextCastOrAChangeOfSchool)
{
    born(15, 8, 1980, 14, 35);
    EXPECT_EQ(chart.UpagrahaMode(), 1) << "the default school";
    const double gulika = chart.GulikaLong();
    const double mandi = chart.MandiLong();
    const long casts = clsPlanets::CalculateCount();
    EXPECT_EQ(chart.GulikaLong(), gulika);
    EXPECT_EQ(chart.MandiLong(), mandi);
    EXPECT_EQ(chart.UpagrahaLongi(16), gulika);
    EXPECT_EQ(chart.UpagrahaLongi(17), mandi);
    EXPECT_EQ(clsPlanets::CalculateCount(), casts) << "a kept point costs no cast";
    EXPECT_EQ(chart.GulikaSign(), clsPlanets::UpagrahaSignOf(gulika));

    // The other school is written to the store at once and read back by a new chart.
    chart.setUpagrahaMode(2);
    EXPECT_EQ(AppSettings::value("Settings", "UpagrahaMode").toInt(), 2);
    EXPECT_EQ(chart.GulikaLong(), chart.DayPartUpagraha(16, 2));
    EXPECT_NE(chart.GulikaLong(), gulika);
    clsPlanets fresh;
    EXPECT_EQ(fresh.UpagrahaMode(), 2);
    // A school that doesn't exist changes nothing.
    chart.setUpagrahaMode(3);
    EXPECT_EQ(chart.UpagrahaMode(), 2);
    EXPECT_EQ(AppSettings::value("Settings", "UpagrahaMode").toInt(), 2);

    // A new cast for another day works the points out again (on the same day Mandi stays where it was).
    born(16, 8, 1980, 14, 35);
    EXPECT_NE(chart.MandiLong(), mandi);
    EXPECT_EQ(chart.UpagrahaLongi(0), 0);
    EXPECT_EQ(chart.UpagrahaLongi(18), 0);
}

TEST_F(DayUpagrahas, WithoutSunriseOrSunsetThereIsNoDayPartToCount)
{
    // 75 degrees north: midnight sun in June, polar night in December. The Sun-based points stand;
    // the day-based ones and Mandi have no value rather than a made-up one.
    for (const auto &[day, month] : {std::pair{1, 6}, std::pair{15, 12}}) {
        born(day, month, 2021, 10, 0, 75, "1");
        EXPECT_FALSE(chart.DayPartsHaveSun()) << month;
        EXPECT_TRUE(chart.UpagrahaKnown(9));
        for (int n = 10; n <= 17; ++n) {
            EXPECT_FALSE(chart.UpagrahaKnown(n)) << n;
            EXPECT_EQ(chart.UpagrahaLongi(n), 0) << n;
            EXPECT_FALSE(chart.UpagrahaMoment(n, 1).isValid()) << n;
        }
    }
    // At 68 degrees in March the Sun rises and sets: the points are the Lagna, bounded to 65
    // degrees, at moments inside the day.
    born(21, 3, 2021, 10, 0, 68, "1");
    ASSERT_TRUE(chart.DayPartsHaveSun());
    for (int n = 10; n <= 17; ++n) {
        const double l = chart.UpagrahaLongi(n);
        EXPECT_TRUE(l > 0 && l < 360) << n;
        const QDateTime m = chart.UpagrahaMoment(n, 1);
        EXPECT_EQ(m.date(), QDate(2021, 3, 21)) << n;
        EXPECT_NEAR(l, lagnaAt(m), 1e-9) << n;
    }
}
