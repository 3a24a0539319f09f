// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The karakas, special lagnas and padas as the command line prints them.

#include <QJsonObject>

class clsJaimini;

// {"karakas": {"eight", "seven", "sthira", "bhava"}, "lagnas": [{"key", "sign", "longitude"
// (the lagnas that are longitudes)}], "padas": [twelve signs, house 1 first]}.
QJsonObject JaiminiJson(const clsJaimini &jm);
