// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The Sudarshan chakra: three rings of twelve signs, counted from the Lagna's sign (outer ring),
// the Moon's (middle) and the Sun's (inner), each sign with the planets that stand in it.

#include <QList>

#include <array>

class clsPlanets;

struct SudarshanRing
{
    int from = 0;                          // the point the ring counts from: 0 Lagna, 7 Moon, 1 Sun
    std::array<int, 12> sign{};            // cell i holds the (i + 1)th sign from that point's sign
    std::array<QList<int>, 12> planets{};  // planets 1..9 in the cell's sign, in their number order
};

// The outer, middle and inner rings.
std::array<SudarshanRing, 3> SudarshanRings(const clsPlanets &c);
