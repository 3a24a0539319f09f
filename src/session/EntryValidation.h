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

// The date of a "dd/mm/yyyy" text, invalid when the text is no date.
class QDate;
QDate ParseEntryDate(const QString &text);
// GMT box text ("+05.30") to decimal hours (5.5): Fix(x) + Frac(x) / 60 * 100.
double GmtTextToHours(const QString &text);
