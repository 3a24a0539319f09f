// SPDX-License-Identifier: AGPL-3.0-or-later
#include "cli/ChartCommand.h"
#include "support/TestSupport.h"
#include "yoga/clsYoga.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace {
struct CliRun
{
    int status;
    QString out;
    QString err;
};

// Runs "chart" and its options in-process.
CliRun run(const QStringList &args)
{
    QString out, err;
    QTextStream o(&out), e(&err);
    const int status = RunChartCommand(args.mid(1), o, e);
    o.flush();
    e.flush();
    return {status, out, err};
}

const QStringList kDelhi{"chart", "--date", "15/08/1980", "--time", "14.35", "--lat", "28:38N", "--lon", "77:12E", "--gmt", "+05.30"};
} // namespace

TEST(CommandLine, JsonHoldsTheChartAndThePersonAfterTheCast)
{
    ScopedSettingsStore store;
    const CliRun r = run(kDelhi + QStringList{"--json", "--name", "Asha"});
    ASSERT_EQ(r.status, 0) << r.err.toStdString();
    EXPECT_TRUE(r.err.isEmpty());
    const QJsonObject o = QJsonDocument::fromJson(r.out.toUtf8()).object();
    ASSERT_FALSE(o.isEmpty());
    const QJsonObject person = o["person"].toObject();
    EXPECT_EQ(person["name"].toString(), "Asha");
    EXPECT_EQ(person["day"].toInt(), 15);
    EXPECT_EQ(person["hour"].toInt(), 14);
    EXPECT_EQ(person["minutes"].toInt(), 35);
    EXPECT_EQ(o["ayanamsa_type"].toInt(), 1);
    EXPECT_NEAR(o["ayanamsa"].toDouble(), 23.586, 0.001);
    for (const char *key : {"kp_ayanamsa", "obliquity", "sidereal_time"})
        EXPECT_TRUE(o[key].isDouble()) << key;
    const QJsonArray planets = o["planets"].toArray();
    ASSERT_EQ(planets.size(), 13);
    EXPECT_FALSE(planets[0].toObject().contains("next"));
    EXPECT_TRUE(planets[7].toObject()["next"].isDouble());
    EXPECT_NEAR(planets[1].toObject()["longitude"].toDouble(), 119.09, 0.01); // Sun in late Cancer
    EXPECT_TRUE(planets[8].toObject()["retrograde"].toBool());                // the mean node
    EXPECT_FALSE(planets[0].toObject()["retrograde"].toBool());               // the Lagna, never
    EXPECT_EQ(o["kp_cusps"].toArray().size(), 12);
}

TEST(CommandLine, OptionsOverrideTheStoreForTheRunOnly)
{
    ScopedSettingsStore store;
    AppSettings::setAyanType(2);
    const CliRun r = run(kDelhi + QStringList{"--json", "--ayanamsa", "12", "--node", "true"});
    ASSERT_EQ(r.status, 0) << r.err.toStdString();
    const QJsonObject o = QJsonDocument::fromJson(r.out.toUtf8()).object();
    EXPECT_EQ(o["ayanamsa_type"].toInt(), 12);
    EXPECT_EQ(o["ayanamsa"].toDouble(), 0);
    EXPECT_EQ(AppSettings::AyanType(), 2);
    EXPECT_EQ(AppSettings::RahuKetuMode(), 1);
    EXPECT_FALSE(AppSettings::value("Init", "RahuKetuMode").isValid()); // nothing was written
}

TEST(CommandLine, TimeCorrectionLeavesTheClockEarlier)
{
    ScopedSettingsStore store;
    const CliRun r = run(kDelhi + QStringList{"--json", "--tcorr", "-01.00"});
    ASSERT_EQ(r.status, 0);
    const QJsonObject person = QJsonDocument::fromJson(r.out.toUtf8()).object()["person"].toObject();
    EXPECT_EQ(person["hour"].toInt(), 13);
    EXPECT_EQ(person["minutes"].toInt(), 35);
}

TEST(CommandLine, BadInputGivesTheEntryScreensMessageAndStatusTwo)
{
    ScopedSettingsStore store;
    struct Case
    {
        QStringList replace; // option, value
        const char *message;
    };
    const Case cases[] = {
        {{"--date", "31/02/1980"}, "Invalid Date: The Date You Have Entered is Invalid. Please enter a Valid Date after 1900 AD."},
        {{"--date", "31/12/1899"}, "Invalid Date"},
        {{"--time", "25.00"}, "Invalid Time: The Time You Have Entered is Invalid. Please Enter a Valid Time."},
        {{"--time", "10.60"}, "Invalid Time"},
        {{"--lat", "28:60N"}, "Invalid Lattitude: The Lattitude You Have Entered is Invalid, Please Enter A Valid Lattitude"},
        {{"--lat", "120:00N"}, "The Latitude You Have Entered is Invalid. Please Enter Valid Latitude"},
        {{"--lon", "180:00E"}, "Invalid Longitude: The Longitude You Have Entered is Invalid. Please Enter Valid Longitude"},
        {{"--lon", "77.12E"}, "Invalid Longitude"},
        {{"--gmt", "+13.00"}, "The GMT You Have Entered is Invalid, Please Enter Valid GMT"},
        {{"--ayanamsa", "16"}, "--ayanamsa takes a choice from 1 to 15."},
        {{"--node", "both"}, "--node takes mean or true."},
        {{"--tcorr", "1h"}, "The time correction must be written"},
    };
    for (const Case &c : cases) {
        QStringList args = kDelhi;
        const int at = args.indexOf(c.replace[0]);
        if (at >= 0)
            args[at + 1] = c.replace[1];
        else
            args << c.replace;
        const CliRun r = run(args);
        EXPECT_EQ(r.status, 2) << c.replace.join(' ').toStdString();
        EXPECT_TRUE(r.out.isEmpty()) << c.replace.join(' ').toStdString();
        EXPECT_TRUE(r.err.contains(QString::fromUtf8(c.message))) << r.err.toStdString();
    }
    // Generate's checks come together, in their order.
    QStringList both = kDelhi;
    both[both.indexOf("--time") + 1] = "24.60";
    both[both.indexOf("--lon") + 1] = "181:00E";
    const CliRun r = run(both);
    EXPECT_EQ(r.status, 2);
    EXPECT_LT(r.err.indexOf("Invalid Time"), r.err.indexOf("Invalid Longitude"));
    EXPECT_EQ(run({"chart", "--date", "15/08/1980"}).status, 2);
    EXPECT_EQ(run({"chart", "--bogus"}).status, 2);
}

TEST(CommandLine, MethodsWithoutAnAnswerAtAPlaceSaySo)
{
    ScopedSettingsStore store;
    QStringList args = kDelhi;
    args[args.indexOf("--lat") + 1] = "69:39N";
    const CliRun r = run(args + QStringList{"--vakya"});
    EXPECT_EQ(r.status, 2);
    EXPECT_TRUE(r.err.contains("66.5"));
    EXPECT_EQ(run(kDelhi + QStringList{"--vakya"}).status, 0);

    // The ephemeris has a Lagna there, but Placidus has no cusps: the library's are Porphyry's.
    const auto system = [](const CliRun &c) { return QJsonDocument::fromJson(c.out.toUtf8()).object()["kp_cusps_system"].toString(); };
    const CliRun polar = run(args + QStringList{"--json"});
    EXPECT_EQ(polar.status, 0);
    EXPECT_EQ(system(polar), "Porphyry");
    EXPECT_EQ(system(run(kDelhi + QStringList{"--json"})), "Placidus");
}

TEST(CommandLine, ReadableTableNamesEveryBody)
{
    ScopedSettingsStore store;
    const CliRun r = run(kDelhi);
    ASSERT_EQ(r.status, 0);
    for (const char *body : {"Lagna", "Sun", "Moon", "Rahu", "Ketu", "Pluto"})
        EXPECT_TRUE(r.out.contains(QString::fromLatin1(body))) << body;
    EXPECT_TRUE(r.out.contains("Cancer"));
}

namespace {
// The person's clock after the cast, for a birth at 10.00 local clock time at a place.
int hourAfterCast(const QString &date, const QString &place, CliRun *whole = nullptr)
{
    qputenv("ORBANTA_STUFF", ORBANTA_BINARY_DIR "/STUFF");
    const CliRun r = run({"chart", "--date", date, "--time", "10.00", "--place", place, "--json"});
    if (whole)
        *whole = r;
    return r.status == 0 ? QJsonDocument::fromJson(r.out.toUtf8()).object()["person"].toObject()["hour"].toInt() : -1;
}
} // namespace

TEST(CommandLine, PlacesTakeTheZoneHistoryOfTheBirthsOwnMoment)
{
    ScopedSettingsStore store;
    EXPECT_EQ(hourAfterCast("10/06/1944", "Delhi,India"), 9);          // war time, one hour
    EXPECT_EQ(hourAfterCast("10/06/1950", "Delhi,India"), 10);         // none
    EXPECT_EQ(hourAfterCast("04/07/1975", "New York City"), 9);        // daylight saving
    EXPECT_EQ(hourAfterCast("15/01/1975", "New York City"), 10);
    EXPECT_EQ(hourAfterCast("15/01/1969", "London,United Kingdom"), 9); // British Standard Time all year
    EXPECT_EQ(hourAfterCast("15/01/1990", "London,United Kingdom"), 10);
    CliRun r;
    hourAfterCast("10/06/1944", "Delhi,India", &r);
    const QJsonObject o = QJsonDocument::fromJson(r.out.toUtf8()).object();
    EXPECT_NEAR(o["planets"].toArray()[1].toObject()["longitude"].toDouble(), 55.1, 1.0); // the Sun in Taurus
}

TEST(CommandLine, PlacesByNameOrByTheBeginningOfOne)
{
    ScopedSettingsStore store;
    CliRun r;
    EXPECT_EQ(hourAfterCast("01/01/1980", "London", &r), -1);
    EXPECT_EQ(r.status, 2);
    EXPECT_TRUE(r.err.contains("London, Canada"));
    EXPECT_TRUE(r.err.contains("London, United Kingdom"));
    EXPECT_TRUE(r.out.isEmpty());
    hourAfterCast("01/01/1980", "Xyzzyville", &r);
    EXPECT_EQ(r.status, 2);
    EXPECT_TRUE(r.err.contains("is not in the atlas"));
    EXPECT_TRUE(r.out.isEmpty());
    // A long list ends by saying how many it left out.
    hourAfterCast("01/01/1980", "Sa", &r);
    EXPECT_EQ(r.status, 2);
    EXPECT_TRUE(r.err.contains(QRegularExpression("and \\d+ more\\.\n?$"))) << r.err.toStdString();

    // The only place that starts so is that place, with its coordinates and zone.
    hourAfterCast("01/01/1980", "mumba", &r);
    ASSERT_EQ(r.status, 0) << r.err.toStdString();
    const QJsonObject person = QJsonDocument::fromJson(r.out.toUtf8()).object()["person"].toObject();
    EXPECT_EQ(person["hour"].toInt(), 10);
    CliRun typed = run({"chart", "--date", "01/01/1980", "--time", "10.00", "--lat", "19:04N", "--lon", "72:53E", "--gmt", "+05.30",
                        "--json"});
    EXPECT_EQ(QJsonDocument::fromJson(typed.out.toUtf8()).object()["planets"],
              QJsonDocument::fromJson(r.out.toUtf8()).object()["planets"]);

    const CliRun both = run({"chart", "--date", "01/01/1980", "--time", "10.00", "--place", "Delhi", "--gmt", "+05.30"});
    EXPECT_EQ(both.status, 2);
}

// Where the Sun doesn't rise or set on the day the times are null and sun_events says why; the day
// parts are counted from day_start and day_end, the equal day's 6:00 and 18:00 local mean time,
// and Shadbala's figures stay numbers.
TEST(CommandLine, JsonTellsADayWithoutSunriseOrSunset)
{
    ScopedSettingsStore store;
    struct Case
    {
        const char *date;
        const char *events;
    };
    for (const Case k : {Case{"01/06/2021", "midnight sun"}, Case{"15/12/2021", "polar night"}, Case{"21/03/2021", "normal"}}) {
        SCOPED_TRACE(k.date);
        const CliRun r = run({"chart", "--date", k.date, "--time", "12.00", "--lat", "75:00N", "--lon", "18:57E", "--gmt", "+01.00",
                              "--json"});
        ASSERT_EQ(r.status, 0) << r.err.toStdString();
        const QJsonObject o = QJsonDocument::fromJson(r.out.toUtf8()).object();
        EXPECT_EQ(o["sun_events"].toString(), k.events);
        const bool normal = QLatin1String(k.events) == QLatin1String("normal");
        EXPECT_EQ(o["sunrise"].isNull(), !normal);
        EXPECT_EQ(o["sunset"].isNull(), !normal);
        if (normal) {
            EXPECT_EQ(o["day_start"], o["sunrise"]);
            EXPECT_EQ(o["day_end"], o["sunset"]);
        } else {
            EXPECT_DOUBLE_EQ(o["day_start"].toDouble(), 5.44);
            EXPECT_DOUBLE_EQ(o["day_end"].toDouble(), 17.44);
        }
        for (const QJsonValue &planet : o["shadbala"].toArray())
            for (const char *key : {"kala", "total", "rupas"})
                EXPECT_TRUE(planet.toObject()[key].isDouble()) << key;
    }
}

TEST(CommandLine, JsonGrowsWithTheSunBhavasPanchangAndDivisions)
{
    ScopedSettingsStore store;
    const CliRun r = run(kDelhi + QStringList{"--json"});
    ASSERT_EQ(r.status, 0) << r.err.toStdString();
    const QJsonObject o = QJsonDocument::fromJson(r.out.toUtf8()).object();
    // Sunrise before and sunset after the birth at 14.35, as hh.mm.
    EXPECT_GT(o["sunrise"].toDouble(), 5.0);
    EXPECT_LT(o["sunrise"].toDouble(), 6.3);
    EXPECT_GT(o["sunset"].toDouble(), 18.3);
    EXPECT_LT(o["sunset"].toDouble(), 19.5);
    EXPECT_EQ(o["sun_events"].toString(), "normal");
    EXPECT_EQ(o["bhava_mid"].toArray().size(), 13);
    EXPECT_EQ(o["bhava_begin"].toArray().size(), 13);
    EXPECT_DOUBLE_EQ(o["bhava_mid"].toArray()[0].toDouble(), o["planets"].toArray()[0].toObject()["longitude"].toDouble());
    const QJsonObject panchang = o["panchang"].toObject();
    for (const char *key : {"tithi", "nakshatra", "pada", "yoga", "karana", "weekday_lord", "rashi"})
        EXPECT_TRUE(panchang.contains(key)) << key;
    EXPECT_EQ(panchang["nakshatra"].toInt(), 13); // the Moon at 170 degrees: Hasta
    EXPECT_EQ(panchang["rashi"].toInt(), 6);     // Virgo
    const QJsonArray vargas = o["vargas"].toArray();
    ASSERT_EQ(vargas.size(), 18);
    ASSERT_EQ(vargas[0].toArray().size(), 13);
    EXPECT_EQ(vargas[0].toArray()[1].toInt(), 12); // row 0 holds no division and reads 12
    EXPECT_EQ(vargas[1].toArray()[1].toInt(), 4);  // the Sun in the rasi: Cancer
    EXPECT_EQ(vargas[1].toArray()[7].toInt(), 6);  // the Moon: Virgo
    EXPECT_EQ(vargas[6].toArray()[7].toInt(), 4);  // and its navamsha: Cancer
}

TEST(CommandLine, JsonListsTheCatalogueRulesThatHoldInTheClassOrder)
{
    ScopedSettingsStore store;
    const CliRun r = run(kDelhi + QStringList{"--json"});
    ASSERT_EQ(r.status, 0) << r.err.toStdString();
    const QJsonArray names = QJsonDocument::fromJson(r.out.toUtf8()).object()["catalogue"].toArray();
    ASSERT_FALSE(names.isEmpty());
    QStringList order;
    for (const clsYoga::CatalogueRule &rule : clsYoga::Catalogue())
        order << QString::fromLatin1(rule.name);
    qsizetype last = -1;
    for (const QJsonValue &n : names) {
        const qsizetype at = order.indexOf(n.toString());
        EXPECT_GT(at, last) << n.toString().toStdString();
        last = at;
    }
    // The Sun late in Cancer, the second half of an even sign, stands in the Sun's hora.
    EXPECT_TRUE(names.contains(QJsonValue("RajyaYoga2")));
}
