// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The person store: table Person of the records database, and the exchange files .JKP (one
// person) and .JKD (any number) made from the empty template ExpTemp.JKP. Every write to the
// store is one transaction; a file that cannot be read changes nothing.

#include <QSqlDatabase>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <optional>
#include <vector>

// One row of table Person, as the entry screen writes it.
struct PersonRow
{
    QString Name;
    int Sex = 1;
    int Day = 0, Month = 0, Year = 0;
    int Hour = 0, Minutes = 0, seconds = 0;
    int AMPM = 1;
    QString Country, City;
    int LatDeg = 0, LatMT = 0;
    QString TextNS = QStringLiteral("N");
    int LongDeg = 0, LongMT = 0;
    QString TextEW = QStringLiteral("E");
    QString GMTDIFF = QStringLiteral("+00.00");
    QVariant TCorrVal;  // text, or null
    QVariant Tcorrinde; // whole number, or null

    // The row from the entry screen's boxes: date "dd/mm/yyyy", time "hh.mm", latitude and
    // longitude "ddd:mm", GMT "+hh.mm", correction "-hh.mm" with its list index.
    static PersonRow fromFields(const QString &name, bool male, const QString &date, const QString &time, bool am,
                                const QString &country, const QString &city, const QString &latitude, const QString &ns,
                                const QString &longitude, const QString &ew, const QString &gmt, const QString &timeCorr,
                                int timeCorrIndex);
};

// The outcome of a store operation: ok, or the message to show.
struct StoreResult
{
    bool ok = true;
    QString message;
    int rows = 0; // rows written or read
};

// A LIKE pattern for names that begin with typed: "\", "%" and "_" are escaped with "\", so the
// query needs ESCAPE '\'; a "%" follows.
QString LikePrefix(const QString &typed);

class PersonStore
{
public:
    explicit PersonStore(QSqlDatabase db) : m_db(std::move(db)) {}

    // Writes the row over the first row of that name, or adds it; true in added when it is new.
    StoreResult SavePerson(const PersonRow &row, bool *added = nullptr);
    // Deletes the first row of that name, if any.
    StoreResult DeletePerson(const QString &name);
    // The first row of that exact name. A null GMTDIFF reads "+00.00", a null Tcorrinde 0.
    std::optional<PersonRow> FindPerson(const QString &name) const;
    // The first row, by name order, whose name starts with the typed text (any character is literal).
    std::optional<PersonRow> FindByPrefix(const QString &typed) const;
    // Every name with its sex, in table order (the three name lists of the entry screen).
    std::vector<std::pair<QString, int>> PersonNames() const;
    // Number of rows.
    int Count() const;

    // Writes the rows into a new exchange file made from the template; an existing file is replaced
    // only when the new one is complete.
    static StoreResult ExportPersons(const QString &templateFile, const std::vector<PersonRow> &rows, const QString &file);
    // The row ids of every person in name order (the cursor's order).
    std::vector<qint64> IdsByName() const;
    // The row of an id.
    std::optional<PersonRow> RowById(qint64 id) const;
    // Writes the row over the row of an id.
    StoreResult UpdateRow(qint64 id, const PersonRow &row);
    // Adds the row; its new id in newId.
    StoreResult InsertRow(const PersonRow &row, qint64 *newId = nullptr);
    // Deletes the row of an id.
    StoreResult DeleteRow(qint64 id);
    // Every row of the store, in table order.
    std::vector<PersonRow> AllPersons() const;
    // Appends every row of an exchange file (no test for names already there). A file that is
    // no such database, or is damaged, changes nothing and gives the reason.
    StoreResult ImportPersons(const QString &file);
    // Whether a row holds a calendar date and numbers the entry screen's boxes can hold.
    static bool PlausibleRow(const PersonRow &row);

private:
    QSqlDatabase m_db;
};
