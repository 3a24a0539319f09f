// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The friendship tables of the nine planets (1 Sun .. 9 Ketu), row a, column b: how a regards b.
// Natural: the table of the six-fold strength, except that Jupiter and Rahu count each other as
// friends. Temporal: friends when b stands 2, 3, 4, 10, 11 or 12 signs from a, counted inclusively.
// Five-fold: the two added, -2 .. 2. Nothing is kept in the chart.

#include <QString>

#include <array>
#include <optional>

class clsPlanets;

class Maitri
{
public:
    explicit Maitri(const clsPlanets &chart);

    // 1 friend, 0 neutral, -1 enemy. Empty on the diagonal and outside 1..9.
    std::optional<int> Natural(int a, int b) const { return cell(m_natural, a, b); }
    // 1 friend, -1 enemy.
    std::optional<int> Temporal(int a, int b) const { return cell(m_temporal, a, b); }
    // Natural + temporal: 2 great friend .. -2 great enemy.
    std::optional<int> FiveFold(int a, int b) const;
    // The head in category "Maitri" of a five-fold value: "Atimitra", "Friend", "Neutral", "Enemy",
    // "Atishatru"; empty outside -2..2.
    static QString FiveFoldHead(int value);
    // The head of a natural or temporal value: "Friend", "Neutral", "Enemy".
    static QString SimpleHead(int value);

private:
    using Matrix = std::array<std::array<int, 9>, 9>;
    static std::optional<int> cell(const Matrix &m, int a, int b);
    Matrix m_natural{}, m_temporal{};
};
