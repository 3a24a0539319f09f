// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// "orbanta match <boy's birth> <girl's birth, options prefixed --girl-> [--json] [--out FILE]":
// the Guna milan, Manglik and further checks of a couple as a table or one JSON object, and the
// marriage report as a PDF.

#include <QJsonObject>
#include <QStringList>
#include <QTextStream>

#include <functional>

class clsMarr;

// Runs the verb; args without the verb itself. Returns the exit status.
int RunMatchCommand(const QStringList &args, QTextStream &out, QTextStream &err);
// The JSON object that "match --json" prints for a match that has run DoMatch.
QJsonObject MatchJson(const clsMarr &match);

// Writes the marriage report of the session's two charts (Marriage mode) to file; answers the
// exit status, with what went wrong on err. The report's pages are widgets, which this library
// can't draw: the program registers the writer at start.
using MatchPdfWriter = std::function<int(const QString &file, QTextStream &out, QTextStream &err)>;
void SetMatchPdfWriter(MatchPdfWriter writer);
