// SPDX-License-Identifier: AGPL-3.0-or-later
#include "jaimini/JaiminiDashaJson.h"

#include "jaimini/clsJaiminiSystem.h"

QJsonArray JaiminiDashasJson(const clsJaiminiSystem &system)
{
    QJsonArray dashas;
    for (const JaiminiDashaEntry &e : system.AllDashas()) {
        QJsonArray rows;
        for (const JaiminiDashaRow &r : e.Rows) {
            QJsonObject row{{QStringLiteral("sign"), r.Sign}};
            if (e.HasPlanet)
                row.insert(QStringLiteral("planet"), r.Planet);
            row.insert(QStringLiteral("years"), r.Years);
            rows.append(row);
        }
        dashas.append(QJsonObject{{QStringLiteral("key"), e.Key}, {QStringLiteral("rows"), rows}});
    }
    return dashas;
}

QJsonArray JaiminiDashasJson(const clsJaimini &core)
{
    return JaiminiDashasJson(clsJaiminiSystem(core));
}

void AddJaiminiDashasJson(QJsonObject &o, const clsJaimini &core)
{
    QJsonObject jaimini = o.value(QStringLiteral("jaimini")).toObject();
    jaimini.insert(QStringLiteral("dashas"), JaiminiDashasJson(core));
    o.insert(QStringLiteral("jaimini"), jaimini);
}
