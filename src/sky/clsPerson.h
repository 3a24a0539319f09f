// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The birth record: who, when and where, with the date and time shifts that the chart core uses.

#include <QDateTime>
#include <QSqlDatabase>
#include <QString>

#include <vector>

struct PersonRow;

class clsPerson
{
public:
    // The person's name, trimmed.
    QString Name() const { return m_name.trimmed(); }
    void setName(const QString &v) { m_name = v; }
    // 1 male, 2 female.
    int Sex() const { return m_sex; }
    void setSex(int v) { m_sex = v; }

    // Date and clock fields are whole numbers; a fractional value is rounded (halves to even).
    long Day() const { return m_day; }
    void setDay(double v);
    long Month() const { return m_month; }
    void setMonth(double v);
    long Year() const { return m_year; }
    void setYear(double v);
    long Hour() const { return m_hour; }
    void setHour(double v);
    long Minutes() const { return m_minutes; }
    void setMinutes(double v);
    long seconds() const { return m_seconds; }
    void setSeconds(double v);
    // The "00" text forms of day and month.
    QString DayText() const;
    QString MonthText() const;

    // 1 AM, 2 PM, 0 unset; for display only.
    int AMPM() const { return m_ampm; }
    void setAMPM(int v) { m_ampm = v; }
    QString Country() const { return m_country; }
    void setCountry(const QString &v) { m_country = v; }
    QString PLOB() const { return m_plob; }
    void setPLOB(const QString &v) { m_plob = v; }

    long LatDeg() const { return m_latDeg; }
    void setLatDeg(double v);
    long LatMT() const { return m_latMT; }
    void setLatMT(double v);
    QString TextNS() const { return m_textNS; }
    void setTextNS(const QString &v) { m_textNS = v; }
    long LongDeg() const { return m_longDeg; }
    void setLongDeg(double v);
    long LongMT() const { return m_longMT; }
    void setLongMT(double v);
    QString TextEW() const { return m_textEW; }
    void setTextEW(const QString &v) { m_textEW = v; }

    // Zone offset: decimal hours as text ("5.5") in a person prepared for computing.
    QString GMTDIFF() const { return m_gmtDiff; }
    void setGMTDIFF(const QString &v) { m_gmtDiff = v; }
    // Time correction as typed ("-01.00").
    QString TimeCorr() const { return m_timeCorr; }
    void setTimeCorr(const QString &v) { m_timeCorr = v; }
    // List index of the correction kind, 0..4.
    long TimeCorrInde() const { return m_timeCorrInde; }
    void setTimeCorrInde(long v) { m_timeCorrInde = v; }

    // Degrees plus minutes / 100: 28 deg 38 min reads 28.38 (not a true decimal degree).
    double Latitude() const;
    double Longitude() const;

    // The full clock moment of birth: the date at midnight plus Hour hours and Minutes minutes.
    QDateTime GetBirthDate() const;
    // Day of the week of the date alone, Sunday = 1.
    int WeekDayOfBirth() const;
    // "hh.mm" with two digits each.
    QString GetBirthTime() const;
    // Hours plus minutes as hundredths of an hour: 13:30 gives 13.50.
    double GetBirthDecimalTime() const;
    // "28.38N" and "77.12E".
    QString GetLatti() const;
    QString GetLongi() const;
    // "28.38 N" and "77.12 E".
    QString GetLatitudeFull() const;
    QString GetLongitudeFull() const;
    // Place ", " country.
    QString GetBirthPlace() const;
    // "hh:mm AM" on a 12-hour clock; sets AMPM from the hour first if it is unset.
    QString GetBirthTimeFull();

    // Moves the date by n days; the clock stays.
    void AddDays(long n);
    // Moves the clock by x minutes by the classic rule (see the .cpp); returns the new hh.mm.
    double AddMinutes(double x);
    // Folds a decimal hour above 24 or below 0 once, moving the date a day; 24 itself stays.
    double AdjustHour(double hour, long day, long month, long year);
    // Takes day, month, year, hour and minute from a moment; AMPM follows the hour.
    void SetBirthDate(const QDateTime &moment);

    // The person as a cursor on table Person of a records database, in name order.
    // Keeps db and goes to the first row, if any.
    void SetDB(const QSqlDatabase &db);
    QSqlDatabase GetDB() const { return m_db; }
    // Number of rows the cursor walks.
    long Count() const { return static_cast<long>(m_ids.size()); }
    int RecordCount() const { return static_cast<int>(m_ids.size()); }
    // Moves to row n (0 the first) and fills the fields from it.
    void MoveTo(long n);
    void MoveFirst();
    void MoveLast();
    void MoveNext();
    // Deletes the current row.
    void Delete();
    // Writes the fields over the current row, or as a new row.
    void Save();
    void AddNew();
    // Fills the fields from the first row named Name; found tells whether there was one.
    void FindPerson(const QSqlDatabase &db, bool &found);

private:
    void normalisePerson();
    void fillFrom(const PersonRow &row);
    void storeFields(PersonRow &row) const;
    QSqlDatabase m_db;
    std::vector<qint64> m_ids;
    long m_cursor = -1;

    QString m_name;
    int m_sex = 1;
    long m_day = 0, m_month = 0, m_year = 0;
    long m_hour = 0, m_minutes = 0, m_seconds = 0;
    int m_ampm = 0;
    QString m_country, m_plob;
    long m_latDeg = 0, m_latMT = 0;
    QString m_textNS = QStringLiteral("N");
    long m_longDeg = 0, m_longMT = 0;
    QString m_textEW = QStringLiteral("E");
    QString m_gmtDiff = QStringLiteral("0");
    QString m_timeCorr = QStringLiteral("-00.00");
    long m_timeCorrInde = 0;
};
