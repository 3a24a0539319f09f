// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The cities of the atlas (table City of the records database) as a cursor over its rows in
// table order, with the row operations and checks of the atlas editor. Every write is one
// transaction and names go into the queries as parameters.

#include "session/clsCountry.h"
#include "session/RowCursor.h"

#include <QSqlDatabase>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

// One city as the editor fills it. Lat and Longy are three digits of degrees and two of minutes.
struct CityFields
{
    QString City;
    QString Lat;   // "02838"
    QString Longy; // "07713"
    QString NOSO;  // "N" or "S"
    QString EaWe;  // "E" or "W"
    QString Country;
    QString GMTDIFF; // "+05.30"
};

class clsCity
{
public:
    // Opens table City of db and stands on its first row.
    explicit clsCity(const QSqlDatabase &db);

    QString Name() const;    // column City of the current row
    int CityCount() const;   // number of rows
    QString Lat() const;     // column Lat, "02838"
    QString NS() const;      // column NOSO
    QString EW() const;      // column EaWe
    QString Country() const; // column Country
    QString Longi() const;   // column Longy, "07713"
    QString GMTDIFF() const; // column GMTDIFF, "+05.30"
    int Position() const;    // index of the current row; CityCount() past the end
    bool AtEnd() const;      // the cursor is past the last row
    // Writes column Lat (or Longy) of the current row.
    AtlasEditResult setLat(const QString &lat);
    AtlasEditResult setLongi(const QString &longi);

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
    // The current row as fields.
    CityFields Fields() const;
    // Indexes of the rows of a place, by name and country (without case), in table order.
    std::vector<int> RowsOfPlace(const QString &name, const QString &country) const;
    // The stored row id of row `row`, 0 when there is no such row.
    qint64 RowId(int row) const;

    // Adds a city; refused when its country isn't in table Country or a coordinate is 180 or more.
    AtlasEditResult AddCity(const CityFields &f);
    // Rewrites row `row` with the same checks.
    AtlasEditResult ChangeCity(int row, const CityFields &f);
    // Deletes row `row`.
    AtlasEditResult DeleteRow(int row);

    // The refusal of a coordinate box "ddd:mm" (latitude or longitude) at or above 180.
    static std::optional<AtlasEditResult> CheckCoordinate(const QString &box, bool latitude);
    // The five stored digits of a box "ddd:mm": its first three and last two characters.
    static QString BoxToColumn(const QString &box);
    // The box form "ddd:mm" of a stored value.
    static QString ColumnToBox(const QString &column);

private:
    struct Row
    {
        qint64 id = 0;
        CityFields f;
        QString TimeZone;
    };
    const Row *current() const;
    AtlasEditResult checkFields(const CityFields &f, QString *timeZone) const;
    AtlasEditResult setColumn(const char *column, const QString &value);

    QSqlDatabase m_db;
    RowCursor<Row> m_cur;
};
