// SPDX-License-Identifier: AGPL-3.0-or-later
#include "kp/pages/frmKP3.h"

#include "kp/clsKPSystem.h"
#include "sky/clsPlanets.h"

KPPage::Bands frmKP3::housesOf(int p) const
{
    Bands b;
    const clsKPSystem &k = kp();
    for (int house = 1; house <= 12 && p >= 1 && p <= 9; ++house)
        if (k.PlanetIsSignificator(p, house))
            addToBand(b, k.PlanetSignifScore(p, house), QString::number(house));
    fillBands(b);
    return b;
}

void frmKP3::fill()
{
    const clsPlanets &c = chart();
    const clsKPSystem &k = kp();
    lblTitle->setText(head("KPSig2Title"));

    // Each planet with the houses it signifies.
    addLabel(QRect(20, 60, 720, 24), head("HouseSigOfPl"), SubHead, Qt::AlignCenter);
    tblPlanets = addTable(20, 86, {120, 150, 150, 150, 150}, 27, QStringList{head("TPlanets")} + bandHeads(), 9, Body, true);
    for (int p = 1; p <= 9; ++p) {
        const Bands b = housesOf(p);
        tblPlanets.cell(p - 1, 0)->setText(c.PlanetNameFull(p));
        for (int i = 0; i < 4; ++i)
            tblPlanets.cell(p - 1, i + 1)->setText(b[static_cast<size_t>(i)]);
    }

    // Each cusp's sub lord with the houses that the sub lord signifies.
    const int y = 390;
    addLabel(QRect(20, y, 720, 24), head("SubLordSig"), SubHead, Qt::AlignCenter);
    tblSubLords = addTable(20, y + 26, {60, 100, 140, 140, 140, 140}, 27,
                           QStringList{head("House"), head("SubLord")} + bandHeads(), 12, Body);
    for (int cusp = 1; cusp <= 12; ++cusp) {
        const int sub = k.AgeCuspSubLord(cusp);
        const Bands b = housesOf(sub);
        tblSubLords.cell(cusp - 1, 0)->setText(QString::number(cusp));
        tblSubLords.cell(cusp - 1, 1)->setText(lordName(sub));
        for (int i = 0; i < 4; ++i)
            tblSubLords.cell(cusp - 1, i + 2)->setText(sub != 0 ? b[static_cast<size_t>(i)] : dash());
    }
    addLabel(QRect(20, y + 26 + 13 * 27 + 10, 720, 90), head("KPSubLordNote"), Small, Qt::AlignLeft | Qt::AlignTop)
        ->setWordWrap(true);
}
