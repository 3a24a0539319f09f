// SPDX-License-Identifier: AGPL-3.0-or-later
#include "kp/pages/frmKP2.h"

#include "kp/clsKPSystem.h"
#include "sky/clsPlanets.h"

void frmKP2::fill()
{
    const clsPlanets &c = chart();
    const clsKPSystem &k = kp();
    lblTitle->setText(head("KPSig1Title"));

    // Houses by the strength of their significators.
    addLabel(QRect(20, 60, 720, 24), head("HoPlSig"), SubHead, Qt::AlignCenter);
    const QList<int> widths{60, 165, 165, 165, 165};
    tblBands = addTable(20, 86, widths, 30, QStringList{head("House")} + bandHeads(), 12, Small);
    for (int house = 1; house <= 12; ++house) {
        Bands b;
        for (int p = 1; p <= 9; ++p)
            if (k.PlanetIsSignificator(p, house))
                addToBand(b, k.PlanetSignifScore(p, house), c.PlanetName(p));
        fillBands(b);
        tblBands.cell(house - 1, 0)->setText(QString::number(house));
        for (int i = 0; i < 4; ++i) {
            QLabel *cell = tblBands.cell(house - 1, i + 1);
            cell->setWordWrap(true);
            cell->setText(b[static_cast<size_t>(i)]);
        }
    }

    // Houses by the four tests, one test at a time.
    const int y = 500;
    addLabel(QRect(20, y, 720, 24), head("PlSigOfHouse"), SubHead, Qt::AlignCenter);
    tblTests = addTable(20, y + 26, widths, 30, {head("HeadIndex"), head("AHead"), head("BHead"), head("CHead"), head("DHead")}, 12, Small);
    for (int house = 1; house <= 12; ++house) {
        std::array<QString, 4> cells;
        for (int p = 1; p <= 9; ++p) {
            const QString name = c.PlanetName(p) + QLatin1Char(' ');
            if (k.FindSignifCuspLord(house, p))
                cells[0] += name;
            if (k.FindSignIfOccup(house, p))
                cells[1] += name;
            if (k.FindSignIfNakCusp(house, p))
                cells[2] += name;
            if (k.FindSignIfNakOccup(house, p))
                cells[3] += name;
        }
        tblTests.cell(house - 1, 0)->setText(QString::number(house));
        for (int i = 0; i < 4; ++i) {
            QLabel *cell = tblTests.cell(house - 1, i + 1);
            cell->setWordWrap(true);
            const QString text = cells[static_cast<size_t>(i)].trimmed();
            cell->setText(text.isEmpty() ? dash() : text);
        }
    }
    addLabel(QRect(20, y + 26 + 13 * 30 + 8, 720, 80), head("KPTestsLegend"), Small, Qt::AlignLeft | Qt::AlignTop)
        ->setWordWrap(true);
}
