// SPDX-License-Identifier: AGPL-3.0-or-later
#include "LookFixture.h"

#include "output/Themes.h"

#include <QFileInfo>
#include <QSettings>

namespace {
Themes::Scheme sample(qint64 seed)
{
    Themes::Scheme s;
    for (int i = 0; i < Themes::kKeyCount; ++i)
        s.Values[static_cast<size_t>(i)] = (seed * 7919 + i * 104729) % 0x1000000;
    s.setChart(ChartLook::LineWidth, 2);
    s.setChart(ChartLook::BorderWidth, 4);
    return s;
}

QString fileOfRow(const QSqlDatabase &db, const QString &name)
{
    QSqlQuery q(db);
    q.prepare("SELECT file FROM DisplayThemes WHERE ThemeName = ?");
    q.addBindValue(name);
    return q.exec() && q.next() ? q.value(0).toString() : QString();
}
} // namespace

using ColourSchemes = LookFixture;

TEST_F(ColourSchemes, StockSchemesAreAddedOnceAndReadAsTheyStand)
{
    ASSERT_EQ(rows(), 0);
    const QStringList names = Themes::Names(db);
    EXPECT_EQ(names, Themes::StockNames());
    EXPECT_GE(names.size(), 3);
    EXPECT_EQ(Themes::Names(db), names) << "a second look adds nothing";
    EXPECT_EQ(rows(), names.size());
    for (const QString &name : names) {
        const Themes::ReadResult r = Themes::Read(db, name, Themes::Defaults());
        EXPECT_TRUE(r.ok()) << r.error.toStdString();
        EXPECT_EQ(r.scheme, Themes::Stock(name)) << name.toStdString();
    }
    // The stock schemes differ from one another in their headings.
    EXPECT_NE(Themes::Stock(names[1]).page(6), Themes::Stock(names[2]).page(6));
}

TEST_F(ColourSchemes, SavedSchemeReadsBackAndSavingAgainKeepsOneRow)
{
    Themes::Names(db);
    const int stock = rows();
    const Themes::Scheme mine = sample(1);
    ASSERT_EQ(Themes::Save(db, "  Evening  ", mine), QString());
    EXPECT_EQ(rows(), stock + 1);
    EXPECT_EQ(fileOfRow(db, "Evening"), QString("%1THEME.ini").arg(stock + 1));
    EXPECT_EQ(Themes::Read(db, "Evening", Themes::Defaults()).scheme, mine);

    const Themes::Scheme changed = sample(2);
    ASSERT_EQ(Themes::Save(db, "Evening", changed), QString());
    EXPECT_EQ(rows(), stock + 1);
    EXPECT_EQ(Themes::Read(db, "Evening", Themes::Defaults()).scheme, changed);
}

TEST_F(ColourSchemes, NewFileNeverTakesAnotherSchemesFile)
{
    const QStringList names = Themes::Names(db);
    // With the first gone, "count + 1" would be the file of the last stock scheme.
    ASSERT_TRUE(Themes::Delete(db, names.first()));
    ASSERT_EQ(Themes::Save(db, "Fresh", sample(3)), QString());
    EXPECT_NE(fileOfRow(db, "Fresh"), fileOfRow(db, names.last()));
    EXPECT_EQ(Themes::Read(db, names.last(), Themes::Defaults()).scheme, Themes::Stock(names.last()));
    EXPECT_EQ(Themes::Read(db, "Fresh", Themes::Defaults()).scheme, sample(3));
}

TEST_F(ColourSchemes, BadNamesAndValuesAreRefusedWithNothingChanged)
{
    Themes::Names(db);
    const int before = rows();
    EXPECT_FALSE(Themes::Save(db, "   ", sample(1)).isEmpty());
    EXPECT_FALSE(Themes::Save(db, QString(Themes::kMaxName + 1, 'x'), sample(1)).isEmpty());
    Themes::Scheme bad = sample(1);
    bad.setChart(ChartLook::LineWidth, 11);
    EXPECT_TRUE(Themes::Save(db, "Wide", bad).contains("KunLineWidth"));
    bad = sample(1);
    bad.Values[0] = 0x1000000;
    EXPECT_TRUE(Themes::Save(db, "Bright", bad).contains("TopLineCol"));
    EXPECT_EQ(rows(), before);
    EXPECT_FALSE(Themes::Delete(db, "No such scheme"));
    EXPECT_EQ(rows(), before);
}

TEST_F(ColourSchemes, MissingOrDamagedSchemesSayWhatIsWrongAndGiveTheDefaultLook)
{
    Themes::Names(db);
    const Themes::Scheme current = sample(9);

    const Themes::ReadResult none = Themes::Read(db, "Nowhere", current);
    EXPECT_TRUE(none.error.contains("no colour scheme called \"Nowhere\""));
    EXPECT_EQ(none.scheme, Themes::Defaults());

    ASSERT_EQ(Themes::Save(db, "Lost", sample(4)), QString());
    ASSERT_TRUE(QFile::remove(Themes::FilePath(fileOfRow(db, "Lost"))));
    const Themes::ReadResult lost = Themes::Read(db, "Lost", current);
    EXPECT_TRUE(lost.error.contains("lost its file"));
    EXPECT_EQ(lost.scheme, Themes::Defaults());

    // One value spoilt, one gone: the spoilt one takes its default and is named; the one gone
    // keeps the colour in the boxes; the rest read as saved.
    ASSERT_EQ(Themes::Save(db, "Spoilt", sample(5)), QString());
    {
        QSettings f(Themes::FilePath(fileOfRow(db, "Spoilt")), QSettings::IniFormat);
        f.setValue("THEME/HeadingCol", "crimson");
        f.remove("THEME/KunNumColor");
    }
    const Themes::ReadResult spoilt = Themes::Read(db, "Spoilt", current);
    EXPECT_TRUE(spoilt.error.contains("HeadingCol"));
    EXPECT_FALSE(spoilt.error.contains("KunNumColor"));
    Themes::Scheme expected = sample(5);
    expected.Values[6] = 0;
    expected.setChart(ChartLook::NumColor, current.chart(ChartLook::NumColor));
    EXPECT_EQ(spoilt.scheme, expected);
}

TEST_F(ColourSchemes, AppliedSchemeIsTheLookInForceUntilItsRowIsDeleted)
{
    EXPECT_EQ(Themes::InForce(), Themes::Defaults());
    const QString name = Themes::Names(db).at(1);
    const Themes::Scheme s = Themes::Stock(name);
    Themes::Apply(s, name);
    EXPECT_EQ(Themes::InForce(), s);
    EXPECT_EQ(Themes::InForceName(), name);
    EXPECT_EQ(ChartLook::Current()[ChartLook::BackColor], s.chart(ChartLook::BackColor));

    const QString file = Themes::FilePath(fileOfRow(db, name));
    ASSERT_TRUE(QFileInfo::exists(file));
    ASSERT_TRUE(Themes::Delete(db, name));
    EXPECT_FALSE(QFileInfo::exists(file));
    EXPECT_EQ(Themes::InForceName(), QString());
    EXPECT_EQ(Themes::InForce(), s) << "the colours stay until another scheme is chosen";
}
