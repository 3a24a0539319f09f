// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The INI files of the installation's choices (GENDAT.INI): the language and mode last chosen,
// the user's name and address for cover pages, and which messages the user has silenced.
// The files live in the user's data folder. Sections and keys match without regard to case,
// as in classic INI files; a key keeps the spelling it was first written with.

#include <QString>

class clsIni
{
public:
    // The text under section/key of the file, or def when the key is absent. An empty section
    // means the application title "Orbanta", an empty file "GENDAT.INI"; a relative file name is
    // taken from the user's data folder. At most 254 characters come back.
    static QString GetIniString(const QString &key, const QString &def, const QString &section = QString(),
                                const QString &file = QString());
    // Writes value under section/key of the file at once, with the same defaults.
    static void WriteIniString(const QString &key, const QString &value, const QString &section = QString(),
                               const QString &file = QString());
    // The full path of an INI file name as GetIniString resolves it.
    static QString IniPath(const QString &file = QString());

    // The user's name printed on cover pages ("Orbanta user" until set).
    static QString DispName();
    // The user's address or other details for cover pages (empty until set).
    static QString DispAdd();
    // Whether message number n is still to be shown (section SHOWERROR, default "True").
    static bool ShowError(int n);

    static constexpr int kBufferSize = 255; // characters of the classic read buffer, with its terminator
};
