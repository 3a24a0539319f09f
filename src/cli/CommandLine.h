// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The command line: one verb a run ("orbanta chart ...", "orbanta pdf ..."), or --help and
// --version. The program's main holds the table of verbs; this reads the arguments against it.
// Exit status 0 on success, 2 on bad input (the program's own message on standard error),
// 1 on other failures.

#include <QString>
#include <QStringList>
#include <QTextStream>

#include <span>

// One verb of the command line.
struct CliVerb
{
    const char *name;    // the word that names it: "chart"
    const char *summary; // one line for the usage
    bool drawsPages;     // it draws topic pages, and needs a QApplication (the offscreen platform serves)
    int (*run)(const QStringList &args, QTextStream &out, QTextStream &err); // args after the verb; the exit status
};

// What the arguments (without the program name) ask for.
struct CliRequest
{
    enum Kind { Window, Help, Version, Verb, Unknown };
    Kind kind = Window;
    const CliVerb *verb = nullptr; // Verb: the verb to run; Help: the verb asked about, or null
    QString word;                  // Unknown: the word that isn't a verb or an option
};

CliRequest ReadCliRequest(std::span<const CliVerb> verbs, const QStringList &args);
// The program's usage: its forms and the verbs with their summaries.
QString CliUsage(std::span<const CliVerb> verbs);
// Answers a request other than Window: the usage on out (help), the version, the verb's own
// run, or the usage on err with status 2 for a word it doesn't know.
int RunCommandLine(std::span<const CliVerb> verbs, const QStringList &args, QTextStream &out, QTextStream &err);
