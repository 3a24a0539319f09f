// SPDX-License-Identifier: AGPL-3.0-or-later
#include "text/pages/frmForText.h"

#include "sky/clsPlanets.h"

#include <QTextCursor>
#include <QTextEdit>

void frmForText::fill()
{
    const clsPlanets &c = chart();
    Title(c.GetHeadValue(1, QStringLiteral("Predictions"), QStringLiteral("Gen")).toString());
    ForText(c).Write(*this);
    rtfText->moveCursor(QTextCursor::Start);
}
