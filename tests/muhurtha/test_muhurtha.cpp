// SPDX-License-Identifier: AGPL-3.0-or-later
// The electional search against a small database of its own: the element tests on moments set
// by hand (longitudes chosen so the tithi, nakshatra and signs are known), the sampling of a span,
// the ranking and the percentage.
#include "muhurtha/clsMuhurtha.h"
#include "sky/clsPlanets.h"
#include "support/TestSupport.h"
#include "sky/MessageSink.h"

#include <QFile>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <array>
#include <memory>

namespace {

// Acts and points of the tests. Longitudes below are sidereal degrees.
const char *const kFixture = R"(
INSERT INTO MUHU VALUES ('SUN', 'Sunday act', 'TEST', 'D:1,RAHUKAAL', 'D,RAHUKAAL', '');
INSERT INTO MUHU VALUES ('ODD', 'Odd codes', 'TEST', 'D:1,FOO,FOO:2,T:40', 'D', '');
INSERT INTO MUHU VALUES ('BAD', 'Bad days', 'TEST', 'DISHASHULA', 'DISHASHULA', '');
INSERT INTO MUHU VALUES ('MIX', 'Mixed', 'TEST', 'D:1,N:10', 'D,N,TG', '');
INSERT INTO MUHU VALUES ('WED', 'Wedding', 'MARRIAGE', 'TG,M12', 'TG,M12', '');
INSERT INTO SCORE VALUES ('D', 5, 1);
INSERT INTO SCORE VALUES ('N', 10, 0);
INSERT INTO SCORE VALUES ('RAHUKAAL', -3, 0);
INSERT INTO SCORE VALUES ('DISHASHULA', -4, 1);
INSERT INTO SCORE VALUES ('TG', 2, 1);
INSERT INTO SCORE VALUES ('M12', 3, 1);
INSERT INTO MuhuConvert VALUES ('Sunday act', 'SUNTEXT');
)";

class RecordingSink : public MessageSink
{
public:
    void warn(const QString &, const QString &text) override { messages << text; }
    QStringList messages;
};

class MuhurthaTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_dir.isValid());
        m_path = m_dir.filePath(QStringLiteral("MUHU.DAT"));
        {
            QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("muhu_fixture"));
            db.setDatabaseName(m_path);
            ASSERT_TRUE(db.open());
            QFile schema(QStringLiteral(ORBANTA_SOURCE_DIR "/data/muhu/schema.sql"));
            ASSERT_TRUE(schema.open(QIODevice::ReadOnly));
            QString sql;
            for (const QString &line : (QString::fromUtf8(schema.readAll()) + QString::fromUtf8(kFixture)).split(QLatin1Char('\n')))
                if (!line.trimmed().startsWith(QLatin1String("--")))
                    sql += line + QLatin1Char('\n');
            for (const QString &statement : sql.split(QLatin1Char(';'))) {
                if (statement.trimmed().isEmpty())
                    continue;
                QSqlQuery q(db);
                ASSERT_TRUE(q.exec(statement)) << statement.toStdString();
            }
            db.close();
        }
        QSqlDatabase::removeDatabase(QStringLiteral("muhu_fixture"));
        m_muhu = std::make_unique<clsMuhurtha>(m_path);
        ASSERT_TRUE(m_muhu->IsOpen());
        m_place = std::make_unique<clsPlanets>();
        // Sunday 5 January 2025, Delhi.
        m_place->setPerson(MakePerson(5, 1, 2025, 6, 0, QStringLiteral("5.5"), 28, 38, QStringLiteral("N"), 77, 12, QStringLiteral("E")));
        m_place->Calculate();
    }

    // Loads act code on the Delhi chart's date and sets the scan moment to these longitudes
    // (0 Lagna, 1 Sun, 2 Mercury, 3 Venus, 4 Mars, 5 Jupiter, 6 Saturn, 7 Moon, 8 Rahu, 9 Ketu).
    clsPlanets &moment(const QString &code, const std::array<double, 10> &longitudes)
    {
        EXPECT_TRUE(m_muhu->LoadMuhuByCode(code));
        m_muhu->setStartDate(QDate(2025, 1, 5));
        m_muhu->PrepareScanChart(*m_place);
        clsPlanets &c = m_muhu->ScanChart();
        for (int n = 0; n < 10; ++n)
            c.setPlanetLongi(n, longitudes[static_cast<size_t>(n)]);
        c.CalcPanchang();
        return c;
    }

    // Whether code fires at the moment set by moment().
    bool on(const QString &code, const QString &value = QString())
    {
        bool known = false;
        const bool f = m_muhu->ElementFires(code, value, known);
        EXPECT_TRUE(known) << code.toStdString();
        return f;
    }

    QTemporaryDir m_dir;
    QString m_path;
    std::unique_ptr<clsMuhurtha> m_muhu;
    std::unique_ptr<clsPlanets> m_place;
    ScopedSettingsStore m_settings;
};

// Moon and Sun placed so that tithi and nakshatras are known; the other bodies out of the way
// in sign 4 (Cancer, 95 degrees) unless a case needs them; Lagna in Aries.
std::array<double, 10> sky(double sun, double moon)
{
    return {10, sun, 95, 95, 95, 95, 95, moon, 95, 275};
}

TEST_F(MuhurthaTest, SmallTablesOfTheRules)
{
    EXPECT_EQ(clsMuhurtha::TithiGroup(1), 1);
    EXPECT_EQ(clsMuhurtha::TithiGroup(30), 1);
    EXPECT_EQ(clsMuhurtha::TithiGroup(17), 2);
    EXPECT_EQ(clsMuhurtha::TithiGroup(23), 3);
    EXPECT_EQ(clsMuhurtha::TithiGroup(29), 4);
    EXPECT_TRUE(clsMuhurtha::GetHariShayan(11, 3));
    EXPECT_FALSE(clsMuhurtha::GetHariShayan(10, 3));
    EXPECT_TRUE(clsMuhurtha::GetHariShayan(1, 5));
    EXPECT_TRUE(clsMuhurtha::GetHariShayan(11, 7));
    EXPECT_FALSE(clsMuhurtha::GetHariShayan(12, 7));
    EXPECT_FALSE(clsMuhurtha::GetHariShayan(15, 8));
    EXPECT_TRUE(clsMuhurtha::GetKharMaas(9));
    EXPECT_TRUE(clsMuhurtha::GetKharMaas(12));
    EXPECT_FALSE(clsMuhurtha::GetKharMaas(10));
    EXPECT_EQ(clsMuhurtha::LagnaStartDeg(47.5), 30);
    EXPECT_EQ(clsMuhurtha::LagnaStartDeg(30), 0); // 30 itself belongs to the first sign's fold
    EXPECT_EQ(clsMuhurtha::LagnaStartDeg(359.9), 330);
}

TEST_F(MuhurthaTest, ValuedElementsCompareTheNumbersText)
{
    // Sun 10, Moon 190: elongation 180 gives tithi 16; Moon in nakshatra 15 (186.67..200).
    clsPlanets &c = moment(QStringLiteral("SUN"), sky(10, 190));
    ASSERT_EQ(c.Tithi(), 16);
    ASSERT_EQ(c.Nakshatra(), 15);
    EXPECT_TRUE(on(QStringLiteral("T"), QStringLiteral("16")));
    EXPECT_TRUE(on(QStringLiteral("SP"), QStringLiteral("16")));
    EXPECT_FALSE(on(QStringLiteral("KP"), QStringLiteral("15")));
    EXPECT_TRUE(on(QStringLiteral("N"), QStringLiteral("15")));
    EXPECT_TRUE(on(QStringLiteral("D"), QStringLiteral("1"))); // 5 January 2025 is a Sunday
    EXPECT_FALSE(on(QStringLiteral("D2"), QStringLiteral("01")));
    EXPECT_TRUE(on(QStringLiteral("L"), QStringLiteral("1")));
    EXPECT_FALSE(on(QStringLiteral("L2"), QStringLiteral("2")));
    // Points come from SCORE and are recorded on the moment; a code without a row records 0.
    EXPECT_EQ(m_muhu->CheckElement(QStringLiteral("d:1")), 5);
    EXPECT_EQ(m_muhu->CheckElement(QStringLiteral("N:15")), 10);
    EXPECT_EQ(m_muhu->CheckElement(QStringLiteral("T:16")), 0);
    EXPECT_EQ(m_muhu->CheckElement(QStringLiteral("N:16")), 0);
}

TEST_F(MuhurthaTest, NakshatraPairsOfTheDoshas)
{
    moment(QStringLiteral("SUN"), sky(310, 270)); // Moon in 21, Sun in 24
    EXPECT_TRUE(on(QStringLiteral("PAATDOSHA")));
    moment(QStringLiteral("SUN"), sky(85, 340)); // Moon in 26, Sun in 7
    EXPECT_FALSE(on(QStringLiteral("PAATDOSHA")));

    moment(QStringLiteral("SUN"), sky(5, 55)); // Moon 5, Sun 1: count 5
    EXPECT_TRUE(on(QStringLiteral("UPAGRAHADOSHA")));
    moment(QStringLiteral("SUN"), sky(5, 45)); // count 4
    EXPECT_FALSE(on(QStringLiteral("UPAGRAHADOSHA")));

    // Latta: the Sun in nakshatra 1 kicks the 12th, where the Moon stands (150).
    moment(QStringLiteral("SUN"), sky(5, 150));
    EXPECT_TRUE(on(QStringLiteral("LATTADOSHA")));
    // Sun in 4 aims at 15; the bodies at 95 (nakshatra 8) at 15, 13, 10, 0, 25 and 2; the Moon at 16.
    moment(QStringLiteral("SUN"), sky(50, 150));
    EXPECT_FALSE(on(QStringLiteral("LATTADOSHA")));

    moment(QStringLiteral("SUN"), sky(50, 100)); // Moon with Mars in nakshatra 8
    EXPECT_TRUE(on(QStringLiteral("YUTIDOSHA")));
    EXPECT_TRUE(on(QStringLiteral("SSD"))); // Sunday with nakshatra 8
    moment(QStringLiteral("SUN"), sky(50, 150));
    EXPECT_FALSE(on(QStringLiteral("YUTIDOSHA")));
    EXPECT_TRUE(on(QStringLiteral("SSD")));
    moment(QStringLiteral("SUN"), sky(50, 190));
    EXPECT_FALSE(on(QStringLiteral("SSD")));

    moment(QStringLiteral("SUN"), sky(50, 300));
    EXPECT_TRUE(on(QStringLiteral("PH")));
    moment(QStringLiteral("SUN"), sky(50, 290));
    EXPECT_FALSE(on(QStringLiteral("PH")));
}

TEST_F(MuhurthaTest, TithiAndSignElements)
{
    moment(QStringLiteral("SUN"), sky(10, 0)); // elongation 350: tithi 30
    EXPECT_TRUE(on(QStringLiteral("YOGNIV")));
    moment(QStringLiteral("SUN"), sky(10, 190)); // tithi 16
    EXPECT_FALSE(on(QStringLiteral("YOGNIV")));

    moment(QStringLiteral("SUN"), sky(10, 50)); // tithi 4
    EXPECT_TRUE(on(QStringLiteral("RIKTABAD")));
    moment(QStringLiteral("SUN"), sky(10, 60)); // tithi 5
    EXPECT_FALSE(on(QStringLiteral("RIKTABAD")));

    moment(QStringLiteral("SUN"), sky(335, 10));
    EXPECT_TRUE(on(QStringLiteral("KHARMAAS")));
    moment(QStringLiteral("SUN"), sky(305, 10));
    EXPECT_FALSE(on(QStringLiteral("KHARMAAS")));

    moment(QStringLiteral("SUN"), sky(245.5, 10)); // 5.5 degrees into Sagittarius
    EXPECT_TRUE(on(QStringLiteral("EARTHSLEEPING")));
    moment(QStringLiteral("SUN"), sky(246, 10));
    EXPECT_FALSE(on(QStringLiteral("EARTHSLEEPING")));

    moment(QStringLiteral("SUN"), sky(250, 265)); // Sun in 9, tithi 2
    EXPECT_TRUE(on(QStringLiteral("TITHIDAGDHADOSHA")));
    moment(QStringLiteral("SUN"), sky(250, 280)); // tithi 3
    EXPECT_FALSE(on(QStringLiteral("TITHIDAGDHADOSHA")));

    moment(QStringLiteral("SUN"), sky(40, 280)); // Sun in 2, Moon in 10
    EXPECT_TRUE(on(QStringLiteral("KRANTISAMYA")));
    moment(QStringLiteral("SUN"), sky(40, 250));
    EXPECT_FALSE(on(QStringLiteral("KRANTISAMYA")));

    moment(QStringLiteral("SUN"), sky(280, 10)); // Sun in Capricorn: northward
    EXPECT_TRUE(on(QStringLiteral("UTTARAYAN")));
    moment(QStringLiteral("SUN"), sky(150, 10)); // Sun in Leo: southward
    EXPECT_FALSE(on(QStringLiteral("UTTARAYAN")));

    moment(QStringLiteral("SUN"), sky(100, 10)); // Jupiter and Venus at 95, 5 degrees from the Sun
    EXPECT_TRUE(on(QStringLiteral("JUPVENCOMBUST")));
    moment(QStringLiteral("SUN"), sky(10, 40));
    EXPECT_FALSE(on(QStringLiteral("JUPVENCOMBUST")));

    moment(QStringLiteral("SUN"), sky(285, 300)); // Sunday, tithi 2, nakshatra 23
    EXPECT_TRUE(on(QStringLiteral("DP")));
    moment(QStringLiteral("SUN"), sky(15, 30)); // Sunday, tithi 2, nakshatra 3
    EXPECT_TRUE(on(QStringLiteral("TP2")));
    EXPECT_FALSE(on(QStringLiteral("DP2")));
}

TEST_F(MuhurthaTest, LagnaChartElements)
{
    // Lagna in Aries; the bodies at 95 stand in the 4th, Ketu in the 10th.
    auto lon = sky(40, 70);
    moment(QStringLiteral("SUN"), lon);
    EXPECT_FALSE(on(QStringLiteral("LAGNASHUDDHI")));
    EXPECT_FALSE(on(QStringLiteral("JAMITRADOSHA")));
    lon[3] = 70; // Venus in the 3rd
    moment(QStringLiteral("SUN"), lon);
    EXPECT_TRUE(on(QStringLiteral("LAGNASHUDDHI")));
    lon = sky(40, 70);
    lon[4] = 15; // Mars, lord of Aries, in the 1st
    moment(QStringLiteral("SUN"), lon);
    EXPECT_TRUE(on(QStringLiteral("LAGNASHUDDHI")));
    lon = sky(40, 70);
    lon[4] = 190; // Mars in Libra, the 7th sign from the Lagna
    moment(QStringLiteral("SUN"), lon);
    EXPECT_TRUE(on(QStringLiteral("JAMITRADOSHA")));
}

TEST_F(MuhurthaTest, ClockAndWeekdayElements)
{
    clsPlanets &c = moment(QStringLiteral("SUN"), sky(10, 190));
    c.Person().setHour(16);
    c.Person().setMinutes(30);
    EXPECT_TRUE(on(QStringLiteral("RAHUKAAL"))); // Sunday 16.5 .. 18
    c.Person().setMinutes(29);
    EXPECT_FALSE(on(QStringLiteral("RAHUKAAL")));
    c.Person().setHour(18);
    c.Person().setMinutes(0);
    EXPECT_FALSE(on(QStringLiteral("RAHUKAAL")));
    EXPECT_FALSE(on(QStringLiteral("DISHASHULA")));
    EXPECT_FALSE(on(QStringLiteral("SD")));
    c.Person().setDay(10); // Friday, with tithi 16 of the first group
    EXPECT_TRUE(on(QStringLiteral("SD")));
    c.Person().setDay(6); // Monday
    EXPECT_TRUE(on(QStringLiteral("DISHASHULA")));
}

TEST_F(MuhurthaTest, NatalElementsReadTheRightCharts)
{
    clsPlanets natal, other;
    natal.setPlanetLongi(1, 10);
    natal.setPlanetLongi(7, 190); // sign 7, nakshatra 15: as the moment's Moon
    natal.CalcPanchang();
    other.setPlanetLongi(1, 10);
    other.setPlanetLongi(7, 180); // sign 6, nakshatra 14
    other.CalcPanchang();

    moment(QStringLiteral("SUN"), sky(10, 190));
    EXPECT_FALSE(on(QStringLiteral("M12"))); // no natal chart: nothing to compare
    m_muhu->setNatalCharts(&natal, nullptr, nullptr);
    EXPECT_TRUE(on(QStringLiteral("M12")));  // the same sign counts 0
    EXPECT_FALSE(on(QStringLiteral("TG"))); // count 1
    m_muhu->setNatalCharts(&other, nullptr, nullptr);
    EXPECT_TRUE(on(QStringLiteral("TG"))); // count 2

    // In a marriage either partner will do, and the person's own chart is not read.
    moment(QStringLiteral("WED"), sky(10, 190));
    m_muhu->setNatalCharts(&other, &natal, nullptr);
    EXPECT_FALSE(on(QStringLiteral("TG")));
    m_muhu->setNatalCharts(&natal, &natal, &other);
    EXPECT_TRUE(on(QStringLiteral("TG")));
}

// The poisoned ghatis of a tithi: four ghatis that begin the table's count after the tithi began.
// At 10.00 the tithi began run = (d mod 12) / 12 * 60 ghatis earlier, so the window holds the
// moment when the table's count less run lies between -4 and 0, whatever the sunrise.
TEST_F(MuhurthaTest, PoisonedGhatisOfTheTithi)
{
    const auto at10 = [this](double sun, double moon) {
        clsPlanets &c = moment(QStringLiteral("SUN"), sky(sun, moon));
        c.Person().setHour(10);
        c.Person().setMinutes(0);
        return on(QStringLiteral("VISHTITHI"));
    };
    // Tithi 1 (15 ghatis): 3.4 degrees run is 17 ghatis, inside; 2 degrees (10) and 5 (25) outside.
    EXPECT_TRUE(at10(10, 13.4));
    EXPECT_FALSE(at10(10, 12));
    EXPECT_FALSE(at10(10, 15));
    // Tithi 16 reads tithi 1's count.
    EXPECT_TRUE(at10(10, 193.4));
    // Tithi 2 (5 ghatis): 1.4 degrees past its start is 7 ghatis, inside; 0.4 (2) is before.
    EXPECT_TRUE(at10(10, 23.4));
    EXPECT_FALSE(at10(10, 22.4));
}

TEST_F(MuhurthaTest, UnknownCodesAreNotElements)
{
    moment(QStringLiteral("SUN"), sky(10, 190));
    bool known = true;
    EXPECT_FALSE(m_muhu->ElementFires(QStringLiteral("FOO"), QString(), known));
    EXPECT_FALSE(known);
    EXPECT_FALSE(m_muhu->ElementFires(QStringLiteral("VEDHANAK"), QString(), known));
    EXPECT_TRUE(known);
}

QStringList times(const clsMuhurtha &m)
{
    QStringList out;
    for (const MuhuSample &s : m.Samples())
        out << s.date.toString(QStringLiteral("dd/MM")) + QLatin1Char(' ') + s.time;
    return out;
}

TEST_F(MuhurthaTest, SamplingOfTheSpan)
{
    m_muhu->CheckMuhurtha(QStringLiteral("Sunday act"), QStringLiteral("TEST"), QDate(2025, 1, 5), QDate(2025, 1, 6), 6.00, 11.00, *m_place);
    EXPECT_EQ(times(*m_muhu), (QStringList{"05/01 06.00", "05/01 08.30", "05/01 11.00", "06/01 06.00", "06/01 08.30", "06/01 11.00"}));

    // A step past midnight ends the day on the next date, which then starts at its own time.
    m_muhu->CheckMuhurtha(QStringLiteral("Sunday act"), QStringLiteral("TEST"), QDate(2025, 1, 5), QDate(2025, 1, 6), 20.00, 23.59, *m_place);
    EXPECT_EQ(times(*m_muhu), (QStringList{"05/01 20.00", "05/01 22.30", "06/01 20.00", "06/01 22.30"}));

    // A day searched from midnight has all its moments; the first is cast as 24.00 of the day
    // before, the same instant.
    m_muhu->CheckMuhurtha(QStringLiteral("Sunday act"), QStringLiteral("TEST"), QDate(2025, 1, 5), QDate(2025, 1, 6), 0.00, 5.00, *m_place);
    EXPECT_EQ(times(*m_muhu), (QStringList{"04/01 24.00", "05/01 02.30", "05/01 05.00", "05/01 24.00", "06/01 02.30", "06/01 05.00"}));

    // A start after the end: one moment a day.
    m_muhu->CheckMuhurtha(QStringLiteral("Sunday act"), QStringLiteral("TEST"), QDate(2025, 1, 5), QDate(2025, 1, 7), 12.00, 10.00, *m_place);
    EXPECT_EQ(times(*m_muhu), (QStringList{"05/01 12.00", "06/01 12.00", "07/01 12.00"}));

    // An end before the start leaves nothing, not the former result.
    m_muhu->CheckMuhurtha(QStringLiteral("Sunday act"), QStringLiteral("TEST"), QDate(2025, 1, 7), QDate(2025, 1, 5), 6.00, 18.00, *m_place);
    EXPECT_EQ(m_muhu->SampleCount(), 0);
    EXPECT_FALSE(m_muhu->HasResult());
}

TEST_F(MuhurthaTest, RankingKeepsTheEarliestBest)
{
    // Saturday to Monday: every Sunday moment scores 5 (Rahu Kaal from 16.30 isn't sampled).
    m_muhu->CheckMuhurtha(QStringLiteral("Sunday act"), QStringLiteral("TEST"), QDate(2025, 1, 4), QDate(2025, 1, 6), 6.00, 18.00, *m_place);
    ASSERT_TRUE(m_muhu->HasResult());
    EXPECT_EQ(m_muhu->SampleCount(), 15);
    EXPECT_EQ(m_muhu->BestMuhuDate(), QDate(2025, 1, 5));
    EXPECT_EQ(m_muhu->BestMuhuTime(), QStringLiteral("06.00"));
    EXPECT_EQ(m_muhu->BestMuhuScore(), QStringLiteral("5"));
    EXPECT_EQ(m_muhu->BestMuhuFructElems(), QStringLiteral("D-5:"));
    EXPECT_EQ(m_muhu->GetBestDayMuhusCount(), 5);
    EXPECT_EQ(m_muhu->GetDayMuhuTime(5), QStringLiteral("16.00"));
    EXPECT_EQ(m_muhu->BestMuhuIndex(), 5);
    EXPECT_DOUBLE_EQ(m_muhu->BestMuhuPercent(), 100); // Rahu Kaal counts only where it fired
    ASSERT_NE(m_muhu->LagnaStartChart(), nullptr);
    // The Lagna of the best moment lies between the two searched moments.
    const double lagna = m_muhu->BestChart()->PlanetLongi(0);
    const long first = clsMuhurtha::LagnaStartDeg(lagna);
    EXPECT_NEAR(m_muhu->LagnaStartChart()->PlanetLongi(0), first, 0.6);
    EXPECT_NEAR(m_muhu->LagnaEndChart()->PlanetLongi(0), first + 30, 0.6);
    EXPECT_LT(m_muhu->LagnaStartChart()->Person().GetBirthDate(), m_muhu->BestChart()->Person().GetBirthDate());
    EXPECT_GT(m_muhu->LagnaEndChart()->Person().GetBirthDate(), m_muhu->BestChart()->Person().GetBirthDate());
}

TEST_F(MuhurthaTest, NegativeBestReadsZeroAndPercentCountsMaxEffect)
{
    // Monday only: every moment loses 4.
    m_muhu->CheckMuhurtha(QStringLiteral("Bad days"), QStringLiteral("TEST"), QDate(2025, 1, 6), QDate(2025, 1, 6), 6.00, 18.00, *m_place);
    EXPECT_EQ(m_muhu->BestMuhuScore(), QStringLiteral("0"));
    EXPECT_EQ(m_muhu->BestMuhuTime(), QStringLiteral("06.00"));
    EXPECT_DOUBLE_EQ(m_muhu->BestMuhuPercent(), 0);

    // D 5 of a highest 5 + 2 (TG counts always; N only where it fired): 71.43.
    m_muhu->CheckMuhurtha(QStringLiteral("Mixed"), QStringLiteral("TEST"), QDate(2025, 1, 5), QDate(2025, 1, 5), 6.00, 7.00, *m_place);
    EXPECT_EQ(m_muhu->MaxPossibleScore(), 7);
    EXPECT_DOUBLE_EQ(m_muhu->BestMuhuPercent(), 71.43);
}

TEST_F(MuhurthaTest, UnknownCodeReportsOnceAndScoresNothing)
{
    RecordingSink sink;
    ScopedMessageSink scoped(&sink);
    m_muhu->CheckMuhurtha(QStringLiteral("Odd codes"), QStringLiteral("TEST"), QDate(2025, 1, 5), QDate(2025, 1, 6), 6.00, 18.00, *m_place);
    EXPECT_EQ(m_muhu->SampleCount(), 10);
    EXPECT_EQ(m_muhu->BestMuhuScore(), QStringLiteral("5"));
    ASSERT_EQ(sink.messages.size(), 1);
    EXPECT_TRUE(sink.messages.first().contains(QStringLiteral("FOO")));
}

TEST_F(MuhurthaTest, OneMomentScoresAsTheSearchDid)
{
    clsPlanets boy, girl;
    boy.setPerson(MakePerson(3, 3, 1990, 10, 0, QStringLiteral("5.5"), 28, 38, QStringLiteral("N"), 77, 12, QStringLiteral("E")));
    boy.Calculate();
    girl.setPerson(MakePerson(9, 9, 1992, 15, 0, QStringLiteral("5.5"), 28, 38, QStringLiteral("N"), 77, 12, QStringLiteral("E")));
    girl.Calculate();
    m_muhu->setNatalCharts(nullptr, &boy, &girl);
    m_muhu->CheckMuhurtha(QStringLiteral("Wedding"), QStringLiteral("MARRIAGE"), QDate(2025, 1, 1), QDate(2025, 1, 20), 6.00, 18.00, *m_place);
    ASSERT_TRUE(m_muhu->HasResult());
    const QString elements = m_muhu->BestMuhuFructElems();
    const double score = m_muhu->BestMuhuScoreValue();
    const QDate date = m_muhu->BestMuhuDate();
    const QString time = m_muhu->BestMuhuTime();

    clsPlanets at;
    at.setPerson(MakePerson(date.day(), date.month(), date.year(), time.left(2).toInt(), time.right(2).toInt(),
                            QStringLiteral("5.5"), 28, 38, QStringLiteral("N"), 77, 12, QStringLiteral("E")));
    m_muhu->CheckMuhuMoment(QStringLiteral("Wedding"), QStringLiteral("MARRIAGE"), at);
    EXPECT_EQ(m_muhu->SampleCount(), 1);
    EXPECT_EQ(m_muhu->BestMuhuScoreValue(), score);
    EXPECT_EQ(m_muhu->BestMuhuFructElems(), elements);
    EXPECT_EQ(m_muhu->BestMuhuTime(), time);
}

class CancelAfterOneDay : public MuhurthaProgress
{
public:
    void start(const QString &heading, const QString &) override { this->heading = heading; }
    bool progress(double percent) override
    {
        last = percent;
        return false;
    }
    void finish() override { finished = true; }
    QString heading;
    double last = -1;
    bool finished = false;
};

TEST_F(MuhurthaTest, CancelledSearchLeavesNoResult)
{
    CancelAfterOneDay progress;
    m_muhu->setProgress(&progress);
    m_muhu->CheckMuhurtha(QStringLiteral("Sunday act"), QStringLiteral("TEST"), QDate(2025, 1, 5), QDate(2025, 1, 8), 6.00, 18.00, *m_place);
    EXPECT_EQ(progress.heading, QStringLiteral("Looking for Muhurtha..."));
    EXPECT_DOUBLE_EQ(progress.last, 25);
    EXPECT_TRUE(progress.finished);
    EXPECT_TRUE(m_muhu->Cancelled());
    EXPECT_FALSE(m_muhu->HasResult());
}

TEST_F(MuhurthaTest, ActsAndPredictionCodes)
{
    const QStringList list = m_muhu->FillMuhuList();
    ASSERT_EQ(list.size(), 5);
    EXPECT_EQ(list.first(), QStringLiteral("TEST ---> Sunday act"));
    bool found = false;
    EXPECT_EQ(m_muhu->ActByCode(QStringLiteral("wed"), found).name, QStringLiteral("Wedding"));
    EXPECT_TRUE(found);
    m_muhu->ActByCode(QStringLiteral("NONE"), found);
    EXPECT_FALSE(found);
    EXPECT_EQ(m_muhu->GetMuhuPrediCode(QStringLiteral("Sunday act")).toString(), QStringLiteral("SUNTEXT"));
    EXPECT_FALSE(m_muhu->GetMuhuPrediCode(QStringLiteral("Wedding")).isValid());
}

} // namespace
