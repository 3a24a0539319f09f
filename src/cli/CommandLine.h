// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The command-line mode: "orbanta chart ..." casts a chart without a display.
// Exit status 0 on success, 2 on bad input (the program's own message on standard error),
// 1 on other failures.

#include <QStringList>
#include <QTextStream>

// True when args (without the program name) ask for the command-line mode.
bool IsCommandLineMode(const QStringList &args);
// Runs one command; args without the program name. Writes to out and err; returns the exit status.
int RunCommandLine(const QStringList &args, QTextStream &out, QTextStream &err);
