// SPDX-License-Identifier: AGPL-3.0-or-later
#include "chartdraw/SudarshanModel.h"

#include <QtMath>

#include <algorithm>
#include <cmath>

void SudarshanModel::Clear()
{
    for (auto &ring : m_cells)
        for (Cell &c : ring)
            c = Cell{};
}

void SudarshanModel::setCell(int ring, int cell, int sign, const QString &text)
{
    if (valid(ring, cell))
        m_cells[static_cast<size_t>(ring)][static_cast<size_t>(cell)] = Cell{sign, text};
}

int SudarshanModel::sign(int ring, int cell) const
{
    return valid(ring, cell) ? m_cells[static_cast<size_t>(ring)][static_cast<size_t>(cell)].sign : 0;
}

QString SudarshanModel::text(int ring, int cell) const
{
    return valid(ring, cell) ? m_cells[static_cast<size_t>(ring)][static_cast<size_t>(cell)].text : QString();
}

namespace {
QPointF polar(double degrees, double r)
{
    const double a = qDegreesToRadians(degrees);
    return {SudarshanModel::centre().x() + r * std::cos(a), SudarshanModel::centre().y() - r * std::sin(a)};
}
} // namespace

QPointF SudarshanModel::onAxis(int cell, double r) { return polar(90.0 + 30.0 * cell, r); }

QPointF SudarshanModel::numberPoint(int ring, int cell)
{
    // In the cell's outer corner that comes first anticlockwise, clear of the words on the axis.
    return polar(90.0 + 30.0 * cell + 11.5, kRadius[static_cast<size_t>(ring)] - 20);
}

QRectF SudarshanModel::textBox(int ring, int cell)
{
    const double outer = kRadius[static_cast<size_t>(ring)] - 6, inner = kRadius[static_cast<size_t>(ring) + 1] + 6;
    const double mid = (outer + inner) / 2.0;
    // A square within both the ring's depth and the cell's width at its middle.
    const double chord = 2.0 * mid * std::sin(qDegreesToRadians(15.0));
    const double side = std::min(outer - inner, chord) * 0.95;
    const QPointF c = onAxis(cell, mid);
    return {c.x() - side / 2.0, c.y() - side / 2.0, side, side};
}
