// SPDX-License-Identifier: AGPL-3.0-or-later
#include "strength/Sudarshan.h"

#include "sky/Functions.h"
#include "sky/clsPlanets.h"

std::array<SudarshanRing, 3> SudarshanRings(const clsPlanets &c)
{
    std::array<SudarshanRing, 3> rings;
    const std::array<int, 3> from{0, 7, 1};
    for (size_t r = 0; r < rings.size(); ++r) {
        SudarshanRing &ring = rings[r];
        ring.from = from[r];
        const int first = c.PlanetSign(ring.from);
        for (int i = 0; i < 12; ++i) {
            const int sign = static_cast<int>(Clock12(first + i));
            ring.sign[static_cast<size_t>(i)] = sign;
            for (int p = 1; p <= 9; ++p)
                if (c.PlanetSign(p) == sign)
                    ring.planets[static_cast<size_t>(i)].append(p);
        }
    }
    return rings;
}
