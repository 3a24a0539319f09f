// SPDX-License-Identifier: AGPL-3.0-or-later
#include "strength/pages/frmBhav.h"

#include "chartdraw/ui/Kundali.h"
#include "sky/clsPlanets.h"
#include "text/GenLabel.h"

void frmBhav::fill()
{
    const clsPlanets &c = chart();
    const auto gen = [&c](const char *head) { return GenLabel(QString::fromLatin1(head), c); };
    lblTitle->setText(gen("BhavPage"));

    // Table of the houses: sign and degrees of each beginning and middle.
    addLabel(QRect(60, 66, 640, 26), gen("BhavT"), SubHead, Qt::AlignCenter);
    const QStringList heads{gen("Bhav"), gen("BhavBG"), gen("Degrees"), gen("BhavMD"), gen("Degrees")};
    const Table t = addTable(110, 96, {80, 120, 100, 120, 100}, 25, heads, 12, Body);
    for (int i = 0; i < 12; ++i) {
        const double b = c.BhavBegin(i);
        const double m = c.BhavMid(i);
        t.cell(i, 0)->setText(QString::number(i + 1));
        t.cell(i, 1)->setText(c.ConvertToDegNoVal(b));
        t.cell(i, 2)->setText(clsPlanets::ConvertValNoDeg(b));
        t.cell(i, 3)->setText(c.ConvertToDegNoVal(m));
        t.cell(i, 4)->setText(clsPlanets::ConvertValNoDeg(m));
    }

    // The Chalit chart: the Lagna's sign rises, the planets stand in their bhavas.
    kunChalit = addChart(QRect(190, 490, 380, 380), gen("BhavChalitChakra"));
    addLabel(QRect(110, 880, 540, 40),
             c.GetTextBetween(QStringLiteral("CNVT"), QStringLiteral("TChanKun"), QStringLiteral("Gen")).toString(), Small,
             Qt::AlignHCenter | Qt::AlignTop)
        ->setWordWrap(true);
    kunChalit->setObjectName(QStringLiteral("kunChalit"));
    kunChalit->setHouseNumber(c.PlanetRashiNum(0));
    c.FillBhavaKundali(kunChalit->model());
}
