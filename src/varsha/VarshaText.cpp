// SPDX-License-Identifier: AGPL-3.0-or-later
#include "varsha/VarshaText.h"

#include "sky/Functions.h"
#include "sky/clsPlanets.h"
#include "varsha/clsVarsha.h"

namespace {

QString word(const clsPlanets &c, const char *key) { return c.GetHeadValue(1, QString::fromLatin1(key), QStringLiteral("Varsha")).toString(); }

QString date(const QDate &d) { return d.toString(QStringLiteral("dd/MM/yyyy")); }

} // namespace

QList<MuddaPeriod> MuddaPeriods(const clsVarsha &v)
{
    const clsPerson &p = v.Annual().Person();
    QDate at(static_cast<int>(p.Year()), static_cast<int>(p.Month()), static_cast<int>(p.Day()));
    int n = v.Birth().NakOf(7) + v.Age();
    while (n >= 10) {
        const QString digits = QString::number(n);
        n = digits.front().digitValue() + digits.back().digitValue();
    }
    QList<MuddaPeriod> out;
    for (int i = 0; i < 9; ++i) {
        if (i > 0 && ++n > 9)
            n -= 9;
        const QDate end = at.addDays(clsPlanets::MuddaCycleNo(n));
        out.append({n, clsPlanets::GetVimSotPlanetLord(n), at, end});
        at = end;
    }
    return out;
}

QList<VarshaTextItem> VarshaPredictItems(const clsVarsha &v)
{
    const clsPlanets &a = v.Annual();
    QList<VarshaTextItem> out{{VarshaTextItem::Title, word(a, "VarshaPrediHead")}};
    for (const MuddaPeriod &m : MuddaPeriods(v)) {
        const QString name = a.PlanetNameFull(m.Planet);
        const int house = Norm12(a.Sign(m.Planet) - a.Sign(0) + 1);
        out.append({VarshaTextItem::Head, QStringList{word(a, "InfluenceText"), name, word(a, "From"), date(m.From), word(a, "To"),
                                                      date(m.To), word(a, "EndText")}
                                              .join(QLatin1Char(' '))});
        out.append({VarshaTextItem::Line, QStringList{word(a, "inVKund"), name, word(a, "isinhouse"), QString::number(house),
                                                      word(a, "EndText2")}
                                              .join(QLatin1Char(' '))});
        out.append({VarshaTextItem::Paragraph, clsPlanets::PlanetNameFullEng(m.Planet).toUpper() + QString::number(house)});
    }
    return out;
}

QList<VarshaTextItem> VarChartTextItems(const clsVarsha &v)
{
    const clsPlanets &a = v.Annual();
    const clsPlanets &b = v.Birth();
    QList<VarshaTextItem> out{{VarshaTextItem::Title, word(a, "ChartTxtTitle")}};
    const auto para = [&out](const QString &key) { out.append({VarshaTextItem::Paragraph, key}); };

    // The Muntha.
    const int m = v.MunthaHouse(), s = v.Muntha();
    const double x = Norm30(v.MunthaLongi()), r = a.KrishAmsha(8);
    out.append({VarshaTextItem::Head, word(a, "MunthaResHead")});
    para(QStringLiteral("Muntha") + QString::number(m));
    if (s == 10)
        para(QStringLiteral("Munthain10"));
    if (s == 8)
        para(QStringLiteral("Munthain8"));
    if (a.Sign(8) == s && r - x > 0 && r - x <= 5)
        para(QStringLiteral("MunthainRahuHind"));
    if (a.Sign(8) == s && x - r > 0 && x - r <= 5)
        para(QStringLiteral("MunthainRahuFace"));
    const bool benefic = v.MunthaAspByBenefic();
    if (m == 4 && benefic)
        para(QStringLiteral("MunthaParentProperty"));
    if (m == 7 && benefic)
        para(QStringLiteral("MunthaInLawsGift"));
    if (m == 10 && benefic)
        para(QStringLiteral("MunthaOwnProgress"));
    if (m == 1 && benefic)
        para(QStringLiteral("MunthaOwnProgress2"));

    // The lord of the year, and its house where that house speaks.
    const int y = v.Varsheswara();
    out.append({VarshaTextItem::Head, word(a, "VarsheshResHead")});
    para(QString::number(y) + QStringLiteral("VarsheshPL"));
    const int h = Norm12(a.Sign(y) - a.Sign(0) + 1);
    if (h == 3 || h == 4 || h == 5 || h == 7 || h == 9 || h == 10 || h == 11)
        para(QString::number(h) + QStringLiteral("VarsheshHo"));

    // The annual Lagna from the birth Lagna.
    out.append({VarshaTextItem::Head, word(a, "VarshaLagnaResHead")});
    para(QString::number(Norm12(a.Sign(0) - b.Sign(0) + 1)) + QStringLiteral("VarLagna"));
    return out;
}

QList<VarshaTextItem> VarPlanetHouseItems(const clsVarsha &v)
{
    const clsPlanets &a = v.Annual();
    QList<VarshaTextItem> out{{VarshaTextItem::Title, word(a, "VarKunHouseRes")}};
    for (int p = 1; p <= 9; ++p) {
        const int h = Norm12(a.Sign(p) - a.Sign(0) + 1);
        out.append({VarshaTextItem::Head, a.PlanetNameFull(p)});
        out.append({VarshaTextItem::Paragraph, clsPlanets::PlanetNameFullEng(p).toLower() + QStringLiteral("HO") + QString::number(h)});
    }
    return out;
}
