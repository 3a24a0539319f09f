// SPDX-License-Identifier: AGPL-3.0-or-later
#include "kp/KPJson.h"

#include "kp/clsKPSystem.h"
#include "sky/clsPlanets.h"

#include <QJsonArray>

QJsonObject KPJson(const clsKPSystem &kp)
{
    QJsonArray planets;
    for (int n = 0; n <= 12; ++n)
        planets.append(QJsonObject{{QStringLiteral("n"), n},
                                   {QStringLiteral("longitude"), kp.PlntLongi(n)},
                                   {QStringLiteral("sign_lord"), kp.SignLord(n)},
                                   {QStringLiteral("star_lord"), kp.StarLord(n)},
                                   {QStringLiteral("sub_lord"), kp.SubLord(n)}});
    QJsonArray cusps;
    for (int k = 1; k <= 12; ++k) {
        const double l = kp.CuspLongi(k);
        cusps.append(QJsonObject{{QStringLiteral("n"), k},
                                 {QStringLiteral("longitude"), l},
                                 {QStringLiteral("sign_lord"), kp.CuspSignLord(k)},
                                 {QStringLiteral("star_lord"), clsPlanets::NakLordNum(clsKPSystem::NakOfLongi(l))},
                                 {QStringLiteral("sub_lord"), kp.AgeCuspSubLord(k)}});
    }
    QJsonArray houses;
    for (int k = 1; k <= 12; ++k) {
        QJsonArray sig;
        for (int p = 1; p <= 9; ++p)
            if (const int score = kp.PlanetSignifScore(p, k); score > 0)
                sig.append(QJsonObject{{QStringLiteral("n"), p}, {QStringLiteral("score"), score}});
        houses.append(QJsonObject{{QStringLiteral("house"), k}, {QStringLiteral("planets"), sig}});
    }
    return QJsonObject{{QStringLiteral("planets"), planets},
                       {QStringLiteral("cusps"), cusps},
                       {QStringLiteral("significators"), houses},
                       {QStringLiteral("part_of_fortune"), kp.ParsFortLongi()}};
}
