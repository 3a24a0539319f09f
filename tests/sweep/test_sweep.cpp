// SPDX-License-Identifier: AGPL-3.0-or-later
// Random births through every member that "chart --json" prints: no crash, nothing infinite or
// undefined, every sign, nakshatra and longitude in its range.
#include "cli/ChartCommand.h"
#include "sky/clsPlanets.h"
#include "sky/clsVakya.h"
#include "support/TestSupport.h"
#include "text/TextDB.h"

#include <QDate>
#include <QJsonArray>
#include <QJsonObject>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <random>

namespace {

// The range of a member, by its path with the array indices left out.
struct Range
{
    double low;
    double high;
    bool highIncluded;
    bool nullAllowed = false;
};

const std::map<QString, Range> &ranges()
{
    static const std::map<QString, Range> r{
        {"planets.longitude", {0, 360, false}},
        {"planets.next", {0, 360, false}},
        {"planets.n", {0, 12, true}},
        {"kp_cusps", {0, 360, false}},
        {"kp.planets.longitude", {0, 360, false}},
        {"kp.planets.sign_lord", {1, 7, true}},
        {"kp.planets.star_lord", {1, 9, true}},
        {"kp.planets.sub_lord", {0, 9, true}}, // 0 exactly at the start of a star
        {"kp.cusps.longitude", {0, 360, false}},
        {"kp.cusps.sub_lord", {0, 9, true}},
        {"kp.significators.planets.score", {6, 30, true}},
        {"kp.part_of_fortune", {0, 360, true}},
        {"bhava_mid", {0, 360, false}},
        {"bhava_begin", {0, 360, false}},
        {"sidereal_time", {0, 24, false}},
        // Null on a day the Sun doesn't rise or set; day_start and day_end are always clocks.
        {"sunrise", {0, 24, false, true}},
        {"sunset", {0, 24, false, true}},
        {"day_start", {0, 24, false}},
        {"day_end", {0, 24, false}},
        {"obliquity", {23, 24, true}},
        {"ayanamsa_type", {1, 15, true}},
        // The divisional signs; a division the table doesn't fill is Empty.
        {"vargas", {1, 12, true, true}},
        {"panchang.tithi", {1, 30, true}},
        {"panchang.nakshatra", {1, 27, true}},
        {"panchang.pada", {1, 4, true}},
        {"panchang.yoga", {1, 27, true}},
        {"panchang.karana", {1, 11, true}},
        {"panchang.weekday_lord", {1, 7, true}},
        {"panchang.rashi", {1, 12, true}},
        {"vimshottari.lord", {1, 9, true}},
        {"vimshottari.years", {0, 20, true}},
        // Null on a day without sunrise or sunset, for the day-based points and Mandi.
        {"upagrahas.longitude", {0, 360, false, true}},
        {"upagrahas.n", {1, 17, true}},
        {"dashas.tribhagi.lord", {1, 9, true}},
        {"dashas.tribhagi.bhuktis.lord", {1, 9, true}},
        {"dashas.yogini.lord", {1, 8, true}},
        {"dashas.yogini.yogini", {0, 7, true}},
        {"dashas.shat_trimsha.lord", {1, 8, true}},
        {"dashas.shat_trimsha.yogini", {0, 7, true}},
        {"ashtakavarga.varga", {0, 8, true}},
        {"ashtakavarga.total", {0, 56, true}},
        {"shadbala.planet", {1, 7, true}},
        // The five-fold friendship; a planet has none with itself.
        {"maitri", {-2, 2, true, true}},
        {"person.month", {1, 12, true}},
        {"person.day", {1, 31, true}},
        {"person.hour", {0, 24, true}}, // a moment that comes back to midnight stays 24.00 of the day before
        {"person.minutes", {0, 59, true}},
    };
    return r;
}

// Walks a JSON value and reports what is out of place, path by path.
class Walker
{
public:
    QStringList faults;
    std::map<QString, int> seen; // how often each ranged member was met

    void walk(const QJsonValue &v, const QString &path, const QString &member)
    {
        if (v.isObject()) {
            const QJsonObject o = v.toObject();
            for (auto it = o.begin(); it != o.end(); ++it) {
                const QString m = member.isEmpty() ? it.key() : member + QLatin1Char('.') + it.key();
                walk(it.value(), path + QLatin1Char('.') + it.key(), m);
            }
        } else if (v.isArray()) {
            const QJsonArray a = v.toArray();
            for (qsizetype i = 0; i < a.size(); ++i)
                walk(a[i], path + QStringLiteral("[%1]").arg(i), member);
        } else {
            leaf(v, path, member);
        }
    }

private:
    void leaf(const QJsonValue &v, const QString &path, const QString &member)
    {
        const auto r = ranges().find(member);
        if (r != ranges().end())
            ++seen[member];
        if (v.isNull()) {
            if (r == ranges().end() || !r->second.nullAllowed)
                faults << path + QStringLiteral(" is null");
            return;
        }
        if (v.isString()) {
            if (v.toString().isEmpty() && !path.endsWith(QLatin1String(".name")))
                faults << path + QStringLiteral(" is empty");
            return;
        }
        if (!v.isDouble())
            return;
        const double x = v.toDouble();
        if (!std::isfinite(x)) {
            faults << path + QStringLiteral(" = %1").arg(x);
            return;
        }
        if (r == ranges().end())
            return;
        const Range &range = r->second;
        if (x < range.low || x > range.high || (x == range.high && !range.highIncluded))
            faults << path + QStringLiteral(" = %1").arg(x, 0, 'g', 17);
    }
};

// The moment and place of one random birth, and the settings it is cast with.
struct Birth
{
    QDate date;
    int hour, minute;
    int latDeg, latMin, lonDeg, lonMin;
    bool south, west;
    double gmt;
    QString tcorr;
    int ayanamsa, node;
    bool vakya;

    QString text() const
    {
        return QStringLiteral("%1 %2:%3 %4:%5%6 %7:%8%9 gmt %10 tcorr %11 ayanamsa %12 node %13%14")
            .arg(date.toString(QStringLiteral("dd/MM/yyyy")))
            .arg(hour)
            .arg(minute, 2, 10, QLatin1Char('0'))
            .arg(latDeg)
            .arg(latMin, 2, 10, QLatin1Char('0'))
            .arg(south ? 'S' : 'N')
            .arg(lonDeg)
            .arg(lonMin, 2, 10, QLatin1Char('0'))
            .arg(west ? 'W' : 'E')
            .arg(gmt)
            .arg(tcorr)
            .arg(ayanamsa)
            .arg(node)
            .arg(vakya ? QStringLiteral(" vakya") : QString());
    }
};

Birth randomBirth(std::mt19937 &rng, int index)
{
    auto uniform = [&](int low, int high) { return std::uniform_int_distribution<int>(low, high)(rng); };
    Birth b;
    const QDate first(1900, 1, 1);
    b.date = first.addDays(uniform(0, int(first.daysTo(QDate(2100, 12, 31)))));
    b.hour = uniform(0, 23);
    b.minute = uniform(0, 59);
    // A tenth of the places lie beyond the polar circles, and some near the date line.
    b.latDeg = index % 10 == 0 ? uniform(66, 89) : uniform(0, 89);
    b.latMin = uniform(0, 59);
    b.lonDeg = index % 7 == 0 ? uniform(170, 179) : uniform(0, 179);
    b.lonMin = uniform(0, 59);
    b.south = uniform(0, 1) == 1;
    b.west = uniform(0, 1) == 1;
    // Mostly the zone of the meridian, sometimes a zone across the date line from it.
    const double zone = std::round((b.west ? -1 : 1) * (b.lonDeg + b.lonMin / 60.0) / 15 * 2) / 2;
    b.gmt = uniform(0, 4) == 0 ? uniform(-24, 24) / 2.0 : std::clamp(zone, -12.0, 12.0);
    b.tcorr = uniform(0, 5) == 0 ? QStringLiteral("-01.00") : QStringLiteral("-00.00");
    b.ayanamsa = 1 + index % 15;
    b.node = 1 + uniform(0, 1);
    b.vakya = uniform(0, 3) == 0 && clsVakya::LagnaDefined(b.latDeg, b.latMin);
    return b;
}

void castInto(const Birth &b, clsPlanets &chart)
{
    AppSettings::clearOverrides();
    AppSettings::overrideForRun(QStringLiteral("Init"), QStringLiteral("AyanType"), b.ayanamsa);
    AppSettings::overrideForRun(QStringLiteral("Init"), QStringLiteral("RahuKetuMode"), b.node);
    AppSettings::overrideForRun(QStringLiteral("Init"), QStringLiteral("Vakya"), b.vakya);
    clsPerson &p = chart.Person();
    p = MakePerson(b.date.day(), b.date.month(), b.date.year(), b.hour, b.minute, QString::number(b.gmt), b.latDeg, b.latMin,
                   b.south ? QStringLiteral("S") : QStringLiteral("N"), b.lonDeg, b.lonMin,
                   b.west ? QStringLiteral("W") : QStringLiteral("E"));
    p.setAMPM(b.hour >= 12 ? 2 : 1);
    p.setTimeCorr(b.tcorr);
    chart.Calculate();
}

// One birth in this many also goes through sunrise, sunset and Shadbala.
constexpr int kDaySample = 8;

} // namespace

TEST(Sweep, RandomBirthsGiveOnlyFiniteValuesInTheirRanges)
{
    ScopedSettingsStore store;
    QSqlDatabase db;
    ASSERT_TRUE(OpenTextDB(QStringLiteral("ENGLISH"), db));
    // ORBANTA_SWEEP_BIRTHS and ORBANTA_SWEEP_SEED widen the search by hand.
    const int births =
        qEnvironmentVariableIsSet("ORBANTA_SWEEP_BIRTHS") ? qEnvironmentVariableIntValue("ORBANTA_SWEEP_BIRTHS") : 3000;
    std::mt19937 rng(qEnvironmentVariableIsSet("ORBANTA_SWEEP_SEED") ? qEnvironmentVariableIntValue("ORBANTA_SWEEP_SEED")
                                                                     : 20240601);
    Walker walker;
    QStringList faults;
    int vakya = 0, polar = 0, polarDays = 0;
    for (int i = 0; i < births; ++i) {
        const Birth b = randomBirth(rng, i);
        vakya += b.vakya;
        polar += b.latDeg >= 66;
        clsPlanets chart;
        chart.setTextDB(db, QSqlDatabase());
        castInto(b, chart);
        walker.faults.clear();
        walker.walk(ChartCastJson(chart), QString(), QString());
        // The members that recast the chart through the day cost ten times the rest: a sample.
        if (i % kDaySample == 0) {
            const QJsonObject day = ChartDayJson(chart);
            walker.walk(day, QString(), QString());
            // The times are null exactly on the days without them, and only beyond the polar circles.
            const QString events = day[QStringLiteral("sun_events")].toString();
            const bool normal = events == QLatin1String("normal");
            if (!normal && events != QLatin1String("midnight sun") && events != QLatin1String("polar night"))
                walker.faults << QStringLiteral("sun_events reads \"%1\"").arg(events);
            if (day[QStringLiteral("sunrise")].isNull() == normal || day[QStringLiteral("sunset")].isNull() == normal)
                walker.faults << QStringLiteral("sunrise and sunset null on a %1 day").arg(events);
            if (!normal && b.latDeg < 66)
                walker.faults << QStringLiteral("%1 at %2 degrees").arg(events).arg(b.latDeg);
            polarDays += !normal;
        }
        // The cusps say which system gave them: Placidus wherever it has an answer.
        const double latitude = b.latDeg + b.latMin / 60.0;
        if ((latitude < 66.5 && !chart.KPHousesPlacidus()) || (latitude > 66.6 && chart.KPHousesPlacidus()))
            walker.faults << QStringLiteral("kp_cusps_system reads %1").arg(chart.KPHousesPlacidus() ? "Placidus" : "Porphyry");
        for (const QString &f : walker.faults)
            faults << b.text() + QStringLiteral(": ") + f;
    }
    AppSettings::clearOverrides();
    CloseTextDB(db);

    EXPECT_TRUE(faults.isEmpty()) << faults.size() << " faults, the first:\n"
                                  << faults.mid(0, 30).join(QLatin1Char('\n')).toStdString();
    // Every range was tried, so that a member renamed doesn't pass unchecked.
    for (const auto &[member, range] : ranges())
        EXPECT_GT(walker.seen[member], 0) << member.toStdString();
    EXPECT_GT(vakya, births / 8);
    EXPECT_GT(polar, births / 20);
    EXPECT_GT(polarDays, 0);
}
