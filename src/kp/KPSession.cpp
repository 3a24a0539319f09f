// SPDX-License-Identifier: AGPL-3.0-or-later
#include "kp/KPSession.h"

#include "kp/clsKPSystem.h"
#include "session/Session.h"

clsKPSystem *SessionKP()
{
    SessionGlobals &s = Session();
    if (!s.CurPlanets)
        return nullptr;
    // A recast belongs to the chart it was made from; a chart put in place by other means than
    // Generate (the command line, a test) gets a recast of its own.
    if (!s.KP || &s.KP->Chart() != s.CurPlanets.get())
        s.KP = std::make_shared<clsKPSystem>(*s.CurPlanets);
    return s.KP.get();
}
