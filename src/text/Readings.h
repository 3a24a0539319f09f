// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The written readings that come straight out of the text tables by the chart's facts: the
// conjunction results (table ASP), the birth nakshatra (table Nakshatra), the planets by sign and
// the houses (table Bhava). Each reader answers the page as a list of items; the page shows them
// and the tests check every key against the database.

#include <QList>
#include <QString>

class clsPlanets;

// One step of a reading page: line breaks, a heading, and the paragraph of a key.
struct ReadingItem
{
    int linesBefore = 0;
    QString heading;  // empty: no heading
    int type = 0;     // text table of the paragraph (GetHeadValue type); 0: no paragraph
    QString category; // empty for ASP
    QString head;
    int linesAfter = 0;
};

// The page's title and its items.
struct Reading
{
    QString title;
    QList<ReadingItem> items;
};

// The conjunction results: each pair of planets 1..12 (Rahu with Ketu left out) whose separation
// falls in one of the seven named relations.
Reading ConjunctionReading(const clsPlanets &c);
// The relation codes that have a paragraph.
bool HasConjunctionText(const QString &code);
// "Sun-Moon:CNJ", the lower planet number first.
QString ConjunctionKey(int i, int j, const QString &code);

// The planets 1..9 that cast a sign aspect on sign s, in planet order: every planet its 7th,
// Mars also its 4th and 8th, Jupiter its 5th and 9th, Saturn its 3rd and 10th.
QList<int> ParashariAspectors(const clsPlanets &c, int sign);

// The birth nakshatra page.
Reading NakshatraReading(const clsPlanets &c);
// The planets in the signs.
Reading GrahaFalaReading(const clsPlanets &c);
// The lords of the houses in the houses, and the planets in the houses.
Reading BhavaFalaReading(const clsPlanets &c);

// The 28-nakshatra count of a longitude, Abhijit 22 between the end of Uttarashada's third
// quarter and the first part of Shravana; and the quarter 1..4 within it.
int Nak28Index(double longitude);
int Nak28Quarter(double longitude);
// The Category word of the Nakshatra table for a 28-index ("ABHIJIT" for 22); empty outside 1..28.
QString Nak28Word(int index);
// The key of the English nakshatra names (CNVT "Nakshatra", Abhijit at 28) for a 28-index.
int Nak28NameKey(int index);

// The Category keys of table Bhava: the lord of house h (1..12) and the planets in house k.
QString LordInHouseKey(int h);
QString PlanetInHouseKey(int k);
// The house k (1..12) from the Lagna of the sign.
int HouseOfSign(int sign, int lagnaSign);
