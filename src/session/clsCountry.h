// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The countries of the atlas (table Country of the records database) as a cursor over its rows
// in table order, with the row operations of the atlas editor. Every write is one transaction
// and names go into the queries as parameters.

#include "session/RowCursor.h"

#include <QSqlDatabase>
#include <QString>
#include <QStringList>

#include <vector>

// The outcome of a write to the atlas: ok, or the message to show (title and text).
struct AtlasEditResult
{
    bool ok = true;
    QString title;
    QString text;
    static AtlasEditResult Fail(const QString &title, const QString &text) { return {false, title, text}; }
};

class clsCountry
{
public:
    // Opens table Country of db and stands on its first row.
    explicit clsCountry(const QSqlDatabase &db);

    QString Name() const;     // column Name of the current row
    QString GMT() const;      // column GMTDIF of the current row, "+05.30"
    QString TimeZone() const; // column TimeZone of the current row
    int Count() const;        // number of rows
    int Position() const;     // index of the current row; Count() past the end
    bool AtEnd() const;       // the cursor is past the last row

    // The names from the current row to the end.
    QStringList FillInCombo() const;
    // Moves to the first row, then n rows on.
    void MoveTo(int n);
    void MoveFirst();
    void MoveLast();
    void MoveNext();
    // Reads the table again; the cursor goes to the first row.
    bool Requery();

    // Index of the first row named name (without case), or -1.
    int FindFirst(const QString &name) const;
    // True when a country of that name is in the table.
    bool Exists(const QString &name) const;

    // Adds a country.
    AtlasEditResult AddCountry(const QString &name, const QString &gmt);
    // Gives row `row` a new name and difference; its cities keep the old name.
    AtlasEditResult ModifyCountry(int row, const QString &name, const QString &gmt);
    // Deletes the first country of that name; its cities stay.
    AtlasEditResult DeleteCountry(const QString &name);

    // The message of a failed database statement.
    static AtlasEditResult DatabaseError(const QString &text);

private:
    struct Row
    {
        qint64 id = 0;
        QString Name, GMTDIF, TimeZone;
    };
    const Row *current() const;

    QSqlDatabase m_db;
    RowCursor<Row> m_cur;
};
