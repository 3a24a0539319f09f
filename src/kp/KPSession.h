// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The session's KP recast: made from CurPlanets on first use; the reset that drops the charts
// drops it too, so a new chart gets a new recast.

class clsKPSystem;

// The KP recast of the session's current chart; nullptr while there is none.
clsKPSystem *SessionKP();
