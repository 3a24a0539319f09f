// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The moving sky: the step of its clock, the place of each body on its orbit, and the words
// beside the canvas. The window in muhurtha/ui draws them.

#include <QDateTime>
#include <QPointF>
#include <QString>

class clsPlanets;

namespace VisualTransits {

// The units of one tick: minutes, hours, days, months, years, centuries.
enum class Unit { Minutes, Hours, Days, Months, Years, Centuries };

// The moment one tick of `factor` units after `from`. Months keep the day where the month has it
// and land on the month's last day otherwise; a century is a hundred years.
QDateTime Step(const QDateTime &from, Unit unit, int factor);

// The orbit of each body, in twips: the Sun's outermost, each next body 150 further in, in the
// order 1..12 and then 0 (the Lagna).
double OrbitRadius(int body);
// The canvas's size in twips and the centre of its orbits.
inline constexpr double kCanvasWidth = 6170, kCanvasHeight = 5960;
inline constexpr double kCentreX = 3085, kCentreY = 2980, kCircleRadius = 2500;
// The marker's top-left corner for longitude l on an orbit of that radius: 0 degrees at the top,
// the bodies running clockwise. Pi is taken as 3.14, as the board always has.
QPointF PlaceBody(double radius, double longitude);

// "12° Ari 34´": degrees within the sign, the sign's short English name, the minutes.
QString ValueText(const clsPlanets &chart, int body);
// The line of a planet 1..12 beside the canvas: its short name, the value, and its dignity mark.
QString ValueLine(const clsPlanets &chart, int body);

} // namespace VisualTransits
