// SPDX-License-Identifier: AGPL-3.0-or-later
// Sunrise and sunset are the rising and setting of the Sun's ecliptic point. Here that moment is
// worked out again by bisection over universal time: the ascendant of Swiss Ephemeris' houses
// reaching the Sun's longitude (rise) or the point opposite it (set).
#include "sky/Functions.h"
#include "sky/SunEvents.h"
#include "sky/clsPlanets.h"
#include "support/TestSupport.h"

#include <QDate>

#include <gtest/gtest.h>
#include <swephexp.h>

#include <cmath>
#include <functional>
#include <string>
#include <vector>

namespace {

struct Place
{
    const char *name;
    int latD, latM;
    const char *ns;
    int lonD, lonM;
    const char *ew;
    double gmt;
};

// Latitudes up to 60 degrees, north and south, east and west.
const Place kPlaces[] = {
    {"Delhi", 28, 38, "N", 77, 12, "E", 5.5},  {"Quito", 0, 13, "S", 78, 31, "W", -5},
    {"Sydney", 33, 52, "S", 151, 13, "E", 10}, {"New York", 40, 43, "N", 74, 0, "W", -5},
    {"Helsinki", 60, 10, "N", 24, 56, "E", 2}, {"Ushuaia", 54, 48, "S", 68, 18, "W", -3},
    {"Orcadas", 60, 0, "S", 44, 44, "W", -3},  {"Anchorage", 60, 0, "N", 149, 54, "W", -10},
};

double fold(double v)
{
    v = std::fmod(v, 360);
    return v > 180 ? v - 360 : (v < -180 ? v + 360 : v);
}

double latitudeOf(const Place &p)
{
    return (p.latD + p.latM / 60.0) * (*p.ns == 'S' ? -1 : 1);
}
double longitudeOf(const Place &p)
{
    return (p.lonD + p.lonM / 60.0) * (*p.ew == 'W' ? -1 : 1);
}

void cast(clsPlanets &c, const Place &p, int d, int m, int y, int h, int min)
{
    c.setPerson(MakePerson(d, m, y, h, min, NumText(p.gmt), p.latD, p.latM, QString::fromLatin1(p.ns), p.lonD, p.lonM,
                           QString::fromLatin1(p.ew)));
    c.Calculate();
}

double universalDay(const clsPerson &p, double gmt)
{
    return swe_julday(static_cast<int>(p.Year()), static_cast<int>(p.Month()), static_cast<int>(p.Day()),
                      p.Hour() + p.Minutes() / 60.0 - gmt, SE_GREG_CAL);
}

double ascendant(double jdUt, double lat, double lon)
{
    double cusps[13], ascmc[10];
    swe_houses(jdUt, lat, lon, 'P', cusps, ascmc);
    return ascmc[0];
}

double sun(double jdUt)
{
    double xx[6];
    char serr[AS_MAXCH];
    swe_calc_ut(jdUt, SE_SUN, 0, xx, serr);
    return xx[0];
}

// The moments in [a, b] at which the ascendant passes point(t), by five-minute samples and bisection.
std::vector<double> passes(const std::function<double(double)> &point, double lat, double lon, double a, double b)
{
    const auto f = [&](double t) { return fold(ascendant(t, lat, lon) - point(t)); };
    std::vector<double> found;
    const double step = 5.0 / 1440;
    double prevT = a, prevF = f(a);
    for (double t = a + step; t <= b; t += step) {
        const double v = f(t);
        if (prevF < 0 && v >= 0 && v - prevF < 90) {
            double lo = prevT, hi = t;
            for (int i = 0; i < 40; ++i) {
                const double m = (lo + hi) / 2;
                (f(m) < 0 ? lo : hi) = m;
            }
            found.push_back((lo + hi) / 2);
        }
        prevT = t;
        prevF = v;
    }
    return found;
}

double nearest(const std::vector<double> &moments, double t)
{
    double best = 1e9;
    for (double m : moments)
        if (std::fabs(m - t) < std::fabs(best - t))
            best = m;
    return best;
}

} // namespace

// The sunrise is the moment, within a day either way, at which the Lagna reaches the Sun's
// longitude of the birth moment; the sunset the first moment after the birth at which it stands
// opposite the Sun. Both agree with the ephemeris to the minute (the sunset walk settles within a
// third of a degree, which near 60 degrees is a few minutes of time).
TEST(SunEvents, RiseAndSetAgreeWithTheEphemerisUpToSixtyDegrees)
{
    ScopedSettingsStore store;
    const int dates[][3] = {{21, 3, 1985}, {21, 6, 1999}, {23, 9, 2012}, {21, 12, 1970}, {5, 2, 2030}};
    for (const Place &place : kPlaces) {
        for (const auto &date : dates) {
            for (int hour : {9, 21}) {
                SCOPED_TRACE(QStringLiteral("%1 %2/%3/%4 %5h")
                                 .arg(QLatin1String(place.name))
                                 .arg(date[0])
                                 .arg(date[1])
                                 .arg(date[2])
                                 .arg(hour)
                                 .toStdString());
                clsPlanets chart;
                cast(chart, place, date[0], date[1], date[2], hour, 0);
                const double lat = latitudeOf(place), lon = longitudeOf(place);
                const double birth = universalDay(chart.Person(), place.gmt);

                const auto rise = SunEventChart(chart, SunEvent::Rise, 0);
                const double riseAt = universalDay(rise->Person(), place.gmt);
                const double sunAtBirth = sun(birth);
                const double riseTruth =
                    nearest(passes([&](double) { return sunAtBirth; }, lat, lon, riseAt - 0.6, riseAt + 0.6), riseAt);
                EXPECT_NEAR((riseAt - riseTruth) * 1440, 0, 1.5);
                EXPECT_EQ(chart.SunRiseTime(), Val(rise->Person().GetBirthTime()));

                const auto sets = passes([&](double t) { return Norm360(sun(t) + 180); }, lat, lon, birth, birth + 1.1);
                ASSERT_FALSE(sets.empty());
                const double setClock = std::fmod((sets.front() - birth) * 24 + hour + 24, 24) * 60;
                const double gap = std::fmod(MinToDec(chart.SunSetTime()) * 60 - setClock + 1440 + 720, 1440) - 720;
                EXPECT_NEAR(gap, 0, 5);
            }
        }
    }
}

// Each value is worked out once for a moment and place: a second call casts nothing, and a chart
// moved to another day gets its own values.
TEST(SunEvents, SunValuesAreKeptForTheirMoment)
{
    ScopedSettingsStore store;
    clsPlanets chart;
    cast(chart, kPlaces[0], 15, 8, 1980, 14, 35);

    long before = clsPlanets::CalculateCount();
    const double rise = chart.SunRiseTime();
    const long riseCost = clsPlanets::CalculateCount() - before;
    EXPECT_GT(riseCost, 0);
    EXPECT_LE(riseCost, 20);
    const double set = chart.SunSetTime();
    const double night = chart.NightDuration();

    before = clsPlanets::CalculateCount();
    EXPECT_EQ(chart.SunRiseTime(), rise);
    EXPECT_EQ(chart.SunSetTime(), set);
    EXPECT_EQ(chart.NightDuration(), night);
    EXPECT_TRUE(chart.DayBirth());
    EXPECT_NEAR(chart.DayDuration(), MinToDec(set) - MinToDec(rise), 1e-12);
    EXPECT_EQ(clsPlanets::CalculateCount(), before);

    chart.Person().AddDays(120);
    chart.Calculate();
    EXPECT_NE(chart.SunRiseTime(), rise); // mid-December: later by more than an hour
    EXPECT_GT(MinToDec(chart.SunRiseTime()), MinToDec(rise) + 0.3);
}

// A birth from sunrise to sunset is a day birth. The night (the one before a morning birth, the
// one after an afternoon birth) and the day make 24 hours, up to a day's drift of the sunrise.
TEST(SunEvents, DayBirthAndTheLengthsOfDayAndNight)
{
    ScopedSettingsStore store;
    struct Case
    {
        int hour;
        bool day;
    };
    for (const Place &place : {kPlaces[0], kPlaces[3], kPlaces[5]}) {
        for (const Case k : {Case{2, false}, Case{10, true}, Case{15, true}, Case{23, false}}) {
            SCOPED_TRACE(std::string(place.name) + " " + std::to_string(k.hour));
            clsPlanets chart;
            cast(chart, place, 3, 5, 2004, k.hour, 30);
            EXPECT_EQ(chart.DayBirth(), k.day);
            const double day = chart.DayDuration();
            const double night = chart.NightDuration();
            EXPECT_NEAR(day + night, 24, 0.1);
        }
    }
}

// Beyond the polar circles the Sun's point may not rise or set on the day. Such a day says so, and
// its sunrise and sunset are the equal day's 6:00 and 18:00 local mean time (here 18 deg 57 min E
// on zone +1: 5.44 and 17.44), not the 65 degrees' long or short day: a birth at 75 N on 1 June
// once read a sunrise at 1.41 and a sunset at 21.44. Day and night are 12 hours each.
TEST(SunEvents, DaysWithoutSunriseOrSunsetFollowTheEqualDay)
{
    ScopedSettingsStore store;
    struct Case
    {
        int latD;
        const char *ns;
        int day, month;
        SunDay kind;
    };
    const Case cases[] = {{75, "N", 1, 6, SunDay::MidnightSun}, {75, "N", 15, 12, SunDay::PolarNight},
                          {70, "N", 21, 6, SunDay::MidnightSun}, {80, "S", 21, 6, SunDay::PolarNight},
                          {80, "S", 21, 12, SunDay::MidnightSun}, {89, "N", 1, 4, SunDay::MidnightSun}};
    for (const Case &k : cases) {
        for (int hour : {3, 11, 19}) {
            SCOPED_TRACE(std::to_string(k.latD) + k.ns + " " + std::to_string(k.day) + "/" + std::to_string(k.month) + " "
                         + std::to_string(hour));
            const Place polar{"polar", k.latD, 0, k.ns, 18, 57, "E", 1};
            clsPlanets chart;
            cast(chart, polar, k.day, k.month, 2021, hour, 0);
            EXPECT_EQ(SunDayKind(chart), k.kind);
            const long before = clsPlanets::CalculateCount();
            EXPECT_DOUBLE_EQ(chart.SunRiseTime(), 5.44);
            EXPECT_DOUBLE_EQ(chart.SunSetTime(), 17.44);
            EXPECT_DOUBLE_EQ(chart.NextSunRiseTime(), 5.44);
            EXPECT_DOUBLE_EQ(chart.DayDuration(), 12);
            EXPECT_DOUBLE_EQ(chart.NightDuration(), 12);
            EXPECT_EQ(chart.DayBirth(), hour == 11);
            EXPECT_EQ(clsPlanets::CalculateCount(), before); // nothing searched for
        }
    }
    // The clock of the equal day moves with the place's meridian, west as well as east.
    clsPlanets west;
    cast(west, Place{"Utqiagvik", 71, 17, "N", 156, 47, "W", -9}, 1, 6, 2021, 12, 0);
    EXPECT_EQ(SunDayKind(west), SunDay::MidnightSun);
    EXPECT_DOUBLE_EQ(west.SunRiseTime(), 7.27); // 156 deg 47 min W runs 1 h 27 min behind zone -9
    EXPECT_DOUBLE_EQ(west.SunSetTime(), 19.27);
}

// A day beyond the polar circles that has a sunrise and a sunset keeps the times of 65 degrees on
// the same meridian, where the Lagna is bound (the Lagna and bhavas are those of 65 degrees).
TEST(SunEvents, PolarDaysWithSunriseTakeTheSunOfTheBoundLatitude)
{
    ScopedSettingsStore store;
    for (const char *ns : {"N", "S"}) {
        for (int hour : {3, 11, 17}) {
            SCOPED_TRACE(std::string(ns) + " " + std::to_string(hour));
            const Place polar{"polar", 75, 0, ns, 18, 57, "E", 1};
            const Place bound{"bound", 65, 0, ns, 18, 57, "E", 1};
            clsPlanets far, at;
            cast(far, polar, 21, 3, 2021, hour, 0);
            cast(at, bound, 21, 3, 2021, hour, 0);
            EXPECT_EQ(SunDayKind(far), SunDay::Normal);
            EXPECT_EQ(far.PlanetLongi(0), at.PlanetLongi(0));
            EXPECT_EQ(far.BhavMid(4), at.BhavMid(4));
            EXPECT_EQ(far.SunRiseTime(), at.SunRiseTime());
            EXPECT_EQ(far.SunSetTime(), at.SunSetTime());
            EXPECT_EQ(far.NightDuration(), at.NightDuration());
            EXPECT_NEAR(far.DayDuration(), 12, 1);
        }
    }
}

// At 69 N the midnight sun lasts from late May to late July: one unbroken run of days, each told
// by the Sun's declination (from the ephemeris, at local mean noon) against 90 - 69 = 21 degrees.
// On the days either side the day's sunrise is searched for while the neighbour day's follows the
// equal day, and day and night still come out finite.
TEST(SunEvents, TheEdgeDaysOfTheMidnightSunAtSixtyNineNorth)
{
    ScopedSettingsStore store;
    const Place place{"69N", 69, 0, "N", 18, 57, "E", 1};
    QDate day(2021, 5, 1);
    int runs = 0, polar = 0;
    SunDay previous = SunDay::Normal;
    for (; day <= QDate(2021, 7, 31); day = day.addDays(1)) {
        SCOPED_TRACE(day.toString(Qt::ISODate).toStdString());
        clsPlanets chart;
        cast(chart, place, day.day(), day.month(), day.year(), 12, 0);
        const SunDay kind = SunDayKind(chart);
        EXPECT_NE(kind, SunDay::PolarNight);
        runs += kind == SunDay::MidnightSun && previous != SunDay::MidnightSun;
        polar += kind == SunDay::MidnightSun;
        // Local mean noon at 18 deg 57 min E on zone +1 is 11:44 zone clock, 10:44 UT.
        double xx[6];
        char serr[AS_MAXCH];
        swe_calc_ut(swe_julday(day.year(), day.month(), day.day(), 12 - 18.95 / 15, SE_GREG_CAL), SE_SUN, SEFLG_EQUATORIAL, xx,
                    serr);
        if (std::fabs(xx[1] - 21) > 0.01) {
            EXPECT_EQ(kind == SunDay::MidnightSun, xx[1] > 21) << xx[1];
        }
        // Every day, and so the days either side of a change, where the search and the equal day meet.
        EXPECT_GT(chart.DayDuration(), 11);
        EXPECT_LE(chart.DayDuration(), 24);
        EXPECT_GT(chart.NightDuration(), 0);
        EXPECT_LE(chart.NightDuration(), 12);
        previous = kind;
    }
    EXPECT_EQ(runs, 1);
    EXPECT_GT(polar, 50);
    EXPECT_LT(polar, 70);
}

// Away from the poles nothing changed: the times of three births as they were before days without
// sunrise were told apart.
TEST(SunEvents, TimesAtOrdinaryLatitudesAreUnchanged)
{
    ScopedSettingsStore store;
    clsPlanets delhi, ushuaia;
    cast(delhi, kPlaces[0], 15, 8, 1980, 14, 35);
    cast(ushuaia, kPlaces[5], 3, 5, 2004, 10, 30);
    EXPECT_EQ(SunDayKind(delhi), SunDay::Normal);
    EXPECT_EQ(SunDayKind(ushuaia), SunDay::Normal);
    EXPECT_DOUBLE_EQ(delhi.SunRiseTime(), 5.56);
    EXPECT_DOUBLE_EQ(delhi.SunSetTime(), 18.56);
    EXPECT_DOUBLE_EQ(ushuaia.SunRiseTime(), 9.06);
    EXPECT_DOUBLE_EQ(ushuaia.SunSetTime(), 17.54);
}

// Up to the bound the program's own ascendant formula gives the ecliptic's rising point, at every
// sidereal time: north and south, just inside the bound (a little further south its choice of
// half circle starts to fail).
TEST(SunEvents, TheLagnaIsTheRisingPointUpToTheBound)
{
    ScopedSettingsStore store;
    for (const char *ns : {"N", "S"}) {
        for (int latD : {50, 64}) {
            const Place place{"", latD, 59, ns, 10, 0, "E", 0};
            for (int minutes = 0; minutes < 24 * 60; minutes += 17) {
                clsPlanets chart;
                cast(chart, place, 1, 1, 2000, minutes / 60, minutes % 60);
                const double jd = universalDay(chart.Person(), 0);
                const double tropical = Norm360(chart.PlanetLongi(0) + chart.PlanetLongi(13));
                ASSERT_NEAR(fold(tropical - ascendant(jd, latitudeOf(place), 10)), 0, 0.1)
                    << latD << ns << " at minute " << minutes;
            }
        }
    }
}
