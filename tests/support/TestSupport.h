// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// Shared pieces of the tests: a throw-away settings store and birth records.

#include "sky/AppSettings.h"
#include "sky/clsPerson.h"

#include <QString>
#include <QTemporaryDir>

#include <ostream>

// Test failures show texts as text.
inline void PrintTo(const QString &s, std::ostream *os) { *os << '"' << s.toStdString() << '"'; }

// Points the settings store at a fresh temporary file for the life of the object.
class ScopedSettingsStore
{
public:
    ScopedSettingsStore() { AppSettings::setStoreFile(m_dir.filePath(QStringLiteral("settings.ini"))); }
    ~ScopedSettingsStore()
    {
        AppSettings::clearOverrides();
        AppSettings::setStoreFile(QString());
    }
    ScopedSettingsStore(const ScopedSettingsStore &) = delete;
    ScopedSettingsStore &operator=(const ScopedSettingsStore &) = delete;

private:
    QTemporaryDir m_dir;
};

// A birth as the entry screen fills it: GMT as decimal hours in text, place as degrees and minutes.
inline clsPerson MakePerson(int day, int month, int year, int hour, int minutes, const QString &gmt, int latDeg, int latMin,
                            const QString &ns, int lonDeg, int lonMin, const QString &ew)
{
    clsPerson p;
    p.setName(QStringLiteral("Test"));
    p.setDay(day);
    p.setMonth(month);
    p.setYear(year);
    p.setHour(hour);
    p.setMinutes(minutes);
    p.setGMTDIFF(gmt);
    p.setLatDeg(latDeg);
    p.setLatMT(latMin);
    p.setTextNS(ns);
    p.setLongDeg(lonDeg);
    p.setLongMT(lonMin);
    p.setTextEW(ew);
    return p;
}
