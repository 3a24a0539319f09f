// SPDX-License-Identifier: AGPL-3.0-or-later
#include "session/clsCountry.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

#include <algorithm>

namespace {
// Runs one statement with its bound values inside a transaction of its own.
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
} // namespace

clsCountry::clsCountry(const QSqlDatabase &db) : m_db(db)
{
    Requery();
}

bool clsCountry::Requery()
{
    m_cur.rows.clear();
    m_cur.pos = 0;
    QSqlQuery q(m_db);
    if (!q.exec(QStringLiteral("SELECT rowid, Name, GMTDIF, TimeZone FROM Country ORDER BY rowid")))
        return false;
    while (q.next())
        m_cur.rows.push_back({q.value(0).toLongLong(), q.value(1).toString(), q.value(2).toString(), q.value(3).toString()});
    return true;
}

const clsCountry::Row *clsCountry::current() const
{
    return m_cur.pos >= 0 && m_cur.pos < Count() ? &m_cur.rows[static_cast<size_t>(m_cur.pos)] : nullptr;
}

QString clsCountry::Name() const
{
    return current() ? current()->Name : QString();
}
QString clsCountry::GMT() const
{
    return current() ? current()->GMTDIF : QString();
}
QString clsCountry::TimeZone() const
{
    return current() ? current()->TimeZone : QString();
}
int clsCountry::Count() const
{
    return m_cur.count();
}
int clsCountry::Position() const
{
    return m_cur.pos;
}
bool clsCountry::AtEnd() const
{
    return m_cur.atEnd();
}

QStringList clsCountry::FillInCombo() const
{
    return m_cur.namesFromHere([](const Row &r) { return r.Name; });
}

void clsCountry::MoveTo(int n)
{
    m_cur.moveTo(n);
}
void clsCountry::MoveFirst()
{
    m_cur.moveFirst();
}
void clsCountry::MoveLast()
{
    m_cur.moveLast();
}
void clsCountry::MoveNext()
{
    m_cur.moveNext();
}

int clsCountry::FindFirst(const QString &name) const
{
    return m_cur.findFirst(name, [](const Row &r) { return r.Name; });
}

bool clsCountry::Exists(const QString &name) const
{
    QSqlQuery q(m_db);
    q.prepare(QStringLiteral("SELECT 1 FROM Country WHERE Name = ? LIMIT 1"));
    q.addBindValue(name);
    return q.exec() && q.next();
}

AtlasEditResult clsCountry::DatabaseError(const QString &text)
{
    return AtlasEditResult::Fail(QStringLiteral("Orbanta"), QStringLiteral("The atlas could not be changed: ") + text);
}

AtlasEditResult clsCountry::AddCountry(const QString &name, const QString &gmt)
{
    if (name.trimmed().isEmpty())
        return AtlasEditResult::Fail(QStringLiteral("Orbanta"), QStringLiteral("Please enter the name of the country."));
    AtlasEditResult r =
        writeOnce(m_db, QStringLiteral("INSERT INTO Country (Name, GMTDIF, TimeZone) VALUES (?, ?, '')"), {name.trimmed(), gmt});
    Requery();
    return r;
}

AtlasEditResult clsCountry::ModifyCountry(int row, const QString &name, const QString &gmt)
{
    if (row < 0 || row >= Count())
        return AtlasEditResult::Fail(QStringLiteral("Orbanta"), QStringLiteral("Please select a country from the list."));
    if (name.trimmed().isEmpty())
        return AtlasEditResult::Fail(QStringLiteral("Orbanta"), QStringLiteral("Please enter the name of the country."));
    AtlasEditResult r = writeOnce(m_db, QStringLiteral("UPDATE Country SET Name = ?, GMTDIF = ? WHERE rowid = ?"),
                                  {name.trimmed(), gmt, m_cur.rows[static_cast<size_t>(row)].id});
    Requery();
    return r;
}

AtlasEditResult clsCountry::DeleteCountry(const QString &name)
{
    const int row = FindFirst(name);
    if (row < 0)
        return {};
    AtlasEditResult r =
        writeOnce(m_db, QStringLiteral("DELETE FROM Country WHERE rowid = ?"), {m_cur.rows[static_cast<size_t>(row)].id});
    Requery();
    return r;
}
