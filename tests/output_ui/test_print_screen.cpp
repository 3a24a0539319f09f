// SPDX-License-Identifier: AGPL-3.0-or-later
// The print screen: its captions by mode, the tick rules of its tree, and page sets kept per mode.
#include "output/ui/PageCache.h"
#include "output/ui/frmPrint.h"
#include "session/Session.h"
#include "support/TestSupport.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QPushButton>
#include <QSqlDatabase>
#include <QTemporaryDir>
#include <QTreeWidget>

#include <gtest/gtest.h>

namespace {

class PrintScreen : public ::testing::Test
{
protected:
    void SetUp() override
    {
        const QString file = dir.filePath("RECOS.Dat");
        ASSERT_TRUE(QFile::copy(ORBANTA_BINARY_DIR "/STUFF/COMMON/RECOS.Dat", file));
        QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner);
        Session().RecDB = QSqlDatabase::addDatabase("QSQLITE", "print_screen");
        Session().RecDB.setDatabaseName(file);
        ASSERT_TRUE(Session().RecDB.open());
        Session().ProgMode = 1;
    }
    void TearDown() override
    {
        Session().RecDB.close();
        Session().RecDB = QSqlDatabase();
        QSqlDatabase::removeDatabase("print_screen");
    }
    static QTreeWidgetItem *node(frmPrint &f, const QString &caption)
    {
        const QList<QTreeWidgetItem *> found = f.tvwPrint->findItems(caption, Qt::MatchExactly | Qt::MatchRecursive);
        return found.isEmpty() ? nullptr : found.first();
    }
    ScopedSettingsStore store;
    QTemporaryDir dir;
    PageCache pages;
};

} // namespace

TEST_F(PrintScreen, CaptionsFollowTheMode)
{
    frmPrint f(pages);
    EXPECT_EQ(f.windowTitle(), "Select Topics To Print");
    EXPECT_EQ(f.cmdPrint->text(), "&Print");
    EXPECT_TRUE(f.cmdPrintSet->isEnabled());
    f.setMode(3);
    EXPECT_EQ(f.windowTitle(), "Select Topics To Export PDF");
    EXPECT_EQ(f.cmdPrint->text(), "&Export");
    EXPECT_FALSE(f.cmdPrintSet->isEnabled());
    f.setMode(2);
    EXPECT_EQ(f.Mode(), 3) << "mode 2 reads as the PDF mode";
}

TEST_F(PrintScreen, TicksFlowDownFromTheRootAndFromAGroupOnly)
{
    frmPrint f(pages);
    const int all = static_cast<int>(f.tickedKeys().size());
    ASSERT_GT(all, 30);
    node(f, "Kundlis")->setCheckState(0, Qt::Unchecked);
    QSet<QString> keys = f.tickedKeys();
    for (const char *k : {"Kundlis", "Janma", "Page2", "Page5"})
        EXPECT_FALSE(keys.contains(k)) << k;
    EXPECT_TRUE(keys.contains("Main")) << "nothing flows upward";
    EXPECT_TRUE(keys.contains("Vimsot"));
    node(f, "Topic List")->setCheckState(0, Qt::Unchecked);
    EXPECT_TRUE(f.tickedKeys().isEmpty());
    node(f, "Topic List")->setCheckState(0, Qt::Checked);
    EXPECT_EQ(f.tickedKeys().size(), all);
    // The group without a key of its own still carries its children.
    node(f, "Krishnamurthy System")->setCheckState(0, Qt::Unchecked);
    EXPECT_FALSE(f.tickedKeys().contains("KPKUN"));
}

TEST_F(PrintScreen, ASavedSetComesBackAndBelongsToItsMode)
{
    {
        frmPrint f(pages);
        f.setTicked("Janma", false);
        f.setTicked("Bhav", false);
        f.cmbPageSel->setEditText("Short");
        f.cmdSelSave_Click();
        EXPECT_EQ(f.cmbPageSel->count(), 1);
    }
    {
        frmPrint f(pages); // the first set is selected on opening
        EXPECT_EQ(f.cmbPageSel->currentText(), "Short");
        EXPECT_FALSE(f.tickedKeys().contains("Janma"));
        EXPECT_FALSE(f.tickedKeys().contains("Bhav"));
        EXPECT_TRUE(f.tickedKeys().contains("FrontPage"));
        f.cmdSelDel_Click();
        EXPECT_EQ(f.cmbPageSel->count(), 0);
    }
    Session().ProgMode = 2;
    frmPrint marriage(pages);
    EXPECT_EQ(marriage.cmbPageSel->count(), 0);
    EXPECT_EQ(marriage.tvwPrint->topLevelItem(0)->childCount(), 4);
    const QString out = qEnvironmentVariable("ORBANTA_SCREENSHOTS");
    if (!out.isEmpty()) {
        Session().ProgMode = 1;
        frmPrint shown(pages);
        shown.resize(720, 520);
        shown.show();
        QDir().mkpath(out);
        shown.grab().save(out + "/print-screen.png");
    }
}
