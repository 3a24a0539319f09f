// SPDX-License-Identifier: AGPL-3.0-or-later
#include "session/clsCity.h"
#include "session/clsCountry.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>

namespace {
// A private copy of the shipped records database.
class AtlasTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(dir.isValid());
        const QString copy = dir.filePath(QStringLiteral("RECOS.Dat"));
        ASSERT_TRUE(QFile::copy(QStringLiteral(ORBANTA_BINARY_DIR "/STUFF/COMMON/RECOS.Dat"), copy));
        QFile(copy).setPermissions(QFile::ReadOwner | QFile::WriteOwner);
        db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("atlas_test"));
        db.setDatabaseName(copy);
        ASSERT_TRUE(db.open());
    }
    void TearDown() override
    {
        db.close();
        db = QSqlDatabase();
        QSqlDatabase::removeDatabase(QStringLiteral("atlas_test"));
    }
    int rows(const QString &table)
    {
        QSqlQuery q(db);
        q.exec(QStringLiteral("SELECT COUNT(*) FROM ") + table);
        q.next();
        return q.value(0).toInt();
    }
    static CityFields place(const QString &name, const QString &country)
    {
        return {name,    QStringLiteral("02838"), QStringLiteral("07713"), QStringLiteral("N"), QStringLiteral("E"),
                country, QStringLiteral("+05.30")};
    }

    QTemporaryDir dir;
    QSqlDatabase db;
};
} // namespace

TEST_F(AtlasTest, CursorWalksTheRowsInTableOrder)
{
    clsCountry countries(db);
    ASSERT_GT(countries.Count(), 1);
    EXPECT_EQ(countries.Count(), rows(QStringLiteral("Country")));
    EXPECT_GE(countries.FindFirst(QStringLiteral("India")), 0);
    const QString first = countries.Name();
    countries.MoveNext();
    const QString second = countries.Name();
    EXPECT_NE(first, second);
    countries.MoveTo(1);
    EXPECT_EQ(countries.Name(), second);
    // The list runs from the current row to the end.
    const QStringList tail = countries.FillInCombo();
    EXPECT_EQ(tail.size(), countries.Count() - 1);
    EXPECT_EQ(tail.first(), second);
    countries.MoveLast();
    EXPECT_EQ(countries.FillInCombo().size(), 1);
    countries.MoveNext();
    EXPECT_TRUE(countries.AtEnd());
    EXPECT_EQ(countries.Name(), QString());
    countries.MoveFirst();
    EXPECT_EQ(countries.Name(), first);

    clsCity cities(db);
    EXPECT_EQ(cities.CityCount(), rows(QStringLiteral("City")));
    EXPECT_EQ(cities.FillInCombo().size(), cities.CityCount());
    EXPECT_EQ(cities.Lat().size(), 5);
}

TEST_F(AtlasTest, CoordinateBoxesAndColumns)
{
    EXPECT_EQ(clsCity::BoxToColumn(QStringLiteral("028:38")), QStringLiteral("02838"));
    EXPECT_EQ(clsCity::ColumnToBox(QStringLiteral("02838")), QStringLiteral("028:38"));
    EXPECT_EQ(clsCity::ColumnToBox(QStringLiteral("2838")), QStringLiteral("028:38"));
    EXPECT_EQ(clsCity::ColumnToBox(QStringLiteral("17959")), QStringLiteral("179:59"));

    EXPECT_FALSE(clsCity::CheckCoordinate(QStringLiteral("179:59"), false).has_value());
    const auto lon = clsCity::CheckCoordinate(QStringLiteral("180:00"), false);
    ASSERT_TRUE(lon.has_value());
    EXPECT_EQ(lon->title, QStringLiteral("Invalid Longitude"));
    EXPECT_EQ(lon->text, QStringLiteral("Please enter a value under 180."));
    // The latitude has the same limit of 180, not 90.
    EXPECT_FALSE(clsCity::CheckCoordinate(QStringLiteral("095:00"), true).has_value());
    const auto lat = clsCity::CheckCoordinate(QStringLiteral("180:00"), true);
    ASSERT_TRUE(lat.has_value());
    EXPECT_EQ(lat->title, QStringLiteral("Invalid Latitude"));
}

TEST_F(AtlasTest, CityOfAnUnknownCountryIsRefused)
{
    clsCity cities(db);
    const int before = cities.CityCount();
    const AtlasEditResult r = cities.AddCity(place(QStringLiteral("Nowhere"), QStringLiteral("Atlantis")));
    EXPECT_FALSE(r.ok);
    EXPECT_EQ(r.title, QStringLiteral("Country Not Found"));
    EXPECT_EQ(r.text, QStringLiteral("Invalid Country, Please Select a Country From The List."));
    EXPECT_EQ(rows(QStringLiteral("City")), before);

    // A country typed in another case is found.
    ASSERT_TRUE(cities.AddCity(place(QStringLiteral("Newtown"), QStringLiteral("INDIA"))).ok);
    EXPECT_EQ(cities.CityCount(), before + 1);
    cities.MoveLast();
    EXPECT_EQ(cities.Name(), QStringLiteral("Newtown"));
    EXPECT_EQ(cities.Lat(), QStringLiteral("02838"));
    QSqlQuery q(db);
    q.exec(QStringLiteral("SELECT TimeZone FROM City WHERE City = 'Newtown'"));
    ASSERT_TRUE(q.next());
    EXPECT_EQ(q.value(0).toString(), QStringLiteral("Asia/Kolkata")); // the country's zone
}

TEST_F(AtlasTest, LongitudeOf180IsRefusedAnd17959Accepted)
{
    clsCity cities(db);
    CityFields f = place(QStringLiteral("Dateline"), QStringLiteral("Fiji"));
    f.Longy = QStringLiteral("18000");
    const AtlasEditResult r = cities.AddCity(f);
    EXPECT_FALSE(r.ok);
    EXPECT_EQ(r.title, QStringLiteral("Invalid Longitude"));
    f.Longy = QStringLiteral("17959");
    EXPECT_TRUE(cities.AddCity(f).ok);
    EXPECT_EQ(cities.FindFirst(QStringLiteral("Dateline")), cities.CityCount() - 1);
}

TEST_F(AtlasTest, NamesWithApostrophesTravelThroughEveryOperation)
{
    clsCountry countries(db);
    const QString country = QStringLiteral("Ma'arrat Test Republic");
    ASSERT_TRUE(countries.AddCountry(country, QStringLiteral("+03.00")).ok);
    EXPECT_TRUE(countries.Exists(country));
    const int row = countries.FindFirst(country);
    ASSERT_EQ(row, countries.Count() - 1);
    countries.MoveTo(row);
    EXPECT_EQ(countries.GMT(), QStringLiteral("+03.00"));

    clsCity cities(db);
    ASSERT_TRUE(cities.AddCity(place(QStringLiteral("L'Oasis d'Or"), country)).ok);
    const int cityRow = cities.FindFirst(QStringLiteral("l'oasis d'or"));
    ASSERT_GE(cityRow, 0);
    cities.MoveTo(cityRow);
    EXPECT_EQ(cities.Country(), country);

    ASSERT_TRUE(countries.ModifyCountry(row, QStringLiteral("Ma'arrat O'Neill"), QStringLiteral("+03.30")).ok);
    countries.MoveTo(row);
    EXPECT_EQ(countries.Name(), QStringLiteral("Ma'arrat O'Neill"));
    EXPECT_EQ(countries.GMT(), QStringLiteral("+03.30"));
    ASSERT_TRUE(countries.DeleteCountry(QStringLiteral("Ma'arrat O'Neill")).ok);
    EXPECT_FALSE(countries.Exists(QStringLiteral("Ma'arrat O'Neill")));
    ASSERT_TRUE(cities.DeleteRow(cities.FindFirst(QStringLiteral("L'Oasis d'Or"))).ok);
    EXPECT_EQ(cities.FindFirst(QStringLiteral("L'Oasis d'Or")), -1);
}

TEST_F(AtlasTest, DeletingACountryLeavesItsCitiesWithTheirOwnDifference)
{
    clsCountry countries(db);
    clsCity cities(db);
    ASSERT_TRUE(countries.AddCountry(QStringLiteral("Testland"), QStringLiteral("+02.00")).ok);
    CityFields f = place(QStringLiteral("Testville"), QStringLiteral("Testland"));
    f.GMTDIFF = QStringLiteral("+02.30");
    ASSERT_TRUE(cities.AddCity(f).ok);
    ASSERT_TRUE(countries.DeleteCountry(QStringLiteral("Testland")).ok);
    cities.Requery();
    const int row = cities.FindFirst(QStringLiteral("Testville"));
    ASSERT_GE(row, 0);
    cities.MoveTo(row);
    EXPECT_EQ(cities.GMTDIFF(), QStringLiteral("+02.30"));
    // Changing it now needs a country that exists.
    EXPECT_EQ(cities.ChangeCity(row, f).title, QStringLiteral("Country Not Found"));
}

TEST_F(AtlasTest, ChangeRewritesOneRowAndKeepsItsZone)
{
    clsCity cities(db);
    const int row = cities.FindFirst(QStringLiteral("Chennai"));
    ASSERT_GE(row, 0);
    cities.MoveTo(row);
    CityFields f = cities.Fields();
    QSqlQuery q(db);
    q.exec(QStringLiteral("SELECT TimeZone FROM City WHERE City = 'Chennai'"));
    ASSERT_TRUE(q.next());
    const QString zone = q.value(0).toString();
    f.Lat = QStringLiteral("01305");
    f.NOSO = QStringLiteral("S");
    ASSERT_TRUE(cities.ChangeCity(row, f).ok);
    EXPECT_EQ(cities.Position(), row);
    EXPECT_EQ(cities.Lat(), QStringLiteral("01305"));
    EXPECT_EQ(cities.NS(), QStringLiteral("S"));
    q.exec(QStringLiteral("SELECT TimeZone FROM City WHERE City = 'Chennai'"));
    ASSERT_TRUE(q.next());
    EXPECT_EQ(q.value(0).toString(), zone);
    ASSERT_TRUE(cities.setLongi(QStringLiteral("08017")).ok);
    EXPECT_EQ(cities.Longi(), QStringLiteral("08017"));
    EXPECT_EQ(cities.Position(), row);
}

TEST_F(AtlasTest, AFailedWriteIsRolledBackAndLeavesNoTransactionOpen)
{
    QSqlQuery q(db);
    ASSERT_TRUE(
        q.exec(QStringLiteral("CREATE TRIGGER refuse AFTER INSERT ON Country BEGIN SELECT RAISE(ABORT, 'refused'); END")));
    clsCountry countries(db);
    const int before = countries.Count();
    const AtlasEditResult r = countries.AddCountry(QStringLiteral("Blocked"), QStringLiteral("+01.00"));
    EXPECT_FALSE(r.ok);
    EXPECT_TRUE(r.text.contains(QStringLiteral("refused")));
    EXPECT_EQ(rows(QStringLiteral("Country")), before);
    ASSERT_TRUE(q.exec(QStringLiteral("DROP TRIGGER refuse")));
    EXPECT_TRUE(countries.AddCountry(QStringLiteral("Open"), QStringLiteral("+01.00")).ok);
    EXPECT_EQ(countries.Count(), before + 1);
}
