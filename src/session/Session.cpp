// SPDX-License-Identifier: AGPL-3.0-or-later
#include "session/Session.h"

void SessionGlobals::ReleaseCharts()
{
    CurPlanets.reset();
    BoyPlanets.reset();
    GalPlanets.reset();
    VarshaPlanets.reset();
    Marr.reset();
    KP.reset();
    Muhurtha.reset();
}

SessionGlobals &Session()
{
    static SessionGlobals s;
    return s;
}
