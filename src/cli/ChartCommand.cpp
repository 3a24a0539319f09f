// SPDX-License-Identifier: AGPL-3.0-or-later
#include "cli/ChartCommand.h"

#include "cli/BirthOptions.h"
#include "dasha/TribhagiDasha.h"
#include "dasha/YoginiDasha.h"
#include "dasha/clsDashaVimshottari.h"
#include "jaimini/JaiminiDashaJson.h"
#include "jaimini/JaiminiJson.h"
#include "jaimini/clsJaimini.h"
#include "kp/KPJson.h"
#include "kp/clsKPSystem.h"
#include "muhurtha/clsSadeSati.h"
#include "sky/Functions.h"
#include "sky/MessageSink.h"
#include "sky/SunEvents.h"
#include "strength/Maitri.h"
#include "strength/clsShadBala.h"
#include "yoga/CheckYogas.h"
#include "yoga/clsYoga.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <array>

namespace {

inline constexpr std::array<const char *, 13> kPlanetNames{
    "Lagna", "Sun", "Mercury", "Venus", "Mars", "Jupiter", "Saturn", "Moon", "Rahu", "Ketu", "Uranus", "Neptune", "Pluto"};
// The upagrahas 1..17 as the JSON names them.
inline constexpr std::array<const char *, 17> kUpagrahaKeys{
    "dhuma", "vyatipata", "parivesha", "indrachapa", "upaketu", "bhukampa", "ulka", "brahmadanda", "dhwaja",
    "kala", "paridhi", "mrityu", "ardhaprahara", "yamakantaka", "kodanda", "gulika", "mandi"};
inline constexpr std::array<const char *, 12> kSignNames{
    "Aries", "Taurus", "Gemini", "Cancer", "Leo", "Virgo", "Libra", "Scorpio", "Sagittarius", "Capricorn", "Aquarius", "Pisces"};

const QString kUsage = QStringLiteral(
    "Usage: orbanta chart --date DD/MM/YYYY --time HH.MM --lat DDD:MM{N|S} --lon DDD:MM{E|W}\n"
    "                     --gmt {+|-}HH.MM [--name TEXT] [--sex M|F] [--tcorr {+|-}HH.MM]\n"
    "   or: orbanta chart --date DD/MM/YYYY --time HH.MM --place NAME[,COUNTRY] [the same options]\n"
    "                     [--ayanamsa N] [--node mean|true] [--vakya] [--json]\n");

void writeTable(const clsPlanets &chart, QTextStream &out)
{
    const clsPerson &p = chart.Person();
    out << "Name      : " << (p.Name().isEmpty() ? QStringLiteral("-") : p.Name()) << '\n';
    out << "Born      : " << p.DayText() << '/' << p.MonthText() << '/' << p.Year() << ' ' << p.GetBirthTime()
        << "  GMT " << p.GMTDIFF() << "  " << p.GetLatitudeFull() << "  " << p.GetLongitudeFull() << '\n';
    out << "Ayanamsa  : " << clsPlanets::DecToDeg(chart.PlanetLongi(13)) << "  (choice " << chart.AyanType() << ")\n\n";
    out << QStringLiteral("%1 %2 %3 %4 %5\n")
               .arg(QStringLiteral("Planet"), -9)
               .arg(QStringLiteral("Longitude"), -11)
               .arg(QStringLiteral("Sign"), -12)
               .arg(QStringLiteral("In sign"), -10)
               .arg(QStringLiteral("Motion"));
    for (int n = 0; n <= 12; ++n) {
        const double l = chart.PlanetLongi(n);
        const int sign = static_cast<int>(Int(l / 30)) % 12;
        QString motion = QStringLiteral("-");
        if (n != 0)
            motion = chart.RetroGrade(n) ? QStringLiteral("R") : QStringLiteral("D");
        out << QStringLiteral("%1 %2 %3 %4 %5\n")
                   .arg(QString::fromLatin1(kPlanetNames[static_cast<size_t>(n)]), -9)
                   .arg(clsPlanets::DecToDeg(l), -11)
                   .arg(QString::fromLatin1(kSignNames[static_cast<size_t>(sign)]), -12)
                   .arg(clsPlanets::ConvertValNoDeg(l - sign * 30.0), -10)
                   .arg(motion);
    }
}

// The five-fold friendship of the nine planets, rows and columns 1..9; null on the diagonal.
QJsonArray maitriJson(const clsPlanets &chart)
{
    const Maitri m(chart);
    QJsonArray rows;
    for (int a = 1; a <= 9; ++a) {
        QJsonArray row;
        for (int b = 1; b <= 9; ++b) {
            const std::optional<int> v = m.FiveFold(a, b);
            row.append(v ? QJsonValue(*v) : QJsonValue(QJsonValue::Null));
        }
        rows.append(row);
    }
    return rows;
}

QString dashaMoment(const QDateTime &d) { return d.toString(QStringLiteral("dd/MM/yyyy hh:mm")); }

QJsonObject dashaRow(int lord, const QDateTime &start, const QDateTime &end)
{
    return QJsonObject{{QStringLiteral("lord"), lord}, {QStringLiteral("start"), dashaMoment(start)}, {QStringLiteral("end"), dashaMoment(end)}};
}

QJsonArray yoginiJson(const YoginiRows &rows)
{
    QJsonArray out;
    for (const YoginiPeriod &r : rows) {
        QJsonObject o = dashaRow(Yogini::Lord(r.K), r.Start, r.End);
        o.insert(QStringLiteral("yogini"), r.K);
        out.append(o);
    }
    return out;
}

// The Tribhagi Mahas with their bhuktis, and the Yogini and Shat Trimsha rows; lords are planet
// numbers, the eight-fold cycle's place goes with them as "yogini" (0 Sankata .. 7 Siddha).
QJsonObject dashasJson(const clsPlanets &chart)
{
    QJsonArray tribhagi;
    for (const TribhagiMaha &m : Tribhagi::Mahas(chart)) {
        QJsonObject o = dashaRow(m.Period.Lord, m.Period.Start, m.Period.End);
        QJsonArray bhuktis;
        for (const TribhagiPeriod &b : m.Bhuktis)
            bhuktis.append(dashaRow(b.Lord, b.Start, b.End));
        o.insert(QStringLiteral("bhuktis"), bhuktis);
        tribhagi.append(o);
    }
    return QJsonObject{{QStringLiteral("tribhagi"), tribhagi},
                       {QStringLiteral("yogini"), yoginiJson(Yogini::YoginiDasha(chart))},
                       {QStringLiteral("shat_trimsha"), yoginiJson(Yogini::ShatTrimshaDasha(chart))}};
}

// The seventeen upagrahas in the school in force; the day-based ones and Mandi are null where the
// Sun doesn't rise or set that day.
QJsonArray upagrahasJson(const clsPlanets &chart)
{
    QJsonArray out;
    for (int n = 1; n <= 17; ++n)
        out.append(QJsonObject{{QStringLiteral("n"), n},
                               {QStringLiteral("key"), QString::fromLatin1(kUpagrahaKeys[static_cast<size_t>(n - 1)])},
                               {QStringLiteral("longitude"),
                                chart.UpagrahaKnown(n) ? QJsonValue(chart.UpagrahaLongi(n)) : QJsonValue(QJsonValue::Null)}});
    return out;
}

} // namespace

QJsonObject PersonJson(const clsPerson &person)
{
    return QJsonObject{
        {QStringLiteral("name"), person.Name()},
        {QStringLiteral("day"), static_cast<qint64>(person.Day())},
        {QStringLiteral("month"), static_cast<qint64>(person.Month())},
        {QStringLiteral("year"), static_cast<qint64>(person.Year())},
        {QStringLiteral("hour"), static_cast<qint64>(person.Hour())},
        {QStringLiteral("minutes"), static_cast<qint64>(person.Minutes())},
    };
}

QJsonObject ChartCastJson(const clsPlanets &chart)
{
    QJsonObject o;
    o.insert(QStringLiteral("person"), PersonJson(chart.Person()));
    o.insert(QStringLiteral("ayanamsa_type"), chart.AyanType());
    o.insert(QStringLiteral("ayanamsa"), chart.PlanetLongi(13));
    o.insert(QStringLiteral("kp_ayanamsa"), chart.KPAyanVal());
    o.insert(QStringLiteral("obliquity"), chart.Obliq());
    o.insert(QStringLiteral("sidereal_time"), chart.SidrealTime());
    QJsonArray planets;
    for (int n = 0; n <= 12; ++n) {
        QJsonObject pl{{QStringLiteral("n"), n}, {QStringLiteral("longitude"), chart.PlanetLongi(n)}};
        if (n != 0)
            pl.insert(QStringLiteral("next"), chart.PlanetLongi(n + 13));
        // The Lagna has no motion of its own to turn back: never retrograde here.
        pl.insert(QStringLiteral("retrograde"), n != 0 && chart.RetroGrade(n));
        planets.append(pl);
    }
    o.insert(QStringLiteral("planets"), planets);
    QJsonArray cusps;
    for (int i = 1; i <= 12; ++i)
        cusps.append(chart.KPHouse(i));
    o.insert(QStringLiteral("kp_cusps"), cusps);
    // Beyond the polar circles Placidus has no cusps, and the library's are Porphyry's.
    o.insert(QStringLiteral("kp_cusps_system"), chart.KPHousesPlacidus() ? QStringLiteral("Placidus") : QStringLiteral("Porphyry"));
    o.insert(QStringLiteral("kp"), KPJson(clsKPSystem(chart)));
    QJsonArray mids, begins;
    for (int i = 0; i <= 12; ++i) {
        mids.append(chart.BhavMid(i));
        begins.append(chart.BhavBegin(i));
    }
    o.insert(QStringLiteral("bhava_mid"), mids);
    o.insert(QStringLiteral("bhava_begin"), begins);
    o.insert(QStringLiteral("panchang"), QJsonObject{
                                             {QStringLiteral("tithi"), chart.Tithi()},
                                             {QStringLiteral("nakshatra"), chart.Nakshatra()},
                                             {QStringLiteral("pada"), chart.Pada()},
                                             {QStringLiteral("yoga"), chart.YogaNumber()},
                                             {QStringLiteral("karana"), chart.KaranNumber()},
                                             {QStringLiteral("weekday_lord"), chart.WeekDayLord()},
                                             {QStringLiteral("rashi"), chart.RashiNum()},
                                         });
    QJsonArray vargas;
    for (int k = 0; k < 18; ++k) {
        QJsonArray row;
        for (int n = 0; n <= 12; ++n) {
            const std::optional<int> sign = chart.PrediVargaValue(n, k);
            row.append(sign ? QJsonValue(*sign) : QJsonValue(QJsonValue::Null));
        }
        vargas.append(row);
    }
    o.insert(QStringLiteral("vargas"), vargas);
    QJsonArray mahas;
    for (const DashaPeriod &m : Vimshottari::Mahas(chart))
        mahas.append(QJsonObject{{QStringLiteral("lord"), m.Lord},
                                 {QStringLiteral("start"), m.Start.toString(QStringLiteral("dd/MM/yyyy hh:mm"))},
                                 {QStringLiteral("years"), m.Years}});
    o.insert(QStringLiteral("vimshottari"), mahas);
    o.insert(QStringLiteral("dashas"), dashasJson(chart));
    chart.AshTable();
    QJsonArray ashVarga, ashTotal;
    for (int varga = 0; varga <= 8; ++varga) {
        QJsonArray row;
        for (int s = 1; s <= 12; ++s)
            row.append(chart.AshVarga(varga, s));
        ashVarga.append(row);
    }
    for (int s = 1; s <= 12; ++s)
        ashTotal.append(chart.AshTotal(s));
    QJsonArray yogas;
    for (const QString &key : CheckYogas::NameKeys(CheckYogas::ScanYogas(chart)))
        yogas.append(key);
    o.insert(QStringLiteral("yogas"), yogas);
    o.insert(QStringLiteral("catalogue"), QJsonArray::fromStringList(clsYoga(chart).CatalogueHolds()));
    o.insert(QStringLiteral("ashtakavarga"), QJsonObject{{QStringLiteral("varga"), ashVarga}, {QStringLiteral("total"), ashTotal}});
    o.insert(QStringLiteral("maitri"), maitriJson(chart));
    return o;
}

QJsonObject ChartDayJson(const clsPlanets &chart)
{
    QJsonObject o;
    // On a day without sunrise or sunset the times are null and sun_events says why; day_start and
    // day_end are the clocks the day parts (hora, Tribhaga, the prahars) are counted from either way.
    const SunDay kind = SunDayKind(chart);
    const bool normal = kind == SunDay::Normal;
    o.insert(QStringLiteral("sunrise"), normal ? QJsonValue(chart.SunRiseTime()) : QJsonValue(QJsonValue::Null));
    o.insert(QStringLiteral("sunset"), normal ? QJsonValue(chart.SunSetTime()) : QJsonValue(QJsonValue::Null));
    o.insert(QStringLiteral("sun_events"), normal                          ? QStringLiteral("normal")
                                           : kind == SunDay::MidnightSun ? QStringLiteral("midnight sun")
                                                                         : QStringLiteral("polar night"));
    o.insert(QStringLiteral("day_start"), chart.SunRiseTime());
    o.insert(QStringLiteral("day_end"), chart.SunSetTime());
    o.insert(QStringLiteral("upagrahas"), upagrahasJson(chart));
    clsShadBala sb(chart);
    QJsonArray shadbala;
    for (int p = 1; p <= 7; ++p)
        shadbala.append(QJsonObject{{QStringLiteral("planet"), p},
                                    {QStringLiteral("sthana"), sb.SBSthanaBala(p)},
                                    {QStringLiteral("dik"), sb.SBDikBala(p).toDouble()},
                                    {QStringLiteral("kala"), sb.SBKaalaBala(p).toDouble()},
                                    {QStringLiteral("chesta"), sb.SBChestaBala(p)},
                                    {QStringLiteral("naisargika"), sb.SBNaisargikaBala(p)},
                                    {QStringLiteral("drig"), sb.SBDrigBala(p).toDouble()},
                                    {QStringLiteral("total"), sb.TotalShadBala(p).toDouble()},
                                    {QStringLiteral("rupas"), sb.RupaShadbala(p).toDouble()}});
    o.insert(QStringLiteral("shadbala"), shadbala);

    // Sade Sati casts the chart again on the day of each of Saturn's entries, for its Paya.
    QJsonArray sade;
    QSqlDatabase entries;
    if (clsSadeSati::OpenDB(entries)) {
        for (const SadeSatiRow &r : clsSadeSati::MakeSadeSati(chart, entries))
            sade.append(QJsonObject{{QStringLiteral("phase"), clsSadeSati::PhaseKey(r.phase)},
                                    {QStringLiteral("sign"), r.sign},
                                    {QStringLiteral("entry"), clsSadeSati::ShowDate(r.entry)},
                                    {QStringLiteral("exit"), clsSadeSati::ShowDate(r.exit)},
                                    {QStringLiteral("paya"), r.paya}});
        clsSadeSati::CloseDB(entries);
    } else {
        messageSink().warn(QStringLiteral("File Not Found"),
                           QStringLiteral("Please Re-install Software.\nCould Not Locate SADESAT.Dat."));
    }
    o.insert(QStringLiteral("sade_sati"), sade);
    return o;
}

QJsonObject ChartJson(const clsPlanets &chart)
{
    QJsonObject o = ChartCastJson(chart);
    const QJsonObject day = ChartDayJson(chart);
    for (auto it = day.begin(); it != day.end(); ++it)
        o.insert(it.key(), it.value());
    // The karakas, the special lagnas and the padas.
    o.insert(QStringLiteral("jaimini"), JaiminiJson(clsJaimini(chart)));
    // Last, so that the sign dashas join whatever else the "jaimini" object holds.
    AddJaiminiDashasJson(o, clsJaimini(chart));
    return o;
}

int RunChartCommand(const QStringList &args, QTextStream &out, QTextStream &err)
{
    return RunWithChart(args, out, err, {{QStringLiteral("json"), QStringLiteral("Print one JSON object.")}}, kUsage,
                        [&out](const QCommandLineParser &p, std::unique_ptr<clsPlanets> &chart, QSqlDatabase &) {
                            if (p.isSet(QStringLiteral("json")))
                                out << QJsonDocument(ChartJson(*chart)).toJson(QJsonDocument::Compact) << '\n';
                            else
                                writeTable(*chart, out);
                            return 0;
                        });
}
