// SPDX-License-Identifier: AGPL-3.0-or-later
// Signs, nakshatras, the panchang and the Moon's marriage attributes at their boundaries.
#include "sky/clsPlanets.h"
#include "support/TestSupport.h"
#include "sky/MessageSink.h"
#include "text/TextDB.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QSqlQuery>
#include <QTemporaryDir>

#include <vector>

namespace {

class CountingSink final : public MessageSink
{
public:
    void warn(const QString &, const QString &text) override { messages << text; }
    void fatal(const QString &, const QString &text) override { messages << text; }
    QStringList messages;
};

constexpr double kNak = 360.0 / 27;

// A chart whose positions the test sets by hand, reading the shipped English words.
class Signs : public ::testing::Test
{
protected:
    void SetUp() override
    {
        setStuffFolder(QStringLiteral(ORBANTA_BINARY_DIR "/STUFF"));
        ASSERT_TRUE(OpenTextDB(QStringLiteral("ENGLISH"), db));
        chart.setTextDB(db, QSqlDatabase());
        chart.setPerson(MakePerson(15, 8, 1980, 14, 35, QStringLiteral("5.5"), 28, 38, QStringLiteral("N"), 77, 12,
                                   QStringLiteral("E")));
        for (int n = 0; n <= 25; ++n)
            chart.setPlanetLongi(n, 0);
    }
    void TearDown() override
    {
        EXPECT_TRUE(sink.messages.isEmpty()) << sink.messages.join(QLatin1Char('\n')).toStdString();
        CloseTextDB(db);
        setStuffFolder(QString());
    }
    // Puts the Sun and the Moon and runs the panchang step.
    void sunMoon(double sun, double moon)
    {
        chart.setPlanetLongi(1, sun);
        chart.setPlanetLongi(7, moon);
        chart.CalcPanchang();
    }
    ScopedSettingsStore store;
    CountingSink sink;
    ScopedMessageSink scoped{&sink};
    QSqlDatabase db;
    clsPlanets chart;
};

} // namespace

TEST_F(Signs, SignsChangeAtExactMultiplesOfThirty)
{
    chart.setPlanetLongi(3, 30);
    chart.setPlanetLongi(4, 29.9999999);
    chart.setPlanetLongi(5, 359.99);
    EXPECT_EQ(chart.PlanetRashiNum(3), 2);
    EXPECT_EQ(chart.PlanetRashiNum(4), 1);
    EXPECT_EQ(chart.PlanetRashiNum(5), 12);
    EXPECT_EQ(chart.PlanetRashiName(3), QStringLiteral("Taurus"));
    EXPECT_EQ(chart.PlanetRashiNameEngSmall(5), QStringLiteral("Pis"));
    // A whole number is a sign, a fraction a longitude.
    EXPECT_EQ(chart.ConvertRashi(5), QStringLiteral("Leo"));
    EXPECT_EQ(chart.ConvertRashi(45.5), QStringLiteral("Taurus"));
    EXPECT_EQ(clsPlanets::ConvertRashiNum(359.5), 12);
    EXPECT_EQ(chart.ConvertToDegNoVal(60), QStringLiteral("Gemini"));
    EXPECT_EQ(chart.ConvertRashiEng(11), QStringLiteral("Aquarius"));
    EXPECT_EQ(clsPlanets::PlanetRashiLordNum(100.5), 7);
    EXPECT_EQ(clsPlanets::GetRashiLordNum(11), 6);
    EXPECT_EQ(clsPlanets::GetRashiLordNum(13), 0);
    EXPECT_EQ(clsPlanets::RashiClass(12), 3);
    EXPECT_EQ(clsPlanets::GetRashiElement(8), 4);
}

TEST_F(Signs, SignMemoHoldsUntilTheNextPanchang)
{
    chart.setPlanetLongi(2, 95);
    EXPECT_EQ(chart.Sign(2), 4);
    chart.setPlanetLongi(2, 185);
    EXPECT_EQ(chart.Sign(2), 4);
    EXPECT_EQ(chart.PlanetSign(2), 4);
    EXPECT_EQ(chart.PlanetRashiNum(2), 7); // never kept
    chart.CalcPanchang();
    EXPECT_EQ(chart.PlanetSign(2), 7);
}

TEST_F(Signs, CountsOfOccupiedSigns)
{
    // Sun, Mercury, Venus in Leo; Mars, Jupiter in Virgo; Saturn Libra; Moon Aries; nodes 11/5.
    const std::vector<double> at{0, 121, 125, 149, 151, 170, 190, 10, 305, 125};
    for (int n = 1; n <= 9; ++n)
        chart.setPlanetLongi(n, at[static_cast<size_t>(n)]);
    EXPECT_EQ(chart.CountPlanetInSign(5), 3);
    EXPECT_EQ(chart.CountPlanetInSign(11), 0); // Rahu doesn't count
    EXPECT_EQ(chart.SignOccupiedNum(2), 4);
    EXPECT_EQ(chart.SignOccupiedNum(1), 5);
    EXPECT_EQ(chart.FindPlanetDirection(6), 2);
}

TEST_F(Signs, NakshatraAndPadaEdges)
{
    for (int k = 0; k < 27; ++k) {
        sunMoon(0, kNak * k);
        EXPECT_EQ(chart.Nakshatra(), k + 1) << k;
        EXPECT_EQ(chart.Pada(), 1) << k;
        EXPECT_EQ(clsPlanets::NakPadaNum(kNak * k), 1) << k;
    }
    sunMoon(0, kNak * 5 - 1e-9);
    EXPECT_EQ(chart.Nakshatra(), 5);
    EXPECT_EQ(chart.Pada(), 4);
    EXPECT_EQ(clsPlanets::NakPadaNum(kNak * 5 - 1e-9), 4);
    sunMoon(0, 3.3333);
    EXPECT_EQ(chart.Pada(), 1);
    sunMoon(0, 3.34);
    EXPECT_EQ(chart.Pada(), 2);
    EXPECT_EQ(chart.NakNamePlanet(7), QStringLiteral("Ashwini"));

    // A planet on a quarter's limit belongs to the lower quarter.
    chart.setPlanetLongi(4, kNak / 4);
    EXPECT_EQ(chart.NakPadaPlanet(4), 1);
    chart.setPlanetLongi(4, kNak / 2);
    EXPECT_EQ(chart.NakPadaPlanet(4), 2);
    chart.setPlanetLongi(4, kNak + kNak / 4 + 1e-9);
    EXPECT_EQ(chart.NakPadaPlanet(4), 2);
    chart.setPlanetLongi(4, 359.99);
    EXPECT_EQ(chart.NakPadaPlanet(4), 4);

    sunMoon(0, 276.4);
    EXPECT_EQ(chart.Nak28GetNakshatra(), 28);
    sunMoon(0, 280.6);
    EXPECT_EQ(chart.Nak28GetNakshatra(), 22);
}

TEST_F(Signs, NakshatraLordsAndTaras)
{
    EXPECT_EQ(clsPlanets::NakLordNum(19), 9);
    EXPECT_EQ(clsPlanets::NakLordNum(27), 2);
    EXPECT_EQ(clsPlanets::NakLordNum(0), 0);
    EXPECT_EQ(chart.NakLordName(27), QStringLiteral("Mercury")); // 2 + 7 = 9
    EXPECT_EQ(chart.NakLordName(19), QStringLiteral("Ketu"));    // 1 + 9 = 10, then 1 + 0
    EXPECT_EQ(chart.NakLordName(3), QStringLiteral("Sun"));
    EXPECT_EQ(clsPlanets::GetTaraNum(1, 1), 1);
    EXPECT_EQ(clsPlanets::GetTaraNum(1, 9), 9);
    EXPECT_EQ(clsPlanets::GetTaraNum(10, 1), 1); // 1 - 10 + 1 = -8, folded to 19, 19 mod 9
    EXPECT_EQ(clsPlanets::GetTaraNum(5, 22), 9); // 18 mod 9 = 0 reads 9
    chart.setPlanetLongi(6, kNak * 16 + 1); // Anuradha, Saturn's
    EXPECT_TRUE(chart.PlanetINNakof(6, 6));
    EXPECT_FALSE(chart.PlanetINNakof(5, 6));
    EXPECT_EQ(chart.FindFirstLetters(1), QStringLiteral("Chu"));
}

TEST_F(Signs, TithiYogaAndKaranaEdges)
{
    sunMoon(100, 100);
    EXPECT_EQ(chart.Tithi(), 1);
    EXPECT_EQ(chart.KaranNumber(), 11);
    sunMoon(100, 112);
    EXPECT_EQ(chart.Tithi(), 2);
    sunMoon(100, 88);
    EXPECT_EQ(chart.Tithi(), 30);
    EXPECT_DOUBLE_EQ(chart.TithiValue(), 348);
    EXPECT_EQ(chart.KaranNumber(), 9);
    sunMoon(10, 352);
    EXPECT_EQ(chart.KaranNumber(), 8); // 342 begins Shakuni, not a repeating one
    sunMoon(10, 9.9999);
    EXPECT_EQ(chart.KaranNumber(), 10);
    sunMoon(0, 6);
    EXPECT_EQ(chart.KaranNumber(), 1);
    sunMoon(0, 12);
    EXPECT_EQ(chart.KaranNumber(), 2);
    sunMoon(0, 50);
    EXPECT_EQ(chart.KaranNumber(), 1); // (50 - 6) / 6 = 7.33, folded to 0.33
    EXPECT_EQ(chart.KaranName(), QStringLiteral("Bava"));

    sunMoon(200, 160); // sum 360: 28 folds to 1
    EXPECT_EQ(chart.YogaNumber(), 1);
    sunMoon(200, 159.99);
    EXPECT_EQ(chart.YogaNumber(), 27);
    EXPECT_EQ(chart.YogaName(), QStringLiteral("Vaidhriti"));
    EXPECT_EQ(chart.ConvertYoga(2.2), chart.ConvertYoga(3));

    EXPECT_EQ(chart.TithiName(14.5), chart.TithiName(15));
    EXPECT_EQ(chart.TithiName(30), QStringLiteral("Amavasya"));
    EXPECT_EQ(clsPlanets::TithiShuklaKrishna(15), 1);
    EXPECT_EQ(clsPlanets::TithiShuklaKrishna(15.5), 2);
    EXPECT_EQ(clsPlanets::GetTithiType(26), 1);
    EXPECT_EQ(clsPlanets::GetTithiType(29), 4);
}

TEST_F(Signs, MarriageAttributesOfAMoonInMagha)
{
    // Moon 125 deg: Leo, Magha (10), pada 2 within 40 deg steps; Lagna in Aries.
    chart.setPlanetLongi(0, 10);
    sunMoon(90, 125);
    EXPECT_EQ(chart.Nakshatra(), 10);
    EXPECT_EQ(chart.Gana(), 1);
    EXPECT_EQ(chart.AssignGana(chart.Gana()), QStringLiteral("Rakshasa"));
    EXPECT_EQ(chart.NadiNo(), 3);
    EXPECT_EQ(chart.NadiPada(), QStringLiteral("Madhya")); // 125 mod 40 = 5: p 2
    EXPECT_EQ(chart.YoniNo(), 7);
    EXPECT_EQ(chart.RajjuType(), QStringLiteral("F"));
    EXPECT_EQ(chart.VasyaNo(), 4);
    EXPECT_EQ(chart.Vasya(), QStringLiteral("Vanachara"));
    EXPECT_EQ(chart.VarnaNo(), 3);
    EXPECT_EQ(chart.Varna(), QStringLiteral("Kshatriya"));
    EXPECT_EQ(chart.Tatwa(), QStringLiteral("Jala"));
    EXPECT_EQ(chart.Vihag(), QStringLiteral("Peacock"));
    EXPECT_EQ(chart.Paya(), QStringLiteral("Silver")); // Leo is 4 from Aries
    EXPECT_EQ(chart.GrahaMaitriNo(), 1);

    AppSettings::setValue(QStringLiteral("Settings"), QStringLiteral("CalcVarMod"), 2);
    EXPECT_EQ(chart.VarnaNo(), 3);
    EXPECT_EQ(chart.Varna(), QStringLiteral("Kshatriya"));
    sunMoon(90, 65); // Gemini in mode 2
    EXPECT_EQ(chart.VarnaNo(), 2);
    EXPECT_EQ(chart.Varna(), QStringLiteral("Vaishya"));
}

TEST_F(Signs, AttributesAtTheEndsOfTheNakshatraList)
{
    sunMoon(0, 359.9); // Revati, Pisces
    chart.setPlanetLongi(0, 350);
    EXPECT_EQ(chart.Gana(), 3);
    EXPECT_EQ(chart.NadiNo(), 3);
    EXPECT_EQ(chart.YoniNo(), 2);
    EXPECT_EQ(chart.RajjuType(), QStringLiteral("F"));
    EXPECT_EQ(chart.Vihag(), QStringLiteral("Peacock"));
    EXPECT_EQ(chart.Tatwa(), QStringLiteral("Akash"));
    EXPECT_EQ(chart.VasyaNo(), 3);
    EXPECT_EQ(chart.Paya(), QStringLiteral("Gold")); // same sign
    EXPECT_EQ(chart.Gana(5), 3);
    EXPECT_EQ(chart.Gana(9), 1);
}

TEST_F(Signs, WeekdayHoraAndChogadiyaTables)
{
    EXPECT_EQ(chart.WeekDayLord(), 3); // 15 August 1980 was a Friday
    EXPECT_EQ(clsPlanets::WeekDayLordOfDay(2), 7);
    EXPECT_EQ(chart.GetDayName(1), QStringLiteral("Sunday"));
    EXPECT_EQ(chart.ConvertDayEng(7), QStringLiteral("Saturday"));
    EXPECT_EQ(clsPlanets::GetHoraType(1, 2), 4);
    EXPECT_EQ(clsPlanets::GetHoraType(5, 3), 4); // 7 + 4 = 11 folds to 4
    EXPECT_EQ(clsPlanets::GetChogadiyaType(1, 1), 1);
    EXPECT_EQ(clsPlanets::GetChogadiyaType(8, 1), 1);
    EXPECT_EQ(clsPlanets::GetChogadiyaType(9, 1), 5);  // night start 6: (6 - 1) * 5 + 1 = 26 folds to 5
    EXPECT_EQ(clsPlanets::GetChogadiyaType(9, 4), 1);  // a first stays first
    EXPECT_EQ(chart.GetChowGadiyaName(4), QStringLiteral("Amrit"));
    EXPECT_EQ(chart.GetHoraName(2), QStringLiteral("Venus"));
}

TEST_F(Signs, VikramiMonthFallsBackEarlyInTheCycle)
{
    const QDateTime epoch(QDate(2004, 7, 3), QTime(0, 0), Qt::UTC);
    EXPECT_EQ(clsPlanets::VikramiMonth(15, epoch.addSecs(1392 * 3600)), 12);
    EXPECT_EQ(clsPlanets::VikramiMonth(15, epoch.addSecs(1393 * 3600)), 1);
    EXPECT_EQ(clsPlanets::VikramiMonth(305, epoch.addSecs(5000 * 3600)), 10); // 310, not 300
    EXPECT_EQ(clsPlanets::VikramiMonth(315, epoch.addSecs((24816 + 10) * 3600)), 10);
    EXPECT_EQ(chart.GetVikramiMonth(1), QStringLiteral("Chaitra"));
}

TEST_F(Signs, WesternSunSignByTheCalendar)
{
    const auto at = [&](int day, int month) {
        chart.Person().setDay(day);
        chart.Person().setMonth(month);
        return chart.FindSunSignEng();
    };
    EXPECT_EQ(at(20, 3), QStringLiteral("Pisces"));
    EXPECT_EQ(at(21, 3), QStringLiteral("ARIES"));
    EXPECT_EQ(at(20, 1), QStringLiteral("Capricorn"));
    EXPECT_EQ(at(31, 12), QStringLiteral("Capricorn"));
    EXPECT_EQ(at(23, 11), QStringLiteral("Sagittarius"));
    at(21, 3);
    EXPECT_EQ(chart.FindSunSign(), QStringLiteral("Aries"));
}

TEST_F(Signs, NamesAndOrders)
{
    EXPECT_EQ(chart.PlanetName(9), QStringLiteral("Ket"));
    EXPECT_EQ(clsPlanets::PlanetNameFullEng(0), QStringLiteral("Asccendant"));
    EXPECT_EQ(chart.PlanetNameFull(5), QStringLiteral("Jupiter"));
    EXPECT_EQ(clsPlanets::PlanetSerialNumber(7), 2);
    EXPECT_EQ(clsPlanets::PlanetSerialNumber(3), 6);
    EXPECT_EQ(clsPlanets::PlanetSerialNumber(12), 12);
    EXPECT_EQ(clsPlanets::MuddaCycleNo(5), 21);
    EXPECT_EQ(clsPlanets::MuddaCycleNo(10), 0);
    chart.setPlanetLongi(2, 100);
    chart.setPlanetLongi(15, 99);
    EXPECT_EQ(chart.Direction(2), QStringLiteral("Retro"));
    EXPECT_EQ(chart.Direction(3), QStringLiteral("Direct"));
    EXPECT_EQ(chart.AyanamshName(), QStringLiteral("NC Lahiri"));
}

TEST(SignsLanguageCheck, AForeignAbbreviationIsFatal)
{
    QTemporaryDir dir;
    ASSERT_TRUE(QDir(dir.path()).mkpath(QStringLiteral("STUFF/BAD")));
    {
        QSqlDatabase w = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("bad-writer"));
        w.setDatabaseName(dir.filePath(QStringLiteral("STUFF/BAD/BAD.Dat")));
        ASSERT_TRUE(w.open());
        QSqlQuery q(w);
        ASSERT_TRUE(q.exec(QStringLiteral("CREATE TABLE CNVT (Head TEXT COLLATE NOCASE, Val TEXT, Category TEXT COLLATE NOCASE)")));
        ASSERT_TRUE(q.exec(QStringLiteral("INSERT INTO CNVT VALUES ('1', 'Sol', 'PLNTABB')")));
        w.close();
    }
    QSqlDatabase::removeDatabase(QStringLiteral("bad-writer"));
    setStuffFolder(dir.filePath(QStringLiteral("STUFF")));
    QSqlDatabase db;
    ASSERT_TRUE(OpenTextDB(QStringLiteral("BAD"), db));
    CountingSink sink;
    ScopedMessageSink scoped(&sink);
    clsPlanets chart;
    chart.setTextDB(db, QSqlDatabase());
    EXPECT_EQ(chart.PlanetName(1), QStringLiteral("Sol"));
    ASSERT_EQ(sink.messages.size(), 1);
    EXPECT_EQ(sink.messages[0], QStringLiteral("Invalid Data File. Please Re-install. Program will Terminate"));
    CloseTextDB(db);
    setStuffFolder(QString());
}

TEST(SignsOfACastChart, SunTimesFrameTheDayParts)
{
    ScopedSettingsStore store;
    setStuffFolder(QStringLiteral(ORBANTA_BINARY_DIR "/STUFF"));
    QSqlDatabase db;
    ASSERT_TRUE(OpenTextDB(QStringLiteral("ENGLISH"), db));
    clsPlanets chart;
    chart.setTextDB(db, QSqlDatabase());
    chart.setPerson(MakePerson(15, 8, 1980, 14, 35, QStringLiteral("5.5"), 28, 38, QStringLiteral("N"), 77, 12, QStringLiteral("E")));
    chart.Calculate();
    const double rise = chart.SunRiseTime();
    const double set = chart.SunSetTime();
    EXPECT_DOUBLE_EQ(chart.GetChogadiyaStart(1), rise);
    EXPECT_DOUBLE_EQ(chart.GetChogadiyaStart(9), set);
    EXPECT_DOUBLE_EQ(chart.GetChogadiyaSpan(1), (set - rise) / 8);
    EXPECT_DOUBLE_EQ(chart.GetRahuKaalStartToday(), rise + 3 * (set - rise) / 8); // Friday: the fourth eighth
    EXPECT_DOUBLE_EQ(chart.GetEvilMuhurthaStart(1), rise + 1 * (set - rise) / 8);  // Friday, k 1: v 4
    EXPECT_DOUBLE_EQ(chart.GetHoraStart(1), rise);
    // The panchang of the cast agrees with its members.
    EXPECT_EQ(chart.Tithi(), static_cast<int>(chart.TithiValue() / 12) + 1);
    EXPECT_EQ(chart.Pada(), clsPlanets::NakPadaNum(chart.PlanetLongi(7)));
    CloseTextDB(db);
    setStuffFolder(QString());
}
