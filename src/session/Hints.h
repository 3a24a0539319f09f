// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The entry screen's hints, by their resource number (101 to 126).

#include <QString>

QString HintText(int number);
