// SPDX-License-Identifier: AGPL-3.0-or-later
// The two page fonts of a scheme: kept with its colours, read back from old files without them,
// refused or named when they can't be fonts of the pages, and the sizes they give the roles.
#include "LookFixture.h"

#include "output/Themes.h"

#include <QSettings>

namespace {
Themes::Scheme serif()
{
    Themes::Scheme s = Themes::Stock(Themes::StockNames().at(1));
    s.HeadFont = {"DejaVu Serif", 16};
    s.BodyFont = {"FreeSans", 11};
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

using SchemeFonts = LookFixture;

TEST_F(SchemeFonts, FontsTravelWithTheSchemeAndOldSchemesReadWithTheDefaultFonts)
{
    Themes::Names(db);
    ASSERT_EQ(Themes::Save(db, "Evening Serif", serif()), QString());
    const Themes::ReadResult back = Themes::Read(db, "Evening Serif", Themes::Defaults());
    EXPECT_TRUE(back.ok()) << back.error.toStdString();
    EXPECT_EQ(back.scheme.HeadFont, (Themes::PageFont{"DejaVu Serif", 16}));
    EXPECT_EQ(back.scheme.BodyFont, (Themes::PageFont{"FreeSans", 11}));

    // A file written before schemes had fonts: its colours as saved, the default fonts, no word
    // to the user, whatever fonts the boxes showed.
    {
        QSettings f(Themes::FilePath(fileOfRow(db, "Evening Serif")), QSettings::IniFormat);
        for (const char *key : Themes::kFontKeys)
            f.remove(QString("THEME/") + key);
    }
    const Themes::ReadResult old = Themes::Read(db, "Evening Serif", serif());
    EXPECT_TRUE(old.ok()) << old.error.toStdString();
    Themes::Scheme expected = serif();
    expected.HeadFont = Themes::Defaults().HeadFont;
    expected.BodyFont = Themes::Defaults().BodyFont;
    EXPECT_EQ(old.scheme, expected);
    EXPECT_EQ(Themes::Defaults().HeadFont, (Themes::PageFont{"Arial", 0}));

    // The look in force likewise: fonts applied come back; settings without them give the defaults.
    Themes::Apply(serif(), "Evening Serif");
    EXPECT_EQ(Themes::InForce(), serif());
    {
        QSettings ini(clsIni::IniPath(), QSettings::IniFormat);
        for (const char *key : Themes::kFontKeys)
            ini.remove(QString("PAGECOLORS/") + key);
    }
    EXPECT_EQ(Themes::InForce(), expected);
}

TEST_F(SchemeFonts, UnfitFontsAreRefusedOnSaveAndNamedOnRead)
{
    Themes::Names(db);
    const int before = rows();
    Themes::Scheme big = serif();
    big.HeadFont.Size = 19;
    EXPECT_TRUE(Themes::Save(db, "Big", big).contains("10 to 18 points"));
    Themes::Scheme tiny = serif();
    tiny.BodyFont.Size = 6;
    EXPECT_TRUE(Themes::Save(db, "Tiny", tiny).contains("7 to 12 points"));
    Themes::Scheme nameless = serif();
    nameless.BodyFont.Family = "  ";
    EXPECT_TRUE(Themes::Save(db, "Nameless", nameless).contains("family"));
    Themes::Scheme odd = serif();
    odd.HeadFont.Family = "Dejavu\nSerif";
    EXPECT_FALSE(Themes::Save(db, "Odd", odd).isEmpty());
    EXPECT_EQ(rows(), before) << "nothing saved";

    // The language's own sizes (0) and the bounds are fonts a scheme may hold.
    Themes::Scheme edges = serif();
    edges.HeadFont.Size = 18;
    edges.BodyFont.Size = 0;
    ASSERT_EQ(Themes::Save(db, "Edges", edges), QString());

    // A spoilt family and a spoilt size take the default and are named; the rest read as saved.
    {
        QSettings f(Themes::FilePath(fileOfRow(db, "Edges")), QSettings::IniFormat);
        f.setValue("THEME/HeadFont", "");
        f.setValue("THEME/BodyFontSize", "large");
    }
    const Themes::ReadResult r = Themes::Read(db, "Edges", Themes::Defaults());
    EXPECT_TRUE(r.error.contains("HeadFont")) << r.error.toStdString();
    EXPECT_TRUE(r.error.contains("BodyFontSize"));
    EXPECT_FALSE(r.error.contains("HeadFontSize"));
    EXPECT_EQ(r.scheme.HeadFont, (Themes::PageFont{"Arial", 18}));
    EXPECT_EQ(r.scheme.BodyFont, (Themes::PageFont{"FreeSans", 0}));
    EXPECT_EQ(r.scheme.Values, edges.Values);
}

TEST(ScaledSize, RolesKeepTheirProportionToTheLanguagesSize)
{
    // English: headers 14, sub-heads 11, text heads 12; body 9, small 8, English small 7.
    const Themes::PageFont head{"DejaVu Serif", 18}, body{"FreeSans", 12}, small{"FreeSans", 7};
    EXPECT_EQ(Themes::ScaledSize(head, 14, 14), 18);
    EXPECT_EQ(Themes::ScaledSize(head, 11, 14), 14); // 14.14
    EXPECT_EQ(Themes::ScaledSize(head, 12, 14), 15); // 15.43
    EXPECT_EQ(Themes::ScaledSize(body, 8, 9), 11);   // 10.67
    EXPECT_EQ(Themes::ScaledSize(body, 7, 9), 9);    // 9.33
    EXPECT_EQ(Themes::ScaledSize(small, 8, 9), 6);   // 6.22
    EXPECT_EQ(Themes::ScaledSize(small, 7, 9), 6) << "5.44 is raised to the smallest size";
    EXPECT_EQ(Themes::ScaledSize({"FreeSans", 0}, 8, 9), 8) << "the language's sizes as they stand";
}
