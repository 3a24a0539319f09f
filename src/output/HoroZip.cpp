// SPDX-License-Identifier: AGPL-3.0-or-later
#include "output/HoroZip.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <zip.h>

#include <algorithm>

namespace {
QString zipError(zip_t *z)
{
    return QString::fromLocal8Bit(zip_strerror(z));
}
} // namespace

QList<ZipEntry> HoroZip::FolderEntries(const QString &folder)
{
    QList<ZipEntry> out;
    const QDir root(folder);
    QDirIterator it(folder, QDir::Files | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        out.append({root.relativeFilePath(path), path});
    }
    std::sort(out.begin(), out.end(), [](const ZipEntry &a, const ZipEntry &b) { return a.Name < b.Name; });
    return out;
}

bool HoroZip::Write(const QString &zipFile, const QList<ZipEntry> &entries, QString *error)
{
    const auto fail = [error](const QString &why) {
        if (error)
            *error = why;
        return false;
    };
    if (entries.isEmpty())
        return fail(QStringLiteral("There is nothing to put into the archive %1.").arg(QDir::toNativeSeparators(zipFile)));
    for (const ZipEntry &e : entries)
        if (!QFileInfo(e.Path).isReadable() || !QFileInfo(e.Path).isFile())
            return fail(QStringLiteral("The file %1 can't be read.").arg(QDir::toNativeSeparators(e.Path)));
    // Written beside the target and moved over it at the end, so that a failure leaves nothing half made.
    const QString part = zipFile + QLatin1String(".part");
    QFile::remove(part);
    int code = 0;
    zip_t *z = zip_open(QFile::encodeName(part).constData(), ZIP_CREATE | ZIP_TRUNCATE, &code);
    if (!z) {
        zip_error_t e;
        zip_error_init_with_code(&e, code);
        const QString why = QString::fromLocal8Bit(zip_error_strerror(&e));
        zip_error_fini(&e);
        return fail(QStringLiteral("The archive %1 can't be written: %2").arg(QDir::toNativeSeparators(zipFile), why));
    }
    for (const ZipEntry &e : entries) {
        zip_source_t *src = zip_source_file(z, QFile::encodeName(e.Path).constData(), 0, -1);
        if (!src || zip_file_add(z, e.Name.toUtf8().constData(), src, ZIP_FL_ENC_UTF_8 | ZIP_FL_OVERWRITE) < 0) {
            const QString why = zipError(z);
            if (src)
                zip_source_free(src);
            zip_discard(z);
            QFile::remove(part);
            return fail(QStringLiteral("The file %1 can't go into the archive: %2").arg(QDir::toNativeSeparators(e.Path), why));
        }
    }
    if (zip_close(z) != 0) {
        const QString why = zipError(z);
        zip_discard(z);
        QFile::remove(part);
        return fail(QStringLiteral("The archive %1 can't be written: %2").arg(QDir::toNativeSeparators(zipFile), why));
    }
    QFile::remove(zipFile);
    if (!QFile::rename(part, zipFile)) {
        QFile::remove(part);
        return fail(QStringLiteral("The archive %1 can't be written.").arg(QDir::toNativeSeparators(zipFile)));
    }
    return true;
}

QStringList HoroZip::Names(const QString &zipFile)
{
    QStringList out;
    int code = 0;
    zip_t *z = zip_open(QFile::encodeName(zipFile).constData(), ZIP_RDONLY, &code);
    if (!z)
        return out;
    const zip_int64_t n = zip_get_num_entries(z, 0);
    for (zip_int64_t i = 0; i < n; ++i)
        if (const char *name = zip_get_name(z, static_cast<zip_uint64_t>(i), ZIP_FL_ENC_GUESS))
            out << QString::fromUtf8(name);
    zip_close(z);
    return out;
}
