// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The special lagnas in the order the Jaimini lagna page lists them, each under its text key.

#include <QString>

#include <optional>
#include <vector>

class clsJaimini;

struct JaiminiLagnaRow
{
    QString head;                    // text key of the row, category "JaiminiLagnas"
    int sign = 0;                    // 1..12
    std::optional<double> longitude; // for the lagnas that are longitudes
};

std::vector<JaiminiLagnaRow> JaiminiLagnaRows(const clsJaimini &jm);
