// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// "orbanta muhurtha": the acts of the electional search (--list), the best moment for an act
// within a span of days at a place, or the score of one moment (--at).

#include <QJsonObject>
#include <QStringList>
#include <QTextStream>

class clsMuhurtha;

// Runs the verb; args without the verb itself. Returns the exit status.
int RunMuhurthaCommand(const QStringList &args, QTextStream &out, QTextStream &err);
// The JSON object of a finished search: act, best, best_day, samples.
QJsonObject MuhurthaJson(const clsMuhurtha &muhu);
