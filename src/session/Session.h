// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The session's globals: the mode, the charts of the session and the two databases, with the
// language's font sizes that every page reads. One instance, made at start.

#include "muhurtha/clsMuhurtha.h"
#include "sky/clsPlanets.h"

#include <QSqlDatabase>
#include <QString>

#include <memory>

class clsKPSystem;
class clsMarr;

// Font sizes and weights of the chosen language (one row of table Language).
struct LanguageStyle
{
    QString Name = QStringLiteral("English");
    QString Directory = QStringLiteral("ENGLISH");
    int HeaderSize = 14, NormalSize = 9, SubHeadSize = 11, KundliSize = 9, EngSize = 9, SmallSize = 8, TextSize = 10,
        TextHeadSize = 12;
    bool HeadBold = true, SubHeadBold = true, Extended = false;
};

struct SessionGlobals
{
    // 1 Horoscope, 2 Marriage, 3 Muhurtha, 4 Varshaphala.
    int ProgMode = 1;
    std::unique_ptr<clsPlanets> CurPlanets;
    std::unique_ptr<clsPlanets> BoyPlanets;
    std::unique_ptr<clsPlanets> GalPlanets;
    std::unique_ptr<clsPlanets> VarshaPlanets;
    int VarshaYear = 1;
    // The electional search of Muhurtha mode, with its result.
    std::unique_ptr<clsMuhurtha> Muhurtha;
    // RECOS.Dat: persons, atlas, page sets, themes.
    QSqlDatabase RecDB;
    // The chosen language's text database.
    QSqlDatabase TextDB;
    LanguageStyle Language;
    // The match of BoyPlanets and GalPlanets, made on first use (marriage/MarrSession.h) and
    // dropped with the charts.
    std::shared_ptr<clsMarr> Marr;
    // The KP recast of CurPlanets, made on first use (kp/KPSession.h) and dropped with the charts.
    std::shared_ptr<clsKPSystem> KP;

    // Releases the four charts, the match and the KP recast made from them and the electional search.
    void ReleaseCharts();
};

// The one session of the program.
SessionGlobals &Session();
