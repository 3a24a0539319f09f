// SPDX-License-Identifier: AGPL-3.0-or-later
#include "cli/BirthOptions.h"

#include "sky/AppSettings.h"
#include "session/AtlasLookup.h"
#include "sky/DataPaths.h"
#include "session/EntryValidation.h"
#include "session/ZoneHistory.h"
#include "sky/Functions.h"
#include "sky/clsPlanets.h"
#include "sky/MessageSink.h"
#include "text/TextDB.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

namespace {

// A failure of the command's input: already formatted for standard error.
struct InputError
{
    QString text;
};

// A failure of the program's own files (status 1).
struct SetupError
{
    QString text;
};

// Messages of the core (a missing text key) go to standard error as one line each; the run goes on.
class StreamSink final : public MessageSink
{
public:
    explicit StreamSink(QTextStream &err) : m_err(err) {}
    void warn(const QString &title, const QString &text) override
    {
        m_err << title << ": " << QString(text).replace(QLatin1Char('\n'), QLatin1Char(' ')) << '\n';
        m_err.flush();
    }

private:
    QTextStream &m_err;
};

// The English text database from the data folder beside the program.
QSqlDatabase openEnglish()
{
    const QString path = TextDBPath(QStringLiteral("ENGLISH"));
    if (!QFileInfo(path).isFile())
        throw SetupError{QStringLiteral("Text database not found: ") + QDir::toNativeSeparators(path)};
    QSqlDatabase db;
    if (!OpenTextDB(QStringLiteral("ENGLISH"), db))
        throw SetupError{QStringLiteral("Text database could not be opened: ") + QDir::toNativeSeparators(path)};
    return db;
}

QString messageLine(const EntryMessage &m) { return m.title + QStringLiteral(": ") + m.text; }

InputError entryError(int number, const QString &title)
{
    EntryMessage m = EntryMessageByNumber(number);
    m.title = title;
    return {messageLine(m)};
}

// The birth as the entry screen's masked boxes would hold it.
struct Birth
{
    QString name;
    int sex = 1;
    BirthFields fields;
    QString ns, ew;
    QString tcorr = QStringLiteral("-00.00");
    bool tcorrGiven = false;
    int tcorrIndex = 0; // the kind the zone history found: 1 DST, 2 Summer Time, 3 War Time
    QString place, country;
};

const QRegularExpression &offsetPattern()
{
    static const QRegularExpression re(QStringLiteral("^([+-]?)(\\d{1,2})[.:](\\d{2})$"));
    return re;
}

QString offsetText(const QRegularExpressionMatch &m)
{
    return (m.captured(1) == QLatin1String("-") ? QStringLiteral("-") : QStringLiteral("+")) + Two(m.captured(2).toLong())
        + QLatin1Char('.') + m.captured(3);
}

void typedPlaceFields(const QCommandLineParser &p, Birth &b, const QString &prefix);
Birth checked(const Birth &b);

// The place from the atlas: coordinates, and the zone's standard offset and any summer or war
// time in force at the birth's own date and clock time.
void placeFields(const QString &text, Birth &b)
{
    AtlasLookup atlas;
    QString error;
    if (!atlas.LoadDatabase(DataPaths::RecordsFile(), &error))
        throw InputError{error};
    const AtlasMatch match = atlas.Resolve(text);
    if (match.outcome != AtlasMatch::Found) {
        QStringList lines{match.outcome == AtlasMatch::Ambiguous
                              ? QStringLiteral("\"%1\" could be several places; add the country or choose by coordinates:").arg(text)
                              : QStringLiteral("\"%1\" is not in the atlas.").arg(text)};
        if (match.outcome == AtlasMatch::NotFound && !match.candidates.empty())
            lines << QStringLiteral("Places that start alike:");
        for (const AtlasPlace *c : match.candidates)
            lines << QStringLiteral("  %1, %2  (%3:%4 %5  %6:%7 %8)")
                         .arg(c->City, c->Country, c->Lat.left(3), c->Lat.right(2), c->NOSO, c->Longy.left(3), c->Longy.right(2), c->EaWe);
        if (match.more > 0)
            lines << QStringLiteral("  and %1 more.").arg(match.more);
        throw InputError{lines.join(QLatin1Char('\n'))};
    }
    const AtlasPlace &place = *match.place;
    b.fields.latitude = place.Lat.left(3) + QLatin1Char(':') + place.Lat.right(2);
    b.fields.longitude = place.Longy.left(3) + QLatin1Char(':') + place.Longy.right(2);
    b.ns = place.NOSO;
    b.ew = place.EaWe;
    b.fields.gmt = place.GMTDIFF;
    b.place = place.City;
    b.country = place.Country;
    const QDate date = ParseEntryDate(b.fields.date);
    const QTime time(static_cast<int>(Val(b.fields.time.left(2))) % 24, static_cast<int>(Val(b.fields.time.right(2))) % 60);
    if (!place.TimeZone.isEmpty() && date.isValid()) {
        const ZoneMoment z = ZoneHistory::At(place.TimeZone, date, time);
        if (z.valid) {
            b.fields.gmt = z.standardText;
            if (z.correctionIndex > 0) {
                b.tcorr = z.correctionText;
                b.tcorrIndex = z.correctionIndex;
            }
        }
    }
}

// Brings "d/m/yyyy", "h.mm", "dd:mmN" forms to the masks, or reports the field's own message.
// prefix names the options of a second person ("girl-": --girl-date ...).
Birth readBirth(const QCommandLineParser &p, const QString &usage, const QString &prefix = QString())
{
    const auto opt = [&prefix](const char *name) { return prefix + QString::fromLatin1(name); };
    const bool byPlace = p.isSet(opt("place"));
    if (byPlace && (p.isSet(opt("lat")) || p.isSet(opt("lon")) || p.isSet(opt("gmt"))))
        throw InputError{QStringLiteral("--%1place stands in place of --%1lat, --%1lon and --%1gmt: give one or the other.").arg(prefix)};
    QStringList required{opt("date"), opt("time")};
    if (!byPlace)
        required << opt("lat") << opt("lon") << opt("gmt");
    QStringList missing;
    for (const QString &o : required)
        if (!p.isSet(o))
            missing << QStringLiteral("--") + o;
    if (!missing.isEmpty())
        throw InputError{QStringLiteral("Missing ") + missing.join(QStringLiteral(", ")) + QStringLiteral(".\n") + usage};

    Birth b;
    b.name = p.value(opt("name")).trimmed();
    if (prefix.isEmpty() && p.optionNames().contains(QStringLiteral("sex"))) {
        const QString s = p.value(QStringLiteral("sex")).toUpper();
        if (s != QLatin1String("M") && s != QLatin1String("F"))
            throw InputError{QStringLiteral("--sex takes M or F.")};
        b.sex = s == QLatin1String("M") ? 1 : 2;
    }

    static const QRegularExpression dateRe(QStringLiteral("^(\\d{1,2})/(\\d{1,2})/(\\d{4})$"));
    const auto dm = dateRe.match(p.value(opt("date")).trimmed());
    if (!dm.hasMatch())
        throw entryError(5, QStringLiteral("Invalid Date"));
    b.fields.date = Two(dm.captured(1).toLong()) + QLatin1Char('/') + Two(dm.captured(2).toLong()) + QLatin1Char('/') + dm.captured(3);

    static const QRegularExpression timeRe(QStringLiteral("^(\\d{1,2})[.:](\\d{2})$"));
    const auto tm = timeRe.match(p.value(opt("time")).trimmed());
    if (!tm.hasMatch())
        throw entryError(6, QStringLiteral("Invalid Time"));
    b.fields.time = Two(tm.captured(1).toLong()) + QLatin1Char('.') + tm.captured(2);

    if (byPlace)
        placeFields(p.value(opt("place")), b);
    else
        typedPlaceFields(p, b, prefix);

    if (p.isSet(opt("tcorr"))) {
        const auto tc = offsetPattern().match(p.value(opt("tcorr")).trimmed());
        if (!tc.hasMatch())
            throw InputError{QStringLiteral("The time correction must be written as {+|-}HH.MM, for example -01.00.")};
        b.tcorr = offsetText(tc);
        b.tcorrGiven = true;
    }
    return checked(b);
}

// The place from the typed latitude, longitude and zone offset.
void typedPlaceFields(const QCommandLineParser &p, Birth &b, const QString &prefix)
{
    const auto opt = [&prefix](const char *name) { return prefix + QString::fromLatin1(name); };
    static const QRegularExpression latRe(QStringLiteral("^(\\d{1,3}):(\\d{2})\\s*([NSns])$"));
    const auto la = latRe.match(p.value(opt("lat")).trimmed());
    if (!la.hasMatch())
        throw entryError(10, QStringLiteral("Invalid Lattitude"));
    b.fields.latitude = QStringLiteral("%1:%2").arg(la.captured(1).toLong(), 3, 10, QLatin1Char('0')).arg(la.captured(2));
    b.ns = la.captured(3).toUpper();

    static const QRegularExpression lonRe(QStringLiteral("^(\\d{1,3}):(\\d{2})\\s*([EWew])$"));
    const auto lo = lonRe.match(p.value(opt("lon")).trimmed());
    if (!lo.hasMatch())
        throw entryError(11, QStringLiteral("Invalid Longitude"));
    b.fields.longitude = QStringLiteral("%1:%2").arg(lo.captured(1).toLong(), 3, 10, QLatin1Char('0')).arg(lo.captured(2));
    b.ew = lo.captured(3).toUpper();

    const auto gm = offsetPattern().match(p.value(opt("gmt")).trimmed());
    if (!gm.hasMatch())
        throw entryError(9, QStringLiteral("Orbanta"));
    b.fields.gmt = offsetText(gm);

}

// The same checks as the entry screen: Generate's, then those a field makes on leaving it.
Birth checked(const Birth &b)
{
    const std::vector<EntryMessage> messages = ValidateEntry(b.fields);
    if (!messages.empty()) {
        QStringList lines;
        for (const EntryMessage &m : messages)
            lines << messageLine(m);
        throw InputError{lines.join(QLatin1Char('\n'))};
    }
    const QString title = QStringLiteral("Orbanta");
    for (const auto &check : {CheckDateField(b.fields.date), CheckTimeField(b.fields.time), CheckGmtField(b.fields.gmt, title),
                              CheckLatitudeField(b.fields.latitude, title), CheckLongitudeField(b.fields.longitude)})
        if (check)
            throw InputError{messageLine(*check)};
    return b;
}


// Copies the fields into the chart's person as Generate does.
void fillPerson(const Birth &b, clsPerson &person)
{
    SetBirthNumbers(person, ReadBirthValues(b.fields).value_or(BirthValues{})); // checked before
    person.setName(b.name);
    person.setSex(b.sex);
    person.setAMPM(person.Hour() >= 12 ? 2 : 1);
    person.setTextNS(b.ns);
    person.setTextEW(b.ew);
    person.setTimeCorr(b.tcorr);
    person.setTimeCorrInde(b.tcorrGiven ? 4 : b.tcorrIndex);
    person.setPLOB(b.place);
    person.setCountry(b.country);
}

void applyOverrides(const QCommandLineParser &p)
{
    if (p.isSet(QStringLiteral("ayanamsa"))) {
        bool ok = false;
        const int n = p.value(QStringLiteral("ayanamsa")).toInt(&ok);
        if (!ok || n < 1 || n > 15)
            throw InputError{QStringLiteral("--ayanamsa takes a choice from 1 to 15.")};
        AppSettings::overrideForRun(QStringLiteral("Init"), QStringLiteral("AyanType"), n);
    }
    if (p.isSet(QStringLiteral("node"))) {
        const QString v = p.value(QStringLiteral("node")).toLower();
        if (v != QLatin1String("mean") && v != QLatin1String("true"))
            throw InputError{QStringLiteral("--node takes mean or true.")};
        AppSettings::overrideForRun(QStringLiteral("Init"), QStringLiteral("RahuKetuMode"), v == QLatin1String("mean") ? 1 : 2);
    }
    if (p.isSet(QStringLiteral("vakya")))
        AppSettings::overrideForRun(QStringLiteral("Init"), QStringLiteral("Vakya"), true);
}

// The options of one person's birth; prefix names a second person's ("girl-").
QList<QCommandLineOption> personOptions(const QString &prefix, const QString &whose)
{
    const auto o = [&](const char *name, const QString &what, const char *value) {
        return QCommandLineOption(prefix + QString::fromLatin1(name), whose + what, QString::fromLatin1(value));
    };
    return {
        o("date", QStringLiteral("Date of birth."), "DD/MM/YYYY"),
        o("time", QStringLiteral("Clock time of birth, 24-hour."), "HH.MM"),
        o("lat", QStringLiteral("Latitude."), "DDD:MM{N|S}"),
        o("lon", QStringLiteral("Longitude."), "DDD:MM{E|W}"),
        o("gmt", QStringLiteral("Zone offset from GMT."), "{+|-}HH.MM"),
        o("place", QStringLiteral("A place of the atlas, instead of --lat, --lon and --gmt."), "NAME[,COUNTRY]"),
        o("name", QStringLiteral("Name."), "TEXT"),
        o("tcorr", QStringLiteral("Time correction, e.g. -01.00."), "{+|-}HH.MM"),
    };
}

// The options that apply to the whole run.
QList<QCommandLineOption> runOptions()
{
    return {
        {QStringLiteral("ayanamsa"), QStringLiteral("Ayanamsa choice 1..15."), QStringLiteral("N")},
        {QStringLiteral("node"), QStringLiteral("Rahu and Ketu: mean or true."), QStringLiteral("mean|true")},
        {QStringLiteral("vakya"), QStringLiteral("Cast by the traditional Vakya method.")},
        {QStringLiteral("help"), QStringLiteral("Show this help.")},
    };
}

// A cast chart of the birth on the text database.
std::unique_ptr<clsPlanets> cast(const Birth &birth, QSqlDatabase &textDb)
{
    auto chart = std::make_unique<clsPlanets>();
    chart->setTextDB(textDb, QSqlDatabase());
    fillPerson(birth, chart->Person());
    chart->Calculate();
    return chart;
}

// Parses args; 0 to go on, else the status to end with (help given, or bad options).
int parse(QCommandLineParser &p, const QStringList &args, QTextStream &out, QTextStream &err, const QString &usage)
{
    p.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    if (!p.parse(QStringList{QStringLiteral("orbanta")} + args)) {
        err << p.errorText() << '\n' << usage;
        return 2;
    }
    if (p.isSet(QStringLiteral("help"))) {
        out << usage;
        return -1;
    }
    if (!p.positionalArguments().isEmpty()) {
        err << "Unexpected argument: " << p.positionalArguments().first() << '\n' << usage;
        return 2;
    }
    return 0;
}

// Runs body with the run's overrides and a sink on standard error; input and setup faults
// become statuses 2 and 1 with their message.
int guarded(QTextStream &err, const std::function<int(StreamSink &)> &body)
{
    int status = 0;
    try {
        StreamSink sink(err);
        ScopedMessageSink scopedSink(&sink);
        status = body(sink);
    } catch (const InputError &e) {
        AppSettings::clearOverrides();
        err << e.text << '\n';
        return 2;
    } catch (const SetupError &e) {
        AppSettings::clearOverrides();
        err << e.text << '\n';
        return 1;
    }
    AppSettings::clearOverrides();
    return status;
}

// The birth of one partner; its faults name whose field it is.
Birth partnerBirth(const QCommandLineParser &p, const QString &usage, const QString &prefix, const QString &whose)
{
    try {
        const Birth b = readBirth(p, usage, prefix);
        if (AppSettings::Vakya())
            if (const auto m = CheckVakyaLatitude(b.fields.latitude))
                throw InputError{messageLine(*m)};
        return b;
    } catch (const InputError &e) {
        throw InputError{whose + QStringLiteral(": ") + e.text};
    }
}

} // namespace

int RunWithChart(const QStringList &args, QTextStream &out, QTextStream &err, const QList<QCommandLineOption> &extra,
                 const QString &usage, const ChartAction &action)
{
    QCommandLineParser p;
    p.addOptions(personOptions(QString(), QString()));
    p.addOption({QStringLiteral("sex"), QStringLiteral("M or F."), QStringLiteral("M|F")});
    p.addOptions(runOptions());
    p.addOptions(extra);
    if (const int s = parse(p, args, out, err, usage))
        return s < 0 ? 0 : s;
    return guarded(err, [&](StreamSink &) {
        const Birth birth = readBirth(p, usage);
        applyOverrides(p);
        if (AppSettings::Vakya())
            if (const auto m = CheckVakyaLatitude(birth.fields.latitude))
                throw InputError{messageLine(*m)};
        QSqlDatabase textDb = openEnglish();
        int status = 0;
        {
            std::unique_ptr<clsPlanets> chart = cast(birth, textDb);
            status = action(p, chart, textDb);
        }
        CloseTextDB(textDb);
        return status;
    });
}

int RunWithCouple(const QStringList &args, QTextStream &out, QTextStream &err, const QList<QCommandLineOption> &extra,
                  const QString &usage, const CoupleAction &action)
{
    QCommandLineParser p;
    p.addOptions(personOptions(QString(), QStringLiteral("The boy's: ")));
    p.addOptions(personOptions(QStringLiteral("girl-"), QStringLiteral("The girl's: ")));
    p.addOptions(runOptions());
    p.addOptions(extra);
    if (const int s = parse(p, args, out, err, usage))
        return s < 0 ? 0 : s;
    return guarded(err, [&](StreamSink &) {
        applyOverrides(p);
        Birth boy = partnerBirth(p, usage, QString(), QStringLiteral("Boy"));
        Birth girl = partnerBirth(p, usage, QStringLiteral("girl-"), QStringLiteral("Girl"));
        boy.sex = 1;
        girl.sex = 2;
        QSqlDatabase textDb = openEnglish();
        int status = 0;
        {
            std::unique_ptr<clsPlanets> boyChart = cast(boy, textDb);
            std::unique_ptr<clsPlanets> girlChart = cast(girl, textDb);
            status = action(p, boyChart, girlChart, textDb);
        }
        CloseTextDB(textDb);
        return status;
    });
}

QCommandLineOption TopicsOption()
{
    return {QStringLiteral("topics"), QStringLiteral("Print-tree keys, comma separated."), QStringLiteral("KEYS")};
}

int ReadTopics(const QCommandLineParser &p, const QStringList &keys, QSet<QString> &ticked, QTextStream &err, const QString &usage)
{
    if (!p.isSet(QStringLiteral("topics"))) {
        ticked = QSet<QString>(keys.begin(), keys.end());
        return 0;
    }
    ticked.clear();
    for (const QString &k : p.value(QStringLiteral("topics")).split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        if (!keys.contains(k.trimmed())) {
            err << "Unknown topic key: " << k.trimmed() << '\n' << usage;
            return 2;
        }
        ticked.insert(k.trimmed());
    }
    return 0;
}
