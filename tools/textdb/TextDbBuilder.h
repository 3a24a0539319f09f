// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// Builds one SQLite database file from a schema and a folder of tab-separated tables.
//
// The schema is SQL text (statements ended by ";", "--" and "/* */" comments allowed).
// Each "*.tsv" file of the folder fills the table named by its file name up to the first
// dot, so "CNVT.tsv" and "CNVT.yogas.tsv" both fill CNVT; files are read in name order.
// The first line of a file names the columns; every further line is one row with as many
// tab-separated cells. Empty lines are skipped, a trailing carriage return is dropped.
// Inside a cell "\n", "\t", "\r" and "\\" stand for newline, tab, carriage return and a
// backslash; a cell that is exactly "\N" is Null; an empty cell is the empty text.
// The whole build is one transaction into a temporary file beside the output, which
// replaces the output only when everything went in.

#include <QString>
#include <QStringList>

class TextDbBuilder
{
public:
    // Builds outFile from schemaFile and the tables of folder; false on any fault, with
    // errorText() naming the file and line. On failure no output file is left behind.
    bool build(const QString &schemaFile, const QString &folder, const QString &outFile);
    // The same with the tables of several folders, read folder by folder in the order given.
    bool build(const QString &schemaFile, const QStringList &folders, const QString &outFile);
    // What went wrong in the last build, as "<file>:<line>: <reason>"; empty after success.
    QString errorText() const { return m_error; }
    // Rows written by the last successful build.
    int rowCount() const { return m_rows; }

    // The statements of a schema text, without comments, split at ";" outside quotes;
    // each paired with the line on which it begins.
    static QList<QPair<int, QString>> splitStatements(const QString &sql);

private:
    bool fail(const QString &message);
    bool runSchema(const QString &connection, const QString &schemaFile);
    bool loadTable(const QString &connection, const QString &file, const QString &table);

    QString m_error;
    int m_rows = 0;
};
