// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The span of an electional search as the entry screen and the command line take it: the days
// and the clock times, checked with the same messages in both.

#include <QDate>
#include <QString>

#include <optional>

// The clock times a search takes when none are given.
inline constexpr double kMuhuDefaultStart = 6.00;
inline constexpr double kMuhuDefaultEnd = 18.00;

// A clock time written "hh.mm" or "hh:mm" (hours 0..23, minutes 0..59) as hh.mm; nullopt when
// the text isn't one.
std::optional<double> ReadMuhuClock(const QString &text);
// "" when from..to can be searched; else the message: a missing date, an end before the start,
// a span longer than ten years.
QString CheckMuhuSpan(const QDate &from, const QDate &to);
// The message for a clock field that isn't a time; which names it ("start", "end").
QString MuhuClockMessage(const QString &which);
// The band of the prediction text for a percentage: "EXCELLENT" from 75, "GOOD" from 50,
// "FAIR" from 25, else "WEAK".
QString MuhuPredictionBand(double percent);
