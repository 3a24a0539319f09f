// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// "orbanta pdf <birth> --out FILE [--topics KEY,KEY...]": the horoscope of the chosen print-tree
// keys (all by default) written to a PDF file, without a display.

#include <QSet>
#include <QStringList>
#include <QTextStream>

// Needs a QApplication (the offscreen platform serves). Returns the exit status.
int RunPdfCommand(const QStringList &args, QTextStream &out, QTextStream &err);
// The steps of a mode's walk that the ticked keys choose, drawn from the session's charts into a
// PDF file; "Wrote ..." on out, or why not on err. Returns the exit status.
int WriteSessionPdf(int progMode, const QSet<QString> &ticked, const QString &file, QTextStream &out, QTextStream &err);
// The annual pages of the session's reading, all nine, written to file. Needs a QApplication.
// Returns the exit status.
int WriteVarshaPdf(const QString &file, QTextStream &out, QTextStream &err);
