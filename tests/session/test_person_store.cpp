// SPDX-License-Identifier: AGPL-3.0-or-later
#include "session/PersonStore.h"
#include "sky/clsPerson.h"

#include <QFile>
#include <QSqlQuery>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {
const QString kStuff = QStringLiteral(ORBANTA_BINARY_DIR "/STUFF/COMMON/");

// A copy of the shipped records database in a temporary folder, open for the test.
class StoreFixture : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(dir.isValid());
        const QString file = dir.filePath("RECOS.Dat");
        ASSERT_TRUE(QFile::copy(kStuff + "RECOS.Dat", file));
        QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner);
        db = QSqlDatabase::addDatabase("QSQLITE", "store_test");
        db.setDatabaseName(file);
        ASSERT_TRUE(db.open());
    }
    void TearDown() override
    {
        db.close();
        db = QSqlDatabase();
        QSqlDatabase::removeDatabase("store_test");
    }
    static PersonRow asha()
    {
        return PersonRow::fromFields("Asha", false, "02/09/2000", "14.05", false, "India", "Delhi", "028:38", "N", "077:12", "E",
                                     "+05.30", "-01.00", 3);
    }
    QTemporaryDir dir;
    QSqlDatabase db;
};

std::vector<QString> names(const PersonStore &s)
{
    std::vector<QString> out;
    for (const auto &[name, sex] : s.PersonNames())
        out.push_back(name);
    return out;
}
} // namespace

TEST_F(StoreFixture, FieldsGoIntoTheirColumns)
{
    const PersonRow r = asha();
    EXPECT_EQ(r.Hour, 14);
    EXPECT_EQ(r.Minutes, 5);
    EXPECT_EQ(r.seconds, 5); // the same characters as the minutes
    EXPECT_EQ(r.Sex, 2);
    EXPECT_EQ(r.AMPM, 2);
    EXPECT_EQ(r.LatDeg, 28);
    EXPECT_EQ(r.LongMT, 12);
    PersonStore store(db);
    bool added = false;
    ASSERT_TRUE(store.SavePerson(r, &added).ok);
    EXPECT_TRUE(added);
    const auto back = store.FindPerson("Asha");
    ASSERT_TRUE(back);
    EXPECT_EQ(back->GMTDIFF, "+05.30");
    EXPECT_EQ(back->TCorrVal.toString(), "-01.00");
    EXPECT_EQ(back->Tcorrinde.toInt(), 3);
    EXPECT_EQ(back->City, "Delhi");
}

TEST_F(StoreFixture, SavingAnExistingNameOverwritesItsRowIncludingSex)
{
    PersonStore store(db);
    store.SavePerson(asha());
    PersonRow again = asha();
    again.Sex = 1;
    again.Hour = 6;
    bool added = true;
    ASSERT_TRUE(store.SavePerson(again, &added).ok);
    EXPECT_FALSE(added);
    EXPECT_EQ(store.Count(), 1);
    EXPECT_EQ(store.FindPerson("Asha")->Sex, 1);
    EXPECT_EQ(store.FindPerson("Asha")->Hour, 6);
}

TEST_F(StoreFixture, NamesWithQuotesAndWildcardsAreJustText)
{
    PersonStore store(db);
    PersonRow odd = asha();
    odd.Name = "D'Souza 100%_x";
    ASSERT_TRUE(store.SavePerson(odd).ok);
    ASSERT_TRUE(store.SavePerson(asha()).ok);
    EXPECT_TRUE(store.FindPerson("D'Souza 100%_x"));
    EXPECT_EQ(store.FindByPrefix("D'S")->Name, "D'Souza 100%_x");
    EXPECT_FALSE(store.FindByPrefix("D'Souza 1000")); // "%" is no wildcard here
    EXPECT_EQ(store.FindByPrefix("as")->Name, "Asha"); // prefixes ignore case
    EXPECT_FALSE(store.FindByPrefix("Zed"));
    ASSERT_TRUE(store.DeletePerson("D'Souza 100%_x").ok);
    EXPECT_EQ(names(store), std::vector<QString>{"Asha"});
}

TEST_F(StoreFixture, NullZoneAndCorrectionIndexReadAsTheirDefaults)
{
    QSqlQuery q(db);
    ASSERT_TRUE(q.exec("INSERT INTO Person (Name, Sex, Day, Month, Year) VALUES ('Old', 1, 1, 1, 1950)"));
    PersonStore store(db);
    const auto r = store.FindPerson("Old");
    ASSERT_TRUE(r);
    EXPECT_EQ(r->GMTDIFF, "+00.00");
    EXPECT_EQ(r->Tcorrinde.toInt(), 0);
    EXPECT_TRUE(r->TCorrVal.isNull());
}

TEST_F(StoreFixture, ExportAndImportRoundTripAndImportTwiceDuplicates)
{
    PersonStore store(db);
    store.SavePerson(asha());
    PersonRow ravi = asha();
    ravi.Name = "Ravi";
    ravi.Sex = 1;
    store.SavePerson(ravi);

    const QString jkd = dir.filePath("all.JKD");
    ASSERT_TRUE(PersonStore::ExportPersons(kStuff + "ExpTemp.JKP", store.AllPersons(), jkd).ok);
    const QString jkp = dir.filePath("one.JKP");
    ASSERT_TRUE(PersonStore::ExportPersons(kStuff + "ExpTemp.JKP", {ravi}, jkp).ok);
    // an existing file is replaced
    ASSERT_TRUE(PersonStore::ExportPersons(kStuff + "ExpTemp.JKP", {ravi}, jkp).ok);

    const StoreResult one = store.ImportPersons(jkp);
    ASSERT_TRUE(one.ok) << one.message.toStdString();
    EXPECT_EQ(one.rows, 1);
    ASSERT_TRUE(store.ImportPersons(jkd).ok);
    ASSERT_TRUE(store.ImportPersons(jkd).ok);
    EXPECT_EQ(store.Count(), 2 + 1 + 2 + 2);
    const auto all = store.AllPersons();
    EXPECT_EQ(all.back().Name, "Ravi");
    EXPECT_EQ(all.back().GMTDIFF, "+05.30");
    EXPECT_TRUE(all.back().TCorrVal.isNull()); // the correction is not exchanged
    EXPECT_EQ(all.back().Minutes, 5);
}

TEST_F(StoreFixture, DamagedOrForeignFilesChangeNothing)
{
    PersonStore store(db);
    store.SavePerson(asha());
    const auto before = store.AllPersons();

    const QString jkd = dir.filePath("good.JKD");
    ASSERT_TRUE(PersonStore::ExportPersons(kStuff + "ExpTemp.JKP", {asha(), asha(), asha()}, jkd).ok);

    // Random bytes.
    const QString junk = dir.filePath("junk.JKD");
    {
        QFile f(junk);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(QByteArray(5000, '\x5a'));
    }
    // A real database cut off in the middle.
    const QString cut = dir.filePath("cut.JKD");
    {
        QFile in(jkd);
        ASSERT_TRUE(in.open(QIODevice::ReadOnly));
        const QByteArray all = in.readAll();
        QFile out(cut);
        ASSERT_TRUE(out.open(QIODevice::WriteOnly));
        out.write(all.left(all.size() / 2 + 100));
    }
    // A database of another kind: the language table's file has no table Person.
    const QString foreign = kStuff + "LANGS.Dat";
    // A text file.
    const QString text = dir.filePath("notes.JKD");
    {
        QFile f(text);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write("Name,Sex\nAsha,2\n");
    }

    for (const QString &bad : {junk, cut, foreign, text, dir.filePath("missing.JKD")}) {
        const StoreResult r = store.ImportPersons(bad);
        EXPECT_FALSE(r.ok) << bad.toStdString();
        EXPECT_TRUE(r.message.contains("Nothing was imported")) << r.message.toStdString();
        EXPECT_EQ(store.Count(), static_cast<int>(before.size())) << bad.toStdString();
    }
    EXPECT_EQ(store.AllPersons().front().Name, before.front().Name);
}

// A file whose rows no entry screen could have written (day 45, month 13, minute 75) is refused
// whole: its good rows don't slip in either.
TEST_F(StoreFixture, RowsThatAreNoBirthRefuseTheWholeFile)
{
    PersonStore store(db);
    store.SavePerson(asha());
    const auto wrong = [](auto change) {
        PersonRow r = asha();
        change(r);
        return r;
    };
    const std::vector<PersonRow> bad{wrong([](PersonRow &r) { r.Day = 45; }), wrong([](PersonRow &r) { r.Month = 13; }),
                                     wrong([](PersonRow &r) { r.Minutes = 75; }), wrong([](PersonRow &r) { r.Hour = 25; }),
                                     wrong([](PersonRow &r) { r.LatDeg = 200; }), wrong([](PersonRow &r) { r.Sex = 0; })};
    for (size_t i = 0; i < bad.size(); ++i) {
        const QString file = dir.filePath(QStringLiteral("bad%1.JKD").arg(i));
        ASSERT_TRUE(PersonStore::ExportPersons(kStuff + "ExpTemp.JKP", {asha(), bad[i]}, file).ok);
        const StoreResult r = store.ImportPersons(file);
        EXPECT_FALSE(r.ok) << i;
        EXPECT_TRUE(r.message.contains("Nothing was imported")) << i;
        EXPECT_EQ(store.Count(), 1) << i;
    }
    // Hour 24 and 29 February of a leap year are births.
    const QString good = dir.filePath("good.JKD");
    ASSERT_TRUE(PersonStore::ExportPersons(kStuff + "ExpTemp.JKP",
                                           {wrong([](PersonRow &r) { r.Hour = 24; r.Minutes = 0; }),
                                            wrong([](PersonRow &r) { r.Day = 29; r.Month = 2; r.Year = 2000; })},
                                           good)
                    .ok);
    EXPECT_TRUE(store.ImportPersons(good).ok);
    EXPECT_EQ(store.Count(), 3);
}

TEST_F(StoreFixture, PersonCursorWalksByNameAndWritesBack)
{
    PersonStore store(db);
    for (const char *name : {"Meera", "Anil", "Zoya"}) {
        PersonRow r = asha();
        r.Name = name;
        store.SavePerson(r);
    }
    QSqlQuery q(db);
    ASSERT_TRUE(q.exec("UPDATE Person SET GMTDIFF = NULL, Tcorrinde = NULL WHERE Name = 'Zoya'"));

    clsPerson p;
    p.SetDB(db);
    EXPECT_EQ(p.Count(), 3);
    EXPECT_EQ(p.Name(), "Anil"); // the first row in name order
    p.MoveNext();
    EXPECT_EQ(p.Name(), "Meera");
    p.MoveLast();
    EXPECT_EQ(p.Name(), "Zoya");
    EXPECT_EQ(p.GMTDIFF(), "+00.00");
    EXPECT_EQ(p.TimeCorrInde(), 0);
    EXPECT_EQ(p.PLOB(), "Delhi");

    p.MoveTo(1);
    p.setHour(23);
    p.Save();
    EXPECT_EQ(store.FindPerson("Meera")->Hour, 23);
    p.setName("Nila");
    p.AddNew();
    EXPECT_EQ(store.Count(), 4);
    p.MoveTo(0);
    p.Delete();
    EXPECT_FALSE(store.FindPerson("Anil"));

    clsPerson finder;
    finder.setName("zoya");
    bool found = false;
    finder.FindPerson(db, found);
    EXPECT_TRUE(found);
    EXPECT_EQ(finder.Day(), 2);
    finder.setName("Nobody");
    finder.FindPerson(db, found);
    EXPECT_FALSE(found);
}
