// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The zip archive that travels as a mail attachment: an exported PDF file, or an HTML export
// (Index.HTML and its pictures) under their names relative to the export's folder.

#include <QList>
#include <QString>
#include <QStringList>

struct ZipEntry
{
    QString Name; // the name inside the archive, with "/" between folders
    QString Path; // the file on disk
};

namespace HoroZip {
// The archive's file name as the mail shows it.
inline constexpr const char *kAttachmentName = "HORO.ZIP";

// Every file under folder, by its name relative to folder, sorted by name.
QList<ZipEntry> FolderEntries(const QString &folder);
// Writes a new archive at zipFile with entries (replacing a file of that name). False, with the
// reason in *error, when there is nothing to add, a file can't be read or the archive can't be
// written; no partial archive stays behind.
bool Write(const QString &zipFile, const QList<ZipEntry> &entries, QString *error = nullptr);
// The names inside an archive, in their stored order; empty when it can't be read.
QStringList Names(const QString &zipFile);
} // namespace HoroZip
