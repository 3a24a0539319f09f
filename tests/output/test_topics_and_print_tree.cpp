// SPDX-License-Identifier: AGPL-3.0-or-later
// The topic lists, built pages only and numbered by their place in the full lists; the print
// tree and its walk; saved page sets.
#include "output/PageSets.h"
#include "output/PrintTree.h"
#include "output/TopicList.h"
#include "support/TestSupport.h"

#include <QFile>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>

namespace {
// The pages the program registers at start; here without building any widget.
void declarePages()
{
    for (const char *p : {"frmPage1", "frmPage2", "frmSodash", "frmBhav", "frmAshtak", "frmVimsot", "frmForText"})
        DeclarePageBuilt(QString::fromLatin1(p));
}
} // namespace

TEST(TopicList, OnlyTopicsWhosePageIsRegisteredAreListed)
{
    const QList<TopicEntry> before = TopicsForMode(1, false);
    EXPECT_FALSE(PageIsBuilt("frmNoSuchPage"));
    DeclarePageBuilt("frmNoSuchPage");
    EXPECT_TRUE(PageIsBuilt("frmNoSuchPage"));
    // A name no topic uses adds no topic.
    EXPECT_EQ(TopicsForMode(1, false).size(), before.size());
    declarePages();
    const QList<TopicEntry> after = TopicsForMode(1, false);
    EXPECT_GE(after.size(), 8) << "General Details, the positions, four Shodash topics, ...";
    EXPECT_TRUE(std::none_of(after.begin(), after.end(), [](const TopicEntry &t) { return t.Page == "frmKP1"; }));
}

TEST(TopicList, HoroscopeTopicsKeepTheirPlaceInTheFullList)
{
    declarePages();
    const QList<TopicEntry> topics = TopicsForMode(1, false);
    ASSERT_FALSE(topics.isEmpty());
    int previous = -1;
    for (const TopicEntry &t : topics) {
        EXPECT_TRUE(PageIsBuilt(t.Page)) << t.Page.toStdString();
        EXPECT_GT(t.Number, previous) << "order of the full list";
        previous = t.Number;
    }
    EXPECT_EQ(topics.first().Caption, "General Details");
    EXPECT_EQ(topics.first().Number, 1);
    // The four Shodash topics are one page with four contents.
    QList<int> args;
    for (const TopicEntry &t : topics)
        if (t.Page == "frmSodash")
            args << t.PageArg;
    EXPECT_EQ(args, QList<int>({1, 2, 3, 4}));
    const auto third = std::find_if(topics.begin(), topics.end(), [](const TopicEntry &t) { return t.PageArg == 3; });
    ASSERT_NE(third, topics.end());
    EXPECT_EQ(third->Caption.toStdString(), "Shodash Kundlis-3");
    EXPECT_EQ(third->Number, 5);
}

TEST(TopicList, ExtendedLanguagesAddOnlyTheirOwnTopics)
{
    declarePages();
    const QList<TopicEntry> plain = TopicsForMode(1, false);
    const QList<TopicEntry> extended = TopicsForMode(1, true);
    ASSERT_GE(extended.size(), plain.size());
    for (int i = 0; i < plain.size(); ++i)
        EXPECT_EQ(extended[i].Caption, plain[i].Caption);
    for (int i = static_cast<int>(plain.size()); i < extended.size(); ++i)
        EXPECT_GE(extended[i].Number, 32) << "only the last three topics depend on the language";
}

TEST(TopicList, MuhurthaHasItsTwoEntriesAndTheMenusTheirFixedItems)
{
    const QList<TopicEntry> m = TopicsForMode(3, false);
    ASSERT_EQ(m.size(), 2);
    EXPECT_EQ(m[0].ShortName, "MainPage");
    EXPECT_EQ(m[1].Caption, "Muhurtha Analysis");
    EXPECT_EQ(NavigateMenuCaptions(1).size(), 31);
    EXPECT_EQ(NavigateMenuCaptions(4).size(), 8);
    EXPECT_EQ(NavigateMenuCaptions(2).size(), 4);
    EXPECT_TRUE(NavigateMenuCaptions(3).isEmpty());
    EXPECT_TRUE(TopicsForMode(7, false).isEmpty());
}


TEST(PrintTree, EveryStepOfAWalkIsANodeOfItsTreeAndTheRootComesFirst)
{
    for (int mode : {1, 2, 4}) {
        for (bool extended : {false, true}) {
            const QStringList keys = PrintKeys(mode, extended);
            const QList<PrintNode> tree = PrintTreeForMode(mode, extended);
            ASSERT_FALSE(tree.isEmpty());
            EXPECT_EQ(tree.first().Key.toStdString(), "Main");
            for (const PrintStep &s : PrintWalkForMode(mode, extended))
                EXPECT_TRUE(keys.contains(s.Key)) << mode << " " << s.Key.toStdString();
            // A parent stands before its children.
            QStringList seen;
            for (const PrintNode &n : tree) {
                if (!n.Parent.isEmpty()) {
                    EXPECT_TRUE(seen.contains(n.Parent)) << n.Caption.toStdString();
                }
                seen << (n.Key.isEmpty() ? n.Caption : n.Key);
            }
        }
    }
}

TEST(PrintTree, TheWalkKeepsItsOwnOrderWhateverTheTicks)
{
    const QList<PrintStep> steps =
        SelectedSteps(1, false, {"Gen", "Vimsot", "Shadbala", "FrontPage", "Page3", "Bhav", "Grahafala", "KPKUN"});
    QStringList keys;
    for (const PrintStep &s : steps)
        keys << s.Key;
    // Dashas come after the strength tables and KP; text pages last; no extended page without it.
    EXPECT_EQ(keys, QStringList({"FrontPage", "Page3", "Bhav", "Shadbala", "KPKUN", "Vimsot", "Gen"}));
    EXPECT_EQ(steps[1].MakePage, 2);
    EXPECT_EQ(steps.last().Kind, StepKind::Text);
    EXPECT_TRUE(SelectedSteps(1, false, {}).isEmpty());
    // Muhurtha prints its cover page, then the analysis as text.
    const QList<PrintStep> muhurtha = PrintWalkForMode(3, false);
    ASSERT_EQ(muhurtha.size(), 2);
    EXPECT_EQ(muhurtha[0].Key, "FrontPage");
    EXPECT_EQ(muhurtha[1].Kind, StepKind::Text);
    EXPECT_FALSE(PrintKeys(1, false).contains("Nakshatrafala"));
    EXPECT_TRUE(PrintKeys(1, true).contains("Nakshatrafala"));
}

TEST(PrintTree, DefaultFileNamesByMode)
{
    EXPECT_EQ(DefaultPdfName(1, "Asha", "", "").toStdString(), "Asha-Horoscope.PDF");
    EXPECT_EQ(DefaultPdfName(4, "Asha", "", "").toStdString(), "Asha-Varshaphala.PDF");
    EXPECT_EQ(DefaultPdfName(2, "", "Ravi", "Asha").toStdString(), "Ravi & Asha-Match.PDF");
}

TEST(PageSets, SavedTicksComeBackAndUnknownKeysReadAsTicked)
{
    QTemporaryDir dir;
    const QString file = dir.filePath("RECOS.Dat");
    ASSERT_TRUE(QFile::copy(ORBANTA_BINARY_DIR "/STUFF/COMMON/RECOS.Dat", file));
    QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner);
    {
        QSqlDatabase db = QSqlDatabase::addDatabase("QSQLITE", "sets");
        db.setDatabaseName(file);
        ASSERT_TRUE(db.open());
        ASSERT_TRUE(PageSets::Save(db, "Charts only", 1, {{"FrontPage", false}, {"Janma", true}}));
        ASSERT_TRUE(PageSets::Save(db, "Charts only", 1, {{"FrontPage", false}, {"Janma", true}, {"Bhav", false}}));
        EXPECT_EQ(PageSets::Names(db, 1), QStringList({"Charts only"})) << "a second save edits the row";
        EXPECT_TRUE(PageSets::Names(db, 2).isEmpty()) << "a set belongs to its mode";
        const QHash<QString, bool> ticks = PageSets::Read("Charts only", 1, {"FrontPage", "Janma", "Bhav", "Yoga"});
        EXPECT_FALSE(ticks["FrontPage"]);
        EXPECT_TRUE(ticks["Janma"]);
        EXPECT_FALSE(ticks["Bhav"]);
        EXPECT_TRUE(ticks["Yoga"]);
        EXPECT_FALSE(PageSets::Save(db, "  ", 1, {}));
        EXPECT_FALSE(PageSets::Delete(db, "No such set", 1));
        EXPECT_FALSE(PageSets::Delete(db, "Charts only", 2));
        EXPECT_TRUE(PageSets::Delete(db, "Charts only", 1));
        EXPECT_TRUE(PageSets::Names(db, 1).isEmpty());
        EXPECT_FALSE(QFile::exists(PageSets::FileOf("Charts only", 1)));
        // A set's name never leads its file out of the folder of page sets.
        const QString folder = QFileInfo(PageSets::FileOf("Charts only", 1)).absolutePath();
        for (const char *name : {"../../evil", "a/b", "..\\x", "/etc/passwd"}) {
            ASSERT_TRUE(PageSets::Save(db, name, 1, {{"FrontPage", false}})) << name;
            const QFileInfo written(PageSets::FileOf(name, 1));
            EXPECT_EQ(written.absolutePath(), folder) << name;
            EXPECT_TRUE(written.exists()) << name;
            EXPECT_FALSE(PageSets::Read(name, 1, {"FrontPage"})["FrontPage"]) << name;
        }
        db.close();
    }
    QSqlDatabase::removeDatabase("sets");
}
