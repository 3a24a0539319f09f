// SPDX-License-Identifier: AGPL-3.0-or-later
// The score files as built: their tagged form, the rules the tables stand on, and the writer that
// turns the reviewable tables into them.
#include "ScoreFileWriter.h"
#include "marriage/ScoreFiles.h"
#include "sky/clsPlanets.h"
#include "text/TextDB.h"

#include <gtest/gtest.h>

#include <QFile>

#include <array>

namespace {

class ScoreFileTables : public ::testing::Test
{
protected:
    void SetUp() override { setStuffFolder(QStringLiteral(ORBANTA_BINARY_DIR "/STUFF")); }
    void TearDown() override { setStuffFolder(QString()); }
};

TEST_F(ScoreFileTables, GrahaMaitriFollowsTheNaturalFriendshipOfTheTwoLords)
{
    // Points by the two views: friend 1, neutral 2, enemy 3.
    const auto expected = [](int a, int b) {
        if (a == b)
            return 5.0;
        const int x = clsPlanets::GrahaRelation(a, b), y = clsPlanets::GrahaRelation(b, a);
        const int lo = std::min(x, y), hi = std::max(x, y);
        if (lo == 1)
            return hi == 1 ? 5.0 : hi == 2 ? 4.0 : 1.0;
        if (lo == 2)
            return hi == 2 ? 3.0 : 0.5;
        return 0.0;
    };
    for (int b = 1; b <= 7; ++b)
        for (int g = 1; g <= 7; ++g)
            EXPECT_EQ(ScoreFiles::GrahaPoints(b, g), expected(b, g)) << b << ' ' << g;
    EXPECT_EQ(ScoreFiles::GrahaPoints(7, 2), 1);   // the Moon befriends Mercury, which shuns the Moon
    EXPECT_EQ(ScoreFiles::GrahaPoints(3, 7), 0.5); // Venus shuns the Moon, which is neutral to it
}

TEST_F(ScoreFileTables, BhakootLosesItsPointsOnTwoTwelveFiveNineAndSixEight)
{
    for (int b = 1; b <= 12; ++b)
        for (int g = 1; g <= 12; ++g) {
            const int d = (g - b + 12) % 12 + 1;
            const bool lost = d == 2 || d == 12 || d == 5 || d == 9 || d == 6 || d == 8;
            EXPECT_EQ(ScoreFiles::RasiPoints(b, g), lost ? 0 : 7) << b << ' ' << g;
        }
}

TEST_F(ScoreFileTables, YoniGivesFourToOneAnimalAndNoneToSwornEnemies)
{
    const std::array<std::array<int, 2>, 7> enemies{{{1, 9}, {2, 14}, {3, 12}, {4, 13}, {5, 11}, {6, 7}, {8, 10}}};
    for (int b = 1; b <= 14; ++b)
        for (int g = 1; g <= 14; ++g) {
            const double p = ScoreFiles::YoniPoints(b, g);
            EXPECT_EQ(p, ScoreFiles::YoniPoints(g, b)) << b << ' ' << g;
            if (b == g) {
                EXPECT_EQ(p, 4) << b;
                continue;
            }
            bool enemy = false;
            for (const auto &e : enemies)
                enemy = enemy || (e[0] == b && e[1] == g) || (e[0] == g && e[1] == b);
            EXPECT_EQ(p == 0, enemy) << b << ' ' << g;
            EXPECT_GE(p, 0);
            EXPECT_LE(p, 3);
        }
}

TEST_F(ScoreFileTables, TheFilesAreTaggedRowsWhoseLastEntryEndsWithABar)
{
    QFile f(StuffFolder() + QStringLiteral("/COMMON/SCRASI.DAT"));
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    const QString text = QString::fromLatin1(f.readAll());
    EXPECT_TRUE(text.startsWith(QStringLiteral("[H1]R1-7|R2-0|R3-7|")));
    EXPECT_TRUE(text.contains(QStringLiteral("R12-7|[/H12]")));
    EXPECT_EQ(text.count(QStringLiteral("[/H")), 12);
}

TEST(ScoreFileLookup, AOneDigitEntryIsFoundBeforeTheTwoDigitOnesThatBeginWithIt)
{
    const QString text = QStringLiteral("[H1]R1-7|R2-0|R10-3.5|[/H1][H10]R1-0|R10-6|[/H10]");
    EXPECT_EQ(ScoreFiles::EntryText(text, QStringLiteral("H"), 1, QLatin1Char('R'), 1), QStringLiteral("7"));
    EXPECT_EQ(ScoreFiles::EntryText(text, QStringLiteral("H"), 1, QLatin1Char('R'), 10), QStringLiteral("3.5"));
    EXPECT_EQ(ScoreFiles::EntryText(text, QStringLiteral("H"), 10, QLatin1Char('R'), 10), QStringLiteral("6"));
    // Missing rows, entries and closing tags read as nothing.
    EXPECT_TRUE(ScoreFiles::EntryText(text, QStringLiteral("H"), 2, QLatin1Char('R'), 1).isEmpty());
    EXPECT_TRUE(ScoreFiles::EntryText(text, QStringLiteral("H"), 1, QLatin1Char('R'), 3).isEmpty());
    EXPECT_TRUE(ScoreFiles::EntryText(QStringLiteral("[H1]R1-7|"), QStringLiteral("H"), 1, QLatin1Char('R'), 1).isEmpty());
}

TEST(ScoreFileWriterTest, WritesTheTaggedFormAndRefusesWhatAFileMustNotHold)
{
    ScoreFileWriter w;
    const QString table = QStringLiteral("# a comment\nyoni\t1\t2\n1\t4\t0.5\n2\t0.5\t4\n");
    EXPECT_EQ(w.convert(table, QStringLiteral("HEAD"), QLatin1Char('S'), 4),
              QStringLiteral("[HEAD1]S1-4|S2-0.5|[/HEAD1]\n[HEAD2]S1-0.5|S2-4|[/HEAD2]\n"));
    EXPECT_TRUE(w.errorText().isEmpty());
    // Above the kuta's maximum, not a number, a row short, rows out of order, a column missing.
    for (const QString &bad : {QStringLiteral("y\t1\t2\n1\t4\t5\n2\t1\t1\n"), QStringLiteral("y\t1\t2\n1\t4\tx\n2\t1\t1\n"),
                               QStringLiteral("y\t1\t2\n1\t4\t1\n"), QStringLiteral("y\t1\t2\n2\t4\t1\n1\t1\t1\n"),
                               QStringLiteral("y\t1\t2\n1\t4\n2\t1\t1\n")}) {
        EXPECT_TRUE(w.convert(bad, QStringLiteral("H"), QLatin1Char('P'), 4).isEmpty()) << bad.toStdString();
        EXPECT_FALSE(w.errorText().isEmpty());
    }
}

} // namespace
