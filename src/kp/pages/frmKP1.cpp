// SPDX-License-Identifier: AGPL-3.0-or-later
#include "kp/pages/frmKP1.h"

#include "kp/clsKPSystem.h"
#include "sky/clsPlanets.h"

void frmKP1::fill()
{
    const clsPlanets &c = chart();
    const clsKPSystem &k = kp();
    const QString sep = dash();
    lblTitle->setText(head("KPLongTitle"));

    // The planets at birth: sign, degrees, star, motion, state and the three lords, sign lord first.
    addLabel(QRect(20, 60, 720, 24), head("PPosAtBTime"), SubHead, Qt::AlignCenter);
    tblPlanets = addTable(20, 86, {100, 90, 80, 115, 70, 115, 150}, 23,
                          {head("TPlanets"), head("Rashi"), head("Degrees"), head("Nak"), head("Direction"), head("State"),
                           head("SSSLord")},
                          13, Body, true);
    for (int n = 0; n <= 12; ++n) {
        const double l = k.PlntLongi(n);
        const QString state = c.ExaltClass(n);
        const QStringList row{c.PlanetNameFull(n),
                              c.ConvertToDegNoVal(l),
                              clsPlanets::ConvertValNoDeg(l),
                              c.GetNakshatraName(k.NakOf(n)),
                              n == 0 ? sep : c.Direction(n),
                              state.isEmpty() ? sep : state,
                              lordName(k.SignLord(n)) + sep + lordName(k.StarLord(n)) + sep + lordName(k.SubLord(n))};
        for (int col = 0; col < row.size(); ++col)
            tblPlanets.cell(n, col)->setText(row[col]);
    }

    // The cusps, lords in short names; beside them the span of each house.
    const int y = 420;
    addLabel(QRect(20, y, 450, 24), head("KPHouseCusp"), SubHead, Qt::AlignCenter);
    tblCusps = addTable(20, y + 26, {45, 80, 72, 128, 125}, 23,
                        {head("House"), head("Rashi"), head("Degrees"), head("Nak"), head("SSSLord")}, 12, Body);
    addLabel(QRect(485, y, 255, 24), head("BhavDura"), SubHead, Qt::AlignCenter);
    tblSpans = addTable(485, y + 26, {45, 105, 105}, 23, {head("House"), head("HouseCusp"), head("BhavEnd")}, 12, Body);
    for (int i = 1; i <= 12; ++i) {
        const double l = k.CuspLongi(i);
        const int nak = clsKPSystem::NakOfLongi(l);
        const QStringList row{QString::number(i),
                              c.ConvertToDegNoVal(l),
                              clsPlanets::ConvertValNoDeg(l),
                              c.GetNakshatraName(nak),
                              c.PlanetNameSmall(k.CuspSignLord(i)) + sep + c.PlanetNameSmall(clsPlanets::NakLordNum(nak)) + sep
                                  + (k.AgeCuspSubLord(i) != 0 ? c.PlanetNameSmall(k.AgeCuspSubLord(i)) : sep)};
        for (int col = 0; col < row.size(); ++col)
            tblCusps.cell(i - 1, col)->setText(row[col]);
        tblSpans.cell(i - 1, 0)->setText(QString::number(i));
        tblSpans.cell(i - 1, 1)->setText(clsPlanets::DecToDeg(l));
        tblSpans.cell(i - 1, 2)->setText(clsPlanets::DecToDeg(k.CuspLongi(i % 12 + 1)));
    }

    // The Part of Fortune.
    const double pf = k.ParsFortLongi();
    addLabel(QRect(20, y + 340, 200, 24), head("ParsFortuna"), SubHead);
    lblParsFortuna = addLabel(QRect(220, y + 340, 300, 24), c.ConvertToDegNoVal(pf) + QLatin1Char(' ') + clsPlanets::ConvertValNoDeg(pf), Body);
    lblParsFortuna->setObjectName(QStringLiteral("lblParsFortuna"));
    addLabel(QRect(20, y + 372, 720, 110), head("KP1Note"), Small, Qt::AlignLeft | Qt::AlignTop)->setWordWrap(true);
}
