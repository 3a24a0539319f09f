// SPDX-License-Identifier: AGPL-3.0-or-later
#include "session/Startup.h"

#include "sky/DataPaths.h"
#include "session/Session.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QSqlError>

namespace Startup {

bool DecimalPointIsDot()
{
    const QString written = QLocale().toString(5.3);
    return written.contains(QLatin1Char('.'));
}

QStringList RequiredFiles()
{
    // Further files join this list as the readings that need them are built.
    return {QStringLiteral("COMMON/RECOS.Dat"),   QStringLiteral("COMMON/LANGS.Dat"),  QStringLiteral("COMMON/ExpTemp.JKP"),
            QStringLiteral("COMMON/SCGRAHA.DAT"), QStringLiteral("COMMON/SCRASI.DAT"), QStringLiteral("COMMON/SCYONI.DAT")};
}

QString FirstMissingFile()
{
    const QString stuff = DataPaths::StuffFolder();
    for (const QString &f : RequiredFiles())
        if (!QFileInfo::exists(stuff + QLatin1Char('/') + f))
            return f;
    return {};
}

bool SeedUserData(QString *error)
{
    const QString stuff = DataPaths::StuffFolder();
    const QString user = DataPaths::UserFolder();
    for (const QString &f : {QStringLiteral("COMMON/RECOS.Dat")}) {
        const QString target = user + QLatin1Char('/') + f;
        if (QFileInfo::exists(target))
            continue;
        QDir().mkpath(QFileInfo(target).absolutePath());
        const QString temp = target + QStringLiteral(".part");
        QFile::remove(temp);
        if (!QFile::copy(stuff + QLatin1Char('/') + f, temp) || !QFile::rename(temp, target)) {
            QFile::remove(temp);
            if (error)
                *error = QStringLiteral("Cannot copy %1 into %2.").arg(f, user);
            return false;
        }
        QFile::setPermissions(target, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
    }
    return true;
}

bool OpenRecDB(QString *error)
{
    SessionGlobals &s = Session();
    const QString file = DataPaths::RecordsFile();
    if (!s.RecDB.isValid())
        s.RecDB = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("RecDB"));
    s.RecDB.close();
    s.RecDB.setDatabaseName(file);
    if (!s.RecDB.open()) {
        if (error)
            *error = QStringLiteral("Cannot open %1: %2").arg(file, s.RecDB.lastError().text());
        return false;
    }
    return true;
}

} // namespace Startup
