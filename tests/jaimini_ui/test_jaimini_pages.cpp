// SPDX-License-Identifier: AGPL-3.0-or-later
// The three Jaimini pages on a Delhi birth: what they show agrees with the computation, every
// word is found, the walk prints them to PDF, and with ORBANTA_SCREENSHOTS set each is pictured
// in the three chart styles.
#include "chartdraw/KundaliModel.h"
#include "chartdraw/ui/Kundali.h"
#include "jaimini/JaiminiCharts.h"
#include "jaimini/JaiminiLagnaRows.h"
#include "jaimini/clsJaimini.h"
#include "jaimini/pages/frmJaimini1.h"
#include "jaimini/pages/frmJaimini2.h"
#include "jaimini/pages/frmJaimini3.h"
#include "output/PrintTree.h"
#include "output/ui/PageCache.h"
#include "output/ui/PageOutput.h"
#include "output/ui/PrintRun.h"
#include "output_ui/DelhiSession.h"
#include "sky/AppSettings.h"

#include <QDir>

#include <memory>

namespace {

class JaiminiPages : public DelhiSession
{
protected:
    static void expectAllWordsFound(const QWidget &page)
    {
        for (const QLabel *l : page.findChildren<QLabel *>())
            EXPECT_FALSE(l->text().contains(QStringLiteral("Item Not Found"))) << page.objectName().toStdString();
    }
};

TEST_F(JaiminiPages, TheLagnaPageListsEveryLagnaByName)
{
    const auto page = load<frmJaimini1>();
    expectAllWordsFound(*page);
    EXPECT_EQ(page->lblTitle->text(), QStringLiteral("Jaimini Lagnas and Sphutas"));
    const clsPlanets &c = *Session().CurPlanets;
    const clsJaimini jm(c);
    const std::vector<JaiminiLagnaRow> rows = JaiminiLagnaRows(jm);
    ASSERT_EQ(static_cast<int>(rows.size()), frmJaimini1::kRows);
    QStringList names;
    for (int r = 0; r < frmJaimini1::kRows; ++r) {
        EXPECT_EQ(page->rowSign(r), c.ConvertRashi(rows[static_cast<size_t>(r)].sign)) << r;
        EXPECT_FALSE(page->rowName(r).isEmpty()) << r;
        names << page->rowName(r);
    }
    EXPECT_EQ(names.first(), QStringLiteral("Janma Lagna"));
    EXPECT_EQ(names.last(), QStringLiteral("Sphuta Yoga Lagna"));
    EXPECT_EQ(QSet<QString>(names.begin(), names.end()).size(), frmJaimini1::kRows) << "no two rows share a name";
    EXPECT_EQ(page->rowSign(0), c.ConvertRashi(c.Sign(0)));
}

TEST_F(JaiminiPages, TheChartsPageRaisesEachChartFromItsLagna)
{
    const auto page = load<frmJaimini2>();
    expectAllWordsFound(*page);
    const clsPlanets &c = *Session().CurPlanets;
    const clsJaimini jm(c);
    for (size_t i = 0; i < kJaiminiCharts.size(); ++i) {
        const Kundali *k = page->kunJM[i];
        ASSERT_NE(k, nullptr);
        EXPECT_EQ(k->model().HouseNumber(), JaiminiChartLagna(jm, kJaiminiCharts[i])) << i;
        QString all;
        for (int s = 1; s <= 12; ++s)
            all += k->model().HouseText(s) + QLatin1Char(' ');
        for (int p = 1; p <= 9; ++p)
            EXPECT_TRUE(all.contains(c.PlanetNameSmall(p))) << i << " planet " << p;
    }
    EXPECT_EQ(page->findChild<Kundali *>(QStringLiteral("kunJMAruda"))->model().HouseNumber(), jm.ArudhaLagna(1));
}

TEST_F(JaiminiPages, TheSphutaPageShowsSphutasKarakasAndAspects)
{
    const auto page = load<frmJaimini3>();
    expectAllWordsFound(*page);
    const clsPlanets &c = *Session().CurPlanets;
    const clsJaimini jm(c);
    ASSERT_EQ(page->sphutaCells.size(), 6);
    EXPECT_EQ(page->sphutaCells[0][1]->text(), c.ConvertToDegNoVal(jm.SphutasLongi(1, 1)));
    ASSERT_EQ(page->ashtaCells.size(), 8);
    EXPECT_EQ(page->ashtaCells[0][0]->text(), QStringLiteral("Atma Karaka"));
    EXPECT_EQ(page->ashtaCells[0][1]->text(), c.PlanetNameFull(jm.AshtaCharaKaraka(1)));
    ASSERT_EQ(page->saptaCells.size(), 7);
    EXPECT_EQ(page->saptaCells[4][0]->text(), QStringLiteral("Apatya Karaka"));
    ASSERT_EQ(page->aspectCells.size(), 12);
    // Aries looks ahead to Scorpio and sideways to Leo and Aquarius.
    EXPECT_TRUE(page->aspectCells[0][1]->text().startsWith(c.ConvertRashi(8)));
    EXPECT_EQ(page->aspectCells[0][2]->text(), c.ConvertRashi(5) + QStringLiteral(" + ") + c.ConvertRashi(11));
    // Every planet is listed in the row of its sign.
    for (int p = 0; p <= 9; ++p)
        EXPECT_TRUE(page->aspectCells[c.PlanetSign(p) - 1][3]->text().contains(c.PlanetNameSmall(p))) << p;
}

TEST_F(JaiminiPages, ThePrintWalkWritesTheThreePages)
{
    const PdfWalk walk = walkToPdf("jaimini.PDF", {"JMLAGNA", "JMKUNDLIS", "JMSPHUTAS"});
    ASSERT_EQ(walk.drawn, 3);
    const QString text = pdfText(walk.file);
    if (text.isEmpty())
        GTEST_SKIP() << "pdftotext is not installed";
    EXPECT_FALSE(text.contains(QStringLiteral("Item Not Found")));
    for (const char *words : {"Jaimini Lagnas and Sphutas", "Sphuta Yoga Lagna", "Jaimini Kundlis", "Karakamsha Lagna",
                              "Jaimini Sphutas, Karakas and Aspects", "Lateral Aspects"})
        EXPECT_TRUE(text.contains(QString::fromLatin1(words))) << words;
}

TEST_F(JaiminiPages, Screenshots)
{
    const QString out = qEnvironmentVariable("ORBANTA_SCREENSHOTS");
    if (out.isEmpty())
        GTEST_SKIP() << "set ORBANTA_SCREENSHOTS to a folder to write the pictures";
    QDir().mkpath(out);
    const char *styles[] = {"north", "east", "south"};
    for (int style = 0; style < 3; ++style) {
        AppSettings::setValue("Init", "KundStyle", style);
        load<frmJaimini1>()->grab().save(QStringLiteral("%1/page-jaimini1-%2.png").arg(out, styles[style]));
        load<frmJaimini2>()->grab().save(QStringLiteral("%1/page-jaimini2-%2.png").arg(out, styles[style]));
        load<frmJaimini3>()->grab().save(QStringLiteral("%1/page-jaimini3-%2.png").arg(out, styles[style]));
    }
}

} // namespace
