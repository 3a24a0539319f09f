// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The checks of the birth fields: the field checks made on leaving a field and ValidateEntry,
// made by Generate. Both work on the field texts as the masked boxes hold them.

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

// One message of the entry screen: its resource number, text and box title.
struct EntryMessage
{
    int number = 0;
    QString text;
    QString title;
};

// The texts of one person's birth fields, in the masks "00/00/0000", "00.00", "000:00", "+00.00".
struct BirthFields
{
    QString date;
    QString time;
    QString latitude;
    QString longitude;
    QString gmt;
};

// The entry screen's message of a resource number (5 to 14).
EntryMessage EntryMessageByNumber(int number);

// ValidateEntry on one person's fields: the messages in their order; empty when all pass.
std::vector<EntryMessage> ValidateEntry(const BirthFields &fields);

// The field checks made when a field loses the focus. Each returns the message, or nothing.
std::optional<EntryMessage> CheckDateField(const QString &text);
std::optional<EntryMessage> CheckTimeField(const QString &text);
std::optional<EntryMessage> CheckGmtField(const QString &text, const QString &appTitle);
std::optional<EntryMessage> CheckLatitudeField(const QString &text, const QString &appTitle);
std::optional<EntryMessage> CheckLongitudeField(const QString &text);

// With the Vakya method chosen: the message for a latitude ("000:00") where its Lagna is undefined.
std::optional<EntryMessage> CheckVakyaLatitude(const QString &latitudeText);

// The numbers a masked box holds, read part by part between its separators, so that a blank
// left in a part (" 1/12/2000", "10.5") never shifts the digits of the next one. The checks,
// the cast and the store all read the boxes through these, and so agree on what was typed.

// The parts of text split at separator, each a whole number; nothing when the count of parts
// differs or a part is empty or holds anything but digits and blanks.
std::optional<std::vector<int>> EntryParts(const QString &text, QChar separator, int count);

// The date of a "dd/mm/yyyy" text, invalid when the text is no date.
class QDate;
QDate ParseEntryDate(const QString &text);

// Two parts, as "hh.mm" or "ddd:mm" hold them.
struct EntryPair
{
    int whole = 0;
    int minutes = 0;
};
std::optional<EntryPair> ParseEntryTime(const QString &text);  // "hh.mm"
std::optional<EntryPair> ParseEntryAngle(const QString &text); // "ddd:mm"

// A signed offset box ("+05.30", "-01.00"): its sign and two parts; nothing when unreadable.
struct EntryOffset
{
    bool negative = false;
    int hours = 0;
    int minutes = 0;
    // The value as the hh.mm number the box shows (-5.3 for "-05.30").
    double hhmm() const;
    // The box's text in its mask, "+05.30".
    QString text() const;
};
std::optional<EntryOffset> ParseEntryOffset(const QString &text);

// GMT box text ("+05.30") to decimal hours (5.5): Fix(x) + Frac(x) / 60 * 100, with x the
// number the box shows.
double GmtTextToHours(const QString &text);

// Every number of one person's boxes, as the chart and the store take them.
struct BirthValues
{
    int day = 0, month = 0, year = 0;
    int hour = 0, minute = 0;
    int latDeg = 0, latMin = 0;
    int lonDeg = 0, lonMin = 0;
    QString gmt; // the GMT box in its mask, "+05.30"
};
// The values of fields that ValidateEntry passes; nothing for fields it refuses.
std::optional<BirthValues> ReadBirthValues(const BirthFields &fields);

// Copies the date, clock, place and zone of the values into a person, as Generate does (the zone
// as decimal hours).
class clsPerson;
void SetBirthNumbers(clsPerson &person, const BirthValues &values);
