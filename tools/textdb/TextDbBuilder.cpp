// SPDX-License-Identifier: AGPL-3.0-or-later
#include "TextDbBuilder.h"

#include <QAtomicInt>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QStringDecoder>
#include <QVariant>

namespace {

QAtomicInt connectionCounter;

// Drops the line feed's partner of a file written with CR LF line ends.
QByteArray withoutCarriageReturn(QByteArray line)
{
    if (line.endsWith('\r'))
        line.chop(1);
    return line;
}

// Decodes one line as strict UTF-8; false if it holds a byte sequence that isn't UTF-8.
bool decodeUtf8(const QByteArray &bytes, QString &text)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
    text = decoder.decode(bytes);
    return !decoder.hasError();
}

// Reads the escapes of one cell: "\N" alone is Null, "\n" "\t" "\r" "\\" the characters.
bool unescapeCell(const QString &cell, QVariant &value, QString &why)
{
    if (cell == QLatin1String("\\N")) {
        value = QVariant(QMetaType::fromType<QString>());
        return true;
    }
    // Start from a non-null empty text: a null QString would be written as Null.
    QString text = QStringLiteral("");
    text.reserve(cell.size());
    for (qsizetype i = 0; i < cell.size(); ++i) {
        const QChar c = cell.at(i);
        if (c != QLatin1Char('\\')) {
            text.append(c);
            continue;
        }
        if (i + 1 == cell.size()) {
            why = QStringLiteral("a lone backslash ends the cell (write \\\\ for a backslash)");
            return false;
        }
        const QChar e = cell.at(++i);
        switch (e.unicode()) {
        case 'n': text.append(QLatin1Char('\n')); break;
        case 't': text.append(QLatin1Char('\t')); break;
        case 'r': text.append(QLatin1Char('\r')); break;
        case '\\': text.append(QLatin1Char('\\')); break;
        default:
            why = QStringLiteral("unknown escape \\%1").arg(e);
            return false;
        }
    }
    value = text;
    return true;
}

QString quotedName(const QString &name)
{
    QString n = name;
    n.replace(QLatin1Char('"'), QLatin1String("\"\""));
    return QLatin1Char('"') + n + QLatin1Char('"');
}

} // namespace

bool TextDbBuilder::fail(const QString &message)
{
    m_error = message;
    return false;
}

QList<QPair<int, QString>> TextDbBuilder::splitStatements(const QString &sql)
{
    QList<QPair<int, QString>> statements;
    QString current;
    int line = 1;
    int startLine = 0;
    QChar quote;
    const auto flush = [&] {
        const QString s = current.trimmed();
        if (!s.isEmpty())
            statements.append({startLine, s});
        current.clear();
        startLine = 0;
    };
    const qsizetype n = sql.size();
    for (qsizetype i = 0; i < n; ++i) {
        const QChar c = sql.at(i);
        const QChar next = i + 1 < n ? sql.at(i + 1) : QChar();
        if (quote.isNull()) {
            if (c == QLatin1Char('-') && next == QLatin1Char('-')) {
                while (i + 1 < n && sql.at(i + 1) != QLatin1Char('\n'))
                    ++i;
                continue;
            }
            if (c == QLatin1Char('/') && next == QLatin1Char('*')) {
                i += 2;
                while (i < n && !(sql.at(i) == QLatin1Char('*') && i + 1 < n && sql.at(i + 1) == QLatin1Char('/'))) {
                    if (sql.at(i) == QLatin1Char('\n'))
                        ++line;
                    ++i;
                }
                ++i; // onto the closing '/'
                current.append(QLatin1Char(' '));
                continue;
            }
            if (c == QLatin1Char(';')) {
                flush();
                continue;
            }
            if (c == QLatin1Char('\'') || c == QLatin1Char('"'))
                quote = c;
        } else if (c == quote) {
            quote = QChar(); // a doubled quote simply opens again at the next character
        }
        if (startLine == 0 && !c.isSpace())
            startLine = line;
        if (c == QLatin1Char('\n'))
            ++line;
        current.append(c);
    }
    flush();
    return statements;
}

bool TextDbBuilder::runSchema(const QString &connection, const QString &schemaFile)
{
    QFile file(schemaFile);
    if (!file.open(QIODevice::ReadOnly))
        return fail(QStringLiteral("%1: cannot read: %2").arg(schemaFile, file.errorString()));
    QString sql;
    if (!decodeUtf8(file.readAll(), sql))
        return fail(QStringLiteral("%1: not UTF-8 text").arg(schemaFile));

    QSqlDatabase db = QSqlDatabase::database(connection);
    for (const auto &[line, statement] : splitStatements(sql)) {
        QSqlQuery query(db);
        if (!query.exec(statement))
            return fail(QStringLiteral("%1:%2: %3").arg(schemaFile).arg(line).arg(query.lastError().text()));
    }
    return true;
}

bool TextDbBuilder::loadTable(const QString &connection, const QString &fileName, const QString &table)
{
    QSqlDatabase db = QSqlDatabase::database(connection);

    QSqlQuery lookup(db);
    lookup.prepare(QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'table' AND name = ?"));
    lookup.addBindValue(table);
    if (!lookup.exec() || !lookup.next())
        return fail(QStringLiteral("%1:1: the schema has no table %2").arg(fileName, table));

    QStringList columns;
    QSqlQuery info(db);
    if (!info.exec(QStringLiteral("PRAGMA table_info(%1)").arg(quotedName(table))))
        return fail(QStringLiteral("%1:1: %2").arg(fileName, info.lastError().text()));
    while (info.next())
        columns << info.value(1).toString();

    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return fail(QStringLiteral("%1: cannot read: %2").arg(fileName, file.errorString()));
    QList<QByteArray> lines = file.readAll().split('\n');
    if (!lines.isEmpty() && lines.last().isEmpty())
        lines.removeLast(); // the line feed that ends the last row
    if (lines.isEmpty() || withoutCarriageReturn(lines.first()).isEmpty())
        return fail(QStringLiteral("%1:1: the first line must name the columns").arg(fileName));
    if (lines.first().startsWith("\xEF\xBB\xBF"))
        lines.first().remove(0, 3);

    QString headerText;
    if (!decodeUtf8(withoutCarriageReturn(lines.first()), headerText))
        return fail(QStringLiteral("%1:1: not UTF-8 text").arg(fileName));
    const QStringList header = headerText.split(QLatin1Char('\t'));
    QSet<QString> seen;
    QStringList quoted;
    for (const QString &name : header) {
        if (!columns.contains(name))
            return fail(QStringLiteral("%1:1: table %2 has no column \"%3\"").arg(fileName, table, name));
        if (seen.contains(name))
            return fail(QStringLiteral("%1:1: column \"%2\" is named twice").arg(fileName, name));
        seen.insert(name);
        quoted << quotedName(name);
    }

    QSqlQuery insert(db);
    const QString placeholders = QStringList(header.size(), QStringLiteral("?")).join(QLatin1Char(','));
    if (!insert.prepare(QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                            .arg(quotedName(table), quoted.join(QLatin1Char(',')), placeholders)))
        return fail(QStringLiteral("%1:1: %2").arg(fileName, insert.lastError().text()));

    for (qsizetype i = 1; i < lines.size(); ++i) {
        const qsizetype lineNo = i + 1;
        const QByteArray bytes = withoutCarriageReturn(lines.at(i));
        if (bytes.isEmpty())
            continue;
        QString text;
        if (!decodeUtf8(bytes, text))
            return fail(QStringLiteral("%1:%2: not UTF-8 text").arg(fileName).arg(lineNo));
        const QStringList cells = text.split(QLatin1Char('\t'));
        if (cells.size() != header.size())
            return fail(QStringLiteral("%1:%2: %3 cells where the first line names %4 columns")
                            .arg(fileName).arg(lineNo).arg(cells.size()).arg(header.size()));
        for (qsizetype j = 0; j < cells.size(); ++j) {
            QVariant value;
            QString why;
            if (!unescapeCell(cells.at(j), value, why))
                return fail(QStringLiteral("%1:%2: column %3: %4").arg(fileName).arg(lineNo).arg(header.at(j), why));
            insert.bindValue(int(j), value);
        }
        if (!insert.exec())
            return fail(QStringLiteral("%1:%2: %3").arg(fileName).arg(lineNo).arg(insert.lastError().text()));
        ++m_rows;
    }
    return true;
}

bool TextDbBuilder::build(const QString &schemaFile, const QString &folder, const QString &outFile)
{
    return build(schemaFile, QStringList{folder}, outFile);
}

bool TextDbBuilder::build(const QString &schemaFile, const QStringList &folders, const QString &outFile)
{
    m_error.clear();
    m_rows = 0;

    for (const QString &folder : folders)
        if (!QDir(folder).exists())
            return fail(QStringLiteral("%1: no such folder").arg(folder));
    const QFileInfo out(outFile);
    if (!out.absoluteDir().mkpath(QStringLiteral(".")))
        return fail(QStringLiteral("%1: cannot make its folder").arg(outFile));

    const QString temp = outFile + QStringLiteral(".part");
    QFile::remove(temp);

    const QString connection = QStringLiteral("orbanta_textdb_%1").arg(connectionCounter.fetchAndAddRelaxed(1));
    bool ok = false;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection);
        db.setDatabaseName(temp);
        if (!db.open()) {
            fail(QStringLiteral("%1: %2").arg(temp, db.lastError().text()));
        } else {
            QSqlQuery(db).exec(QStringLiteral("PRAGMA journal_mode = MEMORY"));
            ok = db.transaction();
            if (!ok)
                fail(QStringLiteral("%1: %2").arg(temp, db.lastError().text()));
            ok = ok && runSchema(connection, schemaFile);
            for (const QString &folder : folders) {
                const QDir dir(folder);
                const QStringList files = dir.entryList({QStringLiteral("*.tsv")}, QDir::Files, QDir::Name);
                for (const QString &name : files) {
                    if (!ok)
                        break;
                    ok = loadTable(connection, dir.filePath(name), name.section(QLatin1Char('.'), 0, 0));
                }
            }
            if (ok && !db.commit())
                ok = fail(QStringLiteral("%1: %2").arg(temp, db.lastError().text()));
            if (!ok)
                db.rollback();
            db.close();
        }
    }
    QSqlDatabase::removeDatabase(connection);

    if (!ok) {
        QFile::remove(temp);
        QFile::remove(outFile); // an earlier build would otherwise pass for this one
        m_rows = 0;
        return false;
    }
    QFile::remove(outFile);
    if (!QFile::rename(temp, outFile)) {
        QFile::remove(temp);
        m_rows = 0;
        return fail(QStringLiteral("%1: cannot write").arg(outFile));
    }
    return true;
}
