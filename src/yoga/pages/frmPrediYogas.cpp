// SPDX-License-Identifier: AGPL-3.0-or-later
#include "yoga/pages/frmPrediYogas.h"

#include "output/ui/PageStyle.h"
#include "session/Session.h"
#include "sky/clsPlanets.h"
#include "text/GenLabel.h"

#include <QTextCursor>
#include <QTextEdit>

void frmPrediYogas::fill()
{
    const clsPlanets &c = chart();
    Title(GenLabel(QStringLiteral("YogaHead"), c));
    CheckYogas::ScanYogas(c, this);
    rtfText->moveCursor(QTextCursor::Start);
}

void frmPrediYogas::PutYogaHead(const QString &nameKey)
{
    m_printed << nameKey;
    NewLines(1);
    // The heading style, with no line break of its own after it: the paragraph follows at once,
    // and a name that wants a line to itself carries the break in its text.
    QTextCursor cur(rtfText->document());
    cur.movePosition(QTextCursor::End);
    QTextCharFormat f;
    f.setFont(HeadFont(Session().Language.TextHeadSize, true));
    f.setForeground(PageColors::Current().SubHeadCol);
    cur.insertText(chart().GetHeadValue(7, nameKey).toString(), f);
}

void frmPrediYogas::PutYogaText(const QString &key) { PutText(chart().GetHeadValue(2, key).toString()); }
