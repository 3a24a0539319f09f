// SPDX-License-Identifier: AGPL-3.0-or-later
// The two page fonts of a scheme: kept with its colours, read back from old files without them,
// refused or named when they can't be fonts of the pages.
#include "LookFixture.h"

#include "output/Themes.h"

#include <QSettings>

namespace {
Themes::Scheme serif()
{
    Themes::Scheme s = Themes::Stock(Themes::StockNames().at(1));
    s.HeadFont = {"DejaVu Serif", 18};
    s.BodyFont = {"FreeSans", 0};
    return s;
}

// Removes the four font keys from section of the INI file at path, as files written before.
void dropFonts(const QString &path, const QString &section)
{
    QSettings f(path, QSettings::IniFormat);
    for (const char *key : Themes::kFontKeys)
        f.remove(section + "/" + key);
}
} // namespace

using SchemeFonts = LookFixture;

TEST_F(SchemeFonts, FontsTravelWithTheSchemeAndOldSchemesReadWithTheDefaultFonts)
{
    Themes::Names(db);
    ASSERT_EQ(Themes::Save(db, "Evening", serif()), QString());
    EXPECT_EQ(Themes::Read(db, "Evening", Themes::Defaults()).scheme, serif());

    // Written before schemes had fonts: the colours as saved, the default fonts whatever the
    // boxes showed, and no word to the user. The look in force likewise.
    Themes::Scheme old = serif();
    old.HeadFont = old.BodyFont = Themes::PageFont{"Arial", 0};
    dropFonts(Themes::FilePath(QString("%1THEME.ini").arg(rows())), "THEME");
    const Themes::ReadResult r = Themes::Read(db, "Evening", serif());
    EXPECT_TRUE(r.ok()) << r.error.toStdString();
    EXPECT_EQ(r.scheme, old);
    Themes::Apply(serif(), "Evening");
    EXPECT_EQ(Themes::InForce(), serif());
    dropFonts(clsIni::IniPath(), "PAGECOLORS");
    EXPECT_EQ(Themes::InForce(), old);
}

TEST_F(SchemeFonts, UnfitFontsAreRefusedOnSaveAndNamedOnRead)
{
    Themes::Names(db);
    const int before = rows();
    Themes::Scheme bad = serif();
    bad.HeadFont.Size = 19;
    EXPECT_TRUE(Themes::Save(db, "Big", bad).contains("10 to 18 points"));
    bad = serif();
    bad.BodyFont = {"  ", 6};
    EXPECT_TRUE(Themes::Save(db, "Blank", bad).contains("family"));
    EXPECT_EQ(rows(), before);

    // A spoilt family and a spoilt size take their defaults and are named; the rest reads as saved.
    ASSERT_EQ(Themes::Save(db, "Spoilt", serif()), QString());
    {
        QSettings f(Themes::FilePath(QString("%1THEME.ini").arg(rows())), QSettings::IniFormat);
        f.setValue("THEME/HeadFont", "");
        f.setValue("THEME/BodyFontSize", "large");
    }
    const Themes::ReadResult r = Themes::Read(db, "Spoilt", Themes::Defaults());
    EXPECT_TRUE(r.error.contains("HeadFont,") && r.error.contains("BodyFontSize")) << r.error.toStdString();
    EXPECT_EQ(r.scheme.HeadFont, (Themes::PageFont{"Arial", 18}));
    EXPECT_EQ(r.scheme.BodyFont, (Themes::PageFont{"FreeSans", 0}));
    EXPECT_EQ(r.scheme.Values, serif().Values);
}
