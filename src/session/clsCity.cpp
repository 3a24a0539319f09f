// SPDX-License-Identifier: AGPL-3.0-or-later
#include "session/clsCity.h"

#include "sky/Functions.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

#include <algorithm>

namespace {
AtlasEditResult writeOnce(QSqlDatabase &db, const QString &sql, const QVariantList &values)
{
    if (!db.transaction())
        return clsCountry::DatabaseError(db.lastError().text());
    QSqlQuery q(db);
    bool ok = q.prepare(sql);
    for (const QVariant &v : values)
        q.addBindValue(v);
    ok = ok && q.exec();
    if (!ok) {
        const QString text = q.lastError().text();
        db.rollback();
        return clsCountry::DatabaseError(text);
    }
    if (!db.commit()) {
        const QString text = db.lastError().text();
        db.rollback();
        return clsCountry::DatabaseError(text);
    }
    return {};
}

const QString kColumns = QStringLiteral("City, Lat, Longy, NOSO, EaWe, Country, GMTDIFF, TimeZone");
} // namespace

clsCity::clsCity(const QSqlDatabase &db) : m_db(db)
{
    Requery();
}

bool clsCity::Requery()
{
    m_cur.rows.clear();
    m_cur.pos = 0;
    QSqlQuery q(m_db);
    q.setForwardOnly(true);
    if (!q.exec(QStringLiteral("SELECT rowid, ") + kColumns + QStringLiteral(" FROM City ORDER BY rowid")))
        return false;
    while (q.next()) {
        Row r;
        r.id = q.value(0).toLongLong();
        r.f = {q.value(1).toString(), q.value(2).toString(), q.value(3).toString(), q.value(4).toString(),
               q.value(5).toString(), q.value(6).toString(), q.value(7).toString()};
        r.TimeZone = q.value(8).toString();
        m_cur.rows.push_back(std::move(r));
    }
    return true;
}

const clsCity::Row *clsCity::current() const
{
    return m_cur.pos >= 0 && m_cur.pos < CityCount() ? &m_cur.rows[static_cast<size_t>(m_cur.pos)] : nullptr;
}

QString clsCity::Name() const
{
    return current() ? current()->f.City : QString();
}
int clsCity::CityCount() const
{
    return m_cur.count();
}
QString clsCity::Lat() const
{
    return current() ? current()->f.Lat : QString();
}
QString clsCity::NS() const
{
    return current() ? current()->f.NOSO : QString();
}
QString clsCity::EW() const
{
    return current() ? current()->f.EaWe : QString();
}
QString clsCity::Country() const
{
    return current() ? current()->f.Country : QString();
}
QString clsCity::Longi() const
{
    return current() ? current()->f.Longy : QString();
}
QString clsCity::GMTDIFF() const
{
    return current() ? current()->f.GMTDIFF : QString();
}
int clsCity::Position() const
{
    return m_cur.pos;
}
bool clsCity::AtEnd() const
{
    return m_cur.atEnd();
}
CityFields clsCity::Fields() const
{
    return current() ? current()->f : CityFields{};
}

AtlasEditResult clsCity::setColumn(const char *column, const QString &value)
{
    const Row *r = current();
    if (!r)
        return AtlasEditResult::Fail(QStringLiteral("Orbanta"), QStringLiteral("Please select a city from the list."));
    const int pos = m_cur.pos;
    AtlasEditResult res =
        writeOnce(m_db, QStringLiteral("UPDATE City SET %1 = ? WHERE rowid = ?").arg(QLatin1String(column)), {value, r->id});
    Requery();
    MoveTo(pos);
    return res;
}

AtlasEditResult clsCity::setLat(const QString &lat)
{
    return setColumn("Lat", lat);
}
AtlasEditResult clsCity::setLongi(const QString &longi)
{
    return setColumn("Longy", longi);
}

QStringList clsCity::FillInCombo() const
{
    return m_cur.namesFromHere([](const Row &r) { return r.f.City; });
}

void clsCity::MoveTo(int n)
{
    m_cur.moveTo(n);
}
void clsCity::MoveFirst()
{
    m_cur.moveFirst();
}
void clsCity::MoveLast()
{
    m_cur.moveLast();
}
void clsCity::MoveNext()
{
    m_cur.moveNext();
}

int clsCity::FindFirst(const QString &name) const
{
    return m_cur.findFirst(name, [](const Row &r) { return r.f.City; });
}

std::vector<int> clsCity::RowsOfPlace(const QString &name, const QString &country) const
{
    std::vector<int> out;
    for (int i = 0; i < m_cur.count(); ++i) {
        const CityFields &f = m_cur.rows[static_cast<size_t>(i)].f;
        if (f.City.compare(name.trimmed(), Qt::CaseInsensitive) == 0 && f.Country.compare(country.trimmed(), Qt::CaseInsensitive) == 0)
            out.push_back(i);
    }
    return out;
}

qint64 clsCity::RowId(int row) const
{
    return row >= 0 && row < m_cur.count() ? m_cur.rows[static_cast<size_t>(row)].id : 0;
}

QString clsCity::BoxToColumn(const QString &box)
{
    return box.left(3) + box.right(2);
}

QString clsCity::ColumnToBox(const QString &column)
{
    const long v = static_cast<long>(Val(column));
    return QStringLiteral("%1:%2").arg(v / 100, 3, 10, QLatin1Char('0')).arg(v % 100, 2, 10, QLatin1Char('0'));
}

std::optional<AtlasEditResult> clsCity::CheckCoordinate(const QString &box, bool latitude)
{
    if (Val(box.left(3) + QLatin1Char('.') + box.right(2)) < 180)
        return std::nullopt;
    return AtlasEditResult::Fail(latitude ? QStringLiteral("Invalid Latitude") : QStringLiteral("Invalid Longitude"),
                                 QStringLiteral("Please enter a value under 180."));
}

AtlasEditResult clsCity::checkFields(const CityFields &f, QString *timeZone) const
{
    QSqlQuery q(m_db);
    q.prepare(QStringLiteral("SELECT TimeZone FROM Country WHERE Name = ? LIMIT 1"));
    q.addBindValue(f.Country);
    if (!q.exec() || !q.next())
        return AtlasEditResult::Fail(QStringLiteral("Country Not Found"),
                                     QStringLiteral("Invalid Country, Please Select a Country From The List."));
    *timeZone = q.value(0).toString();
    if (f.City.trimmed().isEmpty())
        return AtlasEditResult::Fail(QStringLiteral("Orbanta"), QStringLiteral("Please enter the name of the city."));
    const QString lat = f.Lat.left(3) + QLatin1Char(':') + f.Lat.right(2);
    const QString lon = f.Longy.left(3) + QLatin1Char(':') + f.Longy.right(2);
    if (auto m = CheckCoordinate(lat, true))
        return *m;
    if (auto m = CheckCoordinate(lon, false))
        return *m;
    return {};
}

AtlasEditResult clsCity::AddCity(const CityFields &f)
{
    QString zone;
    AtlasEditResult r = checkFields(f, &zone);
    if (!r.ok)
        return r;
    r = writeOnce(m_db, QStringLiteral("INSERT INTO City (") + kColumns + QStringLiteral(") VALUES (?, ?, ?, ?, ?, ?, ?, ?)"),
                  {f.City.trimmed(), f.Lat, f.Longy, f.NOSO, f.EaWe, f.Country, f.GMTDIFF, zone});
    Requery();
    return r;
}

AtlasEditResult clsCity::ChangeCity(int row, const CityFields &f)
{
    if (row < 0 || row >= CityCount())
        return AtlasEditResult::Fail(QStringLiteral("Orbanta"), QStringLiteral("Please select a city from the list."));
    QString zone;
    AtlasEditResult r = checkFields(f, &zone);
    if (!r.ok)
        return r;
    const Row &old = m_cur.rows[static_cast<size_t>(row)];
    // The place keeps its own zone unless it moves to another country.
    if (old.f.Country.compare(f.Country, Qt::CaseInsensitive) == 0 && !old.TimeZone.isEmpty())
        zone = old.TimeZone;
    r = writeOnce(m_db,
                  QStringLiteral("UPDATE City SET City = ?, Lat = ?, Longy = ?, NOSO = ?, EaWe = ?, Country = ?, "
                                 "GMTDIFF = ?, TimeZone = ? WHERE rowid = ?"),
                  {f.City.trimmed(), f.Lat, f.Longy, f.NOSO, f.EaWe, f.Country, f.GMTDIFF, zone, old.id});
    Requery();
    MoveTo(row);
    return r;
}

AtlasEditResult clsCity::DeleteRow(int row)
{
    if (row < 0 || row >= CityCount())
        return {};
    AtlasEditResult r =
        writeOnce(m_db, QStringLiteral("DELETE FROM City WHERE rowid = ?"), {m_cur.rows[static_cast<size_t>(row)].id});
    Requery();
    return r;
}
