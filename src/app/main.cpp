// SPDX-License-Identifier: AGPL-3.0-or-later
#include "cli/CommandLine.h"
#include "session/ui/MessageBoxSink.h"
#include "session/ui/frmSplash.h"
#include "session/ui/mdiMother.h"

#include <QApplication>
#include <QCoreApplication>
#include <QLocale>

#include <memory>

int main(int argc, char **argv)
{
    // Every degree and time value passes through its text form with a "." for the decimal point.
    QLocale::setDefault(QLocale::c());

    QStringList args;
    for (int i = 1; i < argc; ++i)
        args << QString::fromLocal8Bit(argv[i]);
    if (IsCommandLineMode(args)) {
        QCoreApplication app(argc, argv);
        QCoreApplication::setApplicationName(QStringLiteral("Orbanta"));
        QCoreApplication::setApplicationVersion(QStringLiteral(ORBANTA_VERSION));
        QTextStream out(stdout);
        QTextStream err(stderr);
        return RunCommandLine(args, out, err);
    }

    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Orbanta"));
    QApplication::setApplicationVersion(QStringLiteral(ORBANTA_VERSION));
    MessageBoxSink boxes;
    const ScopedMessageSink answerWithBoxes(&boxes);
    frmSplash splash;
    splash.show();
    std::unique_ptr<mdiMother> main(splash.DoLoad());
    splash.close();
    if (!main)
        return 1;
    main->show();
    return QApplication::exec();
}
