// SPDX-License-Identifier: AGPL-3.0-or-later
#include "varsha/pages/frmVarSaham.h"

#include "text/GenLabel.h"
#include "varsha/clsSaham.h"

void frmVarSaham::fillYear(const clsVarsha &v)
{
    const clsPlanets &a = v.Annual();
    const clsSaham &s = v.Saham();
    const auto var = [&a](const char *key) { return VarshaLabel(a, key); };
    yearTitle(v, var("VarSahamHead"));
    addLabel(QRect(30, 56, 700, 22), a.Person().Name(), SubHead, Qt::AlignCenter);

    // Two tables of eighteen sahams side by side.
    const QStringList heads{var("Saham"), GenLabel(QStringLiteral("Degrees"), a), var("Lord"), var("Dignity")};
    constexpr int kHalf = clsSaham::kCount / 2;
    int bottom = 0;
    for (int half = 0; half < 2; ++half) {
        const Table t = addTable(30 + half * 355, 84, {120, 95, 65, 65}, 19, heads, kHalf, Small, true);
        for (int i = 0; i < kHalf; ++i) {
            const int n = half * kHalf + i + 1;
            const double l = s.SahamLongi(n);
            const int lord = static_cast<int>(s.SahamLord(static_cast<int>(s.SahamSign(n))));
            const QString dignity = a.ExaltClass(lord);
            t.cell(i, 0)->setText(a.GetHeadValue(1, n, QStringLiteral("Saham")).toString());
            t.cell(i, 1)->setText(a.ConvertToDegNoVal(l) + QLatin1Char(' ') + a.ConvertValNoDegNoSec(l));
            t.cell(i, 2)->setText(a.PlanetName(lord));
            t.cell(i, 3)->setText(dignity.isEmpty() ? QStringLiteral("-") : dignity);
        }
        bottom = t.rect.bottom();
    }

    // What each signifies.
    int y = bottom + 16;
    addLabel(QRect(30, y, 700, 24), var("SahamSigHead"), SubHead, Qt::AlignCenter);
    y += 28;
    for (int n = 1; n <= clsSaham::kCount; ++n) {
        addLabel(QRect(30, y, 130, 14), a.GetHeadValue(1, n, QStringLiteral("Saham")).toString(), SmallBold, Qt::AlignLeft | Qt::AlignTop);
        addLabel(QRect(160, y, 570, 14), a.GetHeadValue(1, n, QStringLiteral("SahamMean")).toString(), EnglishSmall,
                 Qt::AlignLeft | Qt::AlignTop);
        y += 14;
    }
}
