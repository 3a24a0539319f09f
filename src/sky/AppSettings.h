// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The per-user settings store: sections "Init" and "Settings" under the application title.
// Values are read from the store each time they are asked for, so a change takes effect at the
// next use. A run of the command line can override keys for itself without writing them.

#include <QString>
#include <QVariant>

class AppSettings
{
public:
    // The file of the store: by default "Orbanta.ini" in the user's data folder.
    static QString storeFile();
    // Points the store at another file (tests, a portable setup). An empty path restores the default.
    static void setStoreFile(const QString &path);

    // The stored value of section/key, or the override of this run, or def.
    static QVariant value(const QString &section, const QString &key, const QVariant &def = {});
    // Writes section/key at once.
    static void setValue(const QString &section, const QString &key, const QVariant &value);
    // Makes section/key read as value for the rest of this run; nothing is written.
    static void overrideForRun(const QString &section, const QString &key, const QVariant &value);
    // Drops every override of this run.
    static void clearOverrides();

    // The "Init" keys that the chart reads, with their defaults.
    static int AyanType();           // 1
    static void setAyanType(int v);
    static QString CustAyan();       // "00.00"
    static int RahuKetuMode();       // 1
    static bool Vakya();             // false
    static int KundStyle();          // 2
};
