// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// Saved page sets: named selections of a mode's print tree. The names live in table PrintMods of
// the records; each set's ticks in an INI file of the user's INIFILES folder, one entry a node key
// under a section named as the set. A key the file lacks reads as ticked.

#include <QHash>
#include <QSqlDatabase>
#include <QString>
#include <QStringList>

namespace PageSets {
constexpr int kMaxName = 100;
// INIFILES/<Name><ProgMode>.ini in the user's data folder.
QString FileOf(const QString &name, int progMode);
// The sets of a mode, in the order of the table.
QStringList Names(const QSqlDatabase &db, int progMode);
// The ticks of a set for the given keys.
QHash<QString, bool> Read(const QString &name, int progMode, const QStringList &keys);
// Adds or updates the set's row and writes every tick to its file; false with nothing changed in
// the table when the name is empty or the records can't be written.
bool Save(const QSqlDatabase &db, const QString &name, int progMode, const QHash<QString, bool> &ticks);
// Deletes the row and the file; a name without a row deletes nothing.
bool Delete(const QSqlDatabase &db, const QString &name, int progMode);
} // namespace PageSets
