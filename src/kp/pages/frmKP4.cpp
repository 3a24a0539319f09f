// SPDX-License-Identifier: AGPL-3.0-or-later
#include "kp/pages/frmKP4.h"

#include "chartdraw/ui/Kundali.h"
#include "kp/clsKPSystem.h"
#include "sky/Functions.h"
#include "sky/clsPlanets.h"

void frmKP4::fill()
{
    const clsPlanets &c = chart();
    const clsKPSystem &k = kp();
    lblTitle->setText(head("KPKunTitle"));

    // The ruling planets. The Lagna's sign and star are read from its longitude itself.
    const double lagna = k.PlntLongi(0);
    const int lagnaStar = static_cast<int>(Int(lagna / (360.0 / 27))) + 1;
    const Facts ruling{
        {head("DayLord"), lordNameFull(c.WeekDayLord())},
        {head("AscSignLord"), lordNameFull(clsPlanets::SignLord(static_cast<int>(Int(lagna / 30)) + 1))},
        {head("AscStarLord"), c.NakLordName(lagnaStar)},
        {head("AscSubLord"), lordNameFull(k.SubLord(0))},
        {head("MoonSignLord"), lordNameFull(k.SignLord(7))},
        {head("MoonStarLord"), lordNameFull(k.StarLord(7))},
        {head("MoonSubLord"), lordNameFull(k.SubLord(7))},
    };
    const int bottom = addFacts(40, 64, 170, 160, head("RulPlanets"), ruling, 22);

    // The Part of Fortune, the ayanamsa and the balance of the birth Maha in the KP ayanamsa.
    const double pf = k.ParsFortLongi();
    const double balance = c.VimBalAtBirthKP();
    const int years = static_cast<int>(Int(balance));
    const int months = static_cast<int>(Fix(Frac(balance) * 12));
    const int days = static_cast<int>(Int(Frac(Frac(balance) * 12) * 30));
    const QString balanceText = c.NakLordName(c.NakOf(7)) + QStringLiteral("  ") + QString::number(years) + QLatin1Char(' ')
                                + head("Years") + QLatin1Char(' ') + QString::number(months) + QLatin1Char(' ') + head("Months")
                                + QLatin1Char(' ') + QString::number(days) + QLatin1Char(' ') + head("Days");
    const Facts figures{
        {head("ParsFortuna"), c.ConvertToDegNoVal(pf) + QLatin1Char(' ') + clsPlanets::ConvertValNoDeg(pf)},
        {head("KPAyanam"), clsPlanets::ConvertValNoDeg(k.KPAyanVal())},
        {head("VimBalAtBirth"), balanceText},
    };
    addFacts(400, 64, 140, 200, head("KPFigures"), figures, 22);
    addLabel(QRect(400, 64 + 26 + 3 * 22 + 10, 340, 110), head("RulPlanetsNote"), Small, Qt::AlignLeft | Qt::AlignTop)
        ->setWordWrap(true);

    // The two charts: signs, and houses from the cusps.
    const int top = std::max(bottom, 64 + 26 + 3 * 22 + 130) + 20;
    kunLagna = addChart(QRect(30, top + 30, 340, 340), head("LagKun"));
    kunLagna->setObjectName(QStringLiteral("kunLagna"));
    k.FillSignKundali(kunLagna->model());
    kunLagna->setHouseNumber(k.Sign(0));
    kunBhav = addChart(QRect(390, top + 30, 340, 340), head("BhavChal"));
    kunBhav->setObjectName(QStringLiteral("kunBhav"));
    k.FillBhavaKundali(kunBhav->model());
    kunBhav->setHouseNumber(k.Sign(0));
    addLabel(QRect(40, top + 390, 680, 90), head("KPChartsNote"), Small, Qt::AlignLeft | Qt::AlignTop)->setWordWrap(true);
}
