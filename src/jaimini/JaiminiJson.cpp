// SPDX-License-Identifier: AGPL-3.0-or-later
#include "jaimini/JaiminiJson.h"

#include "jaimini/JaiminiLagnaRows.h"
#include "jaimini/clsJaimini.h"

#include <QJsonArray>

QJsonObject JaiminiJson(const clsJaimini &jm)
{
    QJsonArray eight, seven, sthira, bhava;
    for (int i = 1; i <= 8; ++i)
        eight.append(jm.AshtaCharaKaraka(i));
    for (int i = 1; i <= 7; ++i) {
        seven.append(jm.SaptaCharaKaraka(i));
        sthira.append(clsJaimini::SaptaSthiraKaraka(i));
        bhava.append(jm.SaptaBhavaKaraka(i));
    }
    const QJsonObject karakas{{QStringLiteral("eight"), eight},
                              {QStringLiteral("seven"), seven},
                              {QStringLiteral("sthira"), sthira},
                              {QStringLiteral("bhava"), bhava}};

    QJsonArray lagnas;
    for (const JaiminiLagnaRow &row : JaiminiLagnaRows(jm)) {
        QJsonObject o{{QStringLiteral("key"), row.head}, {QStringLiteral("sign"), row.sign}};
        if (row.longitude)
            o.insert(QStringLiteral("longitude"), *row.longitude);
        lagnas.append(o);
    }

    QJsonArray padas;
    for (int h = 1; h <= 12; ++h)
        padas.append(jm.JaiminiPadaSign(h, 1));

    return QJsonObject{
        {QStringLiteral("karakas"), karakas}, {QStringLiteral("lagnas"), lagnas}, {QStringLiteral("padas"), padas}};
}
