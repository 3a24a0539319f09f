// SPDX-License-Identifier: AGPL-3.0-or-later
#include "cli/BirthOptions.h"

#include "sky/AppSettings.h"
#include "session/AtlasLookup.h"
#include "session/DataPaths.h"
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

void typedPlaceFields(const QCommandLineParser &p, Birth &b);
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
Birth readBirth(const QCommandLineParser &p, const QString &usage)
{
    const bool byPlace = p.isSet(QStringLiteral("place"));
    if (byPlace && (p.isSet(QStringLiteral("lat")) || p.isSet(QStringLiteral("lon")) || p.isSet(QStringLiteral("gmt"))))
        throw InputError{QStringLiteral("--place stands in place of --lat, --lon and --gmt: give one or the other.")};
    QStringList required{QStringLiteral("date"), QStringLiteral("time")};
    if (!byPlace)
        required << QStringLiteral("lat") << QStringLiteral("lon") << QStringLiteral("gmt");
    QStringList missing;
    for (const QString &opt : required)
        if (!p.isSet(opt))
            missing << QStringLiteral("--") + opt;
    if (!missing.isEmpty())
        throw InputError{QStringLiteral("Missing ") + missing.join(QStringLiteral(", ")) + QStringLiteral(".\n") + usage};

    Birth b;
    b.name = p.value(QStringLiteral("name")).trimmed();
    if (p.isSet(QStringLiteral("sex"))) {
        const QString s = p.value(QStringLiteral("sex")).toUpper();
        if (s != QLatin1String("M") && s != QLatin1String("F"))
            throw InputError{QStringLiteral("--sex takes M or F.")};
        b.sex = s == QLatin1String("M") ? 1 : 2;
    }

    static const QRegularExpression dateRe(QStringLiteral("^(\\d{1,2})/(\\d{1,2})/(\\d{4})$"));
    const auto dm = dateRe.match(p.value(QStringLiteral("date")).trimmed());
    if (!dm.hasMatch())
        throw entryError(5, QStringLiteral("Invalid Date"));
    b.fields.date = Two(dm.captured(1).toLong()) + QLatin1Char('/') + Two(dm.captured(2).toLong()) + QLatin1Char('/') + dm.captured(3);

    static const QRegularExpression timeRe(QStringLiteral("^(\\d{1,2})[.:](\\d{2})$"));
    const auto tm = timeRe.match(p.value(QStringLiteral("time")).trimmed());
    if (!tm.hasMatch())
        throw entryError(6, QStringLiteral("Invalid Time"));
    b.fields.time = Two(tm.captured(1).toLong()) + QLatin1Char('.') + tm.captured(2);

    if (byPlace)
        placeFields(p.value(QStringLiteral("place")), b);
    else
        typedPlaceFields(p, b);

    if (p.isSet(QStringLiteral("tcorr"))) {
        const auto tc = offsetPattern().match(p.value(QStringLiteral("tcorr")).trimmed());
        if (!tc.hasMatch())
            throw InputError{QStringLiteral("The time correction must be written as {+|-}HH.MM, for example -01.00.")};
        b.tcorr = offsetText(tc);
        b.tcorrGiven = true;
    }
    return checked(b);
}

// The place from the typed latitude, longitude and zone offset.
void typedPlaceFields(const QCommandLineParser &p, Birth &b)
{
    static const QRegularExpression latRe(QStringLiteral("^(\\d{1,3}):(\\d{2})\\s*([NSns])$"));
    const auto la = latRe.match(p.value(QStringLiteral("lat")).trimmed());
    if (!la.hasMatch())
        throw entryError(10, QStringLiteral("Invalid Lattitude"));
    b.fields.latitude = QStringLiteral("%1:%2").arg(la.captured(1).toLong(), 3, 10, QLatin1Char('0')).arg(la.captured(2));
    b.ns = la.captured(3).toUpper();

    static const QRegularExpression lonRe(QStringLiteral("^(\\d{1,3}):(\\d{2})\\s*([EWew])$"));
    const auto lo = lonRe.match(p.value(QStringLiteral("lon")).trimmed());
    if (!lo.hasMatch())
        throw entryError(11, QStringLiteral("Invalid Longitude"));
    b.fields.longitude = QStringLiteral("%1:%2").arg(lo.captured(1).toLong(), 3, 10, QLatin1Char('0')).arg(lo.captured(2));
    b.ew = lo.captured(3).toUpper();

    const auto gm = offsetPattern().match(p.value(QStringLiteral("gmt")).trimmed());
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

} // namespace

int RunWithChart(const QStringList &args, QTextStream &out, QTextStream &err, const QList<QCommandLineOption> &extra,
                 const QString &usage, const ChartAction &action)
{
    QCommandLineParser p;
    p.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    p.addOptions({
        {QStringLiteral("date"), QStringLiteral("Date of birth."), QStringLiteral("DD/MM/YYYY")},
        {QStringLiteral("time"), QStringLiteral("Clock time of birth, 24-hour."), QStringLiteral("HH.MM")},
        {QStringLiteral("lat"), QStringLiteral("Latitude."), QStringLiteral("DDD:MM{N|S}")},
        {QStringLiteral("lon"), QStringLiteral("Longitude."), QStringLiteral("DDD:MM{E|W}")},
        {QStringLiteral("gmt"), QStringLiteral("Zone offset from GMT."), QStringLiteral("{+|-}HH.MM")},
        {QStringLiteral("place"), QStringLiteral("A place of the atlas, instead of --lat, --lon and --gmt."), QStringLiteral("NAME[,COUNTRY]")},
        {QStringLiteral("name"), QStringLiteral("Name."), QStringLiteral("TEXT")},
        {QStringLiteral("sex"), QStringLiteral("M or F."), QStringLiteral("M|F")},
        {QStringLiteral("tcorr"), QStringLiteral("Time correction, e.g. -01.00."), QStringLiteral("{+|-}HH.MM")},
        {QStringLiteral("ayanamsa"), QStringLiteral("Ayanamsa choice 1..15."), QStringLiteral("N")},
        {QStringLiteral("node"), QStringLiteral("Rahu and Ketu: mean or true."), QStringLiteral("mean|true")},
        {QStringLiteral("vakya"), QStringLiteral("Cast by the traditional Vakya method.")},
        {QStringLiteral("help"), QStringLiteral("Show this help.")},
    });
    p.addOptions(extra);
    if (!p.parse(QStringList{QStringLiteral("orbanta")} + args)) {
        err << p.errorText() << '\n' << usage;
        return 2;
    }
    if (p.isSet(QStringLiteral("help"))) {
        out << usage;
        return 0;
    }
    if (!p.positionalArguments().isEmpty()) {
        err << "Unexpected argument: " << p.positionalArguments().first() << '\n' << usage;
        return 2;
    }
    int status = 0;
    try {
        const Birth birth = readBirth(p, usage);
        applyOverrides(p);
        if (AppSettings::Vakya())
            if (const auto m = CheckVakyaLatitude(birth.fields.latitude))
                throw InputError{messageLine(*m)};
        StreamSink sink(err);
        ScopedMessageSink scopedSink(&sink);
        QSqlDatabase textDb = openEnglish();
        {
            auto chart = std::make_unique<clsPlanets>();
            chart->setTextDB(textDb, QSqlDatabase());
            fillPerson(birth, chart->Person());
            chart->Calculate();
            status = action(p, chart, textDb);
        }
        CloseTextDB(textDb);
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

