// SPDX-License-Identifier: AGPL-3.0-or-later
#include "sky/DataPaths.h"
#include "session/clsIni.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

namespace {
class IniTest : public ::testing::Test
{
protected:
    QTemporaryDir dir;
    QString file() const { return dir.filePath(QStringLiteral("test.ini")); }
};
} // namespace

TEST_F(IniTest, DefaultsAreTheApplicationSectionOfGendatInTheUserFolder)
{
    const QString path = QDir(DataPaths::UserFolder()).filePath(QStringLiteral("GENDAT.INI"));
    QFile::remove(path);
    EXPECT_EQ(clsIni::IniPath(), path);
    clsIni::WriteIniString(QStringLiteral("SelLang"), QStringLiteral("3"));
    clsIni::WriteIniString(QStringLiteral("StartMode"), QStringLiteral("Marr"));
    // The entry screen reads the same file through QSettings.
    QSettings ini(path, QSettings::IniFormat);
    EXPECT_EQ(ini.value(QStringLiteral("Orbanta/SelLang")).toString(), QStringLiteral("3"));
    EXPECT_EQ(
        clsIni::GetIniString(QStringLiteral("StartMode"), QString(), QStringLiteral("Orbanta"), QStringLiteral("GENDAT.INI")),
        QStringLiteral("Marr"));
    QFile::remove(path);
}

TEST_F(IniTest, MissingKeysGiveTheDefaultAndTheUserDetailsTheirs)
{
    EXPECT_EQ(clsIni::GetIniString(QStringLiteral("Nothing"), QStringLiteral("dflt"), QString(), file()), QStringLiteral("dflt"));
    EXPECT_EQ(clsIni::GetIniString(QStringLiteral("Nothing"), QString(), QStringLiteral("Other"), file()), QString());
    const QString path = clsIni::IniPath();
    QFile::remove(path);
    EXPECT_EQ(clsIni::DispName(), QStringLiteral("Orbanta user"));
    EXPECT_EQ(clsIni::DispAdd(), QString());
    EXPECT_TRUE(clsIni::ShowError(13));
    QFile::remove(path);
}

TEST_F(IniTest, SectionsAndKeysMatchWithoutCase)
{
    clsIni::WriteIniString(QStringLiteral("DispName"), QStringLiteral("First"), QStringLiteral("Orbanta"), file());
    EXPECT_EQ(clsIni::GetIniString(QStringLiteral("DISPNAME"), QString(), QStringLiteral("orbanta"), file()),
              QStringLiteral("First"));
    // A second write in another case replaces the value instead of adding a key.
    clsIni::WriteIniString(QStringLiteral("dispname"), QStringLiteral("Second"), QStringLiteral("ORBANTA"), file());
    QSettings ini(file(), QSettings::IniFormat);
    EXPECT_EQ(ini.allKeys(), QStringList{QStringLiteral("Orbanta/DispName")});
    EXPECT_EQ(ini.value(QStringLiteral("Orbanta/DispName")).toString(), QStringLiteral("Second"));
}

TEST_F(IniTest, TextsRoundTripAndLongOnesAreCut)
{
    const QString address = QStringLiteral("12, Temple Street; Mylapore\nChennai = 600004");
    clsIni::WriteIniString(QStringLiteral("DispAdd"), address, QString(), file());
    EXPECT_EQ(clsIni::GetIniString(QStringLiteral("DispAdd"), QString(), QString(), file()), address);

    const QString longText(300, QLatin1Char('x'));
    clsIni::WriteIniString(QStringLiteral("Long"), longText, QString(), file());
    EXPECT_EQ(clsIni::GetIniString(QStringLiteral("Long"), QString(), QString(), file()).size(), 254);
}

TEST_F(IniTest, ShowErrorReadsTheSilencedMessages)
{
    const QString path = clsIni::IniPath();
    QFile::remove(path);
    clsIni::WriteIniString(QStringLiteral("13"), QStringLiteral("False"), QStringLiteral("SHOWERROR"));
    clsIni::WriteIniString(QStringLiteral("20"), QStringLiteral("True"), QStringLiteral("SHOWERROR"));
    EXPECT_FALSE(clsIni::ShowError(13));
    EXPECT_TRUE(clsIni::ShowError(20));
    EXPECT_TRUE(clsIni::ShowError(21));
    QFile::remove(path);
}
