// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The table of languages (LANGS.Dat), with each language's presence worked out at start.

#include "session/Session.h"

#include <QString>
#include <vector>

struct LanguageRow
{
    LanguageStyle style;
    bool Include = false; // the language's text database is there
};

namespace Languages {
// Every row of table Language in name order; Include is true when STUFF/<Dir>/<Dir>.Dat exists.
// The shipped table is never written: presence is worked out at each start.
std::vector<LanguageRow> Load(QString *error = nullptr);
// The rows that can be offered, "English" always among them.
std::vector<LanguageRow> Offered(const std::vector<LanguageRow> &all);
} // namespace Languages
