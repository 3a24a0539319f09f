// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The birth options that every verb of the command line reads (--date, --time, --place or
// --lat/--lon/--gmt, --name, --sex, --tcorr, --ayanamsa, --node, --vakya), checked as the entry
// screen checks its fields, and the chart cast from them.

#include "sky/clsPlanets.h"

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QSet>
#include <QSqlDatabase>
#include <QStringList>
#include <QTextStream>

#include <functional>
#include <memory>

// What a verb does with the chart it cast: the parsed options, the chart (which it may take
// over), the English text database. Returns the exit status.
using ChartAction = std::function<int(const QCommandLineParser &, std::unique_ptr<clsPlanets> &, QSqlDatabase &)>;
// Parses the birth options and the extra ones, casts the chart and runs action; --help prints
// usage and gives 0, bad input gives status 2 with the program's message, a missing data file 1.
int RunWithChart(const QStringList &args, QTextStream &out, QTextStream &err, const QList<QCommandLineOption> &extra,
                 const QString &usage, const ChartAction &action);

// The same for a couple: the boy's birth in the options above (without --sex), the girl's in the
// same options prefixed "girl-" (--girl-date, --girl-place ...). A fault of either birth gives
// status 2 with the entry screen's message after "Boy: " or "Girl: ".
using CoupleAction = std::function<int(const QCommandLineParser &, std::unique_ptr<clsPlanets> &boy,
                                       std::unique_ptr<clsPlanets> &girl, QSqlDatabase &)>;
int RunWithCouple(const QStringList &args, QTextStream &out, QTextStream &err, const QList<QCommandLineOption> &extra,
                  const QString &usage, const CoupleAction &action);

// --topics KEYS of the verbs that write topic pages: print-tree keys, comma separated.
QCommandLineOption TopicsOption();
// The keys that --topics names in ticked, or every one of keys when it isn't given. A key that
// isn't one of keys gives status 2 with "Unknown topic key: ..." and usage on err; else 0.
int ReadTopics(const QCommandLineParser &p, const QStringList &keys, QSet<QString> &ticked, QTextStream &err, const QString &usage);
