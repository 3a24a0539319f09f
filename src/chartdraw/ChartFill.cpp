// SPDX-License-Identifier: AGPL-3.0-or-later
#include "chartdraw/ChartFill.h"

#include "chartdraw/KundaliModel.h"
#include "sky/clsPlanets.h"

void FillVargaKundali(KundaliModel &k, const clsPlanets &c, int row, bool english)
{
    k.Clear();
    k.setHouseNumber(c.PrediVarga(0, row));
    for (int n = 0; n <= 9; ++n) {
        QString name = english ? clsPlanets::PlanetNameEng(n) : c.PlanetName(n);
        // Mercury to Saturn can turn back; the nodes always do and the lights never.
        if (n >= 2 && n <= 6 && c.RetroGrade(n))
            name += QStringLiteral("(R)");
        k.PlanetPlace(c.PrediVarga(n, row), name);
    }
}
