// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// How the strengths write and read their figures: two decimals, halves to even, as "0.00".

#include "sky/Functions.h"

#include <QString>

namespace ShadBalaFigures {
inline bool inRange(int v, int lo, int hi) { return v >= lo && v <= hi; }
inline double rounded(double v) { return RoundHalfEven2(v); }
inline QString text(double v) { return FormatHalfEven2(v); }
inline double value(const QString &t) { return t.toDouble(); }
} // namespace ShadBalaFigures
