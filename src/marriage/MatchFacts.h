// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// Small facts of each partner's birth as the match pages show them side by side.

#include <QString>

class clsPlanets;

namespace MatchFacts {
// The local time correction: four minutes of time a degree of longitude (east counting forward)
// less the zone's offset, signed, as minutes ":" seconds: "-21:12" for Delhi at +05.30.
QString LocalTimeCorrection(const clsPlanets &c);
// The sidereal time of the cast as "hh:mm:ss".
QString SiderealTime(const clsPlanets &c);
// The date of birth as "dd/MM/yyyy".
QString BirthDate(const clsPlanets &c);
} // namespace MatchFacts
