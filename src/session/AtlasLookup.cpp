// SPDX-License-Identifier: AGPL-3.0-or-later
#include "session/AtlasLookup.h"

#include <QAtomicInt>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>

#include <QDir>
#include <QFile>
#include <QStringList>

#include <algorithm>

namespace {

// The rows of a tab-separated file with a header, as the named columns in the given order.
bool readTable(const QString &path, const QStringList &columns, std::vector<QStringList> &rows, QString *error)
{
    auto failWith = [&](const QString &message) {
        if (error)
            *error = path + QStringLiteral(": ") + message;
        return false;
    };
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return failWith(file.errorString());
    const QString text = QString::fromUtf8(file.readAll());
    const QStringList lines = text.split(QLatin1Char('\n'));
    if (lines.isEmpty() || lines.front().trimmed().isEmpty())
        return failWith(QStringLiteral("no header row"));

    const QStringList header = lines.front().trimmed().split(QLatin1Char('\t'));
    std::vector<int> at;
    for (const QString &c : columns) {
        const int i = int(header.indexOf(c));
        if (i < 0)
            return failWith(QStringLiteral("no column ") + c);
        at.push_back(i);
    }
    rows.clear();
    rows.reserve(size_t(lines.size()));
    for (qsizetype n = 1; n < lines.size(); ++n) {
        QString line = lines[n];
        if (line.endsWith(QLatin1Char('\r')))
            line.chop(1);
        if (line.isEmpty())
            continue;
        const QStringList fields = line.split(QLatin1Char('\t'));
        if (fields.size() != header.size())
            return failWith(QStringLiteral("line %1 has %2 fields, not %3").arg(n + 1).arg(fields.size()).arg(header.size()));
        QStringList row;
        row.reserve(qsizetype(at.size()));
        for (int i : at)
            row.append(fields[i]);
        rows.push_back(row);
    }
    return true;
}

template <typename K> bool keyLess(const K &a, const K &b)
{
    const int c = a.name.compare(b.name);
    return c != 0 ? c < 0 : a.row < b.row;
}

// The first index entry whose name is not below the folded prefix.
template <typename K> typename std::vector<K>::const_iterator firstFrom(const std::vector<K> &index, const QString &folded)
{
    return std::lower_bound(index.begin(), index.end(), folded,
                            [](const K &k, const QString &v) { return k.name.compare(v) < 0; });
}

} // namespace

bool AtlasLookup::Load(const QString &folder, QString *error)
{
    const QDir dir(folder);
    return LoadFiles(dir.filePath(QStringLiteral("City.tsv")), dir.filePath(QStringLiteral("Country.tsv")), error);
}

bool AtlasLookup::LoadFiles(const QString &cityFile, const QString &countryFile, QString *error)
{
    std::vector<QStringList> cityRows;
    std::vector<QStringList> countryRows;
    const QStringList cityColumns{QStringLiteral("City"),    QStringLiteral("Lat"),     QStringLiteral("Longy"),
                                  QStringLiteral("NOSO"),    QStringLiteral("EaWe"),    QStringLiteral("Country"),
                                  QStringLiteral("GMTDIFF"), QStringLiteral("TimeZone")};
    const QStringList countryColumns{QStringLiteral("Name"), QStringLiteral("GMTDIF"), QStringLiteral("TimeZone")};
    if (!readTable(cityFile, cityColumns, cityRows, error) || !readTable(countryFile, countryColumns, countryRows, error))
        return false;
    setRows(cityRows, countryRows);
    return true;
}

bool AtlasLookup::LoadDatabase(const QString &datFile, QString *error)
{
    static QAtomicInt connections;
    const QString name = QStringLiteral("orbanta_atlas_%1").arg(connections.fetchAndAddRelaxed(1));
    std::vector<QStringList> cityRows;
    std::vector<QStringList> countryRows;
    QString problem;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
        db.setDatabaseName(datFile);
        db.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY"));
        const auto readRows = [&](const QString &sql, int columns, std::vector<QStringList> &rows) {
            QSqlQuery q(db);
            if (!q.exec(sql)) {
                problem = q.lastError().text();
                return false;
            }
            while (q.next()) {
                QStringList r;
                for (int i = 0; i < columns; ++i)
                    r << q.value(i).toString();
                rows.push_back(r);
            }
            return true;
        };
        if (!QFileInfo::exists(datFile) || !db.open())
            problem = QStringLiteral("cannot be opened");
        else if (readRows(QStringLiteral("SELECT City, Lat, Longy, NOSO, EaWe, Country, GMTDIFF, TimeZone FROM City ORDER BY rowid"), 8,
                          cityRows))
            readRows(QStringLiteral("SELECT Name, GMTDIF, TimeZone FROM Country ORDER BY rowid"), 3, countryRows);
        db.close();
    }
    QSqlDatabase::removeDatabase(name);
    if (!problem.isEmpty()) {
        if (error)
            *error = QStringLiteral("The atlas in %1 could not be read: %2").arg(datFile, problem);
        return false;
    }
    setRows(cityRows, countryRows);
    return true;
}

void AtlasLookup::setRows(const std::vector<QStringList> &cityRows, const std::vector<QStringList> &countryRows)
{
    m_places.clear();
    m_places.reserve(cityRows.size());
    for (const QStringList &r : cityRows)
        m_places.push_back({r[0], r[1], r[2], r[3], r[4], r[5], r[6], r[7]});
    m_countries.clear();
    m_countries.reserve(countryRows.size());
    for (const QStringList &r : countryRows)
        m_countries.push_back({r[0], r[1], r[2]});

    m_placeIndex.clear();
    m_placeIndex.reserve(m_places.size());
    for (size_t i = 0; i < m_places.size(); ++i)
        m_placeIndex.push_back({Fold(m_places[i].City), Fold(m_places[i].Country), int(i)});
    std::sort(m_placeIndex.begin(), m_placeIndex.end(), keyLess<Key>);
    m_countryIndex.clear();
    m_countryIndex.reserve(m_countries.size());
    for (size_t i = 0; i < m_countries.size(); ++i)
        m_countryIndex.push_back({Fold(m_countries[i].Name), QString(), int(i)});
    std::sort(m_countryIndex.begin(), m_countryIndex.end(), keyLess<Key>);
}

std::vector<const AtlasPlace *> AtlasLookup::FindPlaces(const QString &namePrefix, const QString &countryPrefix, int limit) const
{
    std::vector<const AtlasPlace *> found;
    const QString name = Fold(namePrefix);
    const QString country = Fold(countryPrefix);
    for (auto it = firstFrom(m_placeIndex, name); it != m_placeIndex.end() && it->name.startsWith(name); ++it) {
        if (!it->country.startsWith(country))
            continue;
        found.push_back(&m_places[size_t(it->row)]);
        if (limit > 0 && int(found.size()) >= limit)
            break;
    }
    return found;
}

std::vector<const AtlasCountry *> AtlasLookup::FindCountries(const QString &prefix, int limit) const
{
    std::vector<const AtlasCountry *> found;
    const QString name = Fold(prefix);
    for (auto it = firstFrom(m_countryIndex, name); it != m_countryIndex.end() && it->name.startsWith(name); ++it) {
        found.push_back(&m_countries[size_t(it->row)]);
        if (limit > 0 && int(found.size()) >= limit)
            break;
    }
    return found;
}

const AtlasCountry *AtlasLookup::FindCountry(const QString &name) const
{
    const QString folded = Fold(name);
    const auto it = firstFrom(m_countryIndex, folded);
    return it != m_countryIndex.end() && it->name == folded ? &m_countries[size_t(it->row)] : nullptr;
}

std::vector<const AtlasPlace *> AtlasLookup::exactNames(const QString &foldedName) const
{
    std::vector<const AtlasPlace *> found;
    for (auto it = firstFrom(m_placeIndex, foldedName); it != m_placeIndex.end() && it->name == foldedName; ++it)
        found.push_back(&m_places[size_t(it->row)]);
    return found;
}

AtlasMatch AtlasLookup::Resolve(const QString &text, int maxCandidates) const
{
    AtlasMatch match;
    const QString whole = text.trimmed();
    if (whole.isEmpty())
        return match;

    auto settle = [&](std::vector<const AtlasPlace *> places) {
        if (places.size() == 1) {
            match.outcome = AtlasMatch::Found;
            match.place = places.front();
        } else if (places.size() > 1) {
            match.outcome = AtlasMatch::Ambiguous;
            match.candidates = std::move(places);
            if (maxCandidates > 0 && int(match.candidates.size()) > maxCandidates) {
                match.more = int(match.candidates.size()) - maxCandidates;
                match.candidates.resize(size_t(maxCandidates));
            }
        }
        return match.outcome != AtlasMatch::NotFound;
    };

    if (settle(exactNames(Fold(whole))))
        return match;

    QString name = whole;
    QString country;
    const qsizetype comma = whole.lastIndexOf(QLatin1Char(','));
    if (comma >= 0) {
        name = whole.left(comma).trimmed();
        country = Fold(whole.mid(comma + 1).trimmed());
        if (settle(ofCountry(exactNames(Fold(name)), country)))
            return match;
    }

    // A name that only one place starts with is that place, as the entry screen's list would
    // take it; several are an ambiguity, listed as far as maxCandidates goes.
    if (settle(ofCountry(FindPlaces(name), country)))
        return match;
    // An unknown country still lists the places of that name.
    match.candidates = FindPlaces(name, QString(), maxCandidates);
    return match;
}

std::vector<const AtlasPlace *> AtlasLookup::ofCountry(const std::vector<const AtlasPlace *> &places,
                                                       const QString &foldedCountry)
{
    if (foldedCountry.isEmpty())
        return places;
    // A full country name picks that country alone; otherwise it is a prefix.
    std::vector<const AtlasPlace *> same;
    std::vector<const AtlasPlace *> starting;
    for (const AtlasPlace *p : places) {
        const QString c = Fold(p->Country);
        if (c == foldedCountry)
            same.push_back(p);
        else if (c.startsWith(foldedCountry))
            starting.push_back(p);
    }
    return same.empty() ? starting : same;
}

QString AtlasLookup::Fold(const QString &text)
{
    bool plain = true;
    for (QChar c : text) {
        if (c.unicode() >= 0x80) {
            plain = false;
            break;
        }
    }
    if (plain)
        return text.toLower();

    QString folded;
    const QString decomposed = text.normalized(QString::NormalizationForm_KD);
    folded.reserve(decomposed.size());
    for (QChar c : decomposed) {
        if (c.category() == QChar::Mark_NonSpacing)
            continue;
        if (c == QChar(0x2019) || c == QChar(0x2018) || c == QChar(0x02BC) || c == QChar(0x02BB))
            c = QLatin1Char('\'');
        folded.append(c);
    }
    return folded.toCaseFolded();
}
