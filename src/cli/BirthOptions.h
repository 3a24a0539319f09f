// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The command-line mode: "orbanta chart ..." casts a chart without a display.
// Exit status 0 on success, 2 on bad input (the program's own message on standard error),
// 1 on other failures.

#include "sky/clsPlanets.h"

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QSqlDatabase>
#include <QStringList>
#include <QTextStream>

#include <functional>
#include <memory>

// True when args (without the program name) ask for the command-line mode.
bool IsCommandLineMode(const QStringList &args);
// Runs one command; args without the program name. Writes to out and err; returns the exit status.
// "pdf" needs the page machinery and is answered by the program's own main.
int RunCommandLine(const QStringList &args, QTextStream &out, QTextStream &err);

// What a command does with the chart it cast: the parsed options, the chart (which it may take
// over), the English text database. Returns the exit status.
using ChartAction = std::function<int(const QCommandLineParser &, std::unique_ptr<clsPlanets> &, QSqlDatabase &)>;
// Parses the birth options of "chart" and the extra ones, casts the chart and runs action;
// bad input gives status 2 with the program's message, a missing data file status 1.
int RunWithChart(const QStringList &args, QTextStream &out, QTextStream &err, const QList<QCommandLineOption> &extra,
                 const QString &usage, const ChartAction &action);
