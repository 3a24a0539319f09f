// SPDX-License-Identifier: AGPL-3.0-or-later
#include "jaimini/pages/frmJaimini1.h"

#include "jaimini/JaiminiLagnaRows.h"
#include "jaimini/clsJaimini.h"
#include "jaimini/pages/JaiminiPage.h"

void frmJaimini1::fill()
{
    const clsPlanets &c = chart();
    lblTitle->setText(JaiminiLabel(c, "LagnaTitle"));
    const clsJaimini jm(c);
    const std::vector<JaiminiLagnaRow> rows = JaiminiLagnaRows(jm);
    const Table t = addTable(110, 72, {50, 330, 160}, 32, {QString(), JaiminiLabel(c, "LagnaCol"), JaiminiLabel(c, "LagnaSign")},
                             static_cast<int>(rows.size()), Body);
    for (int r = 0; r < static_cast<int>(rows.size()); ++r) {
        const JaiminiLagnaRow &row = rows[static_cast<size_t>(r)];
        t.cell(r, 0)->setText(QString::number(r + 1));
        t.cell(r, 1)->setText(c.GetHeadValue(1, row.head, QStringLiteral("JaiminiLagnas")).toString());
        t.cell(r, 2)->setText(c.ConvertRashi(row.sign));
    }
    m_cells = t.cells;
}

QString frmJaimini1::rowName(int r) const
{
    return r >= 0 && r < m_cells.size() ? m_cells[r][1]->text() : QString();
}
QString frmJaimini1::rowSign(int r) const
{
    return r >= 0 && r < m_cells.size() ? m_cells[r][2]->text() : QString();
}
