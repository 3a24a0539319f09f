// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// What a time zone's clocks showed at a birth, read from the system's tz database through
// QTimeZone: the standard offset in force then, and the daylight, summer or war time that
// the clock carried on top of it, in the forms of the entry screen's GMT and correction boxes.
//
// The split follows the habit of the entry screen, where the correction is always the
// clock's lead over standard time (so it is subtracted from the birth time):
// - a period the tz database flags as daylight time counts its daylight amount as the
//   correction ("EDT" = -05.00 with -01.00; India's war time = +05.30 with -01.00);
// - where the database calls winter time the daylight period (negative daylight saving, as
//   Ireland since 1971 and Morocco's Ramadan breaks), the lower winter offset is standard and
//   the summer between two such winters carries the difference as its correction;
// - a period without the daylight flag that keeps the name of the zone's summer time and
//   goes back to the old standard afterwards (British Standard Time 1968-71) is summer time
//   over the old standard offset;
// - anything else is a standard offset of its own (Singapore's +07.30 before 1982).
// The standard offset plus the correction is always the clock's offset from Greenwich.

#include <QDate>
#include <QDateTime>
#include <QString>
#include <QTime>
#include <QTimeZone>

// A zone's state at one local clock moment.
struct ZoneMoment
{
    bool valid = false;         // the zone name is known to the tz database
    int standardSeconds = 0;    // standard offset east of Greenwich in seconds
    double standardHours = 0;   // the same in decimal hours: 5.5 for India
    QString standardText;       // the GMT box's text, "+05.30" (to the nearest minute)
    int correctionSeconds = 0;  // the clock's lead over standard time: 3600 in summer time
    double correctionHours = 0; // the same in decimal hours
    QString correctionText;     // the correction box's text, "-01.00"; "-00.00" without one
    int correctionIndex = 0;    // the correction list's index: 0 None, 1 DST, 2 Summer Time, 3 War Time
    bool skipped = false;       // the clock time never showed: the clocks jumped over it
    bool repeated = false;      // the clock time showed twice: the clocks went back over it
    QDateTime utc;              // universal time of the moment (Qt::UTC)
};

class ZoneHistory
{
public:
    explicit ZoneHistory(const QString &ianaName);

    // Whether the tz database knows the zone.
    bool IsValid() const;
    // The zone's state at a local civil date and clock time (no zone attached).
    // A clock time skipped by a change is read with the offset in force before the change;
    // a repeated one is read as its first occurrence.
    ZoneMoment At(QDate date, QTime time) const;

    // One-shot form of At.
    static ZoneMoment At(const QString &ianaName, QDate date, QTime time);
    // The GMT box's text of an offset: sign, two-digit hours, ".", two-digit minutes ("+05.30").
    static QString GmtText(int seconds);
    // The correction box's text of a clock lead: "-" and the hours with two decimals, as
    // the chart reads it ("-01.00"; half an hour is "-00.50").
    static QString CorrectionText(int seconds);
    // The correction list's index of a clock lead at a local date in a zone: 0 None,
    // 3 War Time from September 1939 to 1945, 2 Summer Time in Europe, 1 DST elsewhere.
    static int CorrectionKind(const QString &ianaName, QDate localDate, int correctionSeconds);

private:
    QTimeZone m_zone;
    QString m_name;
};
