// SPDX-License-Identifier: AGPL-3.0-or-later
#include "output/HtmlBook.h"

#include <QDir>
#include <QSaveFile>

namespace {
// Pages keep their own fixed width; text pages read like a sheet of paper.
const char *const kStyle =
    "body { font-family: Arial, Helvetica, sans-serif; background: #f4f4f4; color: #000; margin: 0; padding: 1em; }\n"
    "header, nav, section.topic, footer { max-width: 800px; margin: 0 auto 1.5em auto; }\n"
    "h1 { font-size: 18pt; }\n"
    "h2 { font-size: 13pt; border-bottom: 1px solid #888; padding-bottom: 0.2em; }\n"
    "section.topic img { display: block; max-width: 100%; height: auto; background: #fff; box-shadow: 0 0 4px #aaa; }\n"
    "section.topic div.text { background: #fff; padding: 1em 2em; box-shadow: 0 0 4px #aaa; }\n"
    "div.text p { margin: 0.3em 0; }\n"
    "p.top { font-size: 9pt; text-align: right; }\n"
    "footer { font-size: 9pt; color: #555; }\n";
} // namespace

QString HtmlBook::Escape(const QString &text)
{
    QString out;
    out.reserve(text.size());
    for (const QChar c : text) {
        switch (c.unicode()) {
        case '&': out += QLatin1String("&amp;"); break;
        case '<': out += QLatin1String("&lt;"); break;
        case '>': out += QLatin1String("&gt;"); break;
        case '"': out += QLatin1String("&quot;"); break;
        case '\t': out += QLatin1Char(' '); break;
        default:
            // XML has no place for the other control characters, nor for the paragraph separators
            // a rich text hands out.
            if (c.unicode() < 0x20 || c == QChar::ParagraphSeparator || c == QChar::LineSeparator || c.unicode() == 0xFFFE ||
                c.unicode() == 0xFFFF)
                continue;
            out += c;
        }
    }
    return out;
}

QString HtmlBook::Paragraph(const QString &text, double pointSize, bool bold, const QString &colour)
{
    QString style = QStringLiteral("font-size: %1pt;").arg(pointSize);
    if (bold)
        style += QLatin1String(" font-weight: bold;");
    if (!colour.isEmpty())
        style += QStringLiteral(" color: %1;").arg(Escape(colour));
    return QStringLiteral("<p style=\"%1\">%2</p>\n").arg(style, Escape(text));
}

QString HtmlBook::uniqueId(const QString &key) const
{
    // An anchor of letters, digits and hyphens; a key met again (a walk over several years) gets a number.
    QString base;
    for (const QChar c : key)
        base += (c.isLetterOrNumber() && c.unicode() < 128) ? c : QLatin1Char('-');
    if (base.isEmpty() || !base.at(0).isLetter())
        base.prepend(QLatin1String("topic-"));
    QString id = base;
    for (int n = 2;; ++n) {
        bool taken = false;
        for (const Section &s : m_sections)
            taken = taken || s.Id == id;
        if (!taken)
            return id;
        id = QStringLiteral("%1-%2").arg(base).arg(n);
    }
}

void HtmlBook::addPicture(const QString &key, const QString &caption, const QString &file, int width, int height)
{
    Section s;
    s.Id = uniqueId(key);
    s.Caption = caption;
    s.Image = file;
    s.Width = width;
    s.Height = height;
    m_sections.append(s);
}

void HtmlBook::addText(const QString &key, const QString &caption, const QString &html)
{
    Section s;
    s.Id = uniqueId(key);
    s.Caption = caption;
    s.Html = html;
    m_sections.append(s);
}

QString HtmlBook::toHtml() const
{
    QString h;
    h += QLatin1String("<!DOCTYPE html>\n<html xmlns=\"http://www.w3.org/1999/xhtml\" lang=\"en\">\n<head>\n");
    h += QLatin1String("<meta charset=\"utf-8\" />\n");
    h += QStringLiteral("<title>%1</title>\n").arg(Escape(m_labels.Title));
    h += QStringLiteral("<style>\n%1</style>\n").arg(QLatin1String(kStyle));
    h += QLatin1String("</head>\n<body>\n");
    h += QStringLiteral("<header><h1>%1</h1></header>\n").arg(Escape(m_labels.Title));
    h += QStringLiteral("<nav id=\"contents\">\n<h2>%1</h2>\n<ol>\n").arg(Escape(m_labels.Contents));
    for (const Section &s : m_sections)
        h += QStringLiteral("<li><a href=\"#%1\">%2</a></li>\n").arg(s.Id, Escape(s.Caption));
    h += QLatin1String("</ol>\n</nav>\n");
    for (const Section &s : m_sections) {
        h += QStringLiteral("<section class=\"topic\" id=\"%1\">\n<h2>%2</h2>\n").arg(s.Id, Escape(s.Caption));
        if (!s.Image.isEmpty())
            h += QStringLiteral("<p class=\"page\"><img src=\"%1\" alt=\"%2\" width=\"%3\" height=\"%4\" /></p>\n")
                     .arg(Escape(s.Image), Escape(s.Caption))
                     .arg(s.Width)
                     .arg(s.Height);
        else
            h += QStringLiteral("<div class=\"text\">\n%1</div>\n").arg(s.Html);
        h += QStringLiteral("<p class=\"top\"><a href=\"#contents\">%1</a></p>\n</section>\n").arg(Escape(m_labels.BackToTop));
    }
    h += QStringLiteral("<footer>%1</footer>\n</body>\n</html>\n").arg(Escape(m_labels.Footer));
    return h;
}

bool HtmlBook::write(const QString &folder, QString *error) const
{
    QSaveFile file(QDir(folder).filePath(QLatin1String(kIndexFile)));
    if (!file.open(QIODevice::WriteOnly) || file.write(toHtml().toUtf8()) < 0 || !file.commit()) {
        if (error)
            *error = file.errorString();
        return false;
    }
    return true;
}
