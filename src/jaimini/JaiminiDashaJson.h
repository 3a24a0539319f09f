// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The sign dashas as the command line prints them.

#include <QJsonArray>
#include <QJsonObject>

class clsJaimini;
class clsJaiminiSystem;

// One object a dasha: {"key", "rows": [{"sign", "planet" (tables that have one), "years"}]}.
QJsonArray JaiminiDashasJson(const clsJaiminiSystem &system);
QJsonArray JaiminiDashasJson(const clsJaimini &core);
// Puts the dashas under "dashas" of the "jaimini" object of o, keeping what that object holds.
void AddJaiminiDashasJson(QJsonObject &o, const clsJaimini &core);
