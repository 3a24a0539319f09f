// SPDX-License-Identifier: AGPL-3.0-or-later
#include "marriage/MarrSession.h"

#include "marriage/clsMarr.h"
#include "session/Session.h"

clsMarr *SessionMarr()
{
    SessionGlobals &s = Session();
    if (!s.BoyPlanets || !s.GalPlanets)
        return nullptr;
    if (!s.Marr) {
        s.Marr = std::make_shared<clsMarr>(s.BoyPlanets.get(), s.GalPlanets.get());
        s.Marr->DoMatch();
    }
    return s.Marr.get();
}
