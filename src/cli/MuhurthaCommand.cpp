// SPDX-License-Identifier: AGPL-3.0-or-later
#include "cli/MuhurthaCommand.h"

#include "cli/BirthOptions.h"
#include "muhurtha/MuhurthaSpan.h"
#include "muhurtha/clsMuhurtha.h"
#include "sky/clsPlanets.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>

namespace {

const QString kUsage = QStringLiteral(
    "Usage: orbanta muhurtha --list\n"
    "   or: orbanta muhurtha --act CODE --from DD/MM/YYYY --to DD/MM/YYYY\n"
    "                        (--place NAME[,COUNTRY] | --lat DDD:MM{N|S} --lon DDD:MM{E|W} --gmt {+|-}HH.MM)\n"
    "                        [--start HH.MM] [--end HH.MM] [--json] [--out FILE]\n"
    "   or: orbanta muhurtha --act CODE --at DD/MM/YYYY --time HH.MM (--place ... | --lat ... --lon ... --gmt ...)\n"
    "                        [--json] [--out FILE]\n"
    "Each day of the span is tried from the start time (default 06.00) every 2 h 30 min up to the\n"
    "end time (default 18.00) or midnight; --at scores the one moment given.\n");

// The value of option name in args ("--name value" or "--name=value"); null when absent.
QString optionValue(const QStringList &args, const QString &name)
{
    const QString flag = QStringLiteral("--") + name;
    for (qsizetype i = 0; i < args.size(); ++i) {
        if (args[i] == flag && i + 1 < args.size())
            return args[i + 1];
        if (args[i].startsWith(flag + QLatin1Char('=')))
            return args[i].mid(flag.size() + 1);
    }
    return {};
}

bool hasOption(const QStringList &args, const QString &name)
{
    const QString flag = QStringLiteral("--") + name;
    for (const QString &a : args)
        if (a == flag || a.startsWith(flag + QLatin1Char('=')))
            return true;
    return false;
}

QDate readDate(const QString &text)
{
    static const QRegularExpression re(QStringLiteral("^(\\d{1,2})/(\\d{1,2})/(\\d{4})$"));
    const auto m = re.match(text.trimmed());
    if (!m.hasMatch())
        return {};
    return QDate(m.captured(3).toInt(), m.captured(2).toInt(), m.captured(1).toInt());
}

QString clockText(double t) { return QString::asprintf("%05.2f", t); }

int listActs(QTextStream &out, QTextStream &err, bool json)
{
    clsMuhurtha muhu;
    if (!muhu.IsOpen()) {
        err << "Muhurtha database not found: " << QDir::toNativeSeparators(muhu.FilePath()) << '\n';
        return 1;
    }
    QJsonArray acts;
    for (const MuhuAct &a : muhu.Acts()) {
        if (json)
            acts.append(QJsonObject{{QStringLiteral("code"), a.code}, {QStringLiteral("category"), a.category}, {QStringLiteral("name"), a.name}});
        else
            out << QStringLiteral("%1 %2 %3\n").arg(a.code, -14).arg(a.category, -12).arg(a.name);
    }
    if (json)
        out << QJsonDocument(acts).toJson(QJsonDocument::Indented);
    return 0;
}

// Name of an element code, or the code itself when the text database has none.
QString elementName(const clsMuhurtha &muhu, const QString &code)
{
    const QString name = muhu.GetMuhuName(code);
    return name.isEmpty() ? code : name;
}

void writeReport(const clsMuhurtha &muhu, const clsPlanets &place, bool single, QTextStream &out)
{
    const clsPerson &p = place.Person();
    out << "Act        : " << muhu.MuhuCode() << "  " << muhu.MuhuName() << " (" << muhu.MuhuCategory() << ")\n";
    out << "Place      : " << (p.PLOB().isEmpty() ? QStringLiteral("-") : p.GetBirthPlace()) << "  " << p.GetLatitudeFull() << "  "
        << p.GetLongitudeFull() << "  GMT " << p.GMTDIFF() << '\n';
    if (single)
        out << "Moment     : " << muhu.BestMuhuDate().toString(QStringLiteral("dd/MM/yyyy")) << ' ' << muhu.BestMuhuTime() << '\n';
    else
        out << "Span       : " << muhu.StartDate().toString(QStringLiteral("dd/MM/yyyy")) << " to "
            << muhu.EndDate().toString(QStringLiteral("dd/MM/yyyy")) << ", " << clockText(muhu.TimeStart()) << " to "
            << clockText(muhu.TimeEnd()) << "  (" << muhu.SampleCount() << " moments cast)\n";
    out << (single ? "Score      : " : "Best       : ");
    if (!single)
        out << muhu.BestMuhuDate().toString(QStringLiteral("dd/MM/yyyy")) << ' ' << muhu.BestMuhuTime() << "  score ";
    out << muhu.BestMuhuScore() << " of " << muhu.MaxPossibleScore() << "  (" << QString::number(muhu.BestMuhuPercent(), 'f', 2) << "%)\n";
    const auto hits = clsMuhurtha::SplitFructElems(muhu.BestMuhuFructElems());
    out << "Elements   :" << (hits.empty() ? " none fired" : "") << '\n';
    for (const MuhuElementHit &h : hits)
        out << QStringLiteral("  %1 %2 %3\n").arg(h.code, -18).arg(h.points > 0 ? QStringLiteral("+%1").arg(h.points) : QString::number(h.points), 4).arg(elementName(muhu, h.code));
    if (muhu.LagnaStartChart() && muhu.LagnaEndChart())
        out << "Lagna      : " << clsMuhurtha::MomentText(*muhu.LagnaStartChart()) << " to " << clsMuhurtha::MomentText(*muhu.LagnaEndChart()) << '\n';
    if (!single) {
        out << "Best day   :";
        for (long i = 1; i <= muhu.GetBestDayMuhusCount(); ++i)
            out << "  " << muhu.GetDayMuhuTime(i) << ' ' << QString::number(muhu.GetDayMuhuScore(i));
        out << '\n';
    }
    const QString text = muhu.PredictionText();
    if (!text.isEmpty())
        out << '\n' << text << '\n';
}

} // namespace

QJsonObject MuhurthaJson(const clsMuhurtha &muhu)
{
    QJsonArray elements;
    for (const MuhuElementHit &h : clsMuhurtha::SplitFructElems(muhu.BestMuhuFructElems()))
        elements.append(QJsonObject{{QStringLiteral("code"), h.code}, {QStringLiteral("points"), static_cast<qint64>(h.points)}});
    QJsonObject best{
        {QStringLiteral("date"), muhu.BestMuhuDate().toString(QStringLiteral("dd/MM/yyyy"))},
        {QStringLiteral("time"), muhu.BestMuhuTime()},
        {QStringLiteral("score"), muhu.BestMuhuScoreValue()},
        {QStringLiteral("percent"), muhu.BestMuhuPercent()},
        {QStringLiteral("max_score"), static_cast<qint64>(muhu.MaxPossibleScore())},
        {QStringLiteral("elements"), elements},
    };
    if (muhu.LagnaStartChart() && muhu.LagnaEndChart()) {
        best.insert(QStringLiteral("lagna_start"), clsMuhurtha::MomentText(*muhu.LagnaStartChart()));
        best.insert(QStringLiteral("lagna_end"), clsMuhurtha::MomentText(*muhu.LagnaEndChart()));
    }
    QJsonArray day;
    for (long i = 1; i <= muhu.GetBestDayMuhusCount(); ++i)
        day.append(QJsonObject{{QStringLiteral("time"), muhu.GetDayMuhuTime(i)}, {QStringLiteral("score"), muhu.GetDayMuhuScore(i)}});
    return QJsonObject{
        {QStringLiteral("act"), QJsonObject{{QStringLiteral("code"), muhu.MuhuCode()},
                                            {QStringLiteral("name"), muhu.MuhuName()},
                                            {QStringLiteral("category"), muhu.MuhuCategory()}}},
        {QStringLiteral("best"), best},
        {QStringLiteral("best_day"), day},
        {QStringLiteral("samples"), static_cast<qint64>(muhu.SampleCount())},
    };
}

int RunMuhurthaCommand(const QStringList &args, QTextStream &out, QTextStream &err)
{
    if (hasOption(args, QStringLiteral("help"))) {
        out << kUsage;
        return 0;
    }
    if (hasOption(args, QStringLiteral("list")))
        return listActs(out, err, hasOption(args, QStringLiteral("json")));

    // The search reads the place through the birth options: the first day (or the moment of
    // --at) stands in for the birth date, and the start time for its clock.
    const bool single = hasOption(args, QStringLiteral("at"));
    if (hasOption(args, QStringLiteral("date"))) {
        err << "Give the days with --from and --to, or one moment with --at and --time.\n" << kUsage;
        return 2;
    }
    if (!hasOption(args, QStringLiteral("act"))) {
        err << "Missing --act; orbanta muhurtha --list shows the codes.\n" << kUsage;
        return 2;
    }
    double start = kMuhuDefaultStart;
    double end = kMuhuDefaultEnd;
    QStringList birthArgs = args;
    if (single) {
        if (hasOption(args, QStringLiteral("from")) || hasOption(args, QStringLiteral("to"))) {
            err << "--at tests one moment: leave out --from and --to.\n";
            return 2;
        }
        birthArgs << QStringLiteral("--date") << optionValue(args, QStringLiteral("at"));
    } else {
        if (!hasOption(args, QStringLiteral("from")) || !hasOption(args, QStringLiteral("to"))) {
            err << "Missing --from or --to.\n" << kUsage;
            return 2;
        }
        if (hasOption(args, QStringLiteral("time"))) {
            err << "--time goes with --at; a span takes --start and --end.\n";
            return 2;
        }
        if (hasOption(args, QStringLiteral("start"))) {
            const auto t = ReadMuhuClock(optionValue(args, QStringLiteral("start")));
            if (!t) {
                err << MuhuClockMessage(QStringLiteral("start")) << '\n';
                return 2;
            }
            start = *t;
        }
        if (hasOption(args, QStringLiteral("end"))) {
            const auto t = ReadMuhuClock(optionValue(args, QStringLiteral("end")));
            if (!t) {
                err << MuhuClockMessage(QStringLiteral("end")) << '\n';
                return 2;
            }
            end = *t;
        }
        const QString message = CheckMuhuSpan(readDate(optionValue(args, QStringLiteral("from"))), readDate(optionValue(args, QStringLiteral("to"))));
        if (!message.isEmpty()) {
            err << message << '\n';
            return 2;
        }
        birthArgs << QStringLiteral("--date") << optionValue(args, QStringLiteral("from")) << QStringLiteral("--time") << clockText(start);
    }

    const QList<QCommandLineOption> extra{
        {QStringLiteral("act"), QStringLiteral("Code of the act (see --list)."), QStringLiteral("CODE")},
        {QStringLiteral("from"), QStringLiteral("First day of the span."), QStringLiteral("DD/MM/YYYY")},
        {QStringLiteral("to"), QStringLiteral("Last day of the span."), QStringLiteral("DD/MM/YYYY")},
        {QStringLiteral("start"), QStringLiteral("First clock time of each day."), QStringLiteral("HH.MM")},
        {QStringLiteral("end"), QStringLiteral("Last clock time of each day."), QStringLiteral("HH.MM")},
        {QStringLiteral("at"), QStringLiteral("Day of the one moment to test."), QStringLiteral("DD/MM/YYYY")},
        {QStringLiteral("json"), QStringLiteral("Print one JSON object.")},
        {QStringLiteral("out"), QStringLiteral("Write to this file instead of standard output."), QStringLiteral("FILE")},
    };
    return RunWithChart(birthArgs, out, err, extra, kUsage,
                        [&](const QCommandLineParser &p, std::unique_ptr<clsPlanets> &chart, QSqlDatabase &textDb) {
                            clsMuhurtha muhu;
                            if (!muhu.IsOpen()) {
                                err << "Muhurtha database not found: " << QDir::toNativeSeparators(muhu.FilePath()) << '\n';
                                return 1;
                            }
                            bool found = false;
                            const MuhuAct act = muhu.ActByCode(p.value(QStringLiteral("act")), found);
                            if (!found) {
                                err << "\"" << p.value(QStringLiteral("act")) << "\" is not an act; orbanta muhurtha --list shows the codes.\n";
                                return 2;
                            }
                            muhu.setTextDB(textDb);
                            if (single)
                                muhu.CheckMuhuMoment(act.name, act.category, *chart);
                            else
                                muhu.CheckMuhurtha(act.name, act.category, readDate(p.value(QStringLiteral("from"))),
                                                   readDate(p.value(QStringLiteral("to"))), start, end, *chart);
                            QString text;
                            QTextStream buffer(&text);
                            if (p.isSet(QStringLiteral("json")))
                                buffer << QJsonDocument(MuhurthaJson(muhu)).toJson(QJsonDocument::Indented);
                            else
                                writeReport(muhu, *chart, single, buffer);
                            buffer.flush();
                            if (!p.isSet(QStringLiteral("out"))) {
                                out << text;
                                return 0;
                            }
                            QFile file(p.value(QStringLiteral("out")));
                            if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Text)) {
                                err << "Cannot write " << QDir::toNativeSeparators(file.fileName()) << ": " << file.errorString() << '\n';
                                return 1;
                            }
                            file.write(text.toUtf8());
                            return 0;
                        });
}
