// SPDX-License-Identifier: AGPL-3.0-or-later
#include "cli/CommandLine.h"
#include "output/ui/PdfCommand.h"
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
    if (!args.isEmpty() && args.first() == QLatin1String("pdf")) {
        // Pages are widgets: they are drawn without a screen on the offscreen platform.
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
            qputenv("QT_QPA_PLATFORM", "offscreen");
        QApplication app(argc, argv);
        QApplication::setApplicationName(QStringLiteral("Orbanta"));
        QApplication::setApplicationVersion(QStringLiteral(ORBANTA_VERSION));
        QTextStream out(stdout);
        QTextStream err(stderr);
        return RunPdfCommand(args.mid(1), out, err);
    }
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
