// SPDX-License-Identifier: AGPL-3.0-or-later
#include "varsha/pages/frmVarBalas.h"

#include "text/GenLabel.h"

#include <array>

namespace {
// Planets in the order of the planet heads: Sun, Moon, Mars, Mercury, Jupiter, Venus, Saturn.
inline constexpr std::array<int, 7> kPlanets{1, 7, 4, 2, 5, 3, 6};

QString number(double v) { return QString::number(v, 'f', 2); }
} // namespace

void frmVarBalas::fillYear(const clsVarsha &v)
{
    const clsPlanets &a = v.Annual();
    const auto var = [&a](const char *key) { return VarshaLabel(a, key); };
    yearTitle(v, var("BalaTitle"));
    addLabel(QRect(30, 56, 700, 22), a.Person().Name(), SubHead, Qt::AlignCenter);

    addLabel(QRect(30, 86, 700, 24), var("PanchVargiyaBala"), SubHead, Qt::AlignCenter);
    const QStringList heads{GenLabel(QStringLiteral("TPlanets"), a), var("Kshetra"), var("Uchacha"), var("Hadda"), var("Drekkana"),
                            var("Navamsh"), var("Strength"), var("Rating")};
    const Table pancha = addTable(40, 114, {120, 80, 80, 80, 80, 80, 80, 80}, 22, heads, 7, Small, true);
    for (size_t i = 0; i < kPlanets.size(); ++i) {
        const int p = kPlanets[i];
        const int row = static_cast<int>(i);
        pancha.cell(row, 0)->setText(a.PlanetNameFull(p));
        for (int k = 1; k <= 5; ++k)
            pancha.cell(row, k)->setText(number(v.PanchBala(k, p).value_or(0)));
        const double total = v.PanchBalaTotal(p);
        pancha.cell(row, 6)->setText(number(total));
        pancha.cell(row, 7)->setText(QString::number(clsVarsha::PanchaBalaStrength(total)));
    }

    // The twelve divisions run down the side, the planets across.
    const int top = pancha.rect.bottom() + 30;
    addLabel(QRect(30, top, 700, 24), var("DwadashvargiyaBala"), SubHead, Qt::AlignCenter);
    QStringList cols{QString()};
    for (int p : kPlanets)
        cols << a.PlanetName(p);
    static constexpr std::array<const char *, 16> kRows{"Rashi",       "Hora",         "Drekkana",       "Padamsh",
                                                        "Panchamamsh", "Shashtamsh",   "Saptamsha",      "Ashtamamsha",
                                                        "Navamamsha",  "Dashamamsha",  "Ekadashamsha",   "Dwadashamamsha",
                                                        "Benefic",     "Malefic",      "NetResult",      "Class"};
    const Table d = addTable(40, top + 28, {190, 70, 70, 70, 70, 70, 70, 70}, 22, cols, static_cast<int>(kRows.size()), Small, true);
    for (size_t r = 0; r < kRows.size(); ++r) {
        const int row = static_cast<int>(r);
        // "Rashi" is the page-wide word for the sign; the rest are the bala's own.
        d.cell(row, 0)->setText(r == 0 ? GenLabel(QStringLiteral("Rashi"), a) : var(kRows[r]));
        for (size_t i = 0; i < kPlanets.size(); ++i) {
            const int p = kPlanets[i];
            long value = 0;
            if (r < 12)
                value = v.DwaDashaBala(row + 1, p);
            else if (r == 12)
                value = v.SumPosiDwaDashBala(p);
            else if (r == 13)
                value = v.SumNegiDwaDashBala(p);
            else if (r == 14)
                value = v.DwaDashScore(p);
            else
                value = v.DwaDashBalaClass(p);
            d.cell(row, static_cast<int>(i) + 1)->setText(QString::number(value));
        }
    }
}
