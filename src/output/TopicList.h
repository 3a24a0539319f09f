// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The topics of each mode, in order: the caption of the list and the tree, the short name of the
// navigation bar, and the page that shows it. A list holds only the topics whose pages exist.

#include <QList>
#include <QString>
#include <QStringList>

struct TopicEntry
{
    QString Caption;
    QString ShortName;
    QString Page;     // the page's name, e.g. "frmSodash"
    int PageArg = 0;  // what MakePage receives, for pages with more than one content
    int Number = 0;   // the topic's place in the mode's full list (the page number of Horoscope pages)
};

// The topic list of a mode (1 Horoscope, 2 Marriage, 3 Muhurtha, 4 Varshaphala). `extended`
// adds the last three Horoscope topics of languages that have them.
QList<TopicEntry> TopicsForMode(int progMode, bool extended);

// The fixed items of the numbered Navigate menu of a mode (Horoscope 31, Varshaphala 8, Marriage 4).
QStringList NavigateMenuCaptions(int progMode);

// Whether a page has been built into this program: the page registry declares each page it
// registers, so a topic list shows only topics whose page exists.
bool PageIsBuilt(const QString &page);
void DeclarePageBuilt(const QString &page);
