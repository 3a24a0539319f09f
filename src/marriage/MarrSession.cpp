// SPDX-License-Identifier: AGPL-3.0-or-later
#include "marriage/MarrSession.h"

#include "marriage/clsMarr.h"
#include "session/Session.h"

clsMarr *SessionMarr()
{
    SessionGlobals &s = Session();
    if (!s.BoyPlanets || !s.GalPlanets)
        return nullptr;
    // A match belongs to the charts it was made from; charts put in place by other means than
    // Generate (the command line) get a match of their own.
    if (!s.Marr || s.Marr->clsBoy() != s.BoyPlanets.get() || s.Marr->clsGal() != s.GalPlanets.get()) {
        s.Marr = std::make_shared<clsMarr>(s.BoyPlanets.get(), s.GalPlanets.get());
        s.Marr->DoMatch();
    }
    return s.Marr.get();
}
