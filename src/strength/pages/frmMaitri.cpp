// SPDX-License-Identifier: AGPL-3.0-or-later
#include "strength/pages/frmMaitri.h"

#include "sky/clsPlanets.h"
#include "strength/Maitri.h"

#include <array>

QString frmMaitri::cell(Grid g, int a, int b) const
{
    const auto &grid = m_grids[static_cast<size_t>(g)];
    if (a < 1 || a > 9 || b < 1 || b > 9 || grid.isEmpty())
        return {};
    return grid[a - 1][b]->text();
}

void frmMaitri::fill()
{
    const clsPlanets &c = chart();
    const auto word = [&c](const QString &head) { return c.GetHeadValue(1, head, QStringLiteral("Maitri")).toString(); };
    lblTitle->setText(word(QStringLiteral("Title")));
    const QString none = c.GetHeadValue(1, QStringLiteral("---"), QStringLiteral("Symbols")).toString();

    const Maitri m(c);
    const std::array<const char *, 3> titles{"Natural", "Temporal", "Panchadha"};
    QStringList heads{word(QStringLiteral("Planet"))};
    for (int p = 1; p <= 9; ++p)
        heads << c.PlanetName(p);
    QList<int> widths{96};
    for (int p = 1; p <= 9; ++p)
        widths << 66;
    int y = 62;
    for (int g = 0; g < 3; ++g) {
        addLabel(QRect(40, y, 690, 22), word(QString::fromLatin1(titles[static_cast<size_t>(g)])), SubHead, Qt::AlignCenter);
        const Table t = addTable(40, y + 24, widths, 22, heads, 9, Small, true);
        for (int a = 1; a <= 9; ++a) {
            t.cell(a - 1, 0)->setText(c.PlanetNameFull(a));
            for (int b = 1; b <= 9; ++b) {
                std::optional<int> v = g == Permanent ? m.Natural(a, b) : g == Temporal ? m.Temporal(a, b) : m.FiveFold(a, b);
                t.cell(a - 1, b)->setText(!v ? none : g == Panchadha ? word(Maitri::FiveFoldHead(*v)) : word(Maitri::SimpleHead(*v)));
            }
        }
        m_grids[static_cast<size_t>(g)] = t.cells;
        y = t.rect.bottom() + 16;
    }
    addLabel(QRect(40, y, 690, 40), word(QStringLiteral("Note")), Small, Qt::AlignLeft | Qt::AlignTop)->setWordWrap(true);
}
