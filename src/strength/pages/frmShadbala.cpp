// SPDX-License-Identifier: AGPL-3.0-or-later
#include "strength/pages/frmShadbala.h"

#include "sky/Functions.h"
#include "sky/clsPlanets.h"
#include "strength/clsShadBala.h"
#include "text/GenLabel.h"

#include <algorithm>
#include <array>

namespace {
// The planets in the order of the columns: Sun, Moon, Mars, Mercury, Jupiter, Venus, Saturn.
inline constexpr std::array<int, 7> kColumns{1, 7, 4, 2, 5, 3, 6};
// Row heads of category "ShadBala", in the order of the rows.
inline constexpr std::array<const char *, frmShadbala::kRows> kHeads{
    "Uchcha",   "SaptaVarga", "OjaYugma", "Kendra",    "Drekkana",  "SthanaTotal", "Dik",     "NataUnnata",
    "Paksha",   "TriBhaga",   "Abda",     "Masa",      "Vara",      "Hora",        "Ayana",   "Yuddha",
    "KalaTotal", "Chesta",    "Naisargika", "Drig",    "Total",     "Rupa",        "MinShad", "MinSthana",
    "MinDik",   "MinKala",    "MinChesta", "MinAyana", "Ratio",     "Rank",        "Strong"};
// Rows drawn in bold: the totals.
bool totalRow(int r) { return r == 5 || r == 6 || r == 16 || r == 17 || r == 18 || r == 19 || r == 20 || r == 21; }
} // namespace

QString frmShadbala::figure(int row, int planet) const
{
    const auto at = std::find(kColumns.begin(), kColumns.end(), planet);
    if (at == kColumns.end() || row < 0 || row >= kRows || m_cells.isEmpty())
        return {};
    return m_cells[row][static_cast<int>(at - kColumns.begin()) + 1]->text();
}

void frmShadbala::fill()
{
    const clsPlanets &c = chart();
    lblTitle->setText(c.GetHeadValue(1, QStringLiteral("Title"), QStringLiteral("ShadBala")).toString());
    addLabel(QRect(30, 54, 700, 20), c.Person().Name(), SmallBold, Qt::AlignCenter);

    QStringList heads{c.GetHeadValue(1, QStringLiteral("Bala"), QStringLiteral("ShadBala")).toString()};
    for (int p : kColumns)
        heads << c.PlanetNameFull(p);
    const Table t = addTable(30, 76, {210, 70, 70, 70, 70, 70, 70, 70}, 29, heads, kRows, Small, true);
    for (int r = 0; r < kRows; ++r) {
        t.cell(r, 0)->setText(c.GetHeadValue(1, QString::fromLatin1(kHeads[static_cast<size_t>(r)]), QStringLiteral("ShadBala")).toString());
        if (totalRow(r))
            for (int col = 0; col <= 7; ++col) {
                QFont f = t.cell(r, col)->font();
                f.setBold(true);
                t.cell(r, col)->setFont(f);
            }
    }

    clsShadBala sb(c);
    std::array<double, 8> ratio{};
    for (int col = 1; col <= 7; ++col) {
        int p = kColumns[static_cast<size_t>(col - 1)];
        const double total = sb.TotalShadBala(p).toDouble();
        ratio[static_cast<size_t>(col)] = total / clsShadBala::DesireMinShadBala(p);
        const QStringList figures{
            sb.GetSubSthanaBala(1, p), sb.GetSubSthanaBala(2, p), sb.DinaRatriBala(p), sb.GetSubSthanaBala(5, p),
            sb.GetSubSthanaBala(6, p), FormatHalfEven2(sb.SBSthanaBala(p)), sb.SBDikBala(p), sb.SBNataUnnataBala(p),
            sb.SBPakshaBala(p), sb.SBTriBhagaBala(p), sb.VarshaBala(p), sb.MaasBala(p), sb.SBVaraBala(p), sb.SBHoraBala(p),
            sb.SBAyanaBala(p), sb.SBYuddhaBala(2, p), sb.SBKaalaBala(p), FormatHalfEven2(sb.SBChestaBala(p)),
            FormatHalfEven2(sb.SBNaisargikaBala(p)), sb.SBDrigBala(p), sb.TotalShadBala(p), sb.RupaShadbala(p),
            QString::number(clsShadBala::DesireMinShadBala(p)), QString::number(clsShadBala::DesireMinSthanaBala(p)),
            QString::number(clsShadBala::DesireMinDikBala(p)), QString::number(clsShadBala::DesireMinKalaBala(p)),
            QString::number(clsShadBala::DesireMinChestaBala(p)), QString::number(clsShadBala::DesireMinAyanBala(p)),
            FormatHalfEven2(ratio[static_cast<size_t>(col)]), QString(),
            c.GetHeadValue(1, total >= clsShadBala::DesireMinShadBala(p) ? QStringLiteral("Yes") : QStringLiteral("No"),
                           QStringLiteral("ShadBala"))
                .toString()};
        for (int r = 0; r < kRows; ++r)
            t.cell(r, col)->setText(figures[r]);
    }
    // Rank by the total against the required minimum, the strongest first.
    for (int col = 1; col <= 7; ++col) {
        int rank = 1;
        for (int other = 1; other <= 7; ++other)
            if (ratio[static_cast<size_t>(other)] > ratio[static_cast<size_t>(col)])
                ++rank;
        t.cell(29, col)->setText(QString::number(rank));
    }
    m_cells = t.cells;
}
