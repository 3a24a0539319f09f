// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// Fills a chart wheel from a cast chart: the rasi chart and any row of the divisional table.

class KundaliModel;
class clsPlanets;

// Row `row` of the divisional table (1 the rasi chart, 2 Hora, ... 16 Shashtiamsha) into k: the
// Lagna's sign of that row rises; the Lagna and the nine grahas stand in their signs, the five
// that can turn back marked "(R)" when they do. Names in the language, or in English.
void FillVargaKundali(KundaliModel &k, const clsPlanets &c, int row, bool english = false);
