// SPDX-License-Identifier: AGPL-3.0-or-later
#include "output/ui/PdfCommand.h"

#include "cli/BirthOptions.h"
#include "output/PrintTree.h"
#include "output/ui/PageCache.h"
#include "output/ui/PageOutput.h"
#include "output/ui/PrintRun.h"
#include "session/Session.h"

#include <QDir>
#include <QFileInfo>

namespace {
const QString kPdfUsage = QStringLiteral(
    "Usage: orbanta pdf <the birth options of 'orbanta chart'> --out FILE [--topics KEY,KEY...]\n"
    "Topics are the keys of the print tree; all topics by default. Keys: %1\n");
} // namespace

namespace {
// Draws the steps from the session's charts into a new PDF file; "Wrote ..." on out, or why not
// on err. Returns the exit status.
int writeSteps(const QList<PrintStep> &steps, const QString &file, QTextStream &out, QTextStream &err)
{
    clsPDFExporter pdf;
    pdf.filename = file;
    if (!pdf.StartExport()) {
        err << "Cannot write " << QDir::toNativeSeparators(QFileInfo(file).absoluteFilePath()) << '\n';
        return 1;
    }
    Output().PrintAbort = false;
    Output().PageCounter = 1;
    PageCache pages;
    PageOutput output(nullptr, nullptr, &pdf);
    const int drawn = WalkSteps(steps, pages, output);
    pages.UnloadPages();
    if (!pdf.FinishFile()) {
        err << "Cannot complete " << QDir::toNativeSeparators(QFileInfo(file).absoluteFilePath()) << '\n';
        return 1;
    }
    out << "Wrote " << drawn << " topics, " << pdf.surface().PageCount() << " pages to " << file << '\n';
    return 0;
}
} // namespace

int WriteSessionPdf(int progMode, const QSet<QString> &ticked, const QString &file, QTextStream &out, QTextStream &err)
{
    return writeSteps(SelectedSteps(progMode, false, ticked), file, out, err);
}

int RunPdfCommand(const QStringList &args, QTextStream &out, QTextStream &err)
{
    const QStringList keys = PrintKeys(1, false);
    const QString usage = kPdfUsage.arg(keys.join(QLatin1Char(',')));
    const QList<QCommandLineOption> extra{
        {QStringLiteral("out"), QStringLiteral("The PDF file to write."), QStringLiteral("FILE")},
        TopicsOption(),
    };
    return RunWithChart(args, out, err, extra, usage, [&](const QCommandLineParser &p, std::unique_ptr<clsPlanets> &chart, QSqlDatabase &db) {
        const QString file = p.value(QStringLiteral("out"));
        if (file.isEmpty()) {
            err << "Missing --out FILE.\n" << usage;
            return 2;
        }
        QSet<QString> ticked;
        if (const int status = ReadTopics(p, keys, ticked, err, usage))
            return status;
        SessionGlobals &s = Session();
        s.ProgMode = 1;
        s.TextDB = db;
        s.CurPlanets = std::move(chart);
        const int status = WriteSessionPdf(1, ticked, file, out, err);
        s.ReleaseCharts();
        s.TextDB = QSqlDatabase();
        return status;
    });
}

int WriteVarshaPdf(const QString &file, QTextStream &out, QTextStream &err)
{
    return writeSteps(PrintWalkForMode(4, false), file, out, err);
}
