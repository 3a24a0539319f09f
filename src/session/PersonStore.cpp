// SPDX-License-Identifier: AGPL-3.0-or-later
#include "session/PersonStore.h"

#include "session/EntryValidation.h"

#include "sky/Functions.h"

#include <QAtomicInt>
#include <QDate>
#include <QFile>
#include <QFileInfo>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>

namespace {

QAtomicInt g_connections;

// The columns of the exchange files; the store has TCorrVal and Tcorrinde besides.
const QStringList kExchangeColumns{QStringLiteral("Name"),    QStringLiteral("Sex"),    QStringLiteral("Day"),
                                   QStringLiteral("Month"),   QStringLiteral("Year"),   QStringLiteral("Hour"),
                                   QStringLiteral("Minutes"), QStringLiteral("seconds"), QStringLiteral("AMPM"),
                                   QStringLiteral("Country"), QStringLiteral("LatDeg"), QStringLiteral("LatMT"),
                                   QStringLiteral("TextNS"),  QStringLiteral("LongDeg"), QStringLiteral("LongMT"),
                                   QStringLiteral("TextEW"),  QStringLiteral("City"),   QStringLiteral("GMTDIFF")};

QVariant columnValue(const PersonRow &r, const QString &c)
{
    if (c == QLatin1String("Name")) return r.Name;
    if (c == QLatin1String("Sex")) return r.Sex;
    if (c == QLatin1String("Day")) return r.Day;
    if (c == QLatin1String("Month")) return r.Month;
    if (c == QLatin1String("Year")) return r.Year;
    if (c == QLatin1String("Hour")) return r.Hour;
    if (c == QLatin1String("Minutes")) return r.Minutes;
    if (c == QLatin1String("seconds")) return r.seconds;
    if (c == QLatin1String("AMPM")) return r.AMPM;
    if (c == QLatin1String("Country")) return r.Country;
    if (c == QLatin1String("City")) return r.City;
    if (c == QLatin1String("LatDeg")) return r.LatDeg;
    if (c == QLatin1String("LatMT")) return r.LatMT;
    if (c == QLatin1String("TextNS")) return r.TextNS;
    if (c == QLatin1String("LongDeg")) return r.LongDeg;
    if (c == QLatin1String("LongMT")) return r.LongMT;
    if (c == QLatin1String("TextEW")) return r.TextEW;
    if (c == QLatin1String("GMTDIFF")) return r.GMTDIFF;
    if (c == QLatin1String("TCorrVal")) return r.TCorrVal;
    if (c == QLatin1String("Tcorrinde")) return r.Tcorrinde;
    return {};
}

PersonRow rowFrom(const QSqlRecord &rec)
{
    auto text = [&](const char *c) { return rec.value(QString::fromLatin1(c)).toString(); };
    auto whole = [&](const char *c) { return rec.value(QString::fromLatin1(c)).toInt(); };
    PersonRow r;
    r.Name = text("Name");
    r.Sex = whole("Sex");
    r.Day = whole("Day");
    r.Month = whole("Month");
    r.Year = whole("Year");
    r.Hour = whole("Hour");
    r.Minutes = whole("Minutes");
    r.seconds = whole("seconds");
    r.AMPM = whole("AMPM");
    r.Country = text("Country");
    r.City = text("City");
    r.LatDeg = whole("LatDeg");
    r.LatMT = whole("LatMT");
    r.TextNS = text("TextNS");
    r.LongDeg = whole("LongDeg");
    r.LongMT = whole("LongMT");
    r.TextEW = text("TextEW");
    const QVariant gmt = rec.value(QStringLiteral("GMTDIFF"));
    r.GMTDIFF = gmt.isNull() ? QStringLiteral("+00.00") : gmt.toString();
    if (rec.indexOf(QStringLiteral("TCorrVal")) >= 0)
        r.TCorrVal = rec.value(QStringLiteral("TCorrVal"));
    const QVariant ti = rec.indexOf(QStringLiteral("Tcorrinde")) >= 0 ? rec.value(QStringLiteral("Tcorrinde")) : QVariant();
    r.Tcorrinde = ti.isNull() ? QVariant(0) : ti;
    return r;
}

bool insertRow(QSqlDatabase &db, const QStringList &columns, const PersonRow &row, QString *error)
{
    QStringList marks;
    for (int i = 0; i < columns.size(); ++i)
        marks << QStringLiteral("?");
    QSqlQuery q(db);
    q.prepare(QStringLiteral("INSERT INTO Person (%1) VALUES (%2)").arg(columns.join(QLatin1Char(',')), marks.join(QLatin1Char(','))));
    for (const QString &c : columns)
        q.addBindValue(columnValue(row, c));
    if (!q.exec()) {
        *error = q.lastError().text();
        return false;
    }
    return true;
}

QStringList storeColumns() { return kExchangeColumns + QStringList{QStringLiteral("TCorrVal"), QStringLiteral("Tcorrinde")}; }

// A private connection to a file, closed and removed when the object goes.
class FileConnection
{
public:
    explicit FileConnection(const QString &file, bool readOnly)
        : m_name(QStringLiteral("orbanta_exchange_%1").arg(g_connections.fetchAndAddRelaxed(1)))
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_name);
        db.setDatabaseName(file);
        if (readOnly)
            db.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY"));
        m_open = db.open();
    }
    ~FileConnection()
    {
        {
            QSqlDatabase db = QSqlDatabase::database(m_name, false);
            db.close();
        }
        QSqlDatabase::removeDatabase(m_name);
    }
    FileConnection(const FileConnection &) = delete;
    FileConnection &operator=(const FileConnection &) = delete;
    bool isOpen() const { return m_open; }
    QSqlDatabase db() const { return QSqlDatabase::database(m_name, false); }

private:
    QString m_name;
    bool m_open = false;
};

} // namespace

PersonRow PersonRow::fromFields(const QString &name, bool male, const QString &date, const QString &time, bool am,
                                const QString &country, const QString &city, const QString &latitude, const QString &ns,
                                const QString &longitude, const QString &ew, const QString &gmt, const QString &timeCorr,
                                int timeCorrIndex)
{
    PersonRow r;
    r.Name = name;
    r.Sex = male ? 1 : 2;
    // The boxes are read as Generate reads them, so the store keeps what the chart was cast from.
    const BirthValues v = ReadBirthValues({date, time, latitude, longitude, gmt}).value_or(BirthValues{});
    r.Day = v.day;
    r.Month = v.month;
    r.Year = v.year;
    r.Hour = v.hour;
    r.Minutes = v.minute;
    r.seconds = v.minute; // written from the same characters as the minutes
    r.AMPM = am ? 1 : 2;
    r.Country = country;
    r.City = city;
    r.LatDeg = v.latDeg;
    r.LatMT = v.latMin;
    r.TextNS = ns;
    r.LongDeg = v.lonDeg;
    r.LongMT = v.lonMin;
    r.TextEW = ew;
    r.GMTDIFF = v.gmt.isEmpty() ? gmt : v.gmt;
    r.TCorrVal = timeCorr;
    r.Tcorrinde = timeCorrIndex;
    return r;
}

StoreResult PersonStore::SavePerson(const PersonRow &row, bool *added)
{
    if (!m_db.transaction())
        return {false, m_db.lastError().text(), 0};
    QSqlQuery find(m_db);
    find.prepare(QStringLiteral("SELECT rowid FROM Person WHERE Name = ? ORDER BY rowid LIMIT 1"));
    find.addBindValue(row.Name);
    if (!find.exec()) {
        const QString e = find.lastError().text();
        m_db.rollback();
        return {false, e, 0};
    }
    const bool exists = find.next();
    QString error;
    bool ok;
    if (exists) {
        const qint64 id = find.value(0).toLongLong();
        QStringList sets;
        for (const QString &c : storeColumns())
            sets << c + QStringLiteral(" = ?");
        QSqlQuery up(m_db);
        up.prepare(QStringLiteral("UPDATE Person SET %1 WHERE rowid = ?").arg(sets.join(QLatin1Char(','))));
        for (const QString &c : storeColumns())
            up.addBindValue(columnValue(row, c));
        up.addBindValue(id);
        ok = up.exec();
        if (!ok)
            error = up.lastError().text();
    } else {
        ok = insertRow(m_db, storeColumns(), row, &error);
    }
    if (!ok || !m_db.commit()) {
        m_db.rollback();
        return {false, error.isEmpty() ? m_db.lastError().text() : error, 0};
    }
    if (added)
        *added = !exists;
    return {true, {}, 1};
}

StoreResult PersonStore::DeletePerson(const QString &name)
{
    QSqlQuery q(m_db);
    q.prepare(QStringLiteral("DELETE FROM Person WHERE rowid = (SELECT rowid FROM Person WHERE Name = ? ORDER BY rowid LIMIT 1)"));
    q.addBindValue(name);
    if (!q.exec())
        return {false, q.lastError().text(), 0};
    return {true, {}, q.numRowsAffected()};
}

std::optional<PersonRow> PersonStore::FindPerson(const QString &name) const
{
    QSqlQuery q(m_db);
    q.prepare(QStringLiteral("SELECT * FROM Person WHERE Name = ? ORDER BY rowid LIMIT 1"));
    q.addBindValue(name);
    if (q.exec() && q.next())
        return rowFrom(q.record());
    return std::nullopt;
}

QString LikePrefix(const QString &typed)
{
    QString p = typed;
    p.replace(QLatin1Char('\\'), QStringLiteral("\\\\")).replace(QLatin1Char('%'), QStringLiteral("\\%")).replace(QLatin1Char('_'), QStringLiteral("\\_"));
    return p + QLatin1Char('%');
}

std::optional<PersonRow> PersonStore::FindByPrefix(const QString &typed) const
{
    QSqlQuery q(m_db);
    q.prepare(QStringLiteral("SELECT * FROM qryPersonName WHERE Name LIKE ? ESCAPE '\\' LIMIT 1"));
    q.addBindValue(LikePrefix(typed));
    if (q.exec() && q.next())
        return rowFrom(q.record());
    return std::nullopt;
}

std::vector<std::pair<QString, int>> PersonStore::PersonNames() const
{
    std::vector<std::pair<QString, int>> out;
    QSqlQuery q(QStringLiteral("SELECT Name, Sex FROM Person ORDER BY rowid"), m_db);
    while (q.next())
        out.emplace_back(q.value(0).toString(), q.value(1).toInt());
    return out;
}

int PersonStore::Count() const
{
    QSqlQuery q(QStringLiteral("SELECT COUNT(*) FROM Person"), m_db);
    return q.next() ? q.value(0).toInt() : 0;
}

std::vector<PersonRow> PersonStore::AllPersons() const
{
    std::vector<PersonRow> out;
    QSqlQuery q(QStringLiteral("SELECT * FROM Person ORDER BY rowid"), m_db);
    while (q.next())
        out.push_back(rowFrom(q.record()));
    return out;
}

StoreResult PersonStore::ExportPersons(const QString &templateFile, const std::vector<PersonRow> &rows, const QString &file)
{
    if (!QFileInfo::exists(templateFile))
        return {false, QStringLiteral("The template %1 is missing.").arg(templateFile), 0};
    const QString temp = file + QStringLiteral(".part");
    QFile::remove(temp);
    if (!QFile::copy(templateFile, temp))
        return {false, QStringLiteral("Cannot write %1.").arg(file), 0};
    QFile::setPermissions(temp, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
    QString error;
    {
        FileConnection c(temp, false);
        QSqlDatabase db = c.db();
        bool ok = c.isOpen() && db.transaction();
        for (const PersonRow &r : rows) {
            if (!ok)
                break;
            ok = insertRow(db, kExchangeColumns, r, &error);
        }
        if (ok && !db.commit())
            ok = false;
        if (!ok) {
            if (error.isEmpty())
                error = db.lastError().text();
            db.rollback();
        }
    }
    if (!error.isEmpty()) {
        QFile::remove(temp);
        return {false, QStringLiteral("Cannot write %1: %2").arg(file, error), 0};
    }
    QFile::remove(file);
    if (!QFile::rename(temp, file)) {
        QFile::remove(temp);
        return {false, QStringLiteral("Cannot write %1.").arg(file), 0};
    }
    return {true, {}, static_cast<int>(rows.size())};
}

bool PersonStore::PlausibleRow(const PersonRow &r)
{
    const auto within = [](int v, int low, int high) { return v >= low && v <= high; };
    return QDate(r.Year, r.Month, r.Day).isValid() && within(r.Hour, 0, 24) && within(r.Minutes, 0, 59)
        && within(r.LatDeg, 0, 180) && within(r.LatMT, 0, 59) && within(r.LongDeg, 0, 180) && within(r.LongMT, 0, 59)
        && within(r.Sex, 1, 2);
}

StoreResult PersonStore::ImportPersons(const QString &file)
{
    const QString notOurs = QStringLiteral("%1 is not a person file of this program, or it is damaged. Nothing was imported.")
                                .arg(QFileInfo(file).fileName());
    if (!QFileInfo(file).isFile())
        return {false, QStringLiteral("%1 was not found. Nothing was imported.").arg(file), 0};

    std::vector<PersonRow> rows;
    {
        FileConnection c(file, true);
        if (!c.isOpen())
            return {false, notOurs, 0};
        QSqlDatabase db = c.db();
        // The file must hold table Person with every exchange column, and pass SQLite's own check.
        QSqlQuery check(db);
        if (!check.exec(QStringLiteral("PRAGMA quick_check")) || !check.next() || check.value(0).toString() != QLatin1String("ok"))
            return {false, notOurs, 0};
        const QSqlRecord columns = db.record(QStringLiteral("Person"));
        for (const QString &c : kExchangeColumns)
            if (columns.indexOf(c) < 0)
                return {false, notOurs, 0};
        QSqlQuery q(db);
        if (!q.exec(QStringLiteral("SELECT * FROM Person ORDER BY rowid")))
            return {false, notOurs, 0};
        while (q.next())
            rows.push_back(rowFrom(q.record()));
        if (q.lastError().isValid())
            return {false, notOurs, 0};
    }
    // A row that no entry screen could have written (day 45, month 13, minute 75) marks a damaged
    // or foreign file: nothing of it is taken.
    for (const PersonRow &r : rows)
        if (!PlausibleRow(r))
            return {false, notOurs, 0};

    if (!m_db.transaction())
        return {false, m_db.lastError().text(), 0};
    QString error;
    for (PersonRow &r : rows) {
        r.TCorrVal = QVariant();
        r.Tcorrinde = QVariant();
        if (!insertRow(m_db, storeColumns(), r, &error)) {
            m_db.rollback();
            return {false, QStringLiteral("The store could not take the persons: %1. Nothing was imported.").arg(error), 0};
        }
    }
    if (!m_db.commit()) {
        const QString e = m_db.lastError().text();
        m_db.rollback();
        return {false, QStringLiteral("The store could not take the persons: %1. Nothing was imported.").arg(e), 0};
    }
    return {true, {}, static_cast<int>(rows.size())};
}

std::vector<qint64> PersonStore::IdsByName() const
{
    std::vector<qint64> ids;
    QSqlQuery q(QStringLiteral("SELECT PersonId FROM qryPersonName"), m_db);
    while (q.next())
        ids.push_back(q.value(0).toLongLong());
    return ids;
}

std::optional<PersonRow> PersonStore::RowById(qint64 id) const
{
    QSqlQuery q(m_db);
    q.prepare(QStringLiteral("SELECT * FROM Person WHERE rowid = ?"));
    q.addBindValue(id);
    if (q.exec() && q.next())
        return rowFrom(q.record());
    return std::nullopt;
}

StoreResult PersonStore::UpdateRow(qint64 id, const PersonRow &row)
{
    QStringList sets;
    for (const QString &c : storeColumns())
        sets << c + QStringLiteral(" = ?");
    QSqlQuery q(m_db);
    q.prepare(QStringLiteral("UPDATE Person SET %1 WHERE rowid = ?").arg(sets.join(QLatin1Char(','))));
    for (const QString &c : storeColumns())
        q.addBindValue(columnValue(row, c));
    q.addBindValue(id);
    if (!q.exec())
        return {false, q.lastError().text(), 0};
    return {true, {}, q.numRowsAffected()};
}

StoreResult PersonStore::InsertRow(const PersonRow &row, qint64 *newId)
{
    QString error;
    if (!insertRow(m_db, storeColumns(), row, &error))
        return {false, error, 0};
    if (newId) {
        QSqlQuery q(QStringLiteral("SELECT last_insert_rowid()"), m_db);
        *newId = q.next() ? q.value(0).toLongLong() : 0;
    }
    return {true, {}, 1};
}

StoreResult PersonStore::DeleteRow(qint64 id)
{
    QSqlQuery q(m_db);
    q.prepare(QStringLiteral("DELETE FROM Person WHERE rowid = ?"));
    q.addBindValue(id);
    if (!q.exec())
        return {false, q.lastError().text(), 0};
    return {true, {}, q.numRowsAffected()};
}
