// SPDX-License-Identifier: AGPL-3.0-or-later
#include "cli/HtmlCommand.h"

#include "cli/BirthOptions.h"
#include "output/PrintTree.h"
#include "session/Session.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryFile>

namespace {
const QString kUsage = QStringLiteral(
    "Usage: orbanta html <the birth options of 'orbanta chart'> --out DIR [--topics KEY,KEY...]\n"
    "Writes DIR/Index.HTML and the pictures of its pages; DIR is made when missing.\n"
    "Topics are the keys of the print tree; all topics by default. Keys: %1\n");

// Why folder can't take the export, or empty when it can: it is made if missing, and a file
// is tried in it.
QString folderFault(const QString &folder)
{
    const QString shown = QDir::toNativeSeparators(QFileInfo(folder).absoluteFilePath());
    if (QFileInfo(folder).exists() && !QFileInfo(folder).isDir())
        return QStringLiteral("Cannot write to %1: it is a file, not a folder.").arg(shown);
    if (!QDir().mkpath(folder))
        return QStringLiteral("Cannot make the folder %1.").arg(shown);
    QTemporaryFile probe(QDir(folder).filePath(QStringLiteral(".orbanta-XXXXXX")));
    if (!probe.open())
        return QStringLiteral("Cannot write to the folder %1.").arg(shown);
    return {};
}
} // namespace

int RunHtmlCommand(const QStringList &args, QTextStream &out, QTextStream &err, const HtmlFolderWriter &write)
{
    const QStringList keys = PrintKeys(1, false);
    const QString usage = kUsage.arg(keys.join(QLatin1Char(',')));
    const QList<QCommandLineOption> extra{
        {QStringLiteral("out"), QStringLiteral("The folder to write Index.HTML and its pictures into."), QStringLiteral("DIR")},
        TopicsOption(),
    };
    return RunWithChart(args, out, err, extra, usage, [&](const QCommandLineParser &p, std::unique_ptr<clsPlanets> &chart, QSqlDatabase &db) {
        const QString folder = p.value(QStringLiteral("out"));
        if (folder.isEmpty()) {
            err << "Missing --out DIR.\n" << usage;
            return 2;
        }
        QSet<QString> ticked;
        if (const int status = ReadTopics(p, keys, ticked, err, usage))
            return status;
        if (const QString fault = folderFault(folder); !fault.isEmpty()) {
            err << fault << '\n';
            return 2;
        }
        if (!write) {
            err << "This build can't draw pages.\n";
            return 1;
        }
        SessionGlobals &s = Session();
        s.ProgMode = 1;
        s.TextDB = db;
        s.CurPlanets = std::move(chart);
        const int status = write(1, ticked, folder, out, err);
        s.ReleaseCharts();
        s.TextDB = QSqlDatabase();
        return status;
    });
}
