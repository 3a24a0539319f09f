// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// Sunrise and sunset by the time search: the moments at which the Lagna reaches the Sun's
// longitude (rise) or the point opposite it (set). Where the time search misses, a walk in strides
// of the clock, halved down to the minute, finds the point instead.

#include <QDateTime>

#include <memory>

class clsPlanets;

enum class SunEvent { Rise, Set };

// The chart of the sunrise or sunset found by the time search (tolerance 9 arc minutes) from
// chart's moment moved by direction days (-1 the day before, 0 the day itself, +1 the day after);
// if its result lies more than a degree off the point, the stride walk's, the way the search set
// out. chart isn't changed.
std::unique_ptr<clsPlanets> SunEventChart(const clsPlanets &chart, SunEvent event, int direction);
// The clock (hh.mm) of that sunrise or sunset.
double NeighbourSunEvent(const clsPlanets &chart, SunEvent event, int direction);

// The chart, to the minute, of the moment at which the Lagna passes target (degrees), walking from
// start's clock forward in time (sense +1) or backward (-1) in strides of two hours for at most
// 26 hours, then halving the stride that holds the pass. Without a pass, the walk's last chart.
std::unique_ptr<clsPlanets> LagnaPassChart(const clsPlanets &start, double target, int sense);
// The same between two clocks of base's person, from < to, known to hold the pass.
std::unique_ptr<clsPlanets> LagnaPassBetween(const clsPlanets &base, const QDateTime &from, const QDateTime &to, double target);
