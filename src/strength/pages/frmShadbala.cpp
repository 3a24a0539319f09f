// SPDX-License-Identifier: AGPL-3.0-or-later
#include "strength/pages/frmShadbala.h"

#include "sky/BirthFacts.h"
#include "sky/Functions.h"
#include "sky/clsPlanets.h"
#include "strength/clsShadBala.h"
#include "text/GenLabel.h"

#include <algorithm>
#include <array>

namespace {
// The planets in the order of the columns: Sun, Moon, Mars, Mercury, Jupiter, Venus, Saturn.
inline constexpr std::array<int, 7> kColumns{1, 7, 4, 2, 5, 3, 6};
static_assert(frmShadbala::kRows == clsShadBala::FigureRows);
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
        t.cell(r, 0)->setText(c.GetHeadValue(1, QString::fromLatin1(clsShadBala::FigureKeys[static_cast<size_t>(r)]), QStringLiteral("ShadBala")).toString());
        if (totalRow(r))
            for (int col = 0; col <= 7; ++col) {
                QFont f = t.cell(r, col)->font();
                f.setBold(true);
                t.cell(r, col)->setFont(f);
            }
    }

    clsShadBala sb(c);
    const auto table = sb.FigureTable();
    for (int col = 1; col <= 7; ++col) {
        const auto &figures = table[static_cast<size_t>(kColumns[static_cast<size_t>(col - 1)])];
        for (int r = 0; r < kRows; ++r)
            t.cell(r, col)->setText(figures[static_cast<size_t>(r)]);
        t.cell(clsShadBala::RowStrong, col)
            ->setText(c.GetHeadValue(1, figures[clsShadBala::RowStrong], QStringLiteral("ShadBala")).toString());
    }
    m_cells = t.cells;

    // On a day without sunrise or sunset the figures counted from them (Tribhaga, Hora) follow the
    // equal day; the page says which.
    const QString rule = BirthFacts::SunDayRule(c);
    if (!rule.isEmpty())
        addLabel(QRect(30, t.rect.bottom() + 8, 700, 18),
                 BirthFacts::SunDayWords(c) + QStringLiteral(". Tribhaga and Hora Bala: ") + rule.section(QStringLiteral(": "), 1) + QLatin1Char('.'),
                 Small);
}
