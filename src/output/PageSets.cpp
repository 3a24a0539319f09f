// SPDX-License-Identifier: AGPL-3.0-or-later
#include "output/PageSets.h"

#include "sky/DataPaths.h"
#include "session/clsIni.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlQuery>

namespace PageSets {

QString FileOf(const QString &name, int progMode)
{
    // The name is the user's: it is escaped so that it names one file inside INIFILES and no
    // other place ("../x" becomes "..%2Fx").
    const QString safe = QString::fromLatin1(name.toUtf8().toPercentEncoding(" "));
    return QDir(DataPaths::UserFolder()).filePath(QStringLiteral("INIFILES/%1%2.ini").arg(safe).arg(progMode));
}

QStringList Names(const QSqlDatabase &db, int progMode)
{
    QStringList out;
    QSqlQuery q(db);
    q.prepare(QStringLiteral("SELECT Name FROM PrintMods WHERE HoroMode = ?"));
    q.addBindValue(QString::number(progMode));
    if (q.exec())
        while (q.next())
            out << q.value(0).toString();
    return out;
}

QHash<QString, bool> Read(const QString &name, int progMode, const QStringList &keys)
{
    QHash<QString, bool> out;
    const QString file = FileOf(name, progMode);
    for (const QString &key : keys)
        out.insert(key, clsIni::GetIniString(key, QStringLiteral("True"), name, file).compare(QLatin1String("False"), Qt::CaseInsensitive) != 0);
    return out;
}

bool Save(const QSqlDatabase &db, const QString &name, int progMode, const QHash<QString, bool> &ticks)
{
    const QString set = name.trimmed().left(kMaxName);
    if (set.isEmpty())
        return false;
    const QString file = FileOf(set, progMode);
    QSqlDatabase d = db;
    if (!d.transaction())
        return false;
    QSqlQuery q(d);
    q.prepare(QStringLiteral("SELECT COUNT(*) FROM PrintMods WHERE Name = ? AND HoroMode = ?"));
    q.addBindValue(set);
    q.addBindValue(QString::number(progMode));
    const bool exists = q.exec() && q.next() && q.value(0).toInt() > 0;
    QSqlQuery w(d);
    if (exists)
        w.prepare(QStringLiteral("UPDATE PrintMods SET Name = ?, HoroMode = ?, file = ? WHERE Name = ? AND HoroMode = ?"));
    else
        w.prepare(QStringLiteral("INSERT INTO PrintMods (Name, HoroMode, file) VALUES (?, ?, ?)"));
    w.addBindValue(set);
    w.addBindValue(QString::number(progMode));
    w.addBindValue(QFileInfo(file).fileName());
    if (exists) {
        w.addBindValue(set);
        w.addBindValue(QString::number(progMode));
    }
    if (!w.exec() || !d.commit()) {
        d.rollback();
        return false;
    }
    QDir().mkpath(QFileInfo(file).absolutePath());
    for (auto it = ticks.begin(); it != ticks.end(); ++it)
        clsIni::WriteIniString(it.key(), it.value() ? QStringLiteral("True") : QStringLiteral("False"), set, file);
    return true;
}

bool Delete(const QSqlDatabase &db, const QString &name, int progMode)
{
    QSqlQuery q(db);
    q.prepare(QStringLiteral("DELETE FROM PrintMods WHERE Name = ? AND HoroMode = ?"));
    q.addBindValue(name);
    q.addBindValue(QString::number(progMode));
    if (!q.exec() || q.numRowsAffected() <= 0)
        return false;
    QFile::remove(FileOf(name, progMode));
    return true;
}

} // namespace PageSets
