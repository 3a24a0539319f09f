// SPDX-License-Identifier: AGPL-3.0-or-later
#include "varsha/clsVarshaYoga.h"

#include "sky/clsPlanets.h"

QString clsVarshaYoga::CheckRelation(int code)
{
    switch (code) {
    case 1: return QStringLiteral("Conjunction");
    case 2: return QStringLiteral("Square");
    case 3: return QStringLiteral("Opposition");
    case 4: return QStringLiteral("Trine");
    case 5: return QStringLiteral("Sextile");
    default: return {};
    }
}

QList<clsVarshaYoga::Report> clsVarshaYoga::Reports() const { return {}; }

QString clsVarshaYoga::CAndPTajakYogas() const
{
    QString out;
    for (const Report &r : Reports())
        out += r.Text + QStringLiteral("\r\n\r\n");
    return out;
}
