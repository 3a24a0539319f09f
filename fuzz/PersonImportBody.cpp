// SPDX-License-Identifier: AGPL-3.0-or-later
// Any bytes as a .JKP/.JKD file imported into a store that holds one known person. A refused
// file must leave the store exactly as it was; an accepted one adds exactly the rows it
// reports, each one an entry screen could have written, and leaves the known row alone.
#include "FuzzBodies.h"

#include "session/PersonStore.h"

#include <QDir>
#include <QFile>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QStringList>
#include <QTemporaryDir>

namespace {

// The store: a copy of the shipped records database with one person in it, made once.
struct ScratchStore
{
    QTemporaryDir dir;
    QSqlDatabase db;
    QString input;

    ScratchStore()
    {
        if (!dir.isValid())
            FuzzFail("no temporary folder");
        const QString file = dir.filePath(QStringLiteral("RECOS.Dat"));
        const QString shipped = qEnvironmentVariable("ORBANTA_STUFF") + QStringLiteral("/COMMON/RECOS.Dat");
        if (!QFile::copy(shipped, file))
            FuzzFail("cannot copy the records database", shipped);
        QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner);
        db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("fuzz_store"));
        db.setDatabaseName(file);
        if (!db.open())
            FuzzFail("cannot open the scratch store", file);
        // A scratch store needn't survive a power cut: no waiting for the disk at each commit.
        QSqlQuery(QStringLiteral("PRAGMA synchronous = OFF"), db);
        PersonStore store(db);
        const PersonRow known = PersonRow::fromFields(
            QStringLiteral("Known"), true, QStringLiteral("15/08/1980"), QStringLiteral("14.35"), false,
            QStringLiteral("India"), QStringLiteral("Delhi"), QStringLiteral("028:38"), QStringLiteral("N"),
            QStringLiteral("077:12"), QStringLiteral("E"), QStringLiteral("+05.30"), QStringLiteral("-01.00"), 3);
        if (!store.SavePerson(known).ok)
            FuzzFail("cannot store the known person");
        input = dir.filePath(QStringLiteral("input.JKD"));
    }
};

// Every row of table Person with its rowid, each value with its type, in rowid order.
QStringList snapshot(const QSqlDatabase &db)
{
    QStringList rows;
    QSqlQuery q(db);
    if (!q.exec(QStringLiteral("SELECT rowid, * FROM Person ORDER BY rowid")))
        FuzzFail("cannot read the store");
    while (q.next()) {
        const QSqlRecord r = q.record();
        QString line;
        for (int i = 0; i < r.count(); ++i)
            line += r.fieldName(i) + QLatin1Char('=') + (r.isNull(i) ? QStringLiteral("<null>") : r.value(i).toString())
                + QLatin1Char('/') + QLatin1String(r.value(i).typeName() ? r.value(i).typeName() : "") + QLatin1Char(';');
        rows << line;
    }
    return rows;
}

qint64 lastRowId(const QSqlDatabase &db)
{
    QSqlQuery q(db);
    if (!q.exec(QStringLiteral("SELECT max(rowid) FROM Person")) || !q.next())
        FuzzFail("cannot read the store");
    return q.value(0).toLongLong();
}

} // namespace

void FuzzPersonImport(const std::uint8_t *data, std::size_t size)
{
    static ScratchStore scratch;
    for (const char *suffix : {"-journal", "-wal", "-shm"})
        QFile::remove(scratch.input + QLatin1String(suffix));
    {
        QFile f(scratch.input);
        if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate)
            || f.write(reinterpret_cast<const char *>(data), qint64(size)) != qint64(size))
            FuzzFail("cannot write the input file", scratch.input);
    }

    const QStringList before = snapshot(scratch.db);
    const qint64 last = lastRowId(scratch.db);
    PersonStore store(scratch.db);
    const StoreResult result = store.ImportPersons(scratch.input);
    const QStringList after = snapshot(scratch.db);

    if (!result.ok) {
        if (after != before)
            FuzzFail("a refused import changed the store", result.message);
        if (result.message.isEmpty())
            FuzzFail("an import was refused without a reason");
        return;
    }
    if (after.size() != before.size() + result.rows)
        FuzzFail("an import added another number of rows than it reported",
                 QStringLiteral("%1 reported, %2 added").arg(result.rows).arg(after.size() - before.size()));
    if (after.mid(0, before.size()) != before)
        FuzzFail("an import changed a row that was there before");
    QSqlQuery q(scratch.db);
    q.prepare(QStringLiteral("SELECT rowid FROM Person WHERE rowid > ?"));
    q.addBindValue(last);
    if (!q.exec())
        FuzzFail("cannot read the store");
    while (q.next()) {
        const auto row = store.RowById(q.value(0).toLongLong());
        if (!row || !PersonStore::PlausibleRow(*row))
            FuzzFail("an import took a row no entry screen could write", row ? row->Name : QString());
        if (!row->TCorrVal.isNull())
            FuzzFail("an import took a time correction", row->Name);
    }
    // Back to the one known person for the next input.
    QSqlQuery drop(scratch.db);
    drop.prepare(QStringLiteral("DELETE FROM Person WHERE rowid > ?"));
    drop.addBindValue(last);
    if (!drop.exec() || snapshot(scratch.db) != before)
        FuzzFail("cannot restore the store");
}
