// SPDX-License-Identifier: AGPL-3.0-or-later
#include "cli/CommandLine.h"

#include <QCoreApplication>
#include <QLocale>

#include <cstdio>

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Orbanta"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ORBANTA_VERSION));
    // Every degree and time value passes through its text form with a "." for the decimal point.
    QLocale::setDefault(QLocale::c());

    const QStringList args = app.arguments().mid(1);
    QTextStream out(stdout);
    QTextStream err(stderr);
    if (IsCommandLineMode(args))
        return RunCommandLine(args, out, err);

    err << "Orbanta " << ORBANTA_VERSION << ": the windowed program is not part of this build yet.\n"
        << "Cast a chart from the command line instead: orbanta chart --help\n";
    return 1;
}
