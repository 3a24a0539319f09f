// SPDX-License-Identifier: AGPL-3.0-or-later
#include "ScoreFileWriter.h"

#include <QFile>
#include <QSaveFile>
#include <QStringList>

QString ScoreFileWriter::convert(const QString &tsv, const QString &rowTag, QChar entryLetter, double maxPoints)
{
    m_error.clear();
    QStringList lines;
    QList<int> lineNumbers;
    const QStringList raw = tsv.split(QLatin1Char('\n'));
    for (int i = 0; i < raw.size(); ++i) {
        QString l = raw[i];
        if (l.endsWith(QLatin1Char('\r')))
            l.chop(1);
        if (l.trimmed().isEmpty() || l.startsWith(QLatin1Char('#')))
            continue;
        lines << l;
        lineNumbers << i + 1;
    }
    const auto fail = [this](int line, const QString &why) {
        m_error = QStringLiteral("line %1: %2").arg(line).arg(why);
        return QString();
    };
    if (lines.isEmpty())
        return fail(0, QStringLiteral("no table"));
    const QStringList head = lines[0].split(QLatin1Char('\t'));
    const int count = static_cast<int>(head.size()) - 1;
    if (count < 1)
        return fail(lineNumbers[0], QStringLiteral("no columns"));
    for (int m = 1; m <= count; ++m)
        if (head[m].trimmed() != QString::number(m))
            return fail(lineNumbers[0], QStringLiteral("column %1 is headed \"%2\"").arg(m).arg(head[m]));
    if (lines.size() - 1 != count)
        return fail(lineNumbers.last(), QStringLiteral("%1 rows for %2 columns").arg(lines.size() - 1).arg(count));

    QString out;
    for (int n = 1; n <= count; ++n) {
        const QStringList cells = lines[n].split(QLatin1Char('\t'));
        const int line = lineNumbers[n];
        if (cells.size() != count + 1)
            return fail(line, QStringLiteral("%1 cells, %2 expected").arg(cells.size()).arg(count + 1));
        if (cells[0].trimmed() != QString::number(n))
            return fail(line, QStringLiteral("row %1 is headed \"%2\"").arg(n).arg(cells[0]));
        out += QStringLiteral("[%1%2]").arg(rowTag).arg(n);
        for (int m = 1; m <= count; ++m) {
            const QString v = cells[m].trimmed();
            bool ok = false;
            const double points = v.toDouble(&ok);
            if (!ok || points < 0 || points > maxPoints)
                return fail(line, QStringLiteral("\"%1\" is no number from 0 to %2").arg(v).arg(maxPoints));
            out += QStringLiteral("%1%2-%3|").arg(entryLetter).arg(m).arg(v);
        }
        out += QStringLiteral("[/%1%2]\n").arg(rowTag).arg(n);
    }
    return out;
}

bool ScoreFileWriter::convertFile(const QString &inFile, const QString &outFile, const QString &rowTag, QChar entryLetter,
                                  double maxPoints)
{
    QFile in(inFile);
    if (!in.open(QIODevice::ReadOnly)) {
        m_error = inFile + QStringLiteral(": cannot be read");
        return false;
    }
    const QString text = convert(QString::fromUtf8(in.readAll()), rowTag, entryLetter, maxPoints);
    if (text.isEmpty()) {
        m_error = inFile + QStringLiteral(":") + m_error;
        return false;
    }
    QSaveFile out(outFile);
    if (!out.open(QIODevice::WriteOnly) || out.write(text.toLatin1()) < 0 || !out.commit()) {
        m_error = outFile + QStringLiteral(": cannot be written");
        return false;
    }
    return true;
}
