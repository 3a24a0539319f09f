// SPDX-License-Identifier: AGPL-3.0-or-later
// The readings that come straight out of the text tables: the 28-nakshatra count with Abhijit,
// the pairs of the conjunction results, the sign aspects, the houses of the lords and planets;
// then a sweep of random births over every reading, failing on a key that has no paragraph, and
// a check that no two keys of one table share a paragraph.
#include "sky/MessageSink.h"
#include "support/EnglishChart.h"
#include "support/RecordingSink.h"
#include "text/Readings.h"

#include <QRandomGenerator>
#include <QSet>
#include <QSqlQuery>

namespace {

class Readings : public EnglishChart
{
protected:
    void SetUp() override
    {
        EnglishChart::SetUp();
        for (int n = 0; n <= 25; ++n)
            chart.setPlanetLongi(n, 0);
    }
    void put(int p, double longitude) { chart.setPlanetLongi(p, longitude); }
    // Every planet 1..12 in its own stretch, far from any named relation to the others.
    void apart()
    {
        for (int p = 0; p <= 12; ++p)
            put(p, p * 27.5 + 1);
    }
    static QStringList keys(const Reading &r)
    {
        QStringList out;
        for (const ReadingItem &i : r.items)
            if (i.type)
                out << i.category + QLatin1Char('/') + i.head;
        return out;
    }
};

} // namespace

TEST(Nak28, AbhijitTakesTheEndOfUttarashadaAndTheStartOfShravana)
{
    struct Case
    {
        double lon;
        int index, quarter;
    };
    const Case cases[] = {
        {0.0, 1, 1},       {13.3, 1, 4},     {13.34, 2, 1},   {266.0, 20, 4},  {266.67, 21, 1}, {276.6, 21, 4},
        {276.67, 22, 1},   {278.0, 22, 2},   {280.8, 22, 4},  {280.9, 23, 1},  {281.0, 23, 1},  {293.0, 23, 4},
        {293.34, 24, 1},   {359.99, 28, 4},
    };
    for (const Case &c : cases) {
        EXPECT_EQ(Nak28Index(c.lon), c.index) << c.lon;
        EXPECT_EQ(Nak28Quarter(c.lon), c.quarter) << c.lon;
    }
    EXPECT_EQ(Nak28Word(21), "UTTARASHADA");
    EXPECT_EQ(Nak28Word(22), "ABHIJIT");
    EXPECT_EQ(Nak28Word(23), "SHRAVANA");
    EXPECT_EQ(Nak28NameKey(22), 28);
    EXPECT_EQ(Nak28NameKey(23), 22);
    EXPECT_EQ(Nak28NameKey(21), 21);
}

TEST_F(Readings, ConjunctionsNameTheLowerPlanetFirstAndLeaveTheNodesPairOut)
{
    apart();
    put(7, 100.0); // Moon
    put(1, 101.5); // Sun: conjunct the Moon
    put(3, 221.0); // Venus: 120 from Moon, trine; 119.5 from the Sun
    put(8, 40.0);  // Rahu and Ketu opposite: no pair of their own
    put(9, 220.0); // Ketu conjunct Venus
    put(6, 250.0); // Saturn: 150 from the Moon, a quincunx, which has no text
    const Reading r = ConjunctionReading(chart);
    const QStringList k = keys(r);
    EXPECT_TRUE(k.contains("/Sun-Moon:CNJ"));
    EXPECT_TRUE(k.contains("/Sun-Ven:TRN"));
    EXPECT_TRUE(k.contains("/Ven-Moon:TRN"));
    EXPECT_TRUE(k.contains("/Ven-Ket:CNJ"));
    EXPECT_FALSE(k.contains("/Rah-Ket:OPP"));
    for (const QString &key : k)
        EXPECT_FALSE(key.startsWith("/Sat-Moon")) << key.toStdString();
    for (const ReadingItem &i : r.items)
        if (i.head == "Sun-Moon:CNJ")
            EXPECT_EQ(i.heading, "Sun in Conjunction with Moon");
}

TEST_F(Readings, SignAspectsOfTheParashariTable)
{
    apart();
    for (int p = 1; p <= 9; ++p)
        put(p, 15); // all in Aries
    EXPECT_EQ(ParashariAspectors(chart, 7), (QList<int>{1, 2, 3, 4, 5, 6, 7, 8, 9}));
    EXPECT_EQ(ParashariAspectors(chart, 4), (QList<int>{4}));      // Mars' 4th
    EXPECT_EQ(ParashariAspectors(chart, 8), (QList<int>{4}));      // and 8th
    EXPECT_EQ(ParashariAspectors(chart, 5), (QList<int>{5}));      // Jupiter's 5th
    EXPECT_EQ(ParashariAspectors(chart, 3), (QList<int>{6}));      // Saturn's 3rd
    EXPECT_EQ(ParashariAspectors(chart, 10), (QList<int>{6}));     // and 10th
    EXPECT_TRUE(ParashariAspectors(chart, 1).isEmpty());           // nobody aspects its own sign
    EXPECT_TRUE(ParashariAspectors(chart, 2).isEmpty());
}

TEST_F(Readings, HousesOfTheLordsAndOfThePlanets)
{
    apart();
    put(0, 200.0); // Libra rising
    put(3, 190.0); // Venus, lord of the 1st and 8th, in Libra: house 1
    put(4, 10.0);  // Mars, lord of the 2nd and 7th, in Aries: house 7
    put(6, 359.5); // Saturn, lord of the 4th and 5th, in Pisces: house 6
    const Reading r = BhavaFalaReading(chart);
    const QStringList k = keys(r);
    EXPECT_TRUE(k.contains("AscLordinHouse/1"));
    EXPECT_TRUE(k.contains("8thLordInHouse/1"));
    EXPECT_TRUE(k.contains("2ndLordinHouse/7"));
    EXPECT_TRUE(k.contains("7thLordInHouse/7"));
    EXPECT_TRUE(k.contains("5thLordInHouse/6"));
    EXPECT_TRUE(k.contains("PlanetIn6th/Sat"));
    EXPECT_TRUE(k.contains("PlanetInAsc/Ven"));
    EXPECT_TRUE(k.contains("PlanetIn7th/Mar"));
    // One paragraph for each lord, one for each planet 1..12.
    EXPECT_EQ(k.size(), 24);
    EXPECT_EQ(HouseOfSign(1, 12), 2);
    EXPECT_EQ(HouseOfSign(12, 1), 12);
    EXPECT_EQ(HouseOfSign(5, 5), 1);
}

TEST_F(Readings, NakshatraAndSignKeys)
{
    apart();
    put(7, 278.0); // the Moon in Abhijit
    chart.Person().setSex(2);
    QStringList k = keys(NakshatraReading(chart));
    EXPECT_EQ(k.mid(0, 5), (QStringList{"ABHIJIT/GENFEM", "ABHIJIT/PHYSFEM", "ABHIJIT/EDUFEM", "ABHIJIT/FAMIFEM",
                                        "ABHIJIT/HEALTHFEM"}));
    EXPECT_TRUE(k.contains("ABHIJIT/Moon2"));
    EXPECT_EQ(k.size(), 14);
    chart.Person().setSex(1);
    EXPECT_EQ(keys(NakshatraReading(chart)).first(), "ABHIJIT/GENMALE");

    put(0, 45.0); // Taurus rising
    k = keys(GrahaFalaReading(chart));
    EXPECT_EQ(k.first(), "AscResu/2");
    EXPECT_TRUE(k.contains("PLResu/Moon10"));
    EXPECT_TRUE(k.contains("PLResu/Plu12"));
    EXPECT_EQ(k.size(), 13);
}

TEST_F(Readings, EveryKeyOfRandomBirthsHasItsParagraph)
{
    RecordingSink sink;
    ScopedMessageSink scoped(&sink);
    QSet<QString> missing, labels;
    QRandomGenerator rng(20261123);
    for (int n = 0; n < 300; ++n) {
        chart.Person() = MakePerson(rng.bounded(1, 29), rng.bounded(1, 13), rng.bounded(1920, 2040), rng.bounded(0, 24),
                                    rng.bounded(0, 60), "5.5", rng.bounded(0, 60), 0, rng.bounded(2) ? "N" : "S",
                                    rng.bounded(0, 180), 0, rng.bounded(2) ? "E" : "W");
        chart.Person().setSex(rng.bounded(1, 3));
        chart.Calculate();
        const Reading all[] = {ConjunctionReading(chart), NakshatraReading(chart), GrahaFalaReading(chart),
                               BhavaFalaReading(chart)};
        // The readers look up the titles and headings; the paragraphs are looked up below.
        for (const QString &report : sink.reports)
            labels.insert(report);
        for (const Reading &r : all)
            for (const ReadingItem &i : r.items)
                if (i.type && !chart.GetHeadValue(i.type, i.head, i.category).isValid())
                    missing.insert(QStringLiteral("%1 %2/%3").arg(i.type).arg(i.category, i.head));
        sink.reports.clear();
    }
    QStringList list(missing.begin(), missing.end());
    list.sort();
    EXPECT_TRUE(list.isEmpty()) << list.size() << " keys without a paragraph, among them: "
                                << list.mid(0, 30).join(", ").toStdString();
    EXPECT_TRUE(labels.isEmpty()) << QStringList(labels.begin(), labels.end()).join(", ").toStdString();
}

TEST_F(Readings, NoTwoKeysOfATableShareAParagraph)
{
    for (const char *table : {"ASP", "Nakshatra", "Bhava"}) {
        QSqlQuery q(db);
        ASSERT_TRUE(q.exec(QStringLiteral("SELECT * FROM %1").arg(QString::fromLatin1(table))));
        QHash<QString, QString> seen;
        while (q.next()) {
            const QString val = q.value(QStringLiteral("Val")).toString().simplified();
            if (val.isEmpty())
                continue;
            const QString key = q.value(QStringLiteral("Head")).toString();
            const auto it = seen.constFind(val);
            EXPECT_TRUE(it == seen.constEnd()) << table << ": " << key.toStdString() << " repeats " << it->toStdString();
            seen.insert(val, key);
        }
    }
}
