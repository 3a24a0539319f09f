// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The reports of the three annual text pages as a list of items: headings, lines made of words,
// and paragraphs named by their key in table VPHALA. The pages turn the items into rich text; the
// tests read the keys.

#include <QDate>
#include <QList>
#include <QString>

class clsVarsha;

struct VarshaTextItem
{
    enum Kind { Title, Head, Line, Paragraph };
    Kind kind;
    QString text; // the words, or for a paragraph its VPHALA key
};

// One period of the Mudda cycle as the year's prediction tells it.
struct MuddaPeriod
{
    int Position = 0; // 1..9 in the cycle
    int Planet = 0;
    QDate From, To;
};

// The nine periods from the annual chart's date: the first at the place of the natal Moon's
// nakshatra plus the age, its digits added until one is left.
QList<MuddaPeriod> MuddaPeriods(const clsVarsha &v);
// The year by its nine Mudda periods.
QList<VarshaTextItem> VarshaPredictItems(const clsVarsha &v);
// The Muntha, the lord of the year and the annual Lagna.
QList<VarshaTextItem> VarChartTextItems(const clsVarsha &v);
// Each planet 1..9 by its house in the annual chart.
QList<VarshaTextItem> VarPlanetHouseItems(const clsVarsha &v);
