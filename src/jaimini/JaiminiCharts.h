// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The nine Jaimini charts: the rasi, three Drekkanas, two Navamshas, and the rasi raised from the
// Upapada, the Karakamsha and the Arudha. Each has its rising sign and the sign of planets 1..9.

#include <array>

class KundaliModel;
class clsJaimini;

enum class JaiminiChart { Janma, DrekTrad, DrekPrav, DrekSom, NavTrad, NavKri, Upapada, Karakamsa, Arudha };

// The charts in the order of the Jaimini charts page, with the text key of each title
// (category "Jaimini").
inline constexpr std::array<JaiminiChart, 9> kJaiminiCharts{
    JaiminiChart::Janma,  JaiminiChart::DrekTrad, JaiminiChart::DrekPrav,  JaiminiChart::DrekSom, JaiminiChart::NavTrad,
    JaiminiChart::NavKri, JaiminiChart::Upapada,  JaiminiChart::Karakamsa, JaiminiChart::Arudha};
const char *JaiminiChartHead(JaiminiChart which);

// The rising sign of the chart, and the sign in it of planet p (1..9).
int JaiminiChartLagna(const clsJaimini &jm, JaiminiChart which);
int JaiminiChartSign(const clsJaimini &jm, JaiminiChart which, int p);

// Clears k and fills it: the chart's rising sign with the Lagna's mark, then planets 1..9 by their
// short names in the language, or by the English abbreviations.
void FillJaiminiKundali(KundaliModel &k, const clsJaimini &jm, JaiminiChart which, bool english = false);
