// SPDX-License-Identifier: AGPL-3.0-or-later
// Quick View's menu offers the nine Jaimini charts: each item raises its chart in the second
// wheel under its title, and the birth chart beside it stays.
#include "chartdraw/KundaliModel.h"
#include "chartdraw/ui/Kundali.h"
#include "jaimini/clsJaimini.h"
#include "muhurtha/pages/frmHoroReckoner.h"
#include "output_ui/DelhiSession.h"

#include <QMenu>

namespace {

using QuickViewJaimini = DelhiSession;

QAction *jaiminiItem(QMenu *menu, const QString &caption)
{
    for (QAction *a : menu->actions())
        if (a->text() == QStringLiteral("Jaimini Kundlis") && a->menu())
            for (QAction *b : a->menu()->actions())
                if (b->text() == caption)
                    return b;
    return nullptr;
}

TEST_F(QuickViewJaimini, EachMenuItemRaisesItsChart)
{
    frmHoroReckoner page;
    page.Load();
    const clsPlanets &c = *Session().CurPlanets;
    const clsJaimini jm(c);
    struct Row
    {
        const char *caption;
        int lagna;
        const char *title;
    };
    const Row rows[] = {
        {"Janma Lagna", jm.Sign(0), "Janma Lagna"},
        {"Drekkana Traditional", c.PrediVarga(0, 3), "Drekkana (Traditional)"},
        {"Drekkana Pravritti Traya", jm.DrekkanaLagna(2), "Drekkana (Parivritti Traya)"},
        {"Drekkana Somnath", jm.DrekkanaLagna(3), "Drekkana (Somanath)"},
        {"Navamsh Traditional", jm.NavamshSign(0), "Navamsha (Traditional)"},
        {"Navamsha Krishna Mishra", jm.NavamshLagna(2), "Navamsha (Krishna Mishra)"},
        {"Arooda", jm.ArudhaLagna(1), "Arudha Lagna"},
        {"Upapada", jm.UpaPadaLagna(1), "Upapada Lagna"},
        {"Karakamsha", jm.KarakamsaLagna(), "Karakamsha Lagna"},
    };
    for (const Row &r : rows) {
        QAction *a = jaiminiItem(page.mnuPopup(), QString::fromLatin1(r.caption));
        ASSERT_NE(a, nullptr) << r.caption;
        a->trigger();
        EXPECT_EQ(page.Kun2->model().HouseNumber(), r.lagna) << r.caption;
        EXPECT_EQ(page.lblKun2->text(), QString::fromLatin1(r.title));
        EXPECT_TRUE(page.Kun2->model().HouseText(r.lagna).contains(clsPlanets::PlanetNameEng(0))) << r.caption;
    }
    EXPECT_EQ(page.Kun1->model().HouseNumber(), c.PlanetRashiNum(0)) << "the birth chart stays";
}

} // namespace
