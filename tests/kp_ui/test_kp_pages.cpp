// SPDX-License-Identifier: AGPL-3.0-or-later
// The KP pages on the Delhi birth: the significator tables and the two charts say what the recast
// holds, the Quick View offers the KP Lagna chart, and the four print keys export with every word
// found; with ORBANTA_SCREENSHOTS set, pictures of the four pages in the three chart styles.
#include "chartdraw/ui/Kundali.h"
#include "kp/KPSession.h"
#include "kp/clsKPSystem.h"
#include "kp/pages/frmKP1.h"
#include "kp/pages/frmKP2.h"
#include "kp/pages/frmKP3.h"
#include "kp/pages/frmKP4.h"
#include "muhurtha/pages/frmHoroReckoner.h"
#include "output/PrintTree.h"
#include "output/ui/PageCache.h"
#include "output/ui/PrintRun.h"
#include "output_ui/DelhiSession.h"
#include "sky/AppSettings.h"
#include "sky/Functions.h"
#include "support/RecordingSink.h"

#include <QAction>
#include <QDir>
#include <QMenu>

#include <gtest/gtest.h>

#include <memory>

namespace {

class KPPages : public DelhiSession
{
protected:
    // The words a chart shows in the cell of sign s, in any style.
    static QString inSign(Kundali *k, int s) { return k->HouseText(k->model().cellOfSign(s) + 1); }
};

} // namespace

TEST_F(KPPages, TheSignificatorPagesAgreeWithTheScores)
{
    const auto p2 = load<frmKP2>();
    const auto p3 = load<frmKP3>();
    const clsKPSystem &kp = *SessionKP();
    const clsPlanets &c = *Session().CurPlanets;
    for (int house = 1; house <= 12; ++house)
        for (int p = 1; p <= 9; ++p) {
            const int score = kp.PlanetSignifScore(p, house);
            for (int band = 0; band < 4; ++band) {
                const bool here = score > 0 && clsKPSystem::SignifBand(score) == band;
                const QStringList names = p2->tblBands.cell(house - 1, band + 1)->text().split(' ');
                EXPECT_EQ(names.contains(c.PlanetName(p)), here) << "house " << house << " planet " << p;
                const QStringList houses = p3->tblPlanets.cell(p - 1, band + 1)->text().split(' ');
                EXPECT_EQ(houses.contains(QString::number(house)), here) << "planet " << p << " house " << house;
            }
        }
}

TEST_F(KPPages, TheKundlisPagePlacesThePlanetsByTheRecast)
{
    for (int style = 0; style < 3; ++style) {
        AppSettings::setValue("Init", "KundStyle", style);
        const auto page = load<frmKP4>();
        const clsKPSystem &kp = *SessionKP();
        const clsPlanets &c = *Session().CurPlanets;
        for (int n = 0; n <= 9; ++n)
            EXPECT_TRUE(inSign(page->kunLagna, kp.Sign(n)).contains(c.PlanetName(n))) << n;
        // In the Bhava chart each planet stands in the house it occupies.
        for (int p = 1; p <= 9; ++p)
            for (int h = 1; h <= 12; ++h)
                if (kp.FindSignIfOccup(h, p)) {
                    EXPECT_TRUE(inSign(page->kunBhav, Norm12(kp.Sign(0) + h - 1)).contains(c.PlanetName(p))) << p;
                }
    }
}

TEST_F(KPPages, QuickViewOffersTheKPLagnaChart)
{
    const auto page = load<frmHoroReckoner>();
    QAction *kpLagna = nullptr;
    for (QAction *a : page->mnuPopup()->actions())
        if (a->menu() && a->text() == "Kundlis")
            for (QAction *b : a->menu()->actions())
                if (b->text() == "KP Lagna Kundli")
                    kpLagna = b;
    ASSERT_NE(kpLagna, nullptr);
    kpLagna->trigger();
    const clsKPSystem &kp = *SessionKP();
    EXPECT_EQ(page->lblKun2->text(), "KP Lagna Kundli");
    EXPECT_EQ(page->Kun2->model().HouseNumber(), kp.Sign(0));
    for (int n = 1; n <= 9; ++n)
        EXPECT_TRUE(inSign(page->Kun2, kp.Sign(n)).contains(clsPlanets::PlanetNameEng(n))) << n;
}

TEST_F(KPPages, TheFourKeysExportToPdfInTheirOrder)
{
    RecordingSink sink;
    const ScopedMessageSink scoped(&sink);
    const PdfWalk walk = walkToPdf("kp.pdf", {"KPLONG", "KPSIGN1", "KPSIGN2", "KPKUN"});
    EXPECT_EQ(walk.drawn, 4);
    EXPECT_EQ(walk.sheets, 4);
    EXPECT_EQ(sink.reports, QStringList()) << "every key the pages read is in the English database";
    const QString text = pdfText(walk.file);
    if (text.isEmpty())
        GTEST_SKIP() << "pdftotext is not installed";
    EXPECT_FALSE(text.contains("Item Not Found"));
    EXPECT_LT(text.indexOf("Sign-Star-Sub Lord"), text.indexOf("KP Bhava Chalit"));
}

TEST_F(KPPages, Screenshots)
{
    const QString out = qEnvironmentVariable("ORBANTA_SCREENSHOTS");
    if (out.isEmpty())
        GTEST_SKIP() << "set ORBANTA_SCREENSHOTS to a folder to write the pictures";
    QDir().mkpath(out);
    const char *styles[] = {"north", "east", "south"};
    for (int style = 0; style < 3; ++style) {
        AppSettings::setValue("Init", "KundStyle", style);
        const std::unique_ptr<TopicPage> pages[] = {load<frmKP1>(), load<frmKP2>(), load<frmKP3>(), load<frmKP4>()};
        for (const auto &page : pages)
            page->grab().save(QStringLiteral("%1/page-%2-%3.png").arg(out, page->objectName().mid(3).toLower(), styles[style]));
    }
}
