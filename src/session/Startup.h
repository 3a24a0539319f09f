// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// What start-up proves and prepares before the entry screen: the decimal point, the data files,
// the user's copies of the files the user changes, and the records database.

#include <QString>
#include <QStringList>

namespace Startup {
// True when the number 5.3 written and read back in the program's locale keeps a ".".
bool DecimalPointIsDot();
// The shipped files that must be there, relative to STUFF, in the order they are checked.
QStringList RequiredFiles();
// The first required file that is missing (relative name), or empty when all are there.
QString FirstMissingFile();
// Copies the files the user changes (RECOS.Dat) from STUFF into the user's data folder when
// they are not there yet; returns false with a message when a copy fails.
bool SeedUserData(QString *error = nullptr);
// Opens the user's records database as the session's RecDB; false with a message on failure.
bool OpenRecDB(QString *error = nullptr);
} // namespace Startup
