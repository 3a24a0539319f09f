// SPDX-License-Identifier: AGPL-3.0-or-later
#include "strength/Maitri.h"

#include "strength/clsShadBala.h"

namespace {
constexpr int kJupiter = 5, kRahu = 8;
size_t at(int planet) { return static_cast<size_t>(planet - 1); }
} // namespace

Maitri::Maitri(const clsPlanets &chart)
{
    // The relations of the strength tables, read once; only the pair Jupiter-Rahu differs here.
    const clsShadBala sb(chart);
    for (int a = 1; a <= 9; ++a)
        for (int b = 1; b <= 9; ++b) {
            m_natural[at(a)][at(b)] = sb.PermaMatrix(a, b);
            m_temporal[at(a)][at(b)] = sb.TemporalMatrix(a, b);
        }
    m_natural[at(kJupiter)][at(kRahu)] = 1;
    m_natural[at(kRahu)][at(kJupiter)] = 1;
}

std::optional<int> Maitri::cell(const Matrix &m, int a, int b)
{
    if (a < 1 || a > 9 || b < 1 || b > 9 || a == b)
        return std::nullopt;
    return m[at(a)][at(b)];
}

std::optional<int> Maitri::FiveFold(int a, int b) const
{
    const std::optional<int> n = Natural(a, b), t = Temporal(a, b);
    if (!n || !t)
        return std::nullopt;
    return *n + *t;
}

QString Maitri::FiveFoldHead(int value)
{
    switch (value) {
    case 2: return QStringLiteral("Atimitra");
    case 1: return QStringLiteral("Friend");
    case 0: return QStringLiteral("Neutral");
    case -1: return QStringLiteral("Enemy");
    case -2: return QStringLiteral("Atishatru");
    default: return {};
    }
}

QString Maitri::SimpleHead(int value)
{
    return value > 0 ? QStringLiteral("Friend") : value < 0 ? QStringLiteral("Enemy") : QStringLiteral("Neutral");
}
