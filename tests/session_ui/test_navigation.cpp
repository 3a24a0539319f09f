// SPDX-License-Identifier: AGPL-3.0-or-later
// Topic navigation after Generate, driven as a user would: every route to a topic leaves the
// list, the bar, the tree and the window caption in agreement, pages load once and stay.
#include "chartdraw/ui/Kundali.h"
#include "dasha/pages/frmVimsot.h"
#include "output/ui/BottomBar.h"
#include "output/ui/TopicPage.h"
#include "session_ui/SessionWindow.h"
#include "sky/pages/frmSodash.h"
#include "support/RecordingSink.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QMenu>
#include <QTest>
#include <QTreeWidget>

namespace {

class Navigation : public EntryScreen
{
protected:
    void generate()
    {
        screen->single->cmbName->setEditText("Asha");
        typeBirth(screen->single, "15/08/1980", "14.35", "028:38", "077:12", "+05.30");
        ASSERT_TRUE(screen->cmdGenerate_Click());
    }
    // The four controls and the caption all tell the same topic, and its page shows.
    void expectShowing(int index)
    {
        SCOPED_TRACE(index);
        EXPECT_EQ(window->cmbTopic->currentIndex(), index);
        EXPECT_EQ(window->bBar->SelectedItem(), index);
        EXPECT_EQ(window->tvMap->indexOfTopLevelItem(window->tvMap->currentItem()), index);
        EXPECT_EQ(window->windowTitle(), "Orbanta-" + window->cmbTopic->itemText(index));
        ASSERT_NE(window->activePage(), nullptr);
        EXPECT_EQ(window->activePage()->objectName(), window->topics()[index].Page);
        // Quick View has no page number; every other topic is numbered by its place in the full list.
        const int number = window->topics()[index].Number;
        EXPECT_EQ(window->activePage()->lblPageNo->text(), number == 0 ? QString() : QString::number(number));
        EXPECT_EQ(window->tbPrevious->isEnabled(), index > 0);
        EXPECT_EQ(window->tbNext->isEnabled(), index < window->cmbTopic->count() - 1);
        EXPECT_EQ(window->mnuNavNext->isEnabled(), window->tbNext->isEnabled());
    }
    QAction *menuItem(QMenu *menu, int i) { return menu->actions().at(i); }
};

} // namespace

TEST_F(Navigation, GenerateOpensQuickViewAndEveryRouteAgrees)
{
    generate();
    expectShowing(0);
    EXPECT_EQ(window->activePage()->objectName(), "frmHoroReckoner");
    EXPECT_TRUE(window->mnuHorNav->menuAction()->isVisible());
    EXPECT_FALSE(window->mnuVarNav->menuAction()->isVisible());

    window->tbNext->trigger();
    expectShowing(1);
    window->cmbTopic->setCurrentIndex(3);
    expectShowing(3);
    window->tbPrevious->trigger();
    expectShowing(2);
    Q_EMIT window->bBar->ItemClick(5);
    expectShowing(5);
    // The tree by mouse, then by keyboard: the arrows move the page, list and bar with it.
    window->show();
    QWidget *tree = window->tvMap->viewport();
    QTest::mouseClick(tree, Qt::LeftButton, {}, window->tvMap->visualItemRect(window->tvMap->topLevelItem(4)).center());
    expectShowing(4);
    window->tvMap->setFocus();
    QTest::keyClick(window->tvMap, Qt::Key_Down);
    expectShowing(5);
    QTest::keyClick(window->tvMap, Qt::Key_Up);
    QTest::keyClick(window->tvMap, Qt::Key_Up);
    expectShowing(3);
    window->mnuNavPrev->trigger();
    expectShowing(2);
    // "7. Bhav Table && Chakra" leads to the Bhava page, "1. General Details" to the first.
    menuItem(window->mnuHorNav, 6)->trigger();
    EXPECT_EQ(window->activePage()->objectName(), "frmBhav");
    expectShowing(window->cmbTopic->currentIndex());
    menuItem(window->mnuHorNav, 0)->trigger();
    expectShowing(1);
    EXPECT_EQ(window->activePage()->objectName(), "frmPage1");
    menuItem(window->mnuHorNav, 7)->trigger();
    EXPECT_EQ(window->activePage()->objectName(), "frmUpagraha"); // "8. Upagrahas && Minor Planets"
    // Items of topics still to come are there but lead nowhere: an item is enabled exactly when
    // its topic (numbered from General Details) is in the list.
    const QList<QAction *> items = window->mnuHorNav->actions();
    for (int i = 0; i < items.size(); ++i) {
        bool here = false;
        for (const TopicEntry &t : window->topics())
            here = here || t.Number == i + 1;
        EXPECT_EQ(items[i]->isEnabled(), here) << items[i]->text().toStdString();
    }
}

TEST_F(Navigation, NextStopsAtTheLastTopicAndPreviousAtTheFirst)
{
    generate();
    const int last = window->cmbTopic->count() - 1;
    for (int i = 0; i < last + 3; ++i)
        window->mnuNavNext->trigger();
    expectShowing(last);
    for (int i = 0; i < last + 3; ++i)
        window->tbPrevious->trigger();
    expectShowing(0);
}

TEST_F(Navigation, PagesLoadOnceAndTheShodashPageRedrawsOnEveryVisit)
{
    generate();
    const int first = 3, third = 5; // Shodash Kundlis-1 and -3 in the list, after Quick View
    ASSERT_EQ(window->topics()[first].Page, "frmSodash");
    window->SelectTopic(first);
    auto *sodash = qobject_cast<frmSodash *>(window->activePage());
    ASSERT_NE(sodash, nullptr);
    EXPECT_EQ(sodash->currentPage(), 1);
    const QString lagnaChart = sodash->kunVarga[0]->model().HouseText(1) + sodash->lblVarga[0]->text();
    window->SelectTopic(third);
    EXPECT_EQ(window->activePage(), sodash) << "one form, four contents";
    EXPECT_EQ(sodash->currentPage(), 3);
    EXPECT_NE(sodash->kunVarga[0]->model().HouseText(1) + sodash->lblVarga[0]->text(), lagnaChart);
    window->SelectTopic(0);
    window->SelectTopic(first);
    EXPECT_EQ(sodash->currentPage(), 1);
    EXPECT_EQ(sodash->kunVarga[0]->model().HouseText(1) + sodash->lblVarga[0]->text(), lagnaChart);
    EXPECT_EQ(window->loadedPageCount(), 2);

    window->ShowEntryScreen();
    EXPECT_EQ(window->loadedPageCount(), 0);
    EXPECT_EQ(window->activePage(), nullptr);
}

TEST_F(Navigation, ThePagesSayWhatTheChartHolds)
{
    RecordingSink sink;
    const ScopedMessageSink scoped(&sink);
    generate();
    const clsPlanets &c = *Session().CurPlanets;
    window->SelectTopic(2); // Lagna & Planet Positions
    auto *lagna = window->activePage()->findChild<Kundali *>("kunLagna");
    ASSERT_NE(lagna, nullptr);
    EXPECT_TRUE(lagna->model().HouseText(c.PrediVarga(7, 1)).contains(c.PlanetName(7)) ||
                lagna->model().ChartStyle() == KundaliModel::North);
    // No label of any page reads a key the text database lacks.
    for (int i = 0; i < window->cmbTopic->count(); ++i) {
        window->SelectTopic(i);
        for (const QLabel *l : window->activePage()->findChildren<QLabel *>()) {
            EXPECT_FALSE(l->text().contains("Item Not Found")) << window->topics()[i].Caption.toStdString();
        }
    }
    EXPECT_TRUE(messages.empty());
    EXPECT_EQ(sink.reports, QStringList()) << "every key the pages read is in the English database";
}

TEST_F(Navigation, Screenshots)
{
    const QString out = qEnvironmentVariable("ORBANTA_SCREENSHOTS");
    if (out.isEmpty())
        GTEST_SKIP() << "set ORBANTA_SCREENSHOTS to a folder to write the pictures";
    QDir().mkpath(out);
    frmPratyan::setToday(QDateTime(QDate(2026, 11, 23), QTime(0, 0), Qt::UTC));
    const char *styles[] = {"north", "east", "south"};
    for (int style = 0; style < 3; ++style) {
        AppSettings::setValue("Init", "KundStyle", style);
        window->ShowEntryScreen();
        generate();
        window->resize(1100, 860);
        window->show();
        for (int i = 0; i < window->cmbTopic->count(); ++i) {
            window->SelectTopic(i);
            QApplication::processEvents();
            const QString name = window->topics()[i].Page.mid(3).toLower()
                                 + (window->topics()[i].PageArg ? QString::number(window->topics()[i].PageArg) : QString());
            window->activePage()->grab().save(QStringLiteral("%1/page-%2-%3.png").arg(out, name, styles[style]));
        }
        if (style == 2) {
            window->SelectTopic(1);
            QApplication::processEvents();
            window->grab().save(out + "/main-window.png");
        }
    }
}
