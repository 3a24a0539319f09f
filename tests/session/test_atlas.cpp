// SPDX-License-Identifier: AGPL-3.0-or-later
#include "session/AtlasLookup.h"
#include "session/ZoneHistory.h"

#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

const QString AtlasFolder = QStringLiteral(ORBANTA_SOURCE_DIR "/data/atlas");

// The shipped atlas, loaded once for all tests.
const AtlasLookup &shipped()
{
    static const AtlasLookup atlas = [] {
        AtlasLookup a;
        QString error;
        if (!a.Load(AtlasFolder, &error))
            ADD_FAILURE() << error.toStdString();
        return a;
    }();
    return atlas;
}

QStringList names(const std::vector<const AtlasPlace *> &places)
{
    QStringList out;
    for (const AtlasPlace *p : places)
        out << p->City + QLatin1Char('/') + p->Country;
    return out;
}

void writeFile(const QString &path, const QByteArray &text)
{
    QFile f(path);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(text);
}

} // namespace

TEST(Atlas, ShippedTablesAreCompleteAndWellFormed)
{
    const AtlasLookup &atlas = shipped();
    ASSERT_GE(atlas.Places().size(), 25000u);
    ASSERT_GE(atlas.Countries().size(), 240u);

    const AtlasCountry *india = atlas.FindCountry(QStringLiteral("India"));
    ASSERT_NE(india, nullptr);
    EXPECT_EQ(india->GMTDIF, QStringLiteral("+05.30"));
    EXPECT_EQ(india->TimeZone, QStringLiteral("Asia/Kolkata"));

    QSet<QString> countries;
    for (const AtlasCountry &c : atlas.Countries())
        countries.insert(c.Name);
    const QRegularExpression degrees(QStringLiteral("^\\d{3}[0-5]\\d$"));
    const QRegularExpression gmt(QStringLiteral("^[+-]\\d\\d\\.[0-5]\\d$"));
    int indian = 0;
    for (const AtlasPlace &p : atlas.Places()) {
        const std::string row = (p.City + QLatin1Char('/') + p.Country).toStdString();
        ASSERT_FALSE(p.City.isEmpty());
        ASSERT_TRUE(degrees.match(p.Lat).hasMatch()) << row;
        ASSERT_TRUE(degrees.match(p.Longy).hasMatch()) << row;
        ASSERT_LE(p.Lat.left(3).toInt(), 90) << row;
        ASSERT_LT(p.Longy.left(3).toInt(), 180) << row; // the entry screen refuses 180
        ASSERT_TRUE(p.NOSO == QLatin1String("N") || p.NOSO == QLatin1String("S")) << row;
        ASSERT_TRUE(p.EaWe == QLatin1String("E") || p.EaWe == QLatin1String("W")) << row;
        ASSERT_TRUE(gmt.match(p.GMTDIFF).hasMatch()) << row;
        ASSERT_TRUE(countries.contains(p.Country)) << row;
        indian += p.Country == QLatin1String("India");
    }
    EXPECT_GT(indian, 2900);
}

TEST(Atlas, OffsetsAgreeWithTheZoneHistoryNow)
{
    // The generator reads the same zoneinfo as QTimeZone; a zone whose standard offset
    // disagrees means the data wants regenerating for this tz database.
    QHash<QString, QString> offsets;
    for (const AtlasPlace &p : shipped().Places())
        offsets.insert(p.TimeZone + QLatin1Char('|') + p.GMTDIFF, p.TimeZone);
    for (const AtlasCountry &c : shipped().Countries())
        offsets.insert(c.TimeZone + QLatin1Char('|') + c.GMTDIF, c.TimeZone);
    for (auto it = offsets.cbegin(); it != offsets.cend(); ++it) {
        const QString text = it.key().section(QLatin1Char('|'), 1);
        const ZoneMoment z = ZoneHistory::At(it.value(), QDate(2025, 7, 1), QTime(12, 0));
        ASSERT_TRUE(z.valid) << it.value().toStdString();
        EXPECT_EQ(z.standardText, text) << it.value().toStdString();
    }
}

TEST(Atlas, KnownPlaces)
{
    const AtlasMatch delhi = shipped().Resolve(QStringLiteral("New Delhi"));
    ASSERT_EQ(delhi.outcome, AtlasMatch::Found);
    EXPECT_EQ(delhi.place->Lat, QStringLiteral("02838"));
    EXPECT_EQ(delhi.place->Longy, QStringLiteral("07713"));
    EXPECT_EQ(delhi.place->NOSO, QStringLiteral("N"));
    EXPECT_EQ(delhi.place->EaWe, QStringLiteral("E"));
    EXPECT_EQ(delhi.place->Country, QStringLiteral("India"));
    EXPECT_EQ(delhi.place->GMTDIFF, QStringLiteral("+05.30"));
    EXPECT_EQ(delhi.place->TimeZone, QStringLiteral("Asia/Kolkata"));

    const AtlasMatch rio = shipped().Resolve(QStringLiteral("rio de janeiro"));
    ASSERT_EQ(rio.outcome, AtlasMatch::Found);
    EXPECT_EQ(rio.place->NOSO, QStringLiteral("S"));
    EXPECT_EQ(rio.place->EaWe, QStringLiteral("W"));
    EXPECT_EQ(rio.place->GMTDIFF, QStringLiteral("-03.00"));

    // Apostrophes survive, and a typographic one finds the plain one.
    for (const QString &typed : {QStringLiteral("Cox's Bazar"), QStringLiteral("Cox\u2019s bazar")}) {
        const AtlasMatch cox = shipped().Resolve(typed);
        ASSERT_EQ(cox.outcome, AtlasMatch::Found) << typed.toStdString();
        EXPECT_EQ(cox.place->City, QStringLiteral("Cox's Bazar"));
    }
    // Accents typed by the user are dropped before comparing.
    const AtlasMatch zurich = shipped().Resolve(QStringLiteral("Z\u00fcrich"));
    ASSERT_EQ(zurich.outcome, AtlasMatch::Found);
    EXPECT_EQ(zurich.place->Country, QStringLiteral("Switzerland"));
}

TEST(Atlas, ResolveNamesWithCountries)
{
    const AtlasLookup &atlas = shipped();
    const AtlasMatch london = atlas.Resolve(QStringLiteral("London"));
    ASSERT_EQ(london.outcome, AtlasMatch::Ambiguous);
    EXPECT_TRUE(names(london.candidates).contains(QStringLiteral("London/United Kingdom")));
    EXPECT_TRUE(names(london.candidates).contains(QStringLiteral("London/Canada")));

    const AtlasMatch uk = atlas.Resolve(QStringLiteral(" London , united kingdom "));
    ASSERT_EQ(uk.outcome, AtlasMatch::Found);
    EXPECT_EQ(uk.place->Country, QStringLiteral("United Kingdom"));
    const AtlasMatch canada = atlas.Resolve(QStringLiteral("London,Can"));
    ASSERT_EQ(canada.outcome, AtlasMatch::Found);
    EXPECT_EQ(canada.place->TimeZone, QStringLiteral("America/Toronto"));

    // Gaya is in Niger and in Nigeria (and in India): a full country name is not taken as
    // the prefix of a longer one.
    const AtlasMatch niger = atlas.Resolve(QStringLiteral("Gaya,Niger"));
    ASSERT_EQ(niger.outcome, AtlasMatch::Found);
    EXPECT_EQ(niger.place->Country, QStringLiteral("Niger"));
    const AtlasMatch nigeria = atlas.Resolve(QStringLiteral("Gaya,Nigeria"));
    ASSERT_EQ(nigeria.outcome, AtlasMatch::Found);
    EXPECT_EQ(nigeria.place->Country, QStringLiteral("Nigeria"));
    EXPECT_EQ(atlas.Resolve(QStringLiteral("Gaya,Nige")).outcome, AtlasMatch::Ambiguous);

    // Two towns of one name in one country stay ambiguous.
    const AtlasMatch aurangabad = atlas.Resolve(QStringLiteral("Aurangabad,India"));
    ASSERT_EQ(aurangabad.outcome, AtlasMatch::Ambiguous);
    EXPECT_EQ(aurangabad.candidates.size(), 2u);

    // An unknown country still lists the towns of that name, or of that beginning.
    for (const QString &typed : {QStringLiteral("Mumbai,Narnia"), QStringLiteral("Mumba,Narnia")}) {
        const AtlasMatch wrongCountry = atlas.Resolve(typed);
        EXPECT_EQ(wrongCountry.outcome, AtlasMatch::NotFound) << typed.toStdString();
        EXPECT_EQ(names(wrongCountry.candidates), QStringList{QStringLiteral("Mumbai/India")}) << typed.toStdString();
    }

    const AtlasMatch nothing = atlas.Resolve(QStringLiteral("Qqxyzzy"));
    EXPECT_EQ(nothing.outcome, AtlasMatch::NotFound);
    EXPECT_TRUE(nothing.candidates.empty());
    EXPECT_EQ(atlas.Resolve(QStringLiteral("  ")).outcome, AtlasMatch::NotFound);
}

TEST(Atlas, ResolveByTheBeginningOfOneName)
{
    const AtlasLookup &atlas = shipped();
    struct Case
    {
        const char *typed;
        const char *found; // City/Country, or null when it stays ambiguous
    };
    const Case cases[] = {
        {"Mumba", "Mumbai/India"},           // the only place that starts so
        {"mumba, ind", "Mumbai/India"},      // with a country, also a prefix
        {"Londr", "Londrina/Brazil"},
        {"Londo,Canada", "London/Canada"},   // London of the UK and Londonderry are elsewhere
        {"Gay", "Gay/Russia"},               // a whole name beats the longer names it begins
        {"Suva", "Suva/Fiji"},               // not Suva Reka
        {"Lond", nullptr},                   // two Londons, Londonderry, Londrina
        {"Lond,United K", nullptr},          // London and Londonderry
    };
    for (const Case &c : cases) {
        const AtlasMatch m = atlas.Resolve(QString::fromUtf8(c.typed));
        if (c.found) {
            ASSERT_EQ(m.outcome, AtlasMatch::Found) << c.typed;
            EXPECT_EQ(m.place->City + QLatin1Char('/') + m.place->Country, QString::fromUtf8(c.found)) << c.typed;
        } else {
            EXPECT_EQ(m.outcome, AtlasMatch::Ambiguous) << c.typed;
            EXPECT_GE(m.candidates.size(), 2u) << c.typed;
            for (const AtlasPlace *p : m.candidates)
                EXPECT_TRUE(p->City.startsWith(QStringLiteral("Lond"))) << c.typed;
        }
    }
    EXPECT_EQ(atlas.Resolve(QStringLiteral("Lond")).candidates.size(), 4u);

    // A short beginning lists as many as asked and counts the rest.
    const AtlasMatch sa = atlas.Resolve(QStringLiteral("Sa"), 5);
    ASSERT_EQ(sa.outcome, AtlasMatch::Ambiguous);
    EXPECT_EQ(sa.candidates.size(), 5u);
    EXPECT_EQ(int(sa.candidates.size()) + sa.more, int(atlas.FindPlaces(QStringLiteral("Sa")).size()));
    EXPECT_EQ(atlas.Resolve(QStringLiteral("Lond")).more, 0);
}

TEST(Atlas, PrefixSearches)
{
    const AtlasLookup &atlas = shipped();
    const auto newDel = atlas.FindPlaces(QStringLiteral("NEW DEL"));
    EXPECT_TRUE(names(newDel).contains(QStringLiteral("New Delhi/India")));
    for (const AtlasPlace *p : newDel)
        EXPECT_TRUE(p->City.startsWith(QStringLiteral("new del"), Qt::CaseInsensitive));

    const auto londons = atlas.FindPlaces(QStringLiteral("London"), QStringLiteral("united k"));
    ASSERT_FALSE(londons.empty());
    for (const AtlasPlace *p : londons)
        EXPECT_EQ(p->Country, QStringLiteral("United Kingdom"));

    const auto firstTen = atlas.FindPlaces(QStringLiteral("sa"), QString(), 10);
    ASSERT_EQ(firstTen.size(), 10u);
    for (size_t i = 1; i < firstTen.size(); ++i)
        EXPECT_LE(AtlasLookup::Fold(firstTen[i - 1]->City), AtlasLookup::Fold(firstTen[i]->City));

    // With no name, the country filter lists the country's places.
    const auto singapore = atlas.FindPlaces(QString(), QStringLiteral("Singapore"));
    ASSERT_FALSE(singapore.empty());
    for (const AtlasPlace *p : singapore)
        EXPECT_EQ(p->Country, QStringLiteral("Singapore"));

    const auto unit = atlas.FindCountries(QStringLiteral("unit"));
    QStringList unitNames;
    for (const AtlasCountry *c : unit)
        unitNames << c->Name;
    EXPECT_EQ(unitNames, (QStringList{QStringLiteral("United Arab Emirates"), QStringLiteral("United Kingdom"),
                                      QStringLiteral("United States")}));
    EXPECT_EQ(atlas.FindCountry(QStringLiteral("Atlantis")), nullptr);
}

TEST(Atlas, LoaderReadsColumnsByNameAndReportsBadFiles)
{
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const QString city = dir.filePath(QStringLiteral("City.tsv"));
    const QString country = dir.filePath(QStringLiteral("Country.tsv"));
    writeFile(city, "TimeZone\tCity\tLat\tLongy\tNOSO\tEaWe\tCountry\tGMTDIFF\r\n"
                    "Asia/Kolkata\tMan'gaon\t01814\t07316\tN\tE\tIndia\t+05.30\r\n\r\n");
    writeFile(country, "Name\tGMTDIF\tTimeZone\nIndia\t+05.30\tAsia/Kolkata\n");

    AtlasLookup atlas;
    QString error;
    ASSERT_TRUE(atlas.Load(dir.path(), &error)) << error.toStdString();
    ASSERT_EQ(atlas.Places().size(), 1u);
    EXPECT_EQ(atlas.Places()[0].City, QStringLiteral("Man'gaon"));
    EXPECT_EQ(atlas.Places()[0].TimeZone, QStringLiteral("Asia/Kolkata"));
    EXPECT_EQ(atlas.Places()[0].GMTDIFF, QStringLiteral("+05.30"));

    writeFile(country, "Name\tTimeZone\nIndia\tAsia/Kolkata\n");
    EXPECT_FALSE(atlas.Load(dir.path(), &error));
    EXPECT_TRUE(error.contains(QStringLiteral("GMTDIF"))) << error.toStdString();

    writeFile(country, "Name\tGMTDIF\tTimeZone\nIndia\t+05.30\n");
    EXPECT_FALSE(atlas.Load(dir.path(), &error));

    EXPECT_FALSE(atlas.Load(dir.filePath(QStringLiteral("missing")), &error));
    EXPECT_FALSE(error.isEmpty());
}
