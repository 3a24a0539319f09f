// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// A text page: one rich-text area that the page fills with a title, headings and paragraphs.
// The screen scrolls it; printing and PDF paginate it and draw a header on every sheet.

#include "output/ui/TopicPage.h"

class QTextEdit;

class TextPage : public TopicPage
{
    Q_OBJECT
public:
    explicit TextPage(const QString &name, QWidget *parent = nullptr);

    // The page's rich text.
    QTextEdit *rtfText;

    // The title: a line break, the title in the title style, two line breaks.
    void Title(const QString &text);
    // A heading and one line break.
    void PutHead(const QString &text);
    // A paragraph in the body style, never bold, and two line breaks.
    void PutText(const QString &text);
    // n line breaks.
    void NewLines(int n);

private:
    void append(const QString &text, const QFont &font, const QColor &colour);
};
