// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// Sunrise and sunset by the time search: the moments at which the Lagna reaches the Sun's
// longitude (rise) or the point opposite it (set). Where the time search misses, a walk in strides
// of the clock, halved down to the minute, finds the point instead.

#include <QDateTime>

#include <memory>

class clsPlanets;

enum class SunEvent { Rise, Set };

// Whether the Sun's point rises and sets on a day at a place. Beyond the polar circles it may stay
// above the horizon all day (midnight sun) or below it (polar night).
enum class SunDay { Normal, MidnightSun, PolarNight };

// The kind of the day direction days from chart's (-1, 0, +1). The Sun's point, without
// refraction, rises and sets where -tan(latitude) * tan(declination) lies within -1..1; the
// declination is the Sun's at that day's local mean noon and the latitude the place's own, not the
// Lagna's bound of 65 degrees.
SunDay SunDayKind(const clsPlanets &chart, int direction = 0);
// On a day without sunrise or sunset the day is reckoned as an equal day: it starts at 6:00 and
// ends at 18:00 local mean time, day and night 12 hours each. The zone clock (hh.mm) of that
// start (Rise) or end (Set) at chart's place.
double EqualDayClock(const clsPlanets &chart, SunEvent event);

// The chart of the sunrise or sunset found by the time search (tolerance 9 arc minutes) from
// chart's moment moved by direction days (-1 the day before, 0 the day itself, +1 the day after);
// if its result lies more than a degree off the point, the stride walk's, the way the search set
// out. chart isn't changed.
std::unique_ptr<clsPlanets> SunEventChart(const clsPlanets &chart, SunEvent event, int direction);
// The clock (hh.mm) of that sunrise or sunset; on a day without one, the equal day's clock.
double NeighbourSunEvent(const clsPlanets &chart, SunEvent event, int direction);

// The chart, to the minute, of the moment at which the Lagna passes target (degrees), walking from
// start's clock forward in time (sense +1) or backward (-1) in strides of two hours for at most
// 26 hours, then halving the stride that holds the pass. Without a pass, the walk's last chart.
std::unique_ptr<clsPlanets> LagnaPassChart(const clsPlanets &start, double target, int sense);
// The same between two clocks of base's person, from < to, known to hold the pass.
std::unique_ptr<clsPlanets> LagnaPassBetween(const clsPlanets &base, const QDateTime &from, const QDateTime &to, double target);
