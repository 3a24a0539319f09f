// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The annual chart: the offset of the year from CONYEAR.DAT, the weekday arithmetic that adds it
// to the birth, and the cast of the chart for the moment the year begins. Beside the traditional
// cast stands the exact solar return, the moment the Sun is back at its natal sidereal longitude.

#include "sky/clsPlanets.h"

#include <QString>

#include <memory>
#include <optional>

// The days, hours, minutes and seconds by which the year of an age begins after the birth's
// weekday and clock.
struct YearOffset
{
    double days = 0, hours = 0, minutes = 0, seconds = 0;
};

// Minutes of a weekday span: D * 1440 + H * 60 + M + S / 60.
double ConvertDHMSToMM(double d, double h, double m, double s);
// "day:hour:minute:second" of a span of minutes. Whole days are taken off while more than a day
// is left, and 7 of them once if more than 7 were counted; then whole hours the same way.
QString ConvertMMToDHMS(double minutes);

// The record of age in the text of a CONYEAR file: the first "<age>[YEAR]", up to the next
// "[/YEAR]", five comma-separated fields of which the last four are the offset. Empty when the
// record is missing or malformed.
std::optional<YearOffset> ParseConyear(const QString &text, int age);
// The path of the file in the data folder: STUFF/COMMON/CONYEAR.DAT.
QString ConyearPath();
// The record of age from the file; empty when the file or the record is missing.
std::optional<YearOffset> ReadConyear(int age);

// Why a cast of an annual chart failed, in words for the user; empty on success.
struct AnnualCastResult
{
    std::unique_ptr<clsPlanets> chart;
    QString error;
};

// The annual chart of birth (a cast chart) for age 0..99, cast with birth's text databases.
// exactReturn: at the moment the Sun comes back to its natal longitude, found by the time search,
// instead of the traditional weekday offset.
AnnualCastResult CastAnnualChart(const clsPlanets &birth, int age, bool exactReturn = false);

// Whether annual charts are cast at the exact solar return (setting "ExactReturn" of section
// "Settings", off unless set).
bool ExactReturnSetting();
