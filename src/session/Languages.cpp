// SPDX-License-Identifier: AGPL-3.0-or-later
#include "session/Languages.h"

#include "sky/DataPaths.h"

#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>

namespace Languages {

std::vector<LanguageRow> Load(QString *error)
{
    std::vector<LanguageRow> rows;
    const QString file = DataPaths::StuffFolder() + QStringLiteral("/COMMON/LANGS.Dat");
    const QString name = QStringLiteral("orbanta_langs");
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
        db.setDatabaseName(file);
        db.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY"));
        if (!QFileInfo::exists(file) || !db.open()) {
            if (error)
                *error = QStringLiteral("Cannot open %1.").arg(file);
        } else {
            QSqlQuery q(QStringLiteral("SELECT * FROM Language ORDER BY Name"), db);
            while (q.next()) {
                const QSqlRecord r = q.record();
                LanguageRow row;
                LanguageStyle &s = row.style;
                s.Name = r.value(QStringLiteral("Name")).toString();
                s.Directory = r.value(QStringLiteral("Directory")).toString();
                s.HeaderSize = r.value(QStringLiteral("HeaderSize")).toInt();
                s.NormalSize = r.value(QStringLiteral("NormalSize")).toInt();
                s.SubHeadSize = r.value(QStringLiteral("SubHeadSize")).toInt();
                s.KundliSize = r.value(QStringLiteral("KundliSize")).toInt();
                s.EngSize = r.value(QStringLiteral("EngSize")).toInt();
                s.SmallSize = r.value(QStringLiteral("SmallSize")).toInt();
                s.TextSize = r.value(QStringLiteral("TextSize")).toInt();
                s.TextHeadSize = r.value(QStringLiteral("TextHeadSize")).toInt();
                s.HeadBold = r.value(QStringLiteral("HeadBold")).toBool();
                s.SubHeadBold = r.value(QStringLiteral("SubHeadBold")).toBool();
                s.Extended = r.value(QStringLiteral("Extended")).toBool();
                row.Include = QFileInfo::exists(DataPaths::StuffFolder() + QLatin1Char('/') + s.Directory + QLatin1Char('/')
                                                + s.Directory + QStringLiteral(".Dat"));
                rows.push_back(row);
            }
            if (q.lastError().isValid() && error)
                *error = QStringLiteral("%1: %2").arg(file, q.lastError().text());
        }
        db.close();
    }
    QSqlDatabase::removeDatabase(name);
    return rows;
}

std::vector<LanguageRow> Offered(const std::vector<LanguageRow> &all)
{
    std::vector<LanguageRow> out;
    for (const LanguageRow &r : all)
        if (r.Include || r.style.Name.compare(QLatin1String("English"), Qt::CaseInsensitive) == 0)
            out.push_back(r);
    return out;
}

} // namespace Languages
