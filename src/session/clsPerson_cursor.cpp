// SPDX-License-Identifier: AGPL-3.0-or-later
// The person as a cursor on the store.
#include "session/PersonStore.h"
#include "sky/clsPerson.h"

#include <algorithm>

void clsPerson::SetDB(const QSqlDatabase &db)
{
    m_db = db;
    m_ids = PersonStore(db).IdsByName();
    m_cursor = -1;
    if (!m_ids.empty())
        MoveFirst();
}

void clsPerson::MoveTo(long n)
{
    if (m_ids.empty())
        return;
    m_cursor = std::clamp<long>(n, 0, Count() - 1);
    normalisePerson();
}

void clsPerson::MoveFirst() { MoveTo(0); }
void clsPerson::MoveLast() { MoveTo(Count() - 1); }
void clsPerson::MoveNext() { MoveTo(m_cursor + 1); }

void clsPerson::normalisePerson()
{
    if (const auto row = PersonStore(m_db).RowById(m_ids[static_cast<size_t>(m_cursor)]))
        fillFrom(*row);
}

void clsPerson::fillFrom(const PersonRow &r)
{
    const PersonRow *row = &r;
    m_name = row->Name;
    m_sex = row->Sex;
    m_day = row->Day;
    m_month = row->Month;
    m_year = row->Year;
    m_hour = row->Hour;
    m_minutes = row->Minutes;
    m_seconds = row->seconds;
    m_ampm = row->AMPM;
    m_country = row->Country;
    m_plob = row->City;
    m_latDeg = row->LatDeg;
    m_latMT = row->LatMT;
    m_textNS = row->TextNS;
    m_longDeg = row->LongDeg;
    m_longMT = row->LongMT;
    m_textEW = row->TextEW;
    m_gmtDiff = row->GMTDIFF; // a null zone already reads "+00.00"
    m_timeCorr = row->TCorrVal.isNull() ? QStringLiteral("-00.00") : row->TCorrVal.toString();
    m_timeCorrInde = row->Tcorrinde.toInt();
}

void clsPerson::storeFields(PersonRow &r) const
{
    r.Name = m_name;
    r.Sex = m_sex;
    r.Day = static_cast<int>(m_day);
    r.Month = static_cast<int>(m_month);
    r.Year = static_cast<int>(m_year);
    r.Hour = static_cast<int>(m_hour);
    r.Minutes = static_cast<int>(m_minutes);
    r.seconds = static_cast<int>(m_seconds);
    r.AMPM = m_ampm;
    r.Country = m_country;
    r.City = m_plob;
    r.LatDeg = static_cast<int>(m_latDeg);
    r.LatMT = static_cast<int>(m_latMT);
    r.TextNS = m_textNS;
    r.LongDeg = static_cast<int>(m_longDeg);
    r.LongMT = static_cast<int>(m_longMT);
    r.TextEW = m_textEW;
    r.GMTDIFF = m_gmtDiff;
    r.TCorrVal = m_timeCorr;
    r.Tcorrinde = static_cast<int>(m_timeCorrInde);
}

void clsPerson::Delete()
{
    if (m_cursor < 0 || m_cursor >= Count())
        return;
    PersonStore(m_db).DeleteRow(m_ids[static_cast<size_t>(m_cursor)]);
    m_ids.erase(m_ids.begin() + m_cursor);
}

void clsPerson::Save()
{
    if (m_cursor < 0 || m_cursor >= Count())
        return;
    PersonRow r;
    storeFields(r);
    PersonStore(m_db).UpdateRow(m_ids[static_cast<size_t>(m_cursor)], r);
}

void clsPerson::AddNew()
{
    PersonRow r;
    storeFields(r);
    qint64 id = 0;
    if (PersonStore(m_db).InsertRow(r, &id).ok) {
        m_ids.push_back(id);
        m_cursor = Count() - 1;
    }
}

void clsPerson::FindPerson(const QSqlDatabase &db, bool &found)
{
    const auto row = PersonStore(db).FindPerson(Name());
    found = row.has_value();
    if (found)
        fillFrom(*row);
}
