// SPDX-License-Identifier: AGPL-3.0-or-later
#include "varsha/pages/frmVarChart2.h"

#include "chartdraw/KundaliModel.h"
#include "chartdraw/ui/Kundali.h"
#include "text/GenLabel.h"

#include <array>

namespace {
inline constexpr std::array<int, 7> kPlanets{1, 7, 4, 2, 5, 3, 6};
}

void frmVarChart2::fillYear(const clsVarsha &v)
{
    const clsPlanets &a = v.Annual();
    const auto var = [&a](const char *key) { return VarshaLabel(a, key); };
    const auto gen = [&a](const char *key) { return GenLabel(QString::fromLatin1(key), a); };
    yearTitle(v, var("Chart2Title"));
    addLabel(QRect(30, 56, 700, 22), a.Person().Name(), SubHead, Qt::AlignCenter);

    // Harsha Bala.
    addLabel(QRect(30, 84, 700, 24), var("HarshBala"), SubHead, Qt::AlignCenter);
    const Table h = addTable(70, 110, {140, 100, 100, 100, 100, 100}, 22,
                             {gen("TPlanets"), var("HBala1"), var("HBala2"), var("HBala3"), var("HBala4"), var("Strength")}, 7, Small, true);
    const QString yes = var("Yes"), no = var("No");
    for (size_t i = 0; i < kPlanets.size(); ++i) {
        const int p = kPlanets[i];
        const int row = static_cast<int>(i);
        h.cell(row, 0)->setText(a.PlanetNameFull(p));
        const std::array<bool, 4> held{v.HBala1(p), v.HBala2(p), v.HBala3(p), v.Hbala4(p)};
        for (int k = 0; k < 4; ++k)
            h.cell(row, k + 1)->setText(held[static_cast<size_t>(k)] ? yes : no);
        h.cell(row, 5)->setText(QString::number(v.HarshaBalaDet(p)));
    }

    // The Sun-based upagrahas and their wheel.
    const int top = h.rect.bottom() + 26;
    addLabel(QRect(30, top, 400, 24), var("SunUpaTable"), SubHead, Qt::AlignCenter);
    const Table u = addTable(30, top + 28, {120, 100, 80, 100}, 22, {var("Upagrahas"), gen("Rashi"), gen("Degrees"), gen("Nak")}, 9,
                             Small, true);
    UpaKun = addChart(QRect(450, top + 28, 280, 280), var("UpaKun"));
    UpaKun->setObjectName(QStringLiteral("UpaKun"));
    KundaliModel &k = UpaKun->model();
    k.Clear();
    k.setHouseNumber(a.Sign(0));
    k.PlanetPlace(a.Sign(0), a.PlanetName(0));
    for (int n = 1; n <= 9; ++n) {
        const double l = a.UpagrahaLongi(n);
        u.cell(n - 1, 0)->setText(a.UpagrahaName(n));
        u.cell(n - 1, 1)->setText(a.ConvertToDegNoVal(l));
        u.cell(n - 1, 2)->setText(a.ConvertValNoDegNoSec(l));
        u.cell(n - 1, 3)->setText(a.GetNakshatraName(a.UpagrahaNak(n)));
        k.PlanetPlace(a.UpagrahaSign(n), a.UpagrahaNameSmall(n));
    }
    UpaKun->Refresh();

    // The officials, the lord of the year and the Muntha.
    const int y2 = top + 28 + 280 + 30;
    addLabel(QRect(30, y2, 700, 24), var("VarMuntha"), SubHead, Qt::AlignCenter);
    const Table o = addTable(110, y2 + 28, {240, 160, 140}, 22, {var("Official"), gen("TPlanets"), var("PanchaTotal")}, 9, Small, true);
    const std::array<std::pair<const char *, int>, 5> officials{{{"MunLord", v.MunthaLord()},
                                                                 {"JLagL", v.Panchadhikari(3)},
                                                                 {"VLagL", v.Panchadhikari(2)},
                                                                 {"TriRashiLord", v.TriRashiLord()},
                                                                 {"DinaRatriLord", v.DinaRatriLord()}}};
    int row = 0;
    for (const auto &[key, planet] : officials) {
        o.cell(row, 0)->setText(var(key));
        o.cell(row, 1)->setText(a.PlanetNameFull(planet));
        o.cell(row, 2)->setText(QString::number(v.PanchBalaTotal(planet), 'f', 2));
        ++row;
    }
    const int lord = v.Varsheswara();
    o.cell(row, 0)->setText(var("YLord"));
    o.cell(row, 1)->setText(a.PlanetNameFull(lord));
    o.cell(row, 2)->setText(QString::number(v.PanchBalaTotal(lord), 'f', 2));
    ++row;
    o.cell(row, 0)->setText(var("MunthaInSign"));
    o.cell(row, 1)->setText(a.ConvertRashi(v.Muntha()));
    o.cell(row, 2)->setText(QStringLiteral("-"));
    ++row;
    o.cell(row, 0)->setText(var("MunthaInHouse"));
    o.cell(row, 1)->setText(QString::number(v.MunthaHouse()));
    o.cell(row, 2)->setText(QStringLiteral("-"));
    ++row;
    o.cell(row, 0)->setText(var("MunthaLInHouse"));
    o.cell(row, 1)->setText(QString::number(v.FindHouse(a.Sign(v.MunthaLord()))));
    o.cell(row, 2)->setText(QStringLiteral("-"));
}
