// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The three score files of the match in STUFF/COMMON, read whole at each look-up:
// SCGRAHA.DAT (rows "[H<n>]" of the boy's Moon-sign lord, entries "P<m>-<points>|" of the girl's),
// SCRASI.DAT (rows "[H<n>]" of the boy's Moon sign, entries "R<m>-<points>|"),
// SCYONI.DAT (rows "[HEAD<n>]" of the boy's yoni, entries "S<m>-<points>|").

#include <QString>
#include <QStringList>

namespace ScoreFiles {
// "COMMON/SCGRAHA.DAT", "COMMON/SCRASI.DAT", "COMMON/SCYONI.DAT": the files inside STUFF.
QStringList Files();
// In text, the value written for entry letter + m in the row tagged rowTag + n: the text from
// "[rowTag n]" to "[/rowTag n]", from the first letter + m on, up to its "|", after its "-".
// Empty when the row, the entry or its "-" is missing.
QString EntryText(const QString &text, const QString &rowTag, int n, QChar letter, int m);
// The same read from the file (name inside STUFF/COMMON); empty when the file can't be read.
QString FileEntry(const QString &fileName, const QString &rowTag, int n, QChar letter, int m);
// The points of the two Moon-sign lords (planet numbers), of the two Moon signs, of two yonis
// (whole part); 0 when missing.
double GrahaPoints(int boyLord, int girlLord);
double RasiPoints(int boySign, int girlSign);
double YoniPoints(int boyYoni, int girlYoni);
} // namespace ScoreFiles
