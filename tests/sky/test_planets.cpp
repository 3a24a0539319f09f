// SPDX-License-Identifier: AGPL-3.0-or-later
// The chart against the ephemeris itself: the universal moment is worked out here with Qt's
// calendar, the ayanamsas from their formulas, and the positions asked of Swiss Ephemeris directly.
#include "sky/Functions.h"
#include "sky/clsPlanets.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>
#include <swephexp.h>

#include <cmath>
#include <random>

namespace {

struct Birth
{
    int d, m, y, h, min;
    double gmt; // decimal hours
    int latD, latM;
    const char *ns;
    int lonD, lonM;
    const char *ew;
    double tcorr = 0; // hours, as Val reads the correction box
};

clsPerson personOf(const Birth &b)
{
    clsPerson p = MakePerson(b.d, b.m, b.y, b.h, b.min, NumText(b.gmt), b.latD, b.latM, QString::fromLatin1(b.ns), b.lonD,
                             b.lonM, QString::fromLatin1(b.ew));
    p.setTimeCorr(NumText(b.tcorr));
    return p;
}

// The universal moment of a birth, by Qt's calendar.
QDateTime universal(const Birth &b)
{
    const double shift = -b.gmt + b.tcorr;
    return QDateTime(QDate(b.y, b.m, b.d), QTime(0, 0), Qt::UTC)
        .addSecs(qint64(b.h) * 3600 + qint64(b.min) * 60 + std::llround(shift * 3600));
}

double julianDay(const QDateTime &t)
{
    return swe_julday(t.date().year(), t.date().month(), t.date().day(), t.time().hour() + t.time().minute() / 60.0,
                      SE_GREG_CAL);
}

double tropical(double tjd, int ipl)
{
    double xx[6];
    char serr[AS_MAXCH];
    swe_calc(tjd, ipl, 0, xx, serr);
    return xx[0];
}

// The ayanamsa of a choice, from its formula.
double expectedAyanamsa(int type, const QDateTime &ut, const QDateTime &localCorrected, bool universalHourIs24)
{
    const double tjd = julianDay(ut);
    const double t = (tjd - 2415020.0) / 36525; // centuries from 1899-12-31 12:00 UT
    // A universal clock of exactly 24:00 stays on its day in the chart.
    const QDate utDate = universalHourIs24 ? ut.date().addDays(-1) : ut.date();
    const double yd = utDate.year() + (utDate.dayOfYear() - 1) / 365.2564;
    switch (type) {
    case 1: return 22.460148 + 1.396042 * t + 0.000308 * t * t;
    case 2: return (yd - 397.186) * 50.3389 / 3600;
    case 3: {
        // read from the person's fields when the ayanamsa is applied: the local clock by then
        swe_set_sid_mode(SE_SIDM_KRISHNAMURTI, 0, 0);
        return swe_get_ayanamsa(julianDay(localCorrected));
    }
    case 4: return (yd - 298.883) * 49.5 / 3600;
    case 5: return (yd - 199) * 49.636 / 3600;
    case 6: return (yd - 498) * 50 / 3600;
    case 7: return (yd - 238) * 50.3086 / 3600;
    case 8: return (yd - 320) * 50.34 / 3600;
    case 9: return (yd - 284) * 49 / 3600;
    case 10: return (yd - 384.483) * 50.277 / 3600;
    case 11: return (yd - 663) * 60.66 / 3600;
    default: return 0;
    }
}

double angleGap(double a, double b)
{
    double d = std::fmod(std::fabs(a - b), 360.0);
    return d > 180 ? 360 - d : d;
}

// Planet number -> the ephemeris' body number.
constexpr int kBody[13] = {-1, SE_SUN, SE_MERCURY, SE_VENUS, SE_MARS, SE_JUPITER, SE_SATURN, SE_MOON, -1, -1,
                           SE_URANUS, SE_NEPTUNE, SE_PLUTO};

void expectChartFollowsEphemeris(const Birth &b, int ayanType, int nodeMode)
{
    ScopedSettingsStore store;
    AppSettings::setAyanType(ayanType);
    clsPlanets chart;
    chart.setRahuKetuMode(nodeMode);
    chart.setPerson(personOf(b));
    chart.Calculate();

    const QDateTime ut = universal(b);
    const QDateTime local = ut.addSecs(std::llround(b.gmt * 3600));
    const double tjd = julianDay(ut);
    const double tjdNext = julianDay(ut.addSecs(3600));
    const bool sidereal = ayanType != 12 && ayanType != 14;
    const double utHour = b.h + b.min / 60.0 - b.gmt;
    const double ayan = sidereal ? expectedAyanamsa(ayanType, ut, local, utHour == 24 && b.tcorr == 0) : 0;
    const QString where = QStringLiteral("%1/%2/%3 %4:%5 ayanamsa %6").arg(b.d).arg(b.m).arg(b.y).arg(b.h).arg(b.min).arg(ayanType);

    EXPECT_NEAR(chart.PlanetLongi(13), ayan, 1e-9) << where.toStdString();
    for (int n = 1; n <= 12; ++n) {
        if (kBody[n] < 0)
            continue;
        EXPECT_NEAR(angleGap(chart.PlanetLongi(n), Norm360(tropical(tjd, kBody[n]) - ayan)), 0, 1e-9) << where.toStdString() << " planet " << n;
        EXPECT_NEAR(angleGap(chart.PlanetLongi(n + 13), Norm360(tropical(tjdNext, kBody[n]) - ayan)), 0, 1e-9)
            << where.toStdString() << " planet " << n << " an hour later";
    }
    const double node = tropical(tjd, nodeMode == 1 ? SE_MEAN_NODE : SE_TRUE_NODE);
    EXPECT_NEAR(angleGap(chart.PlanetLongi(8), Norm360(node - ayan)), 0, 1e-9) << where.toStdString();
    EXPECT_NEAR(angleGap(chart.PlanetLongi(9), Norm360(node + 180 - ayan)), 0, 1e-9) << where.toStdString();

    // After the cast the person holds the local clock with the correction applied.
    EXPECT_EQ(chart.Person().GetBirthDate(), local) << where.toStdString();
}

} // namespace

TEST(Planets, DayNumberCountsFromTheEndOf1899)
{
    EXPECT_EQ(clsPlanets::CalcDayNumber(31, 12, 1899), 694025);
    EXPECT_EQ(clsPlanets::CalcDayNumber(1, 1, 1900), 694026);
    EXPECT_EQ(clsPlanets::CalcDayNumber(1, 3, 2000) - clsPlanets::CalcDayNumber(28, 2, 2000), 2); // leap day
    EXPECT_EQ(clsPlanets::CalcDayNumber(1, 3, 1900) - clsPlanets::CalcDayNumber(28, 2, 1900), 1); // no leap day
    // T is Julian centuries from 1899-12-31 12:00 UT, day for day with the Julian day count.
    for (const QDate d : {QDate(1900, 1, 1), QDate(1969, 7, 20), QDate(2100, 12, 31)})
        EXPECT_EQ(clsPlanets::CalcDayNumber(d.day(), d.month(), d.year()) - 694025,
                  std::lround(swe_julday(d.year(), d.month(), d.day(), 12, SE_GREG_CAL) - 2415020.0));
}

TEST(Planets, EveryAyanamsaChoiceFollowsItsFormula)
{
    const Birth delhi{15, 8, 1980, 14, 35, 5.5, 28, 38, "N", 77, 12, "E"};
    for (int type = 1; type <= 14; ++type)
        expectChartFollowsEphemeris(delhi, type, 1);
}

TEST(Planets, CustomAyanamsaIsReadFromTheStore)
{
    ScopedSettingsStore store;
    AppSettings::setAyanType(13);
    AppSettings::setValue("Init", "CustAyan", "23.5");
    clsPlanets chart;
    chart.setPerson(personOf({1, 1, 2000, 12, 0, 0, 51, 30, "N", 0, 7, "W"}));
    chart.Calculate();
    EXPECT_DOUBLE_EQ(chart.PlanetLongi(13), 23.5);
    AppSettings::setValue("Init", "CustAyan", "not a number");
    chart.setPerson(personOf({1, 1, 2000, 12, 0, 0, 51, 30, "N", 0, 7, "W"}));
    chart.Calculate();
    EXPECT_DOUBLE_EQ(chart.PlanetLongi(13), 0);
}

TEST(Planets, TimesWestAndAcrossMidnight)
{
    // New York evening: the universal date is the next day.
    expectChartFollowsEphemeris({20, 7, 1969, 22, 56, -4, 40, 43, "N", 74, 0, "W"}, 1, 1);
    // Delhi ten past midnight: the universal date is the day before.
    expectChartFollowsEphemeris({1, 1, 2000, 0, 10, 5.5, 28, 38, "N", 77, 12, "E"}, 1, 2);
    // Across a year end and a leap day, south and west.
    expectChartFollowsEphemeris({31, 12, 1999, 21, 15, -3, 34, 36, "S", 58, 22, "W"}, 2, 1);
    expectChartFollowsEphemeris({1, 3, 2024, 1, 0, 9.5, 34, 55, "S", 138, 36, "E"}, 3, 2);
    // A war-time correction of one hour taken off.
    expectChartFollowsEphemeris({10, 6, 1943, 6, 0, 5.5, 22, 34, "N", 88, 22, "E", -1}, 1, 1);
}

TEST(Planets, ClockOfTwentyFourIsTheNextMidnight)
{
    ScopedSettingsStore store;
    clsPlanets late, early;
    late.setPerson(personOf({14, 3, 1985, 24, 0, 0, 51, 30, "N", 0, 0, "E"}));
    early.setPerson(personOf({15, 3, 1985, 0, 0, 0, 51, 30, "N", 0, 0, "E"}));
    late.Calculate();
    early.Calculate();
    for (int n = 0; n <= 25; ++n)
        EXPECT_NEAR(late.PlanetLongi(n), early.PlanetLongi(n), 1e-9) << n;
    EXPECT_EQ(late.Person().Hour(), 24);
}

TEST(Planets, NodeModesAndTheirAbsence)
{
    ScopedSettingsStore store;
    AppSettings::setValue("Init", "RahuKetuMode", 2);
    clsPlanets chart; // reads the mode when made
    EXPECT_EQ(chart.RahuKetuMode(), 2);
    chart.setPerson(personOf({5, 5, 2005, 5, 5, 0, 0, 0, "N", 0, 0, "E"}));
    chart.Calculate();
    EXPECT_NEAR(angleGap(chart.PlanetLongi(9), chart.PlanetLongi(8) + 180), 0, 1e-9);
    EXPECT_FALSE(chart.PlanetLongiIsEmpty(8));

    chart.setRahuKetuMode(3); // neither mean nor true: the nodes stay empty
    chart.setPerson(personOf({5, 5, 2005, 5, 5, 0, 0, 0, "N", 0, 0, "E"}));
    chart.Calculate();
    EXPECT_TRUE(chart.PlanetLongiIsEmpty(8));
    EXPECT_TRUE(chart.PlanetLongiIsEmpty(22));
    EXPECT_DOUBLE_EQ(chart.PlanetLongi(9), 0);
}

TEST(Planets, SweepOfBirthsFrom1900To2100)
{
    std::mt19937 rng(20261122);
    std::uniform_int_distribution<int> year(1900, 2100), month(1, 12), day(1, 28), hour(0, 23), minute(0, 59);
    std::uniform_int_distribution<int> lat(0, 60), lon(0, 179), arcmin(0, 59), type(1, 14), node(1, 2), zone(-12 * 4, 14 * 4);
    std::bernoulli_distribution coin;
    for (int i = 0; i < 120; ++i) {
        Birth b{day(rng), month(rng), year(rng), hour(rng), minute(rng), zone(rng) / 4.0, lat(rng), arcmin(rng),
                coin(rng) ? "N" : "S", lon(rng), arcmin(rng), coin(rng) ? "E" : "W"};
        if (b.y == 1900 && b.m == 1)
            b.m = 2; // keep the universal moment inside the range
        expectChartFollowsEphemeris(b, type(rng), node(rng));
    }
}

TEST(Planets, LagnaAgreesWithTheEphemerisAscendant)
{
    // The Lagna comes from the program's own sidereal time and trigonometry; it must agree with
    // the ephemeris' ascendant at the same universal moment to a small fraction of a degree.
    ScopedSettingsStore store;
    std::mt19937 rng(7);
    std::uniform_int_distribution<int> year(1900, 2100), month(1, 12), day(1, 28), hour(0, 23), lat(0, 60), lon(0, 179);
    std::bernoulli_distribution coin;
    for (int i = 0; i < 200; ++i) {
        const Birth b{day(rng), month(rng), year(rng) == 1900 ? 1901 : year(rng), hour(rng), 0, 0, lat(rng), 0, coin(rng) ? "N" : "S",
                      lon(rng), 0, coin(rng) ? "E" : "W"};
        clsPlanets chart;
        chart.setPerson(personOf(b));
        chart.Calculate();
        const double tjd = julianDay(universal(b));
        double cusps[13], ascmc[10];
        const double geoLat = (b.ns[0] == 'S' ? -1 : 1) * b.latD;
        const double geoLon = (b.ew[0] == 'W' ? -1 : 1) * b.lonD;
        swe_houses(tjd, geoLat, geoLon, 'P', cusps, ascmc);
        EXPECT_LT(angleGap(chart.PlanetLongi(0), Norm360(ascmc[0] - chart.PlanetLongi(13))), 0.15)
            << b.d << "/" << b.m << "/" << b.y << " " << b.h << "h lat " << geoLat << " lon " << geoLon;
        EXPECT_NEAR(chart.BhavMid(0), chart.PlanetLongi(0), 0);
        EXPECT_GE(chart.SidrealTime(), 0);
        EXPECT_LT(chart.SidrealTime(), 24);
    }
}

TEST(Planets, KpValuesUseTheKrishnamurtiAyanamsa)
{
    ScopedSettingsStore store;
    const Birth b{15, 8, 1980, 14, 35, 5.5, 28, 38, "N", 77, 12, "E"};
    clsPlanets chart;
    chart.setPerson(personOf(b));
    chart.Calculate();
    const QDateTime ut = universal(b);
    swe_set_sid_mode(SE_SIDM_KRISHNAMURTI, 0, 0);
    const double kpAtUt = swe_get_ayanamsa(julianDay(ut));
    const double tjd = julianDay(ut);
    double cusps[13], ascmc[10];
    swe_houses(tjd - swe_deltat(tjd), 28 + 38 / 60.0, 77.2, 'P', cusps, ascmc);
    for (int i = 1; i <= 12; ++i)
        EXPECT_NEAR(chart.KPHouse(i), Norm360(cusps[i] - kpAtUt), 1e-9) << i;
    // Read after the cast, it takes the person's local clock.
    swe_set_sid_mode(SE_SIDM_KRISHNAMURTI, 0, 0);
    EXPECT_NEAR(chart.KPAyanVal(), swe_get_ayanamsa(julianDay(ut.addSecs(5 * 3600 + 1800))), 1e-12);
}

TEST(Planets, RetrogradeIsAPlainComparison)
{
    ScopedSettingsStore store;
    clsPlanets chart;
    chart.setPlanetLongi(4, 359.9);
    chart.setPlanetLongi(17, 0.1);
    EXPECT_TRUE(chart.RetroGrade(4)); // the wrap at 360 reads as going back
    chart.setPlanetLongi(4, 10);
    chart.setPlanetLongi(17, 10.5);
    EXPECT_FALSE(chart.RetroGrade(4));
    EXPECT_DOUBLE_EQ(chart.PlanetSpeed(4), 0.5);
    chart.setPlanetLongi(13, 5);
    EXPECT_FALSE(chart.RetroGrade(13));
    EXPECT_THROW(chart.PlanetLongi(27), std::out_of_range);
}

TEST(Planets, SpeedsOfARealChart)
{
    ScopedSettingsStore store;
    clsPlanets chart;
    chart.setPerson(personOf({15, 8, 1980, 14, 35, 5.5, 28, 38, "N", 77, 12, "E"}));
    chart.Calculate();
    EXPECT_NEAR(chart.PlanetSpeed(7), 0.49, 0.1);  // the Moon, about 12 degrees a day
    EXPECT_NEAR(chart.PlanetSpeed(1), 0.04, 0.005); // the Sun, about a degree a day
    double lagnaSpeed = 0;
    chart.PlanetSpeed(0, &lagnaSpeed);
    EXPECT_GT(lagnaSpeed, 8);   // the Lagna runs through the zodiac in a day,
    EXPECT_LT(lagnaSpeed, 25);  // unevenly by sign
    EXPECT_EQ(chart.Person().GetBirthTime(), "14.35"); // the copy leaves this chart alone

    EXPECT_TRUE(clsPlanets::PlanetIsFaster(7, 2));
    EXPECT_TRUE(clsPlanets::PlanetIsSlower(6, 5));
    EXPECT_EQ(clsPlanets::PlanetGetFaster(1, 4), 1);
    EXPECT_EQ(clsPlanets::PlanetGetFaster(4, 4), 4);
    EXPECT_EQ(clsPlanets::PlanetGetSlower(8, 6), 8); // Rahu has no rank, so counts as the slower
}

TEST(Planets, LagnaSpeedOfASouthWesternPlaceMatchesARecast)
{
    ScopedSettingsStore store;
    const Birth b{3, 2, 1995, 9, 20, -3, 34, 36, "S", 58, 22, "W"};
    clsPlanets chart, later;
    chart.setPerson(personOf(b));
    chart.Calculate();
    Birth b2 = b;
    b2.h += 1;
    later.setPerson(personOf(b2));
    later.Calculate();
    EXPECT_NEAR(chart.PlanetSpeed(0), Norm360(later.PlanetLongi(0) - chart.PlanetLongi(0)), 1e-9);
}

TEST(Planets, LocalMeanTimeCorrection)
{
    ScopedSettingsStore store;
    clsPlanets chart;
    chart.setPerson(personOf({1, 1, 2000, 12, 0, 5.5, 28, 38, "N", 77, 12, "E"}));
    EXPECT_DOUBLE_EQ(chart.LTCorrection(), 21.12); // 21 min 12 s behind Indian time
    chart.setPerson(personOf({1, 1, 2000, 12, 0, -5, 40, 43, "N", 74, 0, "W"}));
    EXPECT_DOUBLE_EQ(chart.LTCorrection(), 4.0);
    chart.setPerson(personOf({1, 1, 2000, 12, 0, 0, 51, 30, "N", 0, 7, "W"}));
    EXPECT_DOUBLE_EQ(chart.LTCorrection(), 0.28);
}

TEST(Planets, SunsHalfOfTheYear)
{
    ScopedSettingsStore store;
    clsPlanets chart;
    chart.setPlanetLongi(1, 15);  // Aries
    EXPECT_EQ(chart.GetSunAyan(), 1);
    chart.setPlanetLongi(1, 120); // Leo
    EXPECT_EQ(chart.GetSunAyan(), 2);
    chart.setPlanetLongi(1, 269.9); // Sagittarius
    EXPECT_EQ(chart.GetSunAyan(), 2);
    chart.setPlanetLongi(1, 270); // Capricorn
    EXPECT_EQ(chart.GetSunAyan(), 1);
}

TEST(Planets, CopySettingToCarriesPlaceAndClockButNotTheCorrection)
{
    ScopedSettingsStore store;
    clsPlanets a, b;
    clsPerson p = personOf({3, 2, 1995, 9, 20, -3, 34, 36, "S", 58, 22, "W", -1});
    p.setSex(2);
    a.setPerson(p);
    a.CopySettingTo(b);
    EXPECT_EQ(b.Person().GetBirthDate(), a.Person().GetBirthDate());
    EXPECT_EQ(b.Person().TextNS(), "S");
    EXPECT_EQ(b.Person().TextEW(), "W");
    EXPECT_EQ(b.Person().GMTDIFF(), "-3");
    EXPECT_EQ(b.Person().TimeCorr(), "-00.00");
    EXPECT_EQ(b.Person().Sex(), 1);
}

TEST(Planets, SignHousesCountFromTheLagnasSign)
{
    ScopedSettingsStore store;
    clsPlanets chart;
    chart.setPerson(personOf({15, 8, 1980, 14, 35, 5.5, 28, 38, "N", 77, 12, "E"}));
    chart.Calculate(); // Lagna in Scorpio, Sun in Cancer, Moon in Virgo
    EXPECT_EQ(chart.PlanetHouse(0), 1);
    EXPECT_EQ(chart.PlanetHouse(1), 9);
    EXPECT_EQ(chart.PlanetHouse(7), 11);
    EXPECT_EQ(clsPlanets::GetHouseLord(8), 4);  // Scorpio: Mars
    EXPECT_EQ(clsPlanets::GetHouseLord(12), 5); // Pisces: Jupiter
}
