// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The annual reading of the session: the annual chart (the session's VarshaPlanets) of the age
// VarshaYear and the clsVarsha that reads it, made anew at each choice of year.

#include <QString>

class clsVarsha;

// Casts the annual chart of the session's VarshaYear for its birth chart (exactly at the solar
// return when the setting asks for it) and makes a new clsVarsha. On failure the reading is
// released and the reason is answered; empty on success.
QString MakeVarsha();
// The session's reading, or nullptr while there is none (or the session's charts changed).
clsVarsha *SessionVarsha();
// Drops the reading and the annual chart.
void ReleaseVarsha();
