// SPDX-License-Identifier: AGPL-3.0-or-later
#include "cli/MatchCommand.h"

#include "cli/BirthOptions.h"
#include "cli/ChartCommand.h"
#include "marriage/ScoreFiles.h"
#include "marriage/clsMarr.h"
#include "session/Session.h"
#include "sky/Functions.h"
#include "text/TextDB.h"

#include <QDir>
#include <QFileInfo>

#include <QJsonArray>
#include <QJsonDocument>

namespace {

const QString kUsage = QStringLiteral(
    "Usage: orbanta match <the boy's birth> <the girl's birth> [--json] [--out FILE]\n"
    "  The boy's birth:  --date DD/MM/YYYY --time HH.MM (--place NAME[,COUNTRY] | --lat DDD:MM{N|S}\n"
    "                    --lon DDD:MM{E|W} --gmt {+|-}HH.MM) [--name TEXT] [--tcorr {+|-}HH.MM]\n"
    "  The girl's birth: the same options prefixed girl-: --girl-date, --girl-time, --girl-place or\n"
    "                    --girl-lat, --girl-lon, --girl-gmt, --girl-name, --girl-tcorr\n"
    "  [--ayanamsa N] [--node mean|true] [--vakya] for both charts.\n"
    "  --json prints one object; --out FILE writes the marriage report as a PDF.\n");

MatchPdfWriter &pdfWriter()
{
    static MatchPdfWriter writer;
    return writer;
}

QJsonObject personJson(const clsPlanets &c)
{
    QJsonObject o = PersonJson(c.Person());
    o.insert(QStringLiteral("moon_sign"), c.RashiNum());
    o.insert(QStringLiteral("nakshatra"), c.Nakshatra());
    return o;
}

void writeTable(const clsMarr &m, QTextStream &out)
{
    const clsPlanets &boy = *m.clsBoy(), &girl = *m.clsGal();
    out << "Boy       : " << (boy.Person().Name().isEmpty() ? QStringLiteral("-") : boy.Person().Name()) << "  ("
        << boy.RashiName() << ", " << boy.GetNakshatraName(boy.Nakshatra()) << ")\n";
    out << "Girl      : " << (girl.Person().Name().isEmpty() ? QStringLiteral("-") : girl.Person().Name()) << "  ("
        << girl.RashiName() << ", " << girl.GetNakshatraName(girl.Nakshatra()) << ")\n\n";
    out << QStringLiteral("%1 %2 %3 %4\n").arg(QStringLiteral("Kuta"), -12).arg(QStringLiteral("Boy"), -20).arg(QStringLiteral("Girl"), -20).arg(QStringLiteral("Points"));
    for (int k = 0; k < clsMarr::kKutaCount; ++k)
        out << QStringLiteral("%1 %2 %3 %4 / %5\n")
                   .arg(clsMarr::KutaKey(k), -12)
                   .arg(m.Detail(k, 1), -20)
                   .arg(m.Detail(k, 2), -20)
                   .arg(NumText(m.Score(k)), 4)
                   .arg(NumText(clsMarr::KutaMax(k)));
    out << QStringLiteral("%1 %2 / 36  (rounded %3, %4)\n\n")
               .arg(QStringLiteral("Total"), -54)
               .arg(NumText(m.TotalScore()), 4)
               .arg(m.RoundedTotal())
               .arg(m.GetTotSCO());
    out << "Manglik   : " << m.ManglikCode() << '\n';
    for (int who : {1, 2})
        if (!m.ManglikCancelText(who).isEmpty())
            out << "            " << m.ManglikCancelText(who) << '\n';
    const auto yes = [](bool b) { return b ? QStringLiteral("yes") : QStringLiteral("no"); };
    out << "Rajju " << yes(m.ResuRajju()) << ", Mahendra " << yes(m.ResuMahendra()) << ", Stree Deergha " << yes(m.ResuStreeDee())
        << ", free of Vedha " << yes(m.ResuVedha()) << '\n';
}

} // namespace

void SetMatchPdfWriter(MatchPdfWriter writer) { pdfWriter() = std::move(writer); }

QJsonObject MatchJson(const clsMarr &m)
{
    QJsonArray kutas;
    for (int k = 0; k < clsMarr::kKutaCount; ++k)
        kutas.append(QJsonObject{{QStringLiteral("name"), clsMarr::KutaKey(k)},
                                 {QStringLiteral("boy"), m.Detail(k, 1)},
                                 {QStringLiteral("girl"), m.Detail(k, 2)},
                                 {QStringLiteral("points"), m.Score(k)},
                                 {QStringLiteral("max"), clsMarr::KutaMax(k)}});
    return QJsonObject{
        {QStringLiteral("boy"), personJson(*m.clsBoy())},
        {QStringLiteral("girl"), personJson(*m.clsGal())},
        {QStringLiteral("kutas"), kutas},
        {QStringLiteral("total"), m.RoundedTotal()},
        {QStringLiteral("verdict"), m.GetTotSCO()},
        {QStringLiteral("manglik"), QJsonObject{{QStringLiteral("code"), m.ManglikCode()},
                                                {QStringLiteral("boy_cancellation"), m.ManglikCancelText(1)},
                                                {QStringLiteral("girl_cancellation"), m.ManglikCancelText(2)}}},
        {QStringLiteral("checks"), QJsonObject{{QStringLiteral("rajju"), m.ResuRajju()},
                                               {QStringLiteral("mahendra"), m.ResuMahendra()},
                                               {QStringLiteral("stree_deergha"), m.ResuStreeDee()},
                                               {QStringLiteral("vedha"), m.ResuVedha()}}},
    };
}

int RunMatchCommand(const QStringList &args, QTextStream &out, QTextStream &err)
{
    const QList<QCommandLineOption> extra{
        {QStringLiteral("json"), QStringLiteral("Print one JSON object.")},
        {QStringLiteral("out"), QStringLiteral("Write the marriage report to this PDF file."), QStringLiteral("FILE")},
    };
    return RunWithCouple(args, out, err, extra, kUsage,
                         [&](const QCommandLineParser &p, std::unique_ptr<clsPlanets> &boy, std::unique_ptr<clsPlanets> &girl, QSqlDatabase &db) {
                             if (p.isSet(QStringLiteral("out")) && p.value(QStringLiteral("out")).isEmpty()) {
                                 err << "--out needs a file name.\n" << kUsage;
                                 return 2;
                             }
                             for (const QString &f : ScoreFiles::Files()) {
                                 const QString path = StuffFolder() + QLatin1Char('/') + f;
                                 if (!QFileInfo(path).isFile()) {
                                     err << "Score file not found: " << QDir::toNativeSeparators(path) << '\n';
                                     return 1;
                                 }
                             }
                             clsMarr match(boy.get(), girl.get());
                             match.DoMatch();
                             if (p.isSet(QStringLiteral("json")))
                                 out << QJsonDocument(MatchJson(match)).toJson(QJsonDocument::Compact) << '\n';
                             else if (!p.isSet(QStringLiteral("out")))
                                 writeTable(match, out);
                             if (!p.isSet(QStringLiteral("out")))
                                 return 0;
                             if (!pdfWriter()) {
                                 err << "This program can't draw the report's pages.\n";
                                 return 1;
                             }
                             SessionGlobals &s = Session();
                             s.ReleaseCharts();
                             s.ProgMode = 2;
                             s.TextDB = db;
                             s.BoyPlanets = std::move(boy);
                             s.GalPlanets = std::move(girl);
                             const int status = pdfWriter()(p.value(QStringLiteral("out")), out, err);
                             s.ReleaseCharts();
                             s.TextDB = QSqlDatabase();
                             s.ProgMode = 1;
                             return status;
                         });
}
