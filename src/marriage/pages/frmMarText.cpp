// SPDX-License-Identifier: AGPL-3.0-or-later
#include "marriage/pages/frmMarText.h"

#include "marriage/MarrSession.h"
#include "marriage/clsMarr.h"
#include "sky/Functions.h"
#include "sky/clsPlanets.h"

#include <QTextCursor>
#include <QTextEdit>

void frmMarText::fill()
{
    const clsPlanets &c = chart();
    const auto word = [&c](const QString &key) { return c.GetHeadValue(1, key, QStringLiteral("Marriage")).toString(); };
    clsMarr &m = *SessionMarr();
    m.DoMatch();
    Title(word(QStringLiteral("AnalysisHead")));
    for (int k = 0; k < clsMarr::kKutaCount; ++k) {
        PutHead(word(clsMarr::KutaKey(k)) + QStringLiteral(": ") + NumText(m.Score(k)) + QStringLiteral(" / ")
                + NumText(clsMarr::KutaMax(k)));
        PutText(c.GetHeadValue(4, m.MatchTag(k)).toString());
    }
    rtfText->moveCursor(QTextCursor::Start);
}
