// SPDX-License-Identifier: AGPL-3.0-or-later
// The text database builder, and the English vocabulary that the build ships.
#include "TextDbBuilder.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QSet>
#include <QTemporaryDir>

#include <array>
#include <vector>

namespace {

void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile f(path);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate)) << path.toStdString();
    f.write(bytes);
}

const QByteArray kFixtureSchema =
    "-- two tables; a ';' in a comment must not end a statement\n"
    "CREATE TABLE CNVT (Head TEXT NOT NULL COLLATE NOCASE, Val TEXT,\n"
    "  Category TEXT NOT NULL DEFAULT '' COLLATE NOCASE);\n"
    "/* nor one in a block comment; */\n"
    "CREATE TABLE YOGAS (Head TEXT NOT NULL, Val TEXT DEFAULT 'a;b');\n";

// Opens a database file under its own connection name and closes it when done.
class Db
{
public:
    explicit Db(const QString &path, const QString &name) : m_name(name)
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_name);
        db.setDatabaseName(path);
        db.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY"));
        m_open = db.open();
    }
    ~Db()
    {
        QSqlDatabase::database(m_name, false).close();
        QSqlDatabase::removeDatabase(m_name);
    }
    bool isOpen() const { return m_open; }
    // All rows of a query, each as its list of values.
    std::vector<QVariantList> rows(const QString &sql) const
    {
        std::vector<QVariantList> out;
        QSqlQuery q(QSqlDatabase::database(m_name));
        if (!q.exec(sql)) {
            ADD_FAILURE() << sql.toStdString() << ": " << q.lastError().text().toStdString();
            return out;
        }
        while (q.next()) {
            QVariantList row;
            for (int i = 0; i < q.record().count(); ++i)
                row << q.value(i);
            out.push_back(row);
        }
        return out;
    }

private:
    QString m_name;
    bool m_open = false;
};

} // namespace

TEST(TextDbBuild, FillsTablesWithEscapesNullsAndSplitFiles)
{
    QTemporaryDir tmp;
    const QString dir = tmp.filePath(QStringLiteral("tables"));
    QDir().mkpath(dir);
    writeFile(tmp.filePath(QStringLiteral("schema.sql")), kFixtureSchema);
    writeFile(dir + QStringLiteral("/CNVT.tsv"),
              "Category\tHead\tVal\n"
              "Gen\tLines\tone\\ntwo\\tend\\\\x\r\n"
              "\n"
              "Gen\tNothing\t\\N\n"
              "Gen\tBlank\t\n"
              "Rashi\t1\t\xE0\xA4\xAE\xE0\xA5\x87\xE0\xA4\xB7\n");
    // A second file for the same table, with its columns in another order.
    writeFile(dir + QStringLiteral("/CNVT.more.tsv"), "Head\tCategory\tVal\nSplit\tGen\tfrom the second file\n");
    writeFile(dir + QStringLiteral("/YOGAS.tsv"), "Head\nRaja\n");

    const QString out = tmp.filePath(QStringLiteral("out/T.Dat"));
    TextDbBuilder builder;
    ASSERT_TRUE(builder.build(tmp.filePath(QStringLiteral("schema.sql")), dir, out))
        << builder.errorText().toStdString();
    EXPECT_EQ(builder.rowCount(), 6);
    EXPECT_FALSE(QFile::exists(out + QStringLiteral(".part")));

    Db db(out, QStringLiteral("fixture_ok"));
    ASSERT_TRUE(db.isOpen());
    // Files go in by name, so the split file's row comes first.
    const auto cnvt = db.rows(QStringLiteral("SELECT Head, Val IS NULL, Val, Category FROM CNVT ORDER BY rowid"));
    ASSERT_EQ(cnvt.size(), 5u);
    EXPECT_EQ(cnvt[0][0].toString(), QStringLiteral("Split"));
    EXPECT_EQ(cnvt[0][3].toString(), QStringLiteral("Gen"));
    EXPECT_EQ(cnvt[1][2].toString(), QStringLiteral("one\ntwo\tend\\x"));
    EXPECT_EQ(cnvt[2][0].toString(), QStringLiteral("Nothing"));
    EXPECT_EQ(cnvt[2][1].toInt(), 1) << "\\N is Null";
    EXPECT_EQ(cnvt[3][0].toString(), QStringLiteral("Blank"));
    EXPECT_EQ(cnvt[3][1].toInt(), 0) << "an empty cell is the empty text, not Null";
    EXPECT_EQ(cnvt[3][2].toString(), QString());
    EXPECT_EQ(cnvt[4][2].toString(), QString::fromUtf8("\xE0\xA4\xAE\xE0\xA5\x87\xE0\xA4\xB7"));

    // The column left out takes its default, whose ';' didn't split the statement.
    const auto yogas = db.rows(QStringLiteral("SELECT Head, Val FROM YOGAS"));
    ASSERT_EQ(yogas.size(), 1u);
    EXPECT_EQ(yogas[0][1].toString(), QStringLiteral("a;b"));
}

TEST(TextDbBuild, RejectsMalformedInputNamingFileAndLineAndLeavesNoOutput)
{
    struct Case
    {
        const char *file;
        QByteArray text;
        const char *where;
    };
    const std::array cases{
        Case{"CNVT.tsv", "Category\tHead\tVal\nGen\tA\tok\nGen\tB\n", "CNVT.tsv:3:"},
        Case{"CNVT.tsv", "Category\tHead\tVal\nGen\tA\tok\textra\n", "CNVT.tsv:2:"},
        Case{"CNVT.tsv", "Category\tHead\tVal\nGen\tA\tbad \\q escape\n", "CNVT.tsv:2:"},
        Case{"CNVT.tsv", "Category\tHead\tVal\nGen\tA\tends in \\\n", "CNVT.tsv:2:"},
        Case{"CNVT.tsv", "Category\tHead\tValue\n", "CNVT.tsv:1:"},
        Case{"CNVT.tsv", "Category\tHead\tHead\n", "CNVT.tsv:1:"},
        Case{"CNVT.tsv", "", "CNVT.tsv:1:"},
        Case{"CNVT.tsv", "Category\tHead\tVal\n\nGen\tA\t\xC3\x28\n", "CNVT.tsv:3:"},
        Case{"CNVT.tsv", "Category\tHead\tVal\nGen\t\\N\tno key\n", "CNVT.tsv:2:"},
        Case{"NOPE.tsv", "Head\tVal\nA\tB\n", "NOPE.tsv:1:"},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.text.toStdString());
        QTemporaryDir tmp;
        writeFile(tmp.filePath(QStringLiteral("schema.sql")), kFixtureSchema);
        writeFile(tmp.filePath(QStringLiteral("YOGAS.tsv")), "Head\tVal\nRaja\tfine\n");
        writeFile(tmp.filePath(QString::fromLatin1(c.file)), c.text);
        // An output of an earlier build must not survive to pass for this one.
        const QString out = tmp.filePath(QStringLiteral("T.Dat"));
        writeFile(out, "earlier");

        TextDbBuilder builder;
        EXPECT_FALSE(builder.build(tmp.filePath(QStringLiteral("schema.sql")), tmp.path(), out));
        EXPECT_TRUE(builder.errorText().contains(QString::fromLatin1(c.where))) << builder.errorText().toStdString();
        EXPECT_FALSE(QFile::exists(out));
        EXPECT_FALSE(QFile::exists(out + QStringLiteral(".part")));
    }
}

TEST(TextDbBuild, RebuildReplacesTheEarlierDatabase)
{
    QTemporaryDir tmp;
    const QString schema = tmp.filePath(QStringLiteral("schema.sql"));
    writeFile(schema, kFixtureSchema);
    writeFile(tmp.filePath(QStringLiteral("YOGAS.tsv")), "Head\tVal\nA\t1\nB\t2\nC\t3\n");
    const QString out = tmp.filePath(QStringLiteral("T.Dat"));
    TextDbBuilder builder;
    ASSERT_TRUE(builder.build(schema, tmp.path(), out)) << builder.errorText().toStdString();
    writeFile(tmp.filePath(QStringLiteral("YOGAS.tsv")), "Head\tVal\nD\t4\n");
    ASSERT_TRUE(builder.build(schema, tmp.path(), out)) << builder.errorText().toStdString();

    Db db(out, QStringLiteral("fixture_rebuild"));
    const auto rows = db.rows(QStringLiteral("SELECT Head FROM YOGAS"));
    ASSERT_EQ(rows.size(), 1u);
    EXPECT_EQ(rows[0][0].toString(), QStringLiteral("D"));
}

TEST(TextDbBuild, ToolReportsFailureByExitStatus)
{
    const QString tool = QStringLiteral(ORBANTA_BINARY_DIR "/tools/textdb/orbanta_textdb");
    ASSERT_TRUE(QFile::exists(tool));
    QTemporaryDir tmp;
    writeFile(tmp.filePath(QStringLiteral("schema.sql")), kFixtureSchema);
    writeFile(tmp.filePath(QStringLiteral("CNVT.tsv")), "Category\tHead\tVal\nGen\tA\n");

    QProcess p;
    p.start(tool, {tmp.filePath(QStringLiteral("schema.sql")), tmp.path(), tmp.filePath(QStringLiteral("T.Dat"))});
    ASSERT_TRUE(p.waitForFinished());
    EXPECT_EQ(p.exitCode(), 1);
    EXPECT_TRUE(p.readAllStandardError().contains("CNVT.tsv:2:"));

    p.start(tool, {tmp.path()});
    ASSERT_TRUE(p.waitForFinished());
    EXPECT_EQ(p.exitCode(), 2);
}

// ---- The shipped English database ----

namespace {

class EnglishTextDb : public ::testing::Test
{
protected:
    EnglishTextDb() : db(QStringLiteral(ORBANTA_BINARY_DIR "/STUFF/ENGLISH/ENGLISH.Dat"), QStringLiteral("english")) {}

    // Val of every CNVT row with this category and head, in row order.
    QStringList cnvt(const QString &category, const QString &head) const
    {
        QStringList vals;
        for (const auto &r : db.rows(QStringLiteral("SELECT Val FROM CNVT WHERE Head = '%1' AND Category = '%2'")
                                         .arg(head, category)))
            vals << r[0].toString();
        return vals;
    }
    QString one(const QString &category, const QString &head) const
    {
        const QStringList v = cnvt(category, head);
        EXPECT_EQ(v.size(), 1) << category.toStdString() << " / " << head.toStdString();
        return v.value(0);
    }
    QString one(const QString &category, int head) const { return one(category, QString::number(head)); }

    Db db;
};

// Planet numbers in the order of the nine-fold Vimshottari cycle: Ketu, Venus, Sun ...
constexpr std::array<int, 9> kVimLords{9, 3, 1, 7, 4, 8, 5, 6, 2};

} // namespace

TEST_F(EnglishTextDb, HoldsEveryTableOfALanguage)
{
    ASSERT_TRUE(db.isOpen());
    for (const char *t : {"CNVT", "YOGAS", "VPHALA", "MarMatch", "ASP", "FORTUNE", "YOGNAME", "Nakshatra", "Bhava",
                          "Muhu", "Daily", "Transits"})
        EXPECT_EQ(db.rows(QStringLiteral("SELECT 1 FROM sqlite_master WHERE type = 'table' AND name = '%1'")
                              .arg(QLatin1String(t)))
                      .size(),
                  1u)
            << t;
}

TEST_F(EnglishTextDb, NumberedVocabularyIsComplete)
{
    struct Range
    {
        const char *category;
        int first, last;
        bool distinct; // the names must all differ
    };
    const std::array ranges{
        Range{"Rashi", 1, 12, true},          Range{"SunSignEngNum", 1, 12, true},
        Range{"Nakshatra", 1, 28, true},      Range{"Naklord", 1, 9, true},
        Range{"Firstl", 1, 108, false},       Range{"Tithi", 1, 30, true},
        Range{"Yoga", 1, 27, true},           Range{"KARAN", 1, 11, true},
        Range{"DAY", 0, 6, true},             Range{"EngDay", 1, 7, true},
        Range{"Months", 1, 12, true},         Range{"EngMonth", 1, 12, true},
        Range{"IndianMonths", 1, 12, true},   Range{"PLANETS", 0, 12, true},
        Range{"PLNTABB", 0, 12, true},        Range{"PLNTABBSU", 0, 12, true},
        Range{"X1-", 1, 9, true},             Range{"LysY1", 1, 9, false},
        Range{"Muddacyc", 1, 9, true},        Range{"Hora", 1, 7, true},
        Range{"Gana", 1, 3, true},            Range{"Nadi", 1, 3, true},
        Range{"NADIPADA", 1, 3, true},        Range{"VARNA", 1, 4, true},
        Range{"Yoni", 1, 27, false},          Range{"PAYA", 1, 4, true},
        Range{"Tatwa", 1, 5, true},           Range{"VIHAGA", 1, 5, true},
        Range{"Upagrahas", 1, 17, true},      Range{"UpagrahaSmall", 1, 17, true},
        Range{"YogiCycleName", 0, 7, true},   Range{"YogiCycleLordName", 0, 7, true},
    };
    for (const Range &r : ranges) {
        const QString category = QString::fromLatin1(r.category);
        SCOPED_TRACE(r.category);
        QStringList names;
        for (int k = r.first; k <= r.last; ++k) {
            names << one(category, k);
            EXPECT_FALSE(names.last().isEmpty()) << k;
        }
        // No stray keys beside the numbered ones.
        EXPECT_EQ(db.rows(QStringLiteral("SELECT 1 FROM CNVT WHERE Category = '%1'").arg(category)).size(),
                  size_t(r.last - r.first + 1));
        if (r.distinct) {
            EXPECT_EQ(QSet<QString>(names.begin(), names.end()).size(), names.size());
        }
    }
}

TEST_F(EnglishTextDb, PlanetAbbreviationsPassTheLanguageCheck)
{
    const std::array<const char *, 13> expected{"Asc", "Sun", "Mer", "Ven", "Mar", "Jup", "Sat",
                                                "Moon", "Rah", "Ket", "Ura", "Nep", "Plu"};
    for (int p = 0; p <= 12; ++p)
        EXPECT_EQ(one(QStringLiteral("PLNTABB"), p), QString::fromLatin1(expected[p])) << p;
}

TEST_F(EnglishTextDb, CycleRowsNameTheLordsOfTheirCycles)
{
    // Vimshottari positions: name, years, nakshatra lord and Mudda lord agree with the cycle.
    const std::array<int, 9> years{7, 20, 6, 10, 7, 18, 16, 19, 17};
    for (int k = 1; k <= 9; ++k) {
        const QString lord = one(QStringLiteral("PLANETS"), kVimLords[k - 1]);
        EXPECT_EQ(one(QStringLiteral("X1-"), k), lord) << k;
        EXPECT_EQ(one(QStringLiteral("Naklord"), k), lord) << k;
        EXPECT_EQ(one(QStringLiteral("Muddacyc"), k), lord) << k;
        EXPECT_EQ(one(QStringLiteral("LysY1"), k).toInt(), years[k - 1]) << k;
    }
    // Horas from the Sun in the order of the weekday lords' speed: Sun, Venus, Mercury, Moon, Saturn, Jupiter, Mars.
    const std::array<int, 7> horaLords{1, 3, 2, 7, 6, 5, 4};
    for (int t = 1; t <= 7; ++t)
        EXPECT_EQ(one(QStringLiteral("Hora"), t), one(QStringLiteral("PLANETS"), horaLords[t - 1])) << t;
    // Yogini lords for k = 0 (Sankata) .. 7 (Siddha).
    const std::array<int, 8> yoginiLords{8, 7, 1, 5, 4, 2, 6, 3};
    for (int k = 0; k <= 7; ++k)
        EXPECT_EQ(one(QStringLiteral("YogiCycleLordName"), k), one(QStringLiteral("PLANETS"), yoginiLords[k])) << k;
}

TEST_F(EnglishTextDb, WordKeyedRowsArePresent)
{
    for (const char *k : {"MANAV", "CHATUSPAD", "JALCHAR", "VANACHAR", "KEET"})
        EXPECT_FALSE(one(QStringLiteral("VASYA"), QLatin1String(k)).isEmpty()) << k;
    for (int n = 1; n <= 27; ++n)
        EXPECT_FALSE(one(QStringLiteral("Rajju"), QStringLiteral("H%1").arg(n)).isEmpty()) << n;
    for (const char *k : {"Exalted", "Mooltrikona", "Own House", "Debilitated"})
        EXPECT_FALSE(one(QStringLiteral("EXALTCLASS"), QLatin1String(k)).isEmpty()) << k;
    for (const char *k : {"Udveg", "Chara", "Laabh", "Amrit", "Kaal", "Shubh", "Rog"})
        EXPECT_FALSE(one(QStringLiteral("Chowgadiya"), QLatin1String(k)).isEmpty()) << k;
    // The Western sun sign is asked by the names FindSunSignEng gives, "ARIES" among them.
    for (const char *k : {"ARIES", "Taurus", "Gemini", "Cancer", "Leo", "Virgo", "Libra", "Scorpio", "Sagittarius",
                          "Capricorn", "Aquarius", "Pisces"})
        EXPECT_FALSE(one(QStringLiteral("SunSign"), QLatin1String(k)).isEmpty()) << k;
    EXPECT_EQ(one(QStringLiteral("ASTA"), 1), QStringLiteral("Combust"));
    for (const char *s : {".", ":", "/", "-", "+", "---"})
        EXPECT_EQ(one(QStringLiteral("Symbols"), QLatin1String(s)), QLatin1String(s));
    EXPECT_EQ(one(QStringLiteral("GEN"), QStringLiteral("DIRECT")), QStringLiteral("Direct"));
    EXPECT_EQ(one(QStringLiteral("GEN"), QStringLiteral("RETRO")), QStringLiteral("Retro"));
}

TEST_F(EnglishTextDb, AyanamsaNamesAreKeyedByCategory)
{
    for (int type = 1; type <= 15; ++type)
        EXPECT_FALSE(one(QString::number(type), QStringLiteral("AyanName")).isEmpty()) << type;
    EXPECT_EQ(one(QStringLiteral("1"), QStringLiteral("AyanName")), QStringLiteral("NC Lahiri"));
    EXPECT_EQ(one(QStringLiteral("3"), QStringLiteral("AyanName")), QStringLiteral("Krishnamurthy (KP)"));
    EXPECT_EQ(one(QStringLiteral("12"), QStringLiteral("AyanName")), QStringLiteral("Sayan (No Ayanamsh)"));
}

TEST_F(EnglishTextDb, KeysMatchWithoutRegardToCaseOrType)
{
    // "Gen" and "GEN" are one category, as in the store the look-ups were written for.
    EXPECT_EQ(cnvt(QStringLiteral("Gen"), QStringLiteral("direct")), QStringList{QStringLiteral("Direct")});
    // A number given as a number still finds its text key.
    const auto rows = db.rows(QStringLiteral("SELECT Val FROM CNVT WHERE Head = 3 AND Category = 'rashi'"));
    ASSERT_EQ(rows.size(), 1u);
    EXPECT_EQ(rows[0][0].toString(), QStringLiteral("Gemini"));
    // So no two rows may share a key once case is folded: the second would never be read.
    const auto dups = db.rows(QStringLiteral(
        "SELECT Category, Head FROM CNVT GROUP BY lower(Category), lower(Head) HAVING COUNT(*) > 1"));
    for (const auto &d : dups)
        ADD_FAILURE() << "duplicate key " << d[0].toString().toStdString() << " / " << d[1].toString().toStdString();
}
