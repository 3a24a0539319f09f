// SPDX-License-Identifier: AGPL-3.0-or-later
#include "jaimini/JaiminiCharts.h"

#include "chartdraw/KundaliModel.h"
#include "jaimini/clsJaimini.h"
#include "sky/clsPlanets.h"

namespace {
constexpr int kRasi = 1, kDrekkana = 3, kNavamsha = 6;
}

const char *JaiminiChartHead(JaiminiChart which)
{
    switch (which) {
    case JaiminiChart::Janma:
        return "JanmaLagna";
    case JaiminiChart::DrekTrad:
        return "DrekTrad";
    case JaiminiChart::DrekPrav:
        return "DrekPrav";
    case JaiminiChart::DrekSom:
        return "DrekSom";
    case JaiminiChart::NavTrad:
        return "NavTrad";
    case JaiminiChart::NavKri:
        return "NavKri";
    case JaiminiChart::Upapada:
        return "UpapadaLagna";
    case JaiminiChart::Karakamsa:
        return "KarakLagna";
    case JaiminiChart::Arudha:
        return "ArudTrad";
    }
    return "";
}

int JaiminiChartLagna(const clsJaimini &jm, JaiminiChart which)
{
    const clsPlanets &c = jm.Chart();
    switch (which) {
    case JaiminiChart::Janma:
        return jm.Sign(0);
    case JaiminiChart::DrekTrad:
        return c.PrediVarga(0, kDrekkana);
    case JaiminiChart::DrekPrav:
        return jm.DrekkanaLagna(2);
    case JaiminiChart::DrekSom:
        return jm.DrekkanaLagna(3);
    case JaiminiChart::NavTrad:
        return jm.NavamshSign(0);
    case JaiminiChart::NavKri:
        return jm.NavamshLagna(2);
    case JaiminiChart::Upapada:
        return jm.UpaPadaLagna(1);
    case JaiminiChart::Karakamsa:
        return jm.KarakamsaLagna();
    case JaiminiChart::Arudha:
        return jm.ArudhaLagna(1);
    }
    return 0;
}

int JaiminiChartSign(const clsJaimini &jm, JaiminiChart which, int p)
{
    const clsPlanets &c = jm.Chart();
    switch (which) {
    case JaiminiChart::DrekTrad:
        return c.PrediVarga(p, kDrekkana);
    case JaiminiChart::DrekPrav:
        return jm.JmnDrkSign(p, 2);
    case JaiminiChart::DrekSom:
        return jm.JmnDrkSign(p, 3);
    case JaiminiChart::NavTrad:
    case JaiminiChart::Karakamsa:
        return c.PrediVarga(p, kNavamsha);
    case JaiminiChart::NavKri:
        return jm.kmNavSign(p);
    case JaiminiChart::Janma:
    case JaiminiChart::Upapada:
    case JaiminiChart::Arudha:
        return c.PrediVarga(p, kRasi);
    }
    return 0;
}

void FillJaiminiKundali(KundaliModel &k, const clsJaimini &jm, JaiminiChart which, bool english)
{
    const clsPlanets &c = jm.Chart();
    k.Clear();
    const int lagna = JaiminiChartLagna(jm, which);
    k.setHouseNumber(lagna);
    // The rising sign carries the Lagna's mark, as in the program's other charts: the East and
    // South styles keep the signs in their places and would not show it otherwise.
    k.PlanetPlace(lagna, english ? clsPlanets::PlanetNameEng(0) : c.PlanetNameSmall(0));
    for (int p = 1; p <= 9; ++p)
        k.PlanetPlace(JaiminiChartSign(jm, which, p), english ? clsPlanets::PlanetNameEng(p) : c.PlanetNameSmall(p));
}
