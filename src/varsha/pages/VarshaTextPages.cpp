// SPDX-License-Identifier: AGPL-3.0-or-later
#include "varsha/pages/VarshaTextPages.h"

#include "sky/clsPlanets.h"
#include "varsha/AnnualReading.h"
#include "varsha/clsVarsha.h"

#include <QTextCursor>
#include <QTextEdit>

VarshaTextPage::VarshaTextPage(const QString &name, Report report, QWidget *parent) : TextPage(name, parent), m_report(std::move(report)) {}

void VarshaTextPage::fill()
{
    const clsVarsha *v = SessionVarsha();
    if (!v)
        return;
    for (const VarshaTextItem &item : m_report(*v)) {
        switch (item.kind) {
        case VarshaTextItem::Title: Title(item.text); break;
        case VarshaTextItem::Head: PutHead(item.text); break;
        case VarshaTextItem::Line: PutText(item.text); break;
        case VarshaTextItem::Paragraph: PutText(v->Annual().GetHeadValue(3, item.text).toString()); break;
        }
    }
    rtfText->moveCursor(QTextCursor::Start);
}
