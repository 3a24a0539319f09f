// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// "orbanta varsha <birth> --year YYYY [--exact-return] [--json] [--out FILE]": the annual reading
// of one year as a summary, as one JSON object, or as the PDF of the annual pages.

#include <QJsonObject>
#include <QStringList>
#include <QTextStream>

#include <functional>

class clsVarsha;

// Writes the annual pages of the session's reading into a PDF file; the exit status.
using VarshaPdfWriter = std::function<int(const QString &file, QTextStream &out, QTextStream &err)>;

// Runs the verb; args without the verb itself. pdf answers --out (the pages are widgets, which
// the command line itself doesn't know).
int RunVarshaCommand(const QStringList &args, QTextStream &out, QTextStream &err, const VarshaPdfWriter &pdf = {});
// The JSON object of "varsha --json": age, annual (person and planets), muntha, panchadhikari,
// year_lord, sahams, mudda, mudda_yogini, patyayini, tajika.
QJsonObject VarshaJson(const clsVarsha &v);
