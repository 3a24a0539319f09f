// SPDX-License-Identifier: AGPL-3.0-or-later
// The Ashtakavarga tables of the chart, built when a reading asks for them.
#include "sky/clsPlanets.h"

#include "strength/Ashtakavarga.h"

void clsPlanets::AshComp(const std::array<int, 12> &flags, int startSign) const
{
    const Ashtakavarga::Signs marks = Ashtakavarga::Marks(flags, startSign);
    for (int s = 1; s <= 12; ++s)
        m_ashtak[static_cast<size_t>(s)] += marks[static_cast<size_t>(s)];
}

void clsPlanets::AshTable() const
{
    std::array<int, 8> giverSign{};
    for (size_t g = 0; g < Ashtakavarga::kGivers.size(); ++g)
        giverSign[g] = PlanetRashiNum(Ashtakavarga::kGivers[g]);
    for (int s = 1; s <= 12; ++s) {
        m_ashtak[static_cast<size_t>(s)] = 0;
        m_ashTotal[static_cast<size_t>(s)] = 0;
    }
    for (int varga : Ashtakavarga::kTables) {
        for (int g = 0; g < 8; ++g)
            AshComp(Ashtakavarga::Flags(varga, g), giverSign[static_cast<size_t>(g)]);
        for (int s = 1; s <= 12; ++s) {
            m_ashVarga[static_cast<size_t>(varga)][static_cast<size_t>(s)] = m_ashtak[static_cast<size_t>(s)];
            m_ashtak[static_cast<size_t>(s)] = 0;
        }
    }
    // The total counts Rahu's table with the seven planets' and leaves the Lagna's out: 381 points.
    for (int s = 1; s <= 12; ++s)
        for (int varga = 1; varga <= 9; ++varga)
            m_ashTotal[static_cast<size_t>(s)] += m_ashVarga[static_cast<size_t>(varga)][static_cast<size_t>(s)];
}
