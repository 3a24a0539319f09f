// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// Topic pages as HTML: the walk of printing and PDF, with each drawn page saved as a picture
// beside Index.HTML and each text page written out as paragraphs in its own sizes and colours.

#include "output/HtmlBook.h"
#include "output/PrintTree.h"

#include <QHash>
#include <QSet>
#include <QStringList>
#include <QTextStream>

class TextPage;
class TopicPage;

class clsHtmlExporter
{
public:
    // Pictures are drawn at this many pixels for each pixel of the page, so that they stay sharp
    // on fine screens and when zoomed.
    static constexpr double kPictureScale = 2.0;

    // The folder that receives Index.HTML and the pictures.
    QString folder;

    // Makes the folder (it may exist) and starts an empty document for the session's mode;
    // false with the reason in *error when the folder can't be made or written.
    bool StartExport(QString *error = nullptr);
    // The topic whose pages follow.
    void BeginTopic(const PrintStep &step);
    // A drawn page: saved as the next picture, its section added.
    void PrintForm(TopicPage &form);
    // A text page: its lines as paragraphs.
    void PrintTextPage(const TextPage &page);
    // Writes Index.HTML; false with the reason in *error.
    bool FinishFile(QString *error = nullptr);

    const HtmlBook &book() const { return m_book; }
    // The files of the export, relative to the folder: Index.HTML and the pictures.
    QStringList files() const;
    // Whether a picture could not be written; the section then has no picture.
    bool failed() const { return !m_failure.isEmpty(); }

private:
    HtmlBook m_book{HtmlBook::Labels{}};
    QHash<QString, QString> m_captions;
    QString m_key, m_caption;
    QStringList m_pictures;
    QString m_failure;
};

// The steps of a mode's walk that the ticked keys choose, drawn from the session's charts as HTML
// into folder; "Wrote ..." on out, or why not on err. Returns the exit status: 0, or 1 when the
// folder can't be written.
int WriteSessionHtml(int progMode, const QSet<QString> &ticked, const QString &folder, QTextStream &out, QTextStream &err);
