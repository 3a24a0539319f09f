// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// Small facts of a birth shown on the general page: the local mean time, the prahar, the letter
// group (varga) of the name's first syllable and the numbers of numerology.

#include <QString>
#include <QList>

class clsPlanets;

namespace BirthFacts {
// Hours of an "hh.mm" clock value.
double HoursOfClock(double hhmm);
// The local mean time of the birth as "hh:mm:ss": the clock time moved by four minutes a degree
// between the zone's meridian and the place's.
QString LocalMeanTime(const clsPlanets &c);
// The prahar of the birth, 1..8: four watches of the day from sunrise, then four of the night.
int Prahar(double birthHours, double sunriseHours, double sunsetHours);
int Prahar(const clsPlanets &c);
// Where a sun time would stand on a day without one: "Sun does not set (midnight sun)" or "Sun does
// not rise (polar night)"; empty on a day with sunrise and sunset.
QString SunDayWords(const clsPlanets &c);
// The rule the day parts follow on such a day, as a page states it; empty on a normal day.
QString SunDayRule(const clsPlanets &c);
// The varga of a syllable by its first letter: 1 Garuda (vowels), 2 Marjara (k-), 3 Simha (ch-, j-),
// 4 Shvana (retroflex t- and d-; not told apart in roman letters, see Sarpa), 5 Sarpa (t-, d-, n-),
// 6 Mushaka (p-, f-, b-, m-), 7 Mriga (y-, r-, l-, v-, w-), 8 Mesha (s-, sh-, h-); 0 when empty.
int Varga(const QString &syllable);
// The birth number: the day of the month reduced by its digits to 1..9.
int LuckyNumber(int dayOfMonth);
// The years of life that share the birth number: n + 9, n + 18, ... up to 90.
QList<int> GoodYears(int luckyNumber);
} // namespace BirthFacts
