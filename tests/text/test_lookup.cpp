// SPDX-License-Identifier: AGPL-3.0-or-later
// Look-ups in the text databases: opening, keys, Null and missing rows, symbols, tagged blocks.
#include "sky/clsPlanets.h"
#include "support/TestSupport.h"
#include "text/GenLabel.h"
#include "sky/MessageSink.h"
#include "text/TextDB.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QSqlQuery>
#include <QTemporaryDir>

#include <vector>

namespace {

// Keeps every message instead of showing it.
class RecordingSink final : public MessageSink
{
public:
    struct Message
    {
        QString title, text;
    };
    void warn(const QString &title, const QString &text) override { messages.push_back({title, text}); }
    void fatal(const QString &title, const QString &text) override { warn(title, text); }
    std::vector<Message> messages;
};

// The English database the build ships, opened from the build's STUFF folder.
class EnglishDb : public ::testing::Test
{
protected:
    void SetUp() override
    {
        setStuffFolder(QStringLiteral(ORBANTA_BINARY_DIR "/STUFF"));
        ASSERT_TRUE(OpenTextDB(QStringLiteral("ENGLISH"), db));
    }
    void TearDown() override
    {
        CloseTextDB(db);
        setStuffFolder(QString());
    }
    QSqlDatabase db;
    RecordingSink sink;
    ScopedMessageSink scoped{&sink};
};

// A small language of its own, with the rows the shipped data must never hold: Nulls,
// duplicate keys, a quote in a key and other symbols.
class FixtureDb : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(dir.isValid());
        ASSERT_TRUE(QDir(dir.path()).mkpath(QStringLiteral("STUFF/TEST")));
        const QString path = dir.filePath(QStringLiteral("STUFF/TEST/TEST.Dat"));
        {
            QSqlDatabase w = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("fixture-writer"));
            w.setDatabaseName(path);
            ASSERT_TRUE(w.open());
            QSqlQuery q(w);
            for (const char *sql : {
                     "CREATE TABLE CNVT (Head TEXT NOT NULL COLLATE NOCASE, Val TEXT, Category TEXT NOT NULL DEFAULT '' COLLATE NOCASE)",
                     "CREATE TABLE ASP (Head TEXT NOT NULL COLLATE NOCASE, Val TEXT)",
                     "CREATE TABLE MarMatch (Head TEXT NOT NULL COLLATE NOCASE, Val TEXT)",
                     "CREATE TABLE Daily (Head TEXT NOT NULL COLLATE NOCASE, Val TEXT, Category TEXT NOT NULL DEFAULT '' COLLATE NOCASE)",
                     "INSERT INTO CNVT VALUES ('Twice', 'first', 'Gen')",
                     "INSERT INTO CNVT VALUES ('Twice', 'second', 'Gen')",
                     "INSERT INTO CNVT VALUES ('O''Brien', 'quoted', 'Gen')",
                     "INSERT INTO CNVT VALUES ('Blank', NULL, 'Gen')",
                     "INSERT INTO CNVT VALUES ('.', ',', 'Symbols')",
                     "INSERT INTO CNVT VALUES (':', 'h', 'Symbols')",
                     "INSERT INTO CNVT VALUES ('/', '|', 'Symbols')",
                     "INSERT INTO ASP VALUES ('Sun-Moon:CNJ', NULL)",
                     "INSERT INTO MarMatch VALUES ('Gone', NULL)",
                     "INSERT INTO Daily VALUES ('Blank', NULL, 'Mon')",
                 })
                ASSERT_TRUE(q.exec(QString::fromLatin1(sql))) << sql;
            w.close();
        }
        QSqlDatabase::removeDatabase(QStringLiteral("fixture-writer"));
        setStuffFolder(dir.filePath(QStringLiteral("STUFF")));
        ASSERT_TRUE(OpenTextDB(QStringLiteral("TEST"), db));
    }
    void TearDown() override
    {
        CloseTextDB(db);
        setStuffFolder(QString());
    }
    QTemporaryDir dir;
    QSqlDatabase db;
    RecordingSink sink;
    ScopedMessageSink scoped{&sink};
};

} // namespace

TEST(TextDb, DataFolderLiesBesideTheProgramUnlessSet)
{
    EXPECT_TRUE(StuffFolder().endsWith(QStringLiteral("/STUFF")));
    setStuffFolder(QStringLiteral("/x/STUFF"));
    EXPECT_EQ(TextDBPath(QStringLiteral("HINDI")), QStringLiteral("/x/STUFF/HINDI/HINDI.Dat"));
    setStuffFolder(QString());
}

TEST_F(EnglishDb, MissingLanguageIsReportedAndKeepsTheOpenDatabase)
{
    const QString before = db.connectionName();
    EXPECT_FALSE(OpenTextDB(QStringLiteral("KLINGON"), db));
    EXPECT_EQ(db.connectionName(), before);
    EXPECT_TRUE(db.isOpen());
    ASSERT_EQ(sink.messages.size(), 1u);
    EXPECT_EQ(sink.messages[0].title, QStringLiteral("File Not Found"));
    EXPECT_EQ(sink.messages[0].text, QStringLiteral("Please Re-install Software.\nCould Not Locate Data File For This Language."));
}

TEST_F(EnglishDb, KeysAreTextWhateverTheirTypeAndCaseDoesNotMatter)
{
    EXPECT_EQ(GetHeadValue(db, 1, 3, QStringLiteral("Rashi")).toString(), QStringLiteral("Gemini"));
    EXPECT_EQ(GetHeadValue(db, 1, 3.0, QStringLiteral("Rashi")).toString(), QStringLiteral("Gemini"));
    EXPECT_EQ(GetHeadValue(db, 1, QStringLiteral("3"), QStringLiteral("RASHI")).toString(), QStringLiteral("Gemini"));
    EXPECT_EQ(TextKey(12.5), QStringLiteral("12.5"));
    // "Gen" and "GEN" are one category, and heads fold too.
    const QVariant upper = GetHeadValue(db, 1, QStringLiteral("DIRECT"), QStringLiteral("GEN"));
    EXPECT_EQ(GetHeadValue(db, 1, QStringLiteral("direct"), QStringLiteral("gen")), upper);
    EXPECT_EQ(GetGenText(db, QStringLiteral("Retro")), GetHeadValue(db, 1, QStringLiteral("RETRO"), QStringLiteral("GEN")));
    EXPECT_TRUE(sink.messages.empty());
}

TEST_F(EnglishDb, MissingKeyIsReportedAndTheCallerGoesOnWithEmpty)
{
    const QVariant v = GetHeadValue(db, 1, 13, QStringLiteral("Rashi"));
    EXPECT_FALSE(v.isValid());
    EXPECT_EQ(v.toString(), QString());
    ASSERT_EQ(sink.messages.size(), 1u);
    EXPECT_EQ(sink.messages[0].text, QStringLiteral("Item Not Found '13' in  'Rashi'"));

    // Look-ups without a category end the message at the head.
    EXPECT_FALSE(GetHeadValue(db, 4, QStringLiteral("NoSuchHead")).isValid());
    EXPECT_FALSE(GetTextBetween(db, QStringLiteral("YOGAS"), QStringLiteral("NoYoga"), QString()).isValid());
    ASSERT_EQ(sink.messages.size(), 3u);
    EXPECT_EQ(sink.messages[1].text, QStringLiteral("Item Not Found 'NoSuchHead'"));
    EXPECT_EQ(sink.messages[2].text, QStringLiteral("Item Not Found 'NoYoga'"));

    // The next look-up works as before.
    EXPECT_EQ(GetHeadValue(db, 1, 1, QStringLiteral("Rashi")).toString(), QStringLiteral("Aries"));
}

TEST_F(EnglishDb, TypesOutsideTheTwelveTablesAreEmptyWithoutAMessage)
{
    EXPECT_FALSE(GetHeadValue(db, 0, 1, QStringLiteral("Rashi")).isValid());
    EXPECT_FALSE(GetHeadValue(db, 13, 1, QStringLiteral("Rashi")).isValid());
    EXPECT_FALSE(GetTextBetween(db, QStringLiteral("Rashi; DROP TABLE CNVT"), 1, QString()).isValid());
    EXPECT_EQ(sink.messages.size(), 1u); // only the unknown table, as a missing key
    EXPECT_EQ(GetHeadValue(db, 1, 1, QStringLiteral("Rashi")).toString(), QStringLiteral("Aries"));
}

TEST_F(EnglishDb, ChartReadsThroughItsDatabase)
{
    clsPlanets chart;
    chart.setTextDB(db, QSqlDatabase());
    EXPECT_EQ(chart.GetTxtDB().connectionName(), db.connectionName());
    EXPECT_EQ(chart.GetHeadValue(1, 12, QStringLiteral("Rashi")).toString(), QStringLiteral("Pisces"));
    EXPECT_EQ(chart.GetMonthNameByNum(8), QStringLiteral("August"));
    EXPECT_EQ(chart.ConvertDateToTextEng(QDate(1980, 8, 5)), QStringLiteral("05 August 1980"));
    EXPECT_EQ(chart.ConvertValNoDegNoSec(75.5), QStringLiteral("15:30"));
    EXPECT_EQ(LangSeparator(db, 3), QStringLiteral("/"));
    EXPECT_TRUE(sink.messages.empty());
}

TEST_F(FixtureDb, FirstRowWinsAndQuotesInKeysAreSafe)
{
    EXPECT_EQ(GetGenText(db, QStringLiteral("twice")).toString(), QStringLiteral("first"));
    EXPECT_EQ(GetGenText(db, QStringLiteral("O'Brien")).toString(), QStringLiteral("quoted"));
    EXPECT_TRUE(sink.messages.empty());
}

TEST_F(FixtureDb, NullIsHandedBackOnlyWhereTheTableSaysSo)
{
    const QVariant conj = GetConjText(db, QStringLiteral("Sun-Moon:CNJ"));
    EXPECT_TRUE(conj.isValid());
    EXPECT_TRUE(conj.isNull());
    EXPECT_TRUE(GetHeadValue(db, 5, QStringLiteral("Sun-Moon:CNJ")).isNull());
    EXPECT_TRUE(GetHeadValue(db, 1, QStringLiteral("Blank"), QStringLiteral("Gen")).isNull());
    EXPECT_FALSE(GetTextBetween(db, QStringLiteral("CNVT"), QStringLiteral("Blank"), QStringLiteral("Gen")).isValid());
    EXPECT_FALSE(GetHeadValue(db, 4, QStringLiteral("Gone")).isValid()); // through GetTextBetween
    const QVariant daily = GetHeadValue(db, 11, QStringLiteral("Blank"), QStringLiteral("Mon"));
    EXPECT_TRUE(daily.isValid());
    EXPECT_FALSE(daily.isNull());
    EXPECT_EQ(daily.toString(), QString());
    EXPECT_TRUE(sink.messages.empty());
}

TEST_F(FixtureDb, SymbolsAreTheLanguagesAndKeptPerDatabase)
{
    EXPECT_EQ(LangSeparator(db, 1), QStringLiteral("h"));
    EXPECT_EQ(LangSeparator(db, 2), QStringLiteral("h"));
    EXPECT_EQ(LangSeparator(db, 3), QStringLiteral("|"));
    EXPECT_EQ(LangNumberText(db, QStringLiteral("12.30")), QStringLiteral("12,30"));
    EXPECT_EQ(LangSeparator(db, 9), QString());
    EXPECT_TRUE(sink.messages.empty());
    // The missing "-" is reported once and then kept as it came.
    EXPECT_EQ(LangSeparator(db, 4), QString());
    EXPECT_EQ(LangSeparator(db, 4), QString());
    EXPECT_EQ(sink.messages.size(), 1u);

    clsPlanets chart;
    chart.setTextDB(db, QSqlDatabase());
    EXPECT_EQ(chart.ConvertValNoDegNoSec(45.25), QStringLiteral("15h15"));
}

TEST_F(FixtureDb, GenLabelReadsCategoryGenOfTheChartsDatabase)
{
    clsPlanets chart;
    chart.setTextDB(db, QSqlDatabase());
    EXPECT_EQ(GenLabel(QStringLiteral("TWICE"), chart), QStringLiteral("first"));
    EXPECT_EQ(GenLabel(QStringLiteral("Absent"), chart), QString());
    ASSERT_EQ(sink.messages.size(), 1u);
    EXPECT_EQ(sink.messages[0].text, QStringLiteral("Item Not Found 'Absent' in  'Gen'"));
}

TEST(TaggedNotation, BlocksAreFoundByKeyInAnyOrder)
{
    const QString text = QStringLiteral("[HEAD10]ten[/HEAD10][HEAD1][F]P7,P4[/F][N]P2[/N][/HEAD1]");
    EXPECT_EQ(TagBlock(text, QStringLiteral("1")), QStringLiteral("[F]P7,P4[/F][N]P2[/N]"));
    EXPECT_EQ(TagBlock(text, QStringLiteral("10")), QStringLiteral("ten"));
    EXPECT_EQ(TagBlock(text, QStringLiteral("2")), QString());
    EXPECT_EQ(TagBlock(QStringLiteral("[HEAD3]open"), QStringLiteral("3")), QString());
}

TEST(TaggedNotation, TheClosingTagDecides)
{
    const QString block = QStringLiteral("[F]P7,P4[/F][N]P2[/N][E]P6[/E]");
    EXPECT_EQ(TagClosingLetter(block, QStringLiteral("P4")), QLatin1Char('F'));
    EXPECT_EQ(TagClosingLetter(block, QStringLiteral("P2")), QLatin1Char('N'));
    EXPECT_EQ(TagClosingLetter(block, QStringLiteral("P6")), QLatin1Char('E'));
    EXPECT_TRUE(TagClosingLetter(block, QStringLiteral("P9")).isNull());
    // A mismatched pair is read by its closing tag.
    EXPECT_EQ(TagClosingLetter(QStringLiteral("[N]P4,P5[/F]"), QStringLiteral("P5")), QLatin1Char('F'));
}

TEST(TaggedNotation, EntryScoresAreTruncated)
{
    const QString file = QStringLiteral("[HEAD2]1S-2|2S-4.75|3S-0|[/HEAD2][HEAD1]1S-4|[/HEAD1]");
    const QString block = TagBlock(file, QStringLiteral("2"));
    EXPECT_EQ(TagEntryScore(block, QStringLiteral("2S")), 4);
    EXPECT_EQ(TagEntryScore(block, QStringLiteral("3S")), 0);
    EXPECT_EQ(TagEntryScore(block, QStringLiteral("1S")), 2);
    EXPECT_EQ(TagEntryScore(block, QStringLiteral("9S")), 0);
}
