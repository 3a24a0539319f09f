// SPDX-License-Identifier: AGPL-3.0-or-later
#include "app/TopicPages.h"
#include "app/mdiMother.h"
#include "cli/ChartCommand.h"
#include "cli/CommandLine.h"
#include "cli/HtmlCommand.h"
#include "cli/MatchCommand.h"
#include "cli/VarshaCommand.h"
#include "cli/MuhurthaCommand.h"
#include "output/ui/HtmlExport.h"
#include "output/ui/PdfCommand.h"
#include "session/ui/MessageBoxSink.h"
#include "session/ui/frmSplash.h"

#include <QApplication>
#include <QCoreApplication>
#include <QLocale>

#include <array>
#include <memory>

namespace {

int runVarsha(const QStringList &args, QTextStream &out, QTextStream &err) { return RunVarshaCommand(args, out, err, WriteVarshaPdf); }
int runHtml(const QStringList &args, QTextStream &out, QTextStream &err) { return RunHtmlCommand(args, out, err, WriteSessionHtml); }

// The verbs of the command line, in the order its usage lists them.
constexpr std::array kVerbs{
    CliVerb{"chart", "Cast a chart and print it as a table or as JSON.", false, RunChartCommand},
    CliVerb{"pdf", "Write chosen topics of the horoscope to a PDF file.", true, RunPdfCommand},
    CliVerb{"html", "Write chosen topics of the horoscope as an HTML page with its pictures.", true, runHtml},
    CliVerb{"match", "Match a couple: Guna milan, Manglik and the further checks, as a table, JSON or PDF.", true, RunMatchCommand},
    CliVerb{"varsha", "Read one year of a birth (Varshaphala) as a summary, JSON or a PDF file.", true, runVarsha},
    CliVerb{"muhurtha", "List the acts, or find the best moment for one within a span of days.", false, RunMuhurthaCommand},
};

void nameApplication()
{
    QCoreApplication::setApplicationName(QStringLiteral("Orbanta"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ORBANTA_VERSION));
}

int runCommandLine(const QStringList &args)
{
    QTextStream out(stdout);
    QTextStream err(stderr);
    return RunCommandLine(kVerbs, args, out, err);
}

} // namespace

int main(int argc, char **argv)
{
    // Every degree and time value passes through its text form with a "." for the decimal point.
    QLocale::setDefault(QLocale::c());
    RegisterTopicPages();

    QStringList args;
    for (int i = 1; i < argc; ++i)
        args << QString::fromLocal8Bit(argv[i]);
    if (!args.isEmpty()) {
        // Any argument is the command line, which never opens a window.
        const CliRequest request = ReadCliRequest(kVerbs, args);
        if (request.verb && request.verb->drawsPages) {
            // Pages are widgets: they are drawn without a screen on the offscreen platform.
            if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
                qputenv("QT_QPA_PLATFORM", "offscreen");
            QApplication app(argc, argv);
            nameApplication();
            return runCommandLine(args);
        }
        QCoreApplication app(argc, argv);
        nameApplication();
        return runCommandLine(args);
    }

    QApplication app(argc, argv);
    nameApplication();
    MessageBoxSink boxes;
    const ScopedMessageSink answerWithBoxes(&boxes);
    frmSplash splash;
    splash.show();
    const bool loaded = splash.DoLoad();
    splash.close();
    if (!loaded)
        return 1;
    mdiMother main;
    main.show();
    return QApplication::exec();
}
