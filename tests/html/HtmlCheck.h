// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// Reads an exported HTML page as XML: whether it is well-formed, its topic sections in order,
// the pictures it points to, and its words. And a PATH without programs, for the mail tests.

#include <QFile>
#include <QTemporaryDir>
#include <QString>
#include <QStringList>
#include <QXmlStreamReader>

struct HtmlShape
{
    QString error;        // empty when well-formed
    QStringList sections; // the ids of <section class="topic">, in order
    QStringList captions; // their <h2>
    QStringList images;   // every <img src>
    QStringList links;    // every <a href>
    QString text;         // all character data
};

inline HtmlShape ReadHtmlShape(const QString &html)
{
    HtmlShape s;
    QXmlStreamReader r(html);
    bool inSection = false, wantCaption = false;
    while (!r.atEnd()) {
        r.readNext();
        if (r.isStartElement()) {
            const QXmlStreamAttributes a = r.attributes();
            if (r.name() == QLatin1String("section") && a.value("class") == QLatin1String("topic")) {
                s.sections << a.value("id").toString();
                inSection = true;
                wantCaption = true;
            } else if (r.name() == QLatin1String("h2") && inSection && wantCaption) {
                s.captions << r.readElementText();
                s.text += s.captions.last() + QLatin1Char('\n');
                wantCaption = false;
            } else if (r.name() == QLatin1String("img")) {
                s.images << a.value("src").toString();
            } else if (r.name() == QLatin1String("a")) {
                s.links << a.value("href").toString();
            }
        } else if (r.isEndElement() && r.name() == QLatin1String("section")) {
            inSection = false;
        } else if (r.isCharacters()) {
            s.text += r.text();
        }
    }
    if (r.hasError())
        s.error = QStringLiteral("line %1: %2").arg(r.lineNumber()).arg(r.errorString());
    return s;
}

inline HtmlShape ReadHtmlFile(const QString &file)
{
    QFile f(file);
    if (!f.open(QIODevice::ReadOnly))
        return HtmlShape{QStringLiteral("can't open ") + file, {}, {}, {}, {}, {}};
    return ReadHtmlShape(QString::fromUtf8(f.readAll()));
}

// Puts PATH somewhere with no programs for the life of the object: no xdg-mime, no xdg-email.
class EmptyPath
{
public:
    EmptyPath() : m_old(qgetenv("PATH")) { qputenv("PATH", m_dir.path().toLocal8Bit()); }
    ~EmptyPath() { qputenv("PATH", m_old); }
    EmptyPath(const EmptyPath &) = delete;
    EmptyPath &operator=(const EmptyPath &) = delete;

private:
    QTemporaryDir m_dir;
    QByteArray m_old;
};
