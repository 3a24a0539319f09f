// SPDX-License-Identifier: AGPL-3.0-or-later
#include "session/ZoneHistory.h"

#include <QTimeZone>

#include <gtest/gtest.h>

namespace {

ZoneMoment at(const char *zone, int y, int m, int d, int hh, int mm)
{
    return ZoneHistory::At(QString::fromLatin1(zone), QDate(y, m, d), QTime(hh, mm));
}

QDateTime utc(int y, int m, int d, int hh, int mm)
{
    return QDateTime(QDate(y, m, d), QTime(hh, mm), Qt::UTC);
}

void expectState(const ZoneMoment &z, const char *standard, const char *correction, int index)
{
    EXPECT_TRUE(z.valid);
    EXPECT_EQ(z.standardText, QString::fromLatin1(standard));
    EXPECT_EQ(z.correctionText, QString::fromLatin1(correction));
    EXPECT_EQ(z.correctionIndex, index);
}

} // namespace

TEST(ZoneHistory, IndiaWarTimeIsStandardTimePlusAnHour)
{
    const ZoneMoment war = at("Asia/Kolkata", 1944, 6, 1, 10, 0);
    expectState(war, "+05.30", "-01.00", 3);
    EXPECT_DOUBLE_EQ(war.standardHours, 5.5);
    EXPECT_DOUBLE_EQ(war.correctionHours, 1.0);
    EXPECT_EQ(war.utc, utc(1944, 6, 1, 3, 30));

    // War time began in October 1941 and paused from May to September 1942.
    expectState(at("Asia/Kolkata", 1941, 12, 1, 12, 0), "+05.30", "-01.00", 3);
    expectState(at("Asia/Kolkata", 1942, 7, 1, 12, 0), "+05.30", "-00.00", 0);
    expectState(at("Asia/Kolkata", 1945, 10, 20, 12, 0), "+05.30", "-00.00", 0);

    const ZoneMoment now = at("Asia/Kolkata", 2000, 6, 15, 12, 0);
    expectState(now, "+05.30", "-00.00", 0);
    EXPECT_EQ(now.utc, utc(2000, 6, 15, 6, 30));
}

TEST(ZoneHistory, StandardOffsetsThatChangedStayStandard)
{
    // Madras time, 5:21:10, before India's standard time of 1906: minutes in the text,
    // the seconds kept in the hours and in the universal time.
    const ZoneMoment madras = at("Asia/Kolkata", 1900, 1, 1, 12, 0);
    expectState(madras, "+05.21", "-00.00", 0);
    EXPECT_NEAR(madras.standardHours, 5 + 21 / 60.0 + 10 / 3600.0, 1e-12);
    EXPECT_EQ(madras.utc, QDateTime(QDate(1900, 1, 1), QTime(6, 38, 50), Qt::UTC));

    expectState(at("Asia/Singapore", 1970, 1, 1, 12, 0), "+07.30", "-00.00", 0);
    expectState(at("Asia/Singapore", 1990, 1, 1, 12, 0), "+08.00", "-00.00", 0);
    // Moscow's year-round +04 of 2011-14 was its standard time, not summer time.
    expectState(at("Europe/Moscow", 2012, 12, 1, 12, 0), "+04.00", "-00.00", 0);
}

TEST(ZoneHistory, UnitedStatesDaylightAndWarTime)
{
    const ZoneMoment summer = at("America/New_York", 1975, 7, 15, 12, 0);
    expectState(summer, "-05.00", "-01.00", 1);
    EXPECT_DOUBLE_EQ(summer.standardHours, -5.0);
    EXPECT_EQ(summer.utc, utc(1975, 7, 15, 16, 0));
    expectState(at("America/New_York", 1975, 1, 15, 12, 0), "-05.00", "-00.00", 0);
    // Eastern War Time ran all year from February 1942.
    expectState(at("America/New_York", 1943, 1, 15, 12, 0), "-05.00", "-01.00", 3);
}

TEST(ZoneHistory, BritishSummerAndStandardTime)
{
    expectState(at("Europe/London", 1990, 7, 1, 12, 0), "+00.00", "-01.00", 2);
    expectState(at("Europe/London", 1990, 1, 1, 12, 0), "+00.00", "-00.00", 0);
    // British Standard Time, October 1968 to October 1971: UTC+1 all year, which the tz
    // database holds as standard time; it stays Greenwich time with an hour of summer time.
    expectState(at("Europe/London", 1968, 3, 1, 12, 0), "+00.00", "-01.00", 2);
    const ZoneMoment winter = at("Europe/London", 1968, 12, 25, 12, 0);
    expectState(winter, "+00.00", "-01.00", 2);
    EXPECT_EQ(winter.utc, utc(1968, 12, 25, 11, 0));
    expectState(at("Europe/London", 1970, 1, 15, 12, 0), "+00.00", "-01.00", 2);
    expectState(at("Europe/London", 1971, 12, 1, 12, 0), "+00.00", "-00.00", 0);
    // Double summer time of the war.
    expectState(at("Europe/London", 1944, 7, 1, 12, 0), "+00.00", "-02.00", 3);
}

TEST(ZoneHistory, WinterFlaggedAsDaylightLeavesTheLowerOffsetStandard)
{
    // Ireland's winter is negative daylight time in the tz database.
    expectState(at("Europe/Dublin", 2020, 1, 15, 12, 0), "+00.00", "-00.00", 0);
    expectState(at("Europe/Dublin", 2020, 7, 15, 12, 0), "+00.00", "-01.00", 2);
    expectState(at("Europe/Dublin", 1969, 1, 15, 12, 0), "+00.00", "-01.00", 2);
    // Morocco's +01 is broken by Ramadan at +00.
    expectState(at("Africa/Casablanca", 2024, 1, 15, 12, 0), "+00.00", "-01.00", 1);
    expectState(at("Africa/Casablanca", 2024, 3, 20, 12, 0), "+00.00", "-00.00", 0);
    // Namibia left its +01 winters in 2017 for +02 all year.
    expectState(at("Africa/Windhoek", 2010, 1, 15, 12, 0), "+01.00", "-01.00", 1);
    expectState(at("Africa/Windhoek", 2020, 1, 15, 12, 0), "+02.00", "-00.00", 0);
}

TEST(ZoneHistory, SouthernSummerAndHalfHourShifts)
{
    expectState(at("Australia/Sydney", 2000, 1, 15, 12, 0), "+10.00", "-01.00", 1);
    expectState(at("Australia/Sydney", 2000, 7, 15, 12, 0), "+10.00", "-00.00", 0);
    // Lord Howe moves its clock by half an hour, which the chart reads as 0.5 hours.
    const ZoneMoment howe = at("Australia/Lord_Howe", 2000, 1, 15, 12, 0);
    expectState(howe, "+10.30", "-00.50", 1);
    EXPECT_EQ(howe.utc, utc(2000, 1, 15, 1, 0));
}

TEST(ZoneHistory, SkippedAndRepeatedClockTimes)
{
    // 25 April 1976, New York: 02:00 became 03:00; 02:30 is read as standard time.
    const ZoneMoment gap = at("America/New_York", 1976, 4, 25, 2, 30);
    EXPECT_TRUE(gap.skipped);
    EXPECT_FALSE(gap.repeated);
    expectState(gap, "-05.00", "-00.00", 0);
    EXPECT_EQ(gap.utc, utc(1976, 4, 25, 7, 30));
    const ZoneMoment after = at("America/New_York", 1976, 4, 25, 3, 30);
    EXPECT_FALSE(after.skipped);
    expectState(after, "-05.00", "-01.00", 1);

    // 31 October 1976: 01:00 to 02:00 came twice; the first, still daylight time, is taken.
    const ZoneMoment fold = at("America/New_York", 1976, 10, 31, 1, 30);
    EXPECT_TRUE(fold.repeated);
    EXPECT_FALSE(fold.skipped);
    expectState(fold, "-05.00", "-01.00", 1);
    EXPECT_EQ(fold.utc, utc(1976, 10, 31, 5, 30));

    // A gap made by a change of standard offset: Singapore went from +07.30 to +08.00 at
    // 23:30 on the last day of 1981.
    const ZoneMoment jump = at("Asia/Singapore", 1981, 12, 31, 23, 45);
    EXPECT_TRUE(jump.skipped);
    expectState(jump, "+07.30", "-00.00", 0);
    EXPECT_EQ(jump.utc, utc(1981, 12, 31, 16, 15));

    // India's war time ended at midnight on 14/15 October 1945: 23:00 to 24:00 came twice.
    const ZoneMoment end = at("Asia/Kolkata", 1945, 10, 14, 23, 30);
    EXPECT_TRUE(end.repeated);
    expectState(end, "+05.30", "-01.00", 3);
}

TEST(ZoneHistory, StandardPlusCorrectionIsTheClockOffsetEverywhere)
{
    const QStringList zones{
        QStringLiteral("Asia/Kolkata"),     QStringLiteral("America/New_York"),  QStringLiteral("Europe/London"),
        QStringLiteral("Europe/Dublin"),    QStringLiteral("Africa/Casablanca"), QStringLiteral("Africa/Windhoek"),
        QStringLiteral("Australia/Sydney"), QStringLiteral("Europe/Moscow"),     QStringLiteral("Asia/Kathmandu"),
        QStringLiteral("America/St_Johns"), QStringLiteral("Europe/Lisbon"),     QStringLiteral("Asia/Tehran"),
        QStringLiteral("Pacific/Apia"),     QStringLiteral("America/Sao_Paulo"), QStringLiteral("Europe/Berlin"),
    };
    for (const QString &name : zones) {
        const ZoneHistory history(name);
        ASSERT_TRUE(history.IsValid()) << name.toStdString();
        const QTimeZone zone(name.toUtf8());
        for (QDate d(1900, 1, 10); d.year() <= 2025; d = d.addDays(47)) {
            const ZoneMoment z = history.At(d, QTime(13, 17));
            const std::string where = name.toStdString() + " " + d.toString(Qt::ISODate).toStdString();
            ASSERT_GE(z.correctionSeconds, 0) << where;
            ASSERT_EQ(z.correctionIndex == 0, z.correctionSeconds == 0) << where;
            ASSERT_EQ(z.standardText, ZoneHistory::GmtText(z.standardSeconds)) << where;
            if (!z.skipped) {
                ASSERT_EQ(zone.offsetFromUtc(z.utc), z.standardSeconds + z.correctionSeconds) << where;
                ASSERT_EQ(z.utc.addSecs(z.standardSeconds + z.correctionSeconds), QDateTime(d, QTime(13, 17), Qt::UTC)) << where;
            }
        }
    }
}

TEST(ZoneHistory, BoxTextsAndUnknownZones)
{
    EXPECT_EQ(ZoneHistory::GmtText(19800), QStringLiteral("+05.30"));
    EXPECT_EQ(ZoneHistory::GmtText(-12600), QStringLiteral("-03.30"));
    EXPECT_EQ(ZoneHistory::GmtText(0), QStringLiteral("+00.00"));
    EXPECT_EQ(ZoneHistory::GmtText(-25), QStringLiteral("+00.00"));
    EXPECT_EQ(ZoneHistory::GmtText(-1521), QStringLiteral("-00.25")); // Dublin Mean Time
    EXPECT_EQ(ZoneHistory::GmtText(50400), QStringLiteral("+14.00"));
    EXPECT_EQ(ZoneHistory::CorrectionText(3600), QStringLiteral("-01.00"));
    EXPECT_EQ(ZoneHistory::CorrectionText(7200), QStringLiteral("-02.00"));
    EXPECT_EQ(ZoneHistory::CorrectionText(1800), QStringLiteral("-00.50"));
    EXPECT_EQ(ZoneHistory::CorrectionText(1200), QStringLiteral("-00.33"));
    EXPECT_EQ(ZoneHistory::CorrectionText(0), QStringLiteral("-00.00"));

    EXPECT_EQ(ZoneHistory::CorrectionKind(QStringLiteral("Asia/Kolkata"), QDate(1944, 1, 1), 3600), 3);
    EXPECT_EQ(ZoneHistory::CorrectionKind(QStringLiteral("Europe/Paris"), QDate(1939, 8, 31), 3600), 2);
    EXPECT_EQ(ZoneHistory::CorrectionKind(QStringLiteral("Atlantic/Madeira"), QDate(1990, 7, 1), 3600), 2);
    EXPECT_EQ(ZoneHistory::CorrectionKind(QStringLiteral("America/Chicago"), QDate(1946, 7, 1), 3600), 1);
    EXPECT_EQ(ZoneHistory::CorrectionKind(QStringLiteral("Europe/Paris"), QDate(1944, 1, 1), 0), 0);

    const ZoneMoment unknown = at("Nowhere/Atlantis", 1980, 5, 6, 7, 8);
    EXPECT_FALSE(unknown.valid);
    EXPECT_FALSE(ZoneHistory(QStringLiteral("Nowhere/Atlantis")).IsValid());
    EXPECT_EQ(unknown.standardText, QStringLiteral("+00.00"));
    EXPECT_EQ(unknown.correctionText, QStringLiteral("-00.00"));
    EXPECT_EQ(unknown.utc, utc(1980, 5, 6, 7, 8));
}
