// SPDX-License-Identifier: AGPL-3.0-or-later
#include "cli/VarshaCommand.h"

#include "cli/BirthOptions.h"
#include "cli/ChartCommand.h"
#include "sky/AppSettings.h"
#include "session/Session.h"
#include "sky/clsPlanets.h"
#include "varsha/AnnualReading.h"
#include "varsha/clsSaham.h"
#include "varsha/clsVarsha.h"
#include "varsha/clsVarshaYoga.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace {

const QString kUsage = QStringLiteral(
    "Usage: orbanta varsha <the birth options of 'orbanta chart'> --year YYYY [--exact-return] [--json] [--out FILE]\n"
    "The year is one of the birth year and the 99 after it. --exact-return casts the year at the\n"
    "moment the Sun returns to its birth longitude; --out writes the annual pages as a PDF file.\n");

QJsonArray rows(const std::vector<VarshaDashaRow> &rows)
{
    QJsonArray a;
    const QString form = QStringLiteral("dd/MM/yyyy hh:mm");
    for (const VarshaDashaRow &r : rows)
        a.append(QJsonObject{{QStringLiteral("lord"), r.Lord},
                             {QStringLiteral("start"), r.Start.toString(form)},
                             {QStringLiteral("end"), r.End.toString(form)}});
    return a;
}

void writeSummary(const clsVarsha &v, QTextStream &out)
{
    const clsPlanets &a = v.Annual();
    const clsPerson &p = a.Person();
    out << "Name        : " << (p.Name().isEmpty() ? QStringLiteral("-") : p.Name()) << '\n';
    out << "Age         : " << v.Age() << '\n';
    out << "Year begins : " << p.GetBirthDate().toString(QStringLiteral("dd/MM/yyyy hh:mm")) << ':' << QString::number(p.seconds()).rightJustified(2, QLatin1Char('0'))
        << '\n';
    out << "Muntha      : sign " << v.Muntha() << ", house " << v.MunthaHouse() << '\n';
    out << "Officials   :";
    for (int i = 1; i <= 5; ++i)
        out << ' ' << clsPlanets::PlanetNameFullEng(v.Panchadhikari(i));
    out << '\n' << "Year lord   : " << clsPlanets::PlanetNameFullEng(v.Varsheswara()) << "\n\nMudda Vimshottari\n";
    for (const VarshaDashaRow &r : v.MuddaVimshottariRows())
        out << QStringLiteral("  %1 %2 - %3\n")
                   .arg(clsPlanets::PlanetNameFullEng(r.Lord), -8)
                   .arg(r.Start.toString(QStringLiteral("dd/MM/yyyy")), r.End.toString(QStringLiteral("dd/MM/yyyy")));
}

} // namespace

QJsonObject VarshaJson(const clsVarsha &v)
{
    QJsonObject o;
    o.insert(QStringLiteral("age"), v.Age());
    const QJsonObject cast = ChartCastJson(v.Annual());
    o.insert(QStringLiteral("annual"), QJsonObject{{QStringLiteral("person"), cast.value(QStringLiteral("person"))},
                                                   {QStringLiteral("planets"), cast.value(QStringLiteral("planets"))}});
    o.insert(QStringLiteral("muntha"), QJsonObject{{QStringLiteral("sign"), v.Muntha()}, {QStringLiteral("house"), v.MunthaHouse()}});
    static constexpr std::array<const char *, 5> kRoles{"dina_ratri_lord", "annual_lagna_lord", "birth_lagna_lord", "muntha_lord",
                                                        "tri_rashi_lord"};
    QJsonArray officials;
    for (int i = 1; i <= 5; ++i)
        officials.append(QJsonObject{{QStringLiteral("role"), QString::fromLatin1(kRoles[static_cast<size_t>(i - 1)])},
                                     {QStringLiteral("planet"), v.Panchadhikari(i)}});
    o.insert(QStringLiteral("panchadhikari"), officials);
    o.insert(QStringLiteral("year_lord"), v.Varsheswara());
    QJsonArray sahams;
    for (int n = 1; n <= clsSaham::kCount; ++n)
        sahams.append(QJsonObject{{QStringLiteral("key"), clsSaham::SahamKey(n)}, {QStringLiteral("longitude"), v.Saham().SahamLongi(n)}});
    o.insert(QStringLiteral("sahams"), sahams);
    o.insert(QStringLiteral("mudda"), rows(v.MuddaVimshottariRows()));
    o.insert(QStringLiteral("mudda_yogini"), rows(v.MuddaYoginiRows()));
    o.insert(QStringLiteral("patyayini"), rows(v.PatyayiniRows()));
    QJsonArray tajika;
    for (const clsVarshaYoga::Report &r : v.VarshaYoga().Reports())
        tajika.append(r.Key);
    o.insert(QStringLiteral("tajika"), tajika);
    return o;
}

int RunVarshaCommand(const QStringList &args, QTextStream &out, QTextStream &err, const VarshaPdfWriter &pdf)
{
    const QList<QCommandLineOption> extra{
        {QStringLiteral("year"), QStringLiteral("The calendar year of the reading."), QStringLiteral("YYYY")},
        {QStringLiteral("exact-return"), QStringLiteral("Cast the year at the exact return of the Sun.")},
        {QStringLiteral("json"), QStringLiteral("Print one JSON object.")},
        {QStringLiteral("out"), QStringLiteral("Write the annual pages to this PDF file."), QStringLiteral("FILE")},
    };
    return RunWithChart(args, out, err, extra, kUsage, [&](const QCommandLineParser &p, std::unique_ptr<clsPlanets> &chart, QSqlDatabase &db) {
        const long birthYear = chart->Person().Year();
        bool ok = false;
        const int year = p.value(QStringLiteral("year")).trimmed().toInt(&ok);
        if (!p.isSet(QStringLiteral("year")) || !ok) {
            err << "Missing or unreadable --year YYYY.\n" << kUsage;
            return 2;
        }
        if (year < birthYear || year > birthYear + 99) {
            err << "The year " << year << " is outside the annual readings of this birth: " << birthYear << " to " << birthYear + 99
                << ".\n";
            return 2;
        }
        if (p.isSet(QStringLiteral("out")) && (p.value(QStringLiteral("out")).isEmpty() || !pdf)) {
            err << "--out needs a file name.\n";
            return 2;
        }
        if (p.isSet(QStringLiteral("exact-return")))
            AppSettings::overrideForRun(QStringLiteral("Settings"), QStringLiteral("ExactReturn"), true);
        SessionGlobals &s = Session();
        s.ProgMode = 4;
        s.TextDB = db;
        s.CurPlanets = std::move(chart);
        s.VarshaYear = static_cast<int>(year - birthYear);
        int status = 0;
        const QString failed = MakeVarsha();
        if (!failed.isEmpty()) {
            err << failed << '\n';
            status = 1;
        } else if (p.isSet(QStringLiteral("out"))) {
            status = pdf(p.value(QStringLiteral("out")), out, err);
        } else if (p.isSet(QStringLiteral("json"))) {
            out << QJsonDocument(VarshaJson(*SessionVarsha())).toJson(QJsonDocument::Compact) << '\n';
        } else {
            writeSummary(*SessionVarsha(), out);
        }
        ReleaseVarsha();
        s.ReleaseCharts();
        s.TextDB = QSqlDatabase();
        return status;
    });
}
