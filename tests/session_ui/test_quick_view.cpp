// SPDX-License-Identifier: AGPL-3.0-or-later
// Quick View: Generate opens it; its menu changes the second chart and the table, and what it
// shows is the chart's own.
#include "chartdraw/ui/Kundali.h"
#include "muhurtha/pages/frmHoroReckoner.h"
#include "output/ui/PageParts.h"
#include "session_ui/SessionWindow.h"
#include "sky/Functions.h"
#include "strength/clsShadBala.h"
#include "support/RecordingSink.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QMenu>
#include <QTest>

namespace {

class QuickView : public EntryScreen
{
protected:
    frmHoroReckoner *generate()
    {
        screen->single->cmbName->setEditText("Asha");
        typeBirth(screen->single, "15/08/1980", "14.35", "028:38", "077:12", "+05.30");
        if (!screen->cmdGenerate_Click())
            return nullptr;
        return qobject_cast<frmHoroReckoner *>(window->activePage());
    }
    // The action of a menu path, "Shodashvarga Kundlis/Navamsh".
    static QAction *item(QMenu *menu, const QString &path)
    {
        const QStringList parts = path.split(QLatin1Char('/'));
        for (QAction *a : menu->actions()) {
            if (a->text() != parts.first())
                continue;
            if (parts.size() == 1)
                return a;
            return a->menu() ? item(a->menu(), parts.mid(1).join(QLatin1Char('/'))) : nullptr;
        }
        return nullptr;
    }
    static QStringList words(const QWidget *page)
    {
        QStringList out;
        for (const QLabel *l : page->findChildren<QLabel *>())
            if (l->isVisible() || !l->isHidden())
                out << l->text();
        return out;
    }
};

} // namespace

TEST_F(QuickView, TheMenuChangesTheSecondChartAndTheTable)
{
    RecordingSink sink;
    const ScopedMessageSink scoped(&sink);
    frmHoroReckoner *page = generate();
    ASSERT_NE(page, nullptr) << "Generate opens Quick View";
    const clsPlanets &c = *Session().CurPlanets;
    // The birth chart on the left: the Lagna's sign rises; the Navamsh beside it at first.
    EXPECT_EQ(page->Kun1->model().HouseNumber(), c.PlanetRashiNum(0));
    EXPECT_EQ(page->Kun2->model().HouseNumber(), c.PrediVarga(0, 6));

    QMenu *menu = page->mnuPopup();
    ASSERT_NE(menu, nullptr);
    // A right click on the page opens the menu.
    window->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    const QPoint at = page->mapTo(window.get(), QPoint(300, 300));
    QTest::mouseClick(window->windowHandle(), Qt::RightButton, {}, at);
    EXPECT_TRUE(menu->isVisible());
    menu->hide();
    item(menu, "Kundlis/Chandra Kundli")->trigger();
    EXPECT_EQ(page->Kun2->model().HouseNumber(), c.PlanetSign(7)) << "the Moon's sign rises";
    EXPECT_EQ(page->lblKun2->text(), "Chandra Kundli");
    item(menu, "Shodashvarga Kundlis/Dashamamsh")->trigger();
    EXPECT_EQ(page->Kun2->model().HouseNumber(), c.PrediVarga(0, 7));
    EXPECT_EQ(page->Kun1->model().HouseNumber(), c.PlanetRashiNum(0)) << "the birth chart stays";

    // Tables replace each other: the Panchang's words go when the Mahas come.
    EXPECT_TRUE(words(page).contains(c.YogaName()));
    item(menu, "Dashas/Vimshottari Dasha")->trigger();
    EXPECT_EQ(page->tableShown(), frmHoroReckoner::TableKind::Vimshottari);
    EXPECT_FALSE(words(page).contains(c.YogaName()));
    item(menu, "Ashtakvarga/Sign Total")->trigger();
    // Each sign with its total points, in sign order.
    const QStringList shown = words(page);
    for (int s = 1; s <= 12; ++s) {
        const int at = static_cast<int>(shown.indexOf(c.ConvertRashi(s)));
        ASSERT_GE(at, 0) << s;
        EXPECT_TRUE(shown.mid(at, 3).contains(QString::number(c.AshTotal(s)))) << s;
    }
    EXPECT_EQ(sink.reports, QStringList()) << "every label is in the English database";
}

TEST_F(QuickView, BarsStandInProportionToShadBala)
{
    frmHoroReckoner *page = generate();
    ASSERT_NE(page, nullptr);
    clsShadBala sb(*Session().CurPlanets);
    int strongest = 1;
    for (int p = 2; p <= 7; ++p)
        if (Val(sb.TotalShadBala(p)) > Val(sb.TotalShadBala(strongest)))
            strongest = p;
    const auto *top = page->findChild<PageShape *>(QStringLiteral("bar%1").arg(strongest));
    ASSERT_NE(top, nullptr);
    for (int p = 1; p <= 7; ++p) {
        const auto *bar = page->findChild<PageShape *>(QStringLiteral("bar%1").arg(p));
        ASSERT_NE(bar, nullptr);
        EXPECT_LE(bar->height(), top->height());
        EXPECT_NEAR(double(bar->height()) / top->height(),
                    Val(sb.TotalShadBala(p)) / Val(sb.TotalShadBala(strongest)), 0.02);
    }
    // The Vimshottari line names all nine lords.
    EXPECT_EQ(page->lblVimElement->text().count(QStringLiteral("\u2022")), 8);
}

TEST_F(QuickView, Screenshots)
{
    const QString out = qEnvironmentVariable("ORBANTA_SCREENSHOTS");
    if (out.isEmpty())
        GTEST_SKIP() << "set ORBANTA_SCREENSHOTS to a folder to write the pictures";
    frmHoroReckoner *page = generate();
    ASSERT_NE(page, nullptr);
    QDir().mkpath(out);
    page->grab().save(out + "/page-quickview-navamsh.png");
    item(page->mnuPopup(), "Kundlis/Bhava Chalit Chakra")->trigger();
    item(page->mnuPopup(), "Ashtakvarga/Sign Total")->trigger();
    QApplication::processEvents();
    page->grab().save(out + "/page-quickview-chalit.png");
}
