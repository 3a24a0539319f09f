// SPDX-License-Identifier: AGPL-3.0-or-later
#include "varsha/AnnualReading.h"

#include "session/Session.h"
#include "varsha/VarshaCast.h"
#include "varsha/clsVarsha.h"

#include <memory>

namespace {
std::unique_ptr<clsVarsha> g_varsha;
}

void ReleaseVarsha()
{
    g_varsha.reset();
    Session().VarshaPlanets.reset();
}

QString MakeVarsha()
{
    ReleaseVarsha();
    SessionGlobals &s = Session();
    if (!s.CurPlanets)
        return QStringLiteral("There is no birth chart to read the year from.");
    AnnualCastResult cast = CastAnnualChart(*s.CurPlanets, s.VarshaYear, ExactReturnSetting());
    if (!cast.chart)
        return cast.error;
    cast.chart->setTextDB(s.TextDB, s.RecDB);
    s.VarshaPlanets = std::move(cast.chart);
    g_varsha = std::make_unique<clsVarsha>(*s.CurPlanets, *s.VarshaPlanets, s.VarshaYear);
    return {};
}

clsVarsha *SessionVarsha()
{
    const SessionGlobals &s = Session();
    if (!g_varsha || &g_varsha->Annual() != s.VarshaPlanets.get() || &g_varsha->Birth() != s.CurPlanets.get())
        return nullptr;
    return g_varsha.get();
}
