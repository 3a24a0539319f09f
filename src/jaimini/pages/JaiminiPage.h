// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// What the three Jaimini pages share: their words, from category "Jaimini" unless told.

#include "sky/clsPlanets.h"

#include <QString>

inline QString JaiminiLabel(const clsPlanets &c, const char *head, const char *category = "Jaimini")
{
    return c.GetHeadValue(1, QString::fromLatin1(head), QString::fromLatin1(category)).toString();
}
