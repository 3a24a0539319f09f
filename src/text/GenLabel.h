// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The page label of head: CNVT under category "Gen", read through the chart given.

#include "sky/clsPlanets.h"

inline QString GenLabel(const QString &head, const clsPlanets &planets)
{
    return planets.GetHeadValue(1, head, QStringLiteral("Gen")).toString();
}
