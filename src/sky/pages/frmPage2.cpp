// SPDX-License-Identifier: AGPL-3.0-or-later
#include "sky/pages/frmPage2.h"

#include "chartdraw/ChartFill.h"
#include "chartdraw/ui/Kundali.h"
#include "sky/clsPlanets.h"
#include "text/GenLabel.h"

namespace {
// The dignity of a graha: its exaltation class where it has one, else its host's friendship.
QString planetState(const clsPlanets &c, int n)
{
    if (n < 1 || n > 9)
        return QStringLiteral("-");
    const QString exalt = c.ExaltClass(n);
    if (!exalt.isEmpty())
        return exalt;
    const char *key = c.InAdhiMitraHouse(n) ? "StGreatFriend"
                      : c.InAdhiSatruHouse(n) ? "StGreatEnemy"
                      : c.InFriendHouse(n)    ? "StFriend"
                      : c.InEnemyHouse(n)     ? "StEnemy"
                      : c.InSamaHouse(n)      ? "StNeutral"
                                              : nullptr;
    return key ? GenLabel(QString::fromLatin1(key), c) : QStringLiteral("-");
}
} // namespace

void frmPage2::fill()
{
    const clsPlanets &c = chart();
    const auto gen = [&c](const char *head) { return GenLabel(QString::fromLatin1(head), c); };
    lblTitle->setText(gen("LagnaPlanets"));

    kunLagna = addChart(QRect(190, 96, 380, 380), gen("LagnaKundli"));
    kunLagna->setObjectName(QStringLiteral("kunLagna"));
    FillVargaKundali(kunLagna->model(), c, 1);

    const QStringList heads{gen("TPlanets"), gen("Rashi"), gen("Degrees"), gen("Nak"), gen("NakLShort"),
                            gen("Pada"),     gen("Direction"), gen("State")};
    const Table t = addTable(30, 510, {95, 85, 70, 125, 85, 45, 75, 120}, 26, heads, 13, Body, true);
    for (int n = 0; n <= 12; ++n) {
        const double l = c.PlanetLongi(n);
        const int nak = c.NakOf(n);
        const QStringList row{c.PlanetNameFull(n),
                              c.ConvertToDegNoVal(l),
                              c.ConvertValNoDegNoSec(l),
                              c.GetNakshatraName(nak),
                              c.NakLordName(nak),
                              QString::number(c.NakPadaPlanet(n)),
                              n == 0 ? QStringLiteral("-") : c.Direction(n),
                              planetState(c, n)};
        for (int col = 0; col < row.size(); ++col)
            t.cell(n, col)->setText(row[col]);
    }
}
