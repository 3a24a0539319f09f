// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The rows of a table read into memory with a current position, as the atlas tables move
// through them: first, last, next, to a row, and the names from the current row on.

#include <QString>
#include <QStringList>

#include <algorithm>
#include <vector>

template <typename Row> struct RowCursor
{
    std::vector<Row> rows;
    int pos = 0; // rows.size() when past the end

    int count() const { return static_cast<int>(rows.size()); }
    bool atEnd() const { return pos >= count(); }
    void moveTo(int n) { pos = std::clamp(n, 0, count()); }
    void moveFirst() { pos = 0; }
    void moveLast() { pos = std::max(count() - 1, 0); }
    void moveNext() { pos = std::min(pos + 1, count()); }
    // The names of the rows from the current one to the end.
    template <typename NameOf> QStringList namesFromHere(NameOf nameOf) const
    {
        QStringList names;
        for (int i = std::max(pos, 0); i < count(); ++i)
            names << nameOf(rows[static_cast<size_t>(i)]);
        return names;
    }
    // Index of the first row of that name (without case), or -1.
    template <typename NameOf> int findFirst(const QString &name, NameOf nameOf) const
    {
        for (int i = 0; i < count(); ++i)
            if (nameOf(rows[static_cast<size_t>(i)]).compare(name, Qt::CaseInsensitive) == 0)
                return i;
        return -1;
    }
};
