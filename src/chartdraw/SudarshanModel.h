// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The three-ring wheel of the Sudarshan chakra, apart from how it is painted: the sign and the
// text of each of the twelve cells of the three rings, and the wheel's geometry in the chart's
// logical square of 1000 by 1000 units (origin top left, y downward). Cell 0 of every ring is
// centred straight up; the cells follow anticlockwise, as the houses of the North chart do.

#include <QPointF>
#include <QRectF>
#include <QString>

#include <array>

class SudarshanModel
{
public:
    static constexpr int kRings = 3; // 0 outer, 1 middle, 2 inner
    static constexpr int kCells = 12;
    // The radii of the ring edges, outside in: the outer ring lies between the first two.
    static constexpr std::array<double, kRings + 1> kRadius{490, 365, 240, 115};
    static constexpr QPointF centre() { return {500, 500}; }

    void Clear();
    // The sign (1..12) and the words of cell i (0..11) of ring r; out-of-range cells are ignored.
    void setCell(int ring, int cell, int sign, const QString &text);
    int sign(int ring, int cell) const;
    QString text(int ring, int cell) const;

    // The direction of a spoke: the boundary between cells k - 1 and k, in degrees anticlockwise
    // from the right-hand horizontal.
    static double spokeAngle(int k) { return 90.0 - 15.0 + 30.0 * k; }
    // The point at radius r on the middle line of cell i.
    static QPointF onAxis(int cell, double r);
    // Where the sign number of a cell stands (its centre), and the square the words are fitted in.
    static QPointF numberPoint(int ring, int cell);
    static QRectF textBox(int ring, int cell);

private:
    struct Cell
    {
        int sign = 0;
        QString text;
    };
    static bool valid(int ring, int cell) { return ring >= 0 && ring < kRings && cell >= 0 && cell < kCells; }
    std::array<std::array<Cell, kCells>, kRings> m_cells{};
};
