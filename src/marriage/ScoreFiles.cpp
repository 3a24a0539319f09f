// SPDX-License-Identifier: AGPL-3.0-or-later
#include "marriage/ScoreFiles.h"

#include "sky/Functions.h"
#include "text/TextDB.h"

#include <QFile>

namespace ScoreFiles {

QStringList Files()
{
    return {QStringLiteral("COMMON/SCGRAHA.DAT"), QStringLiteral("COMMON/SCRASI.DAT"), QStringLiteral("COMMON/SCYONI.DAT")};
}

QString EntryText(const QString &text, const QString &rowTag, int n, QChar letter, int m)
{
    const QString open = QStringLiteral("[%1%2]").arg(rowTag).arg(n);
    const QString close = QStringLiteral("[/%1%2]").arg(rowTag).arg(n);
    const qsizetype start = text.indexOf(open);
    if (start < 0)
        return {};
    const qsizetype end = text.indexOf(close, start + open.size());
    if (end < 0)
        return {};
    const QString row = text.mid(start, end - start);
    const qsizetype at = row.indexOf(QString(letter) + QString::number(m));
    if (at < 0)
        return {};
    QString entry = row.mid(at);
    const qsizetype bar = entry.indexOf(QLatin1Char('|'));
    if (bar >= 0)
        entry.truncate(bar);
    const qsizetype dash = entry.indexOf(QLatin1Char('-'));
    return dash < 0 ? QString() : entry.mid(dash + 1);
}

QString FileEntry(const QString &fileName, const QString &rowTag, int n, QChar letter, int m)
{
    QFile f(StuffFolder() + QStringLiteral("/COMMON/") + fileName);
    if (!f.open(QIODevice::ReadOnly))
        return {};
    return EntryText(QString::fromLatin1(f.readAll()), rowTag, n, letter, m);
}

double GrahaPoints(int boyLord, int girlLord)
{
    return Val(FileEntry(QStringLiteral("SCGRAHA.DAT"), QStringLiteral("H"), boyLord, QLatin1Char('P'), girlLord));
}

double RasiPoints(int boySign, int girlSign)
{
    return Val(FileEntry(QStringLiteral("SCRASI.DAT"), QStringLiteral("H"), boySign, QLatin1Char('R'), girlSign));
}

double YoniPoints(int boyYoni, int girlYoni)
{
    return Fix(Val(FileEntry(QStringLiteral("SCYONI.DAT"), QStringLiteral("HEAD"), boyYoni, QLatin1Char('S'), girlYoni)));
}

} // namespace ScoreFiles
