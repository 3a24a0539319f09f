// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The text of a PDF the tests wrote, through poppler's pdftotext.

#include <QProcess>
#include <QStandardPaths>
#include <QString>

// The text laid out as on the page, or an empty string when pdftotext isn't there.
inline QString PdfText(const QString &file)
{
    const QString tool = QStandardPaths::findExecutable(QStringLiteral("pdftotext"));
    if (tool.isEmpty())
        return {};
    QProcess p;
    p.start(tool, {QStringLiteral("-layout"), file, QStringLiteral("-")});
    p.waitForFinished();
    return QString::fromUtf8(p.readAllStandardOutput());
}
