// SPDX-License-Identifier: AGPL-3.0-or-later
#include "output/ui/TextPage.h"

#include "output/ui/PageStyle.h"
#include "session/Session.h"

#include <QTextCursor>
#include <QTextEdit>

TextPage::TextPage(const QString &name, QWidget *parent) : TopicPage(name, parent, false)
{
    rtfText = new QTextEdit(this);
    rtfText->setObjectName(QStringLiteral("rtfText"));
    rtfText->setReadOnly(true);
    rtfText->setFrameShape(QFrame::NoFrame);
    rtfText->setGeometry(20, 20, kWidth - 40, kHeight - 40);
    rtfText->document()->setDocumentMargin(4);
    QPalette p = rtfText->palette();
    p.setColor(QPalette::Base, Qt::white);
    rtfText->setPalette(p);
    rtfText->show();
}

void TextPage::append(const QString &text, const QFont &font, const QColor &colour)
{
    QTextCursor c(rtfText->document());
    c.movePosition(QTextCursor::End);
    QTextCharFormat f;
    f.setFont(font);
    f.setForeground(colour);
    c.insertText(text, f);
}

void TextPage::NewLines(int n)
{
    const LanguageStyle &s = Session().Language;
    for (int i = 0; i < n; ++i)
        append(QStringLiteral("\n"), BodyFont(s.TextSize, false), PageColors::Current().NormTextCol);
}

void TextPage::Title(const QString &text)
{
    const LanguageStyle &s = Session().Language;
    NewLines(1);
    append(text, HeadFont(s.HeaderSize, s.HeadBold), PageColors::Current().HeadingCol);
    NewLines(2);
}

void TextPage::PutHead(const QString &text)
{
    append(text, HeadFont(Session().Language.TextHeadSize, true), PageColors::Current().SubHeadCol);
    NewLines(1);
}

void TextPage::PutText(const QString &text)
{
    append(text, BodyFont(Session().Language.TextSize, false), PageColors::Current().NormTextCol);
    NewLines(2);
}
