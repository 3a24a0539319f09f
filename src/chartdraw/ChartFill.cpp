// SPDX-License-Identifier: AGPL-3.0-or-later
#include "chartdraw/ChartFill.h"

#include "chartdraw/KundaliModel.h"
#include "sky/Functions.h"
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

// The chalit chart: each planet in the sign that its bhava stands in, counted from the Lagna.
namespace {
template <typename NameOf> void fillChalit(const clsPlanets &c, KundaliModel &k, NameOf nameOf)
{
    const int r = c.PlanetRashiNum(0);
    k.setHouseNumber(r);
    k.PlanetPlace(r, nameOf(0));
    for (int p = 1; p <= 12; ++p)
        k.PlanetPlace(Norm12(r + c.ChalitBhava(p)), nameOf(p));
}
} // namespace

void clsPlanets::FillBhavaKundali(KundaliModel &k) const
{
    fillChalit(*this, k, [this](int p) { return PlanetName(p); });
}

void clsPlanets::FillBhavaKundaliEnglish(KundaliModel &k) const
{
    fillChalit(*this, k, [](int p) { return PlanetNameEng(p); });
}
