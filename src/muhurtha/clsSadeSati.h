// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// Sade Sati: the spans of a life in which Saturn passes the signs around the natal Moon, chosen
// from the table of Saturn's sign entries, with the Paya (the "feet": gold, silver, copper or
// iron) that the Moon of each entry day gives.

#include <QSqlDatabase>
#include <QString>

#include <vector>

class clsPlanets;

struct SadeSatiRow
{
    int phase = 0;       // 1 "Phase1", 2 "Phase2", 3 "Phase3", 4 "Kantak", 5 "Ashtam"
    int sign = 0;        // the sign Saturn enters
    QString entry;       // YYYYMMDD
    double longitude = 0; // Saturn's longitude on the day of entry
    QString exit;        // YYYYMMDD
    int paya = 0;        // 1..4, the key under head "PAYA"
};

class clsSadeSati
{
public:
    // The page holds at most this many rows.
    static constexpr int kMaxRows = 30;

    // The table of entries for an ayanamsa choice: "LEPH", "BEPH", "KEPH", "SEPH", or empty when
    // the choice has none.
    static QString TableOf(int ayanType);
    // The label key of a phase ("Phase1" ... "Ashtam").
    static QString PhaseKey(int phase);
    // "dd/MM/yyyy" of a YYYYMMDD date.
    static QString ShowDate(const QString &yyyymmdd);
    // The Paya key (1..4) for the Moon standing k signs on from the natal Moon's (0..11).
    static int PayaOf(int k);

    // Opens STUFF/COMMON/SADESAT.Dat read-only; false (with db invalid) when it can't.
    static bool OpenDB(QSqlDatabase &db);
    static void CloseDB(QSqlDatabase &db);

    // The rows of the chart's life, in the page's order, at most kMaxRows; none when the chart's
    // ayanamsa has no table. The chart is not changed: the Paya is read from a copy.
    static std::vector<SadeSatiRow> MakeSadeSati(const clsPlanets &chart, const QSqlDatabase &db);
};
