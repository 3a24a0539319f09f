// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// Where the program finds its data: the shipped STUFF folder beside the executable, and the
// user's data folder, where the files the user changes live.

#include <QString>

namespace DataPaths {
// The shipped data folder: $ORBANTA_STUFF if set, else "STUFF" beside the executable.
QString StuffFolder();
// The user's data folder (created when missing).
QString UserFolder();
// The records database to read: the user's copy once it exists, else the shipped one.
QString RecordsFile();
} // namespace DataPaths
