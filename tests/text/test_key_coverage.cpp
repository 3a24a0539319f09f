// SPDX-License-Identifier: AGPL-3.0-or-later
// Every key that the chart's word members can ask for is in the English database: a sweep of
// varied charts through all of them, failing on any "Item Not Found".
#include "sky/clsPlanets.h"
#include "support/TestSupport.h"
#include "sky/MessageSink.h"
#include "text/TextDB.h"

#include <gtest/gtest.h>

#include <QSet>

#include <array>

namespace {

class KeySink final : public MessageSink
{
public:
    void warn(const QString &title, const QString &text) override { missing.insert(title + QStringLiteral(": ") + text); }
    void fatal(const QString &title, const QString &text) override { warn(title, text); }
    QSet<QString> missing;
};

struct Place
{
    const char *gmt;
    int latDeg, latMin;
    const char *ns;
    int lonDeg, lonMin;
    const char *ew;
};
// North and south, east and west, near the equator and far from it.
inline constexpr std::array<Place, 8> kPlaces{{
    {"5.5", 28, 38, "N", 77, 12, "E"},   // Delhi
    {"-5", 40, 43, "N", 74, 0, "W"},     // New York
    {"10", 33, 52, "S", 151, 12, "E"},   // Sydney
    {"-3", 23, 33, "S", 46, 38, "W"},    // Sao Paulo
    {"0", 51, 30, "N", 0, 7, "W"},       // London
    {"3", 0, 19, "N", 32, 35, "E"},      // Kampala
    {"12", 41, 17, "S", 174, 46, "E"},   // Wellington
    {"-10", 21, 18, "N", 157, 51, "W"},  // Honolulu
}};
static_assert(kPlaces.size() == 8);

// Every member that reads text, over the whole range of its keys that the chart can give.
void readAllWords(const clsPlanets &c)
{
    const QDate born(static_cast<int>(c.Person().Year()), static_cast<int>(c.Person().Month()), static_cast<int>(c.Person().Day()));
    c.AyanamshName();
    c.ConvertDateToText(born);
    c.ConvertDateToTextEng(born);
    for (int n = 0; n <= 12; ++n) {
        const double l = c.PlanetLongi(n);
        c.ConvertToDegNoVal(l);
        c.ConvertValNoDegNoSec(l);
        c.Direction(n);
        c.PlanetRashiName(n);
        c.ConvertRashi(l);
        c.ConvertRashiEng(l);
        c.PlanetName(n);
        c.PlanetNameFull(n);
        c.PlanetNameSmall(n);
        c.NakNamePlanet(n);
        c.NakLordName(c.NakOf(n));
        c.FindFirstLetters((c.NakOf(n) - 1) * 4 + c.NakPadaPlanet(n));
        c.Tatwa(n);
        c.Vihag(n);
    }
    c.RashiName();
    c.SunSignEngByNumber(c.PlanetRashiNum(1));
    c.FindSunSign();
    c.FindFirstLetters((c.Nakshatra() - 1) * 4 + c.Pada());
    c.GetNakshatraName(c.Nak28GetNakshatra());
    c.TithiName(c.Tithi());
    c.TithiName(c.TithiValue() / 12);
    c.YogaName();
    c.FindYoga();
    c.KaranName();
    const int day = c.Person().WeekDayOfBirth();
    c.GetDayName(day);
    c.ConvertDayEng(day);
    for (int h = 1; h <= 24; ++h)
        c.GetHoraName(clsPlanets::GetHoraType(h, day));
    for (int n = 1; n <= 16; ++n)
        c.GetChowGadiyaName(clsPlanets::GetChogadiyaType(n, day));
    c.GetVikramiMonth(clsPlanets::VikramiMonth(c.PlanetLongi(1), c.Person().GetBirthDate()));
    c.AssignGana(c.Gana());
    c.AssignNadi(c.NadiNo());
    c.NadiPada();
    c.Varna();
    c.Vasya();
    c.YoniName();
    c.Paya();
    c.Rajju();
}

} // namespace

TEST(KeyCoverage, EveryWordOfTheChartIsInTheEnglishDatabase)
{
    ScopedSettingsStore store;
    setStuffFolder(QStringLiteral(ORBANTA_BINARY_DIR "/STUFF"));
    QSqlDatabase db;
    ASSERT_TRUE(OpenTextDB(QStringLiteral("ENGLISH"), db));
    KeySink sink;
    ScopedMessageSink scoped(&sink);

    // Members whose keys don't depend on the chart: their whole ranges once.
    {
        clsPlanets c;
        c.setTextDB(db, QSqlDatabase());
        for (int n = 1; n <= 12; ++n) {
            c.GetMonthNameByNum(n);
            c.GetMonthNameByNumEng(n);
            c.ConvertRashi(n);
            c.GetVikramiMonth(n);
        }
        for (int n = 1; n <= 9; ++n)
            c.MuddaCycleName(n);
        for (int n = 1; n <= 27; ++n)
            c.NakLordName(n);
        for (int t = 1; t <= 30; ++t)
            c.TithiName(t);
        for (int y = 1; y <= 27; ++y)
            c.ConvertYoga(y);
        for (int t = 1; t <= 7; ++t) {
            c.GetChowGadiyaName(t);
            c.GetHoraName(t);
            c.GetDayName(t);
            c.ConvertDayEng(t);
        }
        for (int x = 1; x <= 3; ++x) {
            c.AssignGana(x);
            c.AssignNadi(x);
        }
        for (int type = 1; type <= 15; ++type) {
            c.setAyanType(type);
            c.AyanamshName();
        }
        c.setAyanType(1);
    }

    constexpr int kCharts = 240;
    for (int i = 0; i < kCharts; ++i) {
        const Place &pl = kPlaces[static_cast<size_t>(i) % kPlaces.size()];
        const int year = 1900 + (i * 37) % 201;
        const int month = 1 + (i * 5) % 12;
        const int day = 1 + (i * 11) % 28;
        clsPlanets c;
        c.setTextDB(db, QSqlDatabase());
        c.setPerson(MakePerson(day, month, year, (i * 7) % 24, (i * 13) % 60, QLatin1String(pl.gmt), pl.latDeg, pl.latMin,
                               QLatin1String(pl.ns), pl.lonDeg, pl.lonMin, QLatin1String(pl.ew)));
        c.Person().setSex(1 + i % 2);
        AppSettings::overrideForRun(QStringLiteral("Init"), QStringLiteral("AyanType"), 1 + i % 12);
        AppSettings::overrideForRun(QStringLiteral("Settings"), QStringLiteral("CalcVarMod"), 1 + i % 2);
        c.Calculate();
        readAllWords(c);
    }
    AppSettings::clearOverrides();

    QStringList missing(sink.missing.begin(), sink.missing.end());
    missing.sort();
    EXPECT_TRUE(missing.isEmpty()) << missing.join(QLatin1Char('\n')).toStdString();
    CloseTextDB(db);
    setStuffFolder(QString());
}

TEST(KeyCoverage, EveryDignityWordIsInTheEnglishDatabase)
{
    ScopedSettingsStore store;
    setStuffFolder(QStringLiteral(ORBANTA_BINARY_DIR "/STUFF"));
    QSqlDatabase db;
    ASSERT_TRUE(OpenTextDB(QStringLiteral("ENGLISH"), db));
    KeySink sink;
    ScopedMessageSink scoped(&sink);
    {
        clsPlanets c;
        c.setTextDB(db, QSqlDatabase());
        for (int n = 0; n <= 25; ++n)
            c.setPlanetLongi(n, 0);
        // Every planet through the zodiac by half degrees: each class and both combustion words.
        for (int p = 0; p <= 12; ++p) {
            for (int step = 0; step < 720; ++step) {
                c.setPlanetLongi(p, step * 0.5);
                c.ExaltClass(p);
                c.AstaText(p);
            }
            c.setPlanetLongi(p, 0);
        }
    }
    QStringList missing(sink.missing.begin(), sink.missing.end());
    missing.sort();
    EXPECT_TRUE(missing.isEmpty()) << missing.join(QLatin1Char('\n')).toStdString();
    CloseTextDB(db);
    setStuffFolder(QString());
}
