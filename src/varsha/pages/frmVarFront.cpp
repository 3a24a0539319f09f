// SPDX-License-Identifier: AGPL-3.0-or-later
#include "varsha/pages/frmVarFront.h"

#include "chartdraw/KundaliModel.h"
#include "chartdraw/ui/Kundali.h"
#include "text/GenLabel.h"
#include "text/TextDB.h"

void frmVarFront::KundTextPutter(const clsVarsha &v)
{
    const clsPlanets &a = v.Annual();
    const clsPlanets &b = v.Birth();
    KundaliModel &annual = kunVarsha->model();
    KundaliModel &birth = kunBirth->model();
    annual.Clear();
    birth.Clear();
    annual.setHouseNumber(a.Sign(0));
    birth.setHouseNumber(b.PrediVarga(0, 1));
    annual.PlanetPlace(a.Sign(0), a.PlanetName(0));
    birth.PlanetPlace(b.Sign(0), b.PlanetName(0));
    for (int n = 1; n <= 12; ++n) {
        annual.PlanetPlace(a.Sign(n), a.PlanetName(n));
        birth.PlanetPlace(b.Sign(n), b.PlanetName(n));
    }
    annual.PlanetPlace(v.Muntha(), GenLabel(QStringLiteral("Muntha"), a));
    kunVarsha->Refresh();
    kunBirth->Refresh();
}

void frmVarFront::fillYear(const clsVarsha &v)
{
    const clsPlanets &a = v.Annual();
    const auto gen = [&a](const char *key) { return GenLabel(QString::fromLatin1(key), a); };
    const QString sep = LangSeparator(a.GetTxtDB(), 1);
    yearTitle(v, VarshaLabel(a, "Title"));

    addLabel(QRect(30, 56, 700, 22), a.Person().Name(), SubHead, Qt::AlignCenter);
    lblNowYear = addLabel(QRect(30, 78, 700, 20),
                          VarshaLabel(a, "AnnualMoment") + sep + QLatin1Char(' ')
                              + a.Person().GetBirthDate().toString(QStringLiteral("dd/MM/yyyy hh:mm")) + QStringLiteral("   ")
                              + VarshaLabel(a, "YearOf") + sep + QLatin1Char(' ') + QString::number(a.Person().Year()),
                          Small, Qt::AlignCenter);
    lblNowYear->setObjectName(QStringLiteral("lblNowYear"));

    kunVarsha = addChart(QRect(30, 130, 340, 340), VarshaLabel(a, "VarshaKundli"));
    kunVarsha->setObjectName(QStringLiteral("kunVarsha"));
    kunBirth = addChart(QRect(390, 130, 340, 340), VarshaLabel(a, "BirthChart"));
    kunBirth->setObjectName(QStringLiteral("kunBirth"));
    KundTextPutter(v);

    // The Muntha and the lord of the year.
    addLabel(QRect(40, 482, 110, 22), VarshaLabel(a, "Muntha") + sep, SmallBold);
    lblMunSignVal = addLabel(QRect(150, 482, 130, 22), QString::number(v.MunthaSign()) + QStringLiteral(" (")
                                                           + a.ConvertRashi(v.MunthaSign()) + QLatin1Char(')'),
                             Small);
    lblMunSignVal->setObjectName(QStringLiteral("lblMunSignVal"));
    addLabel(QRect(290, 482, 110, 22), gen("MunthaHouse") + sep, SmallBold);
    lblMunHouseVal = addLabel(QRect(400, 482, 40, 22), QString::number(v.MunthaHouse()), Small);
    lblMunHouseVal->setObjectName(QStringLiteral("lblMunHouseVal"));
    lblVarsheshWar = addLabel(QRect(460, 482, 270, 22), gen("Varsheshwar") + sep + QLatin1Char(' ') + a.PlanetNameFull(v.Varsheswara()),
                              SmallBold);
    lblVarsheshWar->setObjectName(QStringLiteral("lblVarsheshWar"));

    addLabel(QRect(30, 516, 700, 24), VarshaLabel(a, "PlPosTable"), SubHead, Qt::AlignCenter);
    const QStringList heads{gen("TPlanets"), gen("Rashi"), gen("Degrees"), gen("Nak"), gen("Nakl"), gen("Pada"), gen("Direction"),
                            gen("State")};
    const Table t = addTable(30, 544, {80, 90, 80, 120, 110, 45, 75, 100}, 24, heads, 13, Small, true);
    for (int n = 0; n <= 12; ++n) {
        const double l = a.PlanetLongi(n);
        const QString state = a.ExaltClass(n);
        const QStringList row{a.PlanetName(n),
                              a.ConvertToDegNoVal(l),
                              clsPlanets::ConvertValNoDeg(l),
                              a.NakNamePlanet(n),
                              a.NakLordName(a.NakOf(n)),
                              QString::number(a.NakPadaPlanet(n)),
                              n == 0 ? QStringLiteral("-") : a.Direction(n),
                              state.isEmpty() ? QStringLiteral("-") : state};
        for (int col = 0; col < row.size(); ++col)
            t.cell(n, col)->setText(row[col]);
    }
}
