// SPDX-License-Identifier: AGPL-3.0-or-later
#include "strength/Avasthas.h"

#include "sky/Functions.h"
#include "sky/SunEvents.h"
#include "sky/clsPlanets.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace {
constexpr int kSun = 1, kMercury = 2, kVenus = 3, kMars = 4, kJupiter = 5, kSaturn = 6, kMoon = 7, kRahu = 8,
              kKetu = 9;

int lordOf(const clsPlanets &c, int p) { return clsPlanets::GetRashiLordNum(c.PlanetRashiNum(p)); }
// In a sign of Mars or Saturn, or of the nodes (Rahu owns Aquarius, Ketu Scorpio).
bool inMaleficSign(const clsPlanets &c, int p)
{
    const int s = c.PlanetRashiNum(p);
    return lordOf(c, p) == kMars || lordOf(c, p) == kSaturn || s == 11 || s == 8;
}
bool inSunSign(const clsPlanets &c, int p) { return c.PlanetRashiNum(p) == 5; }
bool aspectedBy(const clsPlanets &c, int p, std::initializer_list<int> by)
{
    for (int q : by)
        if (c.IfPlanetAspects(p, q))
            return true;
    return false;
}

template <size_t N> std::array<int, N> rankByDegrees(const clsPlanets &c)
{
    std::array<int, N> planet{};
    for (size_t i = 0; i < N; ++i)
        planet[i] = static_cast<int>(i) + 1;
    // Highest degrees first; equal degrees keep the order of the planet numbers.
    std::stable_sort(planet.begin(), planet.end(), [&c](int a, int b) {
        return Avasthas::KarakaDegrees(c, a) > Avasthas::KarakaDegrees(c, b);
    });
    return planet;
}
} // namespace

namespace Avasthas {

int Ava3(const clsPlanets &c, int p)
{
    if (c.Exalted(p) || c.InOwnHouse(p))
        return 1;
    if (c.InFriendHouse(p) || c.InSamaHouse(p))
        return 2;
    if (c.InEnemyHouse(p) || c.Debilitated(p))
        return 3;
    return 0;
}

int Ava5(const clsPlanets &c, int p)
{
    const double d = c.KrishAmsha(p);
    const int band = std::clamp(static_cast<int>(d / 6.0) + 1, 1, 5);
    return c.PlanetRashiNum(p) % 2 == 1 ? band : 6 - band;
}

int Ava6(const clsPlanets &c, int p)
{
    if (c.Exalted(p))
        return 1;
    if (c.InOwnHouse(p) || c.InFriendHouse(p) || lordOf(c, p) == kJupiter)
        return 2;
    const int fromLagna = static_cast<int>(Clock12(c.PlanetRashiNum(p) - c.PlanetRashiNum(0)));
    if (fromLagna == 4 && inMaleficSign(c, p))
        return 3;
    if (clsPlanets::IsPlanetEnemy(p, lordOf(c, p)) || c.WithEnemy(p) || c.AspectedByEnemy(p))
        return 4;
    const int s = c.PlanetSign(p);
    if ((s == 4 || s == 8 || s == 12) && c.AspectedByEnemy(p) && aspectedBy(c, p, {kJupiter, kVenus}))
        return 5;
    if ((inSunSign(c, p) && c.AspectedByEnemy(p)) || aspectedBy(c, p, {kMars, kSaturn, kRahu, kKetu}))
        return 6;
    return 0;
}

int Ava9(const clsPlanets &c, int p)
{
    if (c.Exalted(p))
        return 1;
    if (c.InOwnHouse(p))
        return 2;
    if (c.InEnemyHouse(p))
        return 6;
    if (c.InFriendHouse(p))
        return 4;
    if (c.InAdhiMitraHouse(p))
        return 3;
    if (c.InSamaHouse(p))
        return 5;
    if (inMaleficSign(c, p))
        return 7;
    if (c.Debilitated(p) || c.InAdhiSatruHouse(p))
        return 8;
    if (inSunSign(c, p))
        return 9;
    return 0;
}

int Ava10(const clsPlanets &c, int p)
{
    if (c.Exalted(p))
        return 1;
    if (c.InOwnHouse(p))
        return 2;
    if (c.InFriendHouse(p))
        return 3;
    switch (c.PlanetRashiNum(p)) {
    case 2: case 3: case 4: case 6: case 7: case 9: case 12: return 4;
    default: break;
    }
    // Just out of the Sun's rays: the distance ahead of the Sun, as it stands, within the band.
    const double ahead = c.PlanetLongi(p) - c.PlanetLongi(kSun);
    const auto within = [ahead](double from, double to) { return ahead >= from && ahead <= to; };
    if (((p == kMercury || p == kVenus) && within(7, 8)) || (p == kMars && within(8, 9)) ||
        ((p == kJupiter || p == kSaturn) && within(9, 10)) || (p == kMoon && within(12, 13)))
        return 5;
    if (inMaleficSign(c, p))
        return 6;
    if (c.InEnemyHouse(p))
        return 7;
    if (c.Combust(p).value_or(false))
        return 8;
    switch (c.PlanetSign(p)) {
    case 1: case 5: case 8: case 10: case 11: return 9;
    default: break;
    }
    if (c.Debilitated(p))
        return 9;
    return 0;
}

int Ghatikas(const clsPlanets &c)
{
    // Clocks in whole minutes, so that a birth on the minute of sunrise compares as equal.
    const auto minutes = [](double hhmm) { return std::round(MinToDec(hhmm) * 60.0); };
    const clsPerson &person = c.Person();
    const double t = static_cast<double>(person.Hour() * 60 + person.Minutes());
    const double rise = minutes(c.SunRiseTime());
    double from = rise, to = 0, since = 0;
    if (t > rise) {
        to = minutes(c.NextSunRiseTime());
        since = t - from;
    } else {
        // From the sunrise of the day before, across midnight.
        from = minutes(NeighbourSunEvent(c, SunEvent::Rise, -1));
        to = rise;
        since = t - from + 24 * 60;
    }
    const double g = since / (to - from + 24 * 60) * 60;
    return static_cast<int>(std::ceil(g - 1e-9));
}

int Ava12(const clsPlanets &c, int p, int g)
{
    const int navamsha = static_cast<int>(Int(c.KrishAmsha(p) / (10.0 / 3.0))) + 1;
    const long value = c.PlanetRashiNum(p) + g + static_cast<long>(c.NakOf(p)) * clsPlanets::PlanetSerialNumber(p) * navamsha;
    return static_cast<int>(ModOneBased(static_cast<double>(value), 12));
}

int State(const clsPlanets &c, int family, int p, int g)
{
    switch (family) {
    case 3: return Ava3(c, p);
    case 5: return Ava5(c, p);
    case 6: return Ava6(c, p);
    case 9: return Ava9(c, p);
    case 10: return Ava10(c, p);
    case 12: return Ava12(c, p, g);
    default: return 0;
    }
}

double KarakaDegrees(const clsPlanets &c, int p)
{
    const double d = c.KrishAmsha(p);
    return p == kRahu ? 30.0 - d : d;
}

std::array<int, 8> AshtaKarakas(const clsPlanets &c) { return rankByDegrees<8>(c); }
std::array<int, 7> SaptaKarakas(const clsPlanets &c) { return rankByDegrees<7>(c); }

std::array<std::array<int, 3>, 9> NavTara(const clsPlanets &c)
{
    const int n = c.NakOf(kMoon);
    std::array<std::array<int, 3>, 9> rows{};
    for (int t = 1; t <= 9; ++t)
        for (int k = 0; k < 3; ++k)
            rows[static_cast<size_t>(t - 1)][static_cast<size_t>(k)] = static_cast<int>(ModOneBased(n + t - 1 + 9 * k, 27));
    return rows;
}

} // namespace Avasthas
