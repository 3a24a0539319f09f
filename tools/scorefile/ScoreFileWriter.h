// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// Turns a square table of kuta points (tab-separated, one row per partner value) into the tagged
// text of a score file: one row a line, "[<tag><n>]<letter><m>-<points>|...[/<tag><n>]", the
// entries of a row in ascending order of m. Lines starting with "#" are comments; the first
// other line names the columns (its first cell is a caption, the rest the numbers m).

#include <QString>

class ScoreFileWriter
{
public:
    // The tagged text of the table in tsv, or an empty text with errorText() set. Every value
    // must be a number from 0 to maxPoints; rows and columns must both count 1, 2, 3 ...
    QString convert(const QString &tsv, const QString &rowTag, QChar entryLetter, double maxPoints);
    // Reads inFile and writes outFile (through a temporary file); false on any fault.
    bool convertFile(const QString &inFile, const QString &outFile, const QString &rowTag, QChar entryLetter, double maxPoints);
    QString errorText() const { return m_error; }

private:
    QString m_error;
};
