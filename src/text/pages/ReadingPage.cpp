// SPDX-License-Identifier: AGPL-3.0-or-later
#include "text/pages/ReadingPage.h"

#include "sky/clsPlanets.h"

#include <QTextCursor>
#include <QTextEdit>

void ReadingPage::fill()
{
    const clsPlanets &c = chart();
    const Reading r = m_reader(c);
    Title(r.title);
    for (const ReadingItem &item : r.items) {
        NewLines(item.linesBefore);
        if (!item.heading.isEmpty())
            PutHead(item.heading);
        if (item.type != 0) {
            const QVariant v = c.GetHeadValue(item.type, item.head, item.category);
            if (v.isValid() && !v.isNull())
                PutText(v.toString());
        }
        NewLines(item.linesAfter);
    }
    rtfText->moveCursor(QTextCursor::Start);
}
