// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The session's match: made from BoyPlanets and GalPlanets on first use and matched at once;
// the reset that drops the charts drops it too, so a new couple gets a new match.

class clsMarr;

// The match of the session's two charts; nullptr while there are not two charts.
clsMarr *SessionMarr();
