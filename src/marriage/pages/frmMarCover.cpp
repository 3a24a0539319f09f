// SPDX-License-Identifier: AGPL-3.0-or-later
#include "marriage/pages/frmMarCover.h"

#include "chartdraw/ChartFill.h"
#include "chartdraw/ui/Kundali.h"
#include "session/Session.h"
#include "sky/clsPlanets.h"
#include "text/GenLabel.h"

void frmMarCover::fill()
{
    const SessionGlobals &s = Session();
    const clsPlanets &boy = *s.BoyPlanets;
    const clsPlanets &girl = *s.GalPlanets;
    const clsPlanets &c = chart();
    const auto gen = [&c](const char *head) { return GenLabel(QString::fromLatin1(head), c); };
    const auto word = [&c](const char *key) { return c.GetHeadValue(1, QString::fromLatin1(key), QStringLiteral("Marriage")).toString(); };
    lblTitle->setText(word("MarCover"));

    kunBoy = addChart(QRect(30, 96, 340, 340), word("BoyKun"));
    kunBoy->setObjectName(QStringLiteral("kunBoy"));
    FillVargaKundali(kunBoy->model(), boy, 1);
    kunGal = addChart(QRect(390, 96, 340, 340), word("GalKun"));
    kunGal->setObjectName(QStringLiteral("kunGal"));
    FillVargaKundali(kunGal->model(), girl, 1);

    // Whose columns: a band over each person's three.
    const QList<int> widths{130, 105, 95, 80, 105, 95, 80};
    const int x = 35, y = 486, rowHeight = 26;
    const Table names = addTable(x + widths[0], y, {280, 280}, rowHeight, {word("BoyData"), word("GirlData")}, 0);
    Q_UNUSED(names);
    const QStringList heads{gen("TPlanets"), gen("Rashi"), gen("Degrees"), gen("Direction"), gen("Rashi"), gen("Degrees"), gen("Direction")};
    const Table t = addTable(x, y + rowHeight, widths, rowHeight, heads, 13, Small, true);
    for (int n = 0; n <= 12; ++n) {
        t.cell(n, 0)->setText(c.PlanetNameFull(n));
        int col = 1;
        for (const clsPlanets *p : {&boy, &girl}) {
            const double l = p->PlanetLongi(n);
            t.cell(n, col++)->setText(p->ConvertToDegNoVal(l));
            t.cell(n, col++)->setText(clsPlanets::ConvertValNoDeg(l));
            t.cell(n, col++)->setText(n == 0 ? QStringLiteral("-") : p->Direction(n));
        }
    }
}
