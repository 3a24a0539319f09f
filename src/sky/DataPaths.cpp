// SPDX-License-Identifier: AGPL-3.0-or-later
#include "sky/DataPaths.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace DataPaths {

QString StuffFolder()
{
    const QString env = qEnvironmentVariable("ORBANTA_STUFF");
    if (!env.isEmpty())
        return env;
    return QCoreApplication::applicationDirPath() + QStringLiteral("/STUFF");
}

QString UserFolder()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    QDir().mkpath(folder);
    return folder;
}

QString RecordsFile()
{
    const QString user = UserFolder() + QStringLiteral("/COMMON/RECOS.Dat");
    if (QFileInfo::exists(user))
        return user;
    return StuffFolder() + QStringLiteral("/COMMON/RECOS.Dat");
}

} // namespace DataPaths
