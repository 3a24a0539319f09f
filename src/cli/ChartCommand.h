// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// "orbanta chart <birth> [--json]": the chart as a table, or as one JSON object.

#include "sky/clsPlanets.h"

#include <QJsonObject>
#include <QStringList>
#include <QTextStream>

// Runs the verb; args without the verb itself. Returns the exit status.
int RunChartCommand(const QStringList &args, QTextStream &out, QTextStream &err);
// The JSON object that "chart --json" prints for a cast chart: the two below together.
QJsonObject ChartJson(const clsPlanets &chart);
// The members read from the cast itself: person, positions, houses, panchang, divisions,
// Vimshottari, Ashtakavarga, yogas, the five-fold friendship (maitri).
QJsonObject ChartCastJson(const clsPlanets &chart);
// The "person" member of ChartCastJson: name, day, month, year, hour, minutes.
QJsonObject PersonJson(const clsPerson &person);
// The members that cast the chart again at other moments of the day and year, some ten times
// the cost of the rest: sunrise, sunset, Shadbala and Sade Sati.
QJsonObject ChartDayJson(const clsPlanets &chart);
