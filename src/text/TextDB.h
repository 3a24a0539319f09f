// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The text databases of the languages: where they lie, how one is opened, and the look-ups by
// table, Head and Category through which every word of the program is read.
//
// A look-up answers a dynamic value: an invalid QVariant is Empty (no such row, or a type
// outside 1..12); a valid but null QVariant is a stored Null; otherwise the stored text.
// Keys are compared without regard to case. A key with no row is reported through
// messageSink() and the caller gets Empty and goes on.

#include <QSqlDatabase>
#include <QString>
#include <QVariant>

// The data folder: as set here, else DataPaths::StuffFolder() ($ORBANTA_STUFF, else "STUFF"
// beside the executable).
QString StuffFolder();
// Points the data folder elsewhere (tests, a portable setup); an empty path restores the default.
void setStuffFolder(const QString &path);
// STUFF/<langDir>/<langDir>.Dat.
QString TextDBPath(const QString &langDir);

// Opens the language's database read-only under a connection name of its own and puts it in
// textDb. A missing file is reported ("File Not Found") and leaves textDb as it was; so does a
// file that can't be opened. True when textDb now holds the language.
bool OpenTextDB(const QString &langDir, QSqlDatabase &textDb);
// Closes db and drops its connection; db becomes invalid.
void CloseTextDB(QSqlDatabase &db);

// A key as the look-ups write it: numbers as the classic Str writes them (3 gives "3").
QString TextKey(const QVariant &key);

// The general look-up on table: the first row with that Head and, unless category is empty,
// that Category. A stored Null gives Empty.
QVariant GetTextBetween(const QSqlDatabase &db, const QString &table, const QVariant &head, const QString &category);
// Dispatch by type: 1 CNVT (with category), 2 YOGAS, 3 VPHALA, 4 MarMatch, 5 ASP, 6 FORTUNE,
// 7 YOGNAME, 8 Nakshatra, 9 Bhava, 10 Muhu, 11 Daily, 12 Transits (with category where the
// table has one). Types 2, 3, 5..10 hand a stored Null back; Daily gives "" for it.
QVariant GetHeadValue(const QSqlDatabase &db, int type, const QVariant &head, const QString &category = QString());
// CNVT under category "Gen".
QVariant GetGenText(const QSqlDatabase &db, const QVariant &head);
// The ASP row of head ("Sun-Moon:CNJ"); a stored Null is handed back.
QVariant GetConjText(const QSqlDatabase &db, const QVariant &head);

// The language's symbol of a separator kind: 1 and 2 ":", 3 "/", 4 "-", 5 "+"; "" for others.
// Read once per database from category "Symbols" and kept.
QString LangSeparator(const QSqlDatabase &db, int kind);
// numberText with each "." replaced by the language's decimal symbol.
QString LangNumberText(const QSqlDatabase &db, const QString &numberText);
// Forgets the kept symbols (after the language changes).
void ClearSymbolCache();

// Tagged notation: blocks "[HEAD<key>]" ... "[/HEAD<key>]" in any order.
// The text from just after "[HEAD<key>]" to just before "[/HEAD<key>]"; "" when absent.
QString TagBlock(const QString &text, const QString &key);
// Finds item in block and answers the letter after the next "/" from there, so the closing
// tag around the item decides ("[N]P4[/F]" reads 'F' for "P4"); a null QChar when item or
// "/" is absent.
QChar TagClosingLetter(const QString &block, const QString &item);
// In block, the entry that starts with entry: cut at the next "|", take what follows its first
// "-" and truncate it to a whole number. 0 when the entry is absent or its number is beyond a long.
long TagEntryScore(const QString &block, const QString &entry);
