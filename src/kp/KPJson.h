// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The KP recast as the command line's JSON prints it.

#include <QJsonObject>

class clsKPSystem;

// "planets": positions 0..12 with n, longitude (KP), sign_lord, star_lord, sub_lord;
// "cusps": cusps 1..12 with n, longitude, sign_lord, star_lord, sub_lord;
// "significators": houses 1..12, each with its significators (n and score), by planet number;
// "part_of_fortune": the longitude.
QJsonObject KPJson(const clsKPSystem &kp);
