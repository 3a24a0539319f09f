// SPDX-License-Identifier: AGPL-3.0-or-later
#include "output/ui/HtmlExport.h"

#include "output/ui/PageCache.h"
#include "output/ui/PageOutput.h"
#include "output/ui/PrintRun.h"
#include "output/ui/TextPage.h"
#include "output/ui/TopicPage.h"
#include "session/Session.h"
#include "text/GenLabel.h"

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextEdit>

namespace {
// The chart through which the session's words are read.
const clsPlanets *wordsChart()
{
    const SessionGlobals &s = Session();
    return s.ProgMode == 2 && s.BoyPlanets ? s.BoyPlanets.get() : s.CurPlanets.get();
}

QString label(const char *head)
{
    const clsPlanets *c = wordsChart();
    return c ? GenLabel(QString::fromLatin1(head), *c) : QString();
}

HtmlBook::Labels labelsForSession()
{
    const int mode = Session().ProgMode;
    const QString name = HeaderName(QStringLiteral(" & "));
    const QString what = label(mode == 4 ? "HtmlVarsha" : mode == 2 ? "HtmlMatch" : "HtmlHoroscope");
    HtmlBook::Labels l;
    l.Title = name.isEmpty() ? what : what + QLatin1Char(' ') + name;
    l.Contents = label("HtmlContents");
    l.BackToTop = label("HtmlTop");
    l.Footer = label("HtmlFooter") + QLatin1String(" Orbanta");
    return l;
}
} // namespace

bool clsHtmlExporter::StartExport(QString *error)
{
    const QFileInfo info(folder);
    if (folder.isEmpty() || !QDir().mkpath(folder) || !QFileInfo(folder).isDir() || !QFileInfo(folder).isWritable()) {
        if (error)
            *error = QStringLiteral("The folder %1 can't be written.").arg(QDir::toNativeSeparators(info.absoluteFilePath()));
        return false;
    }
    m_book = HtmlBook(labelsForSession());
    m_captions.clear();
    for (const PrintNode &n : PrintTreeForMode(Session().ProgMode, Session().Language.Extended))
        if (!n.Key.isEmpty())
            m_captions.insert(n.Key, n.Caption);
    m_pictures.clear();
    m_failure.clear();
    Output().PageCounter = 1;
    return true;
}

void clsHtmlExporter::BeginTopic(const PrintStep &step)
{
    m_key = step.Key;
    m_caption = m_captions.value(step.Key, step.Key);
}

void clsHtmlExporter::PrintForm(TopicPage &form)
{
    const QString name = QStringLiteral("page-%1.png").arg(m_pictures.size() + 1, 3, 10, QLatin1Char('0'));
    QImage image(QSize(TopicPage::kWidth, TopicPage::kHeight) * kPictureScale, QImage::Format_RGB32);
    image.setDevicePixelRatio(kPictureScale);
    image.fill(Qt::white);
    {
        QPainter p(&image);
        form.render(&p, QPoint(), QRegion(0, 0, TopicPage::kWidth, TopicPage::kHeight));
    }
    if (!image.save(QDir(folder).filePath(name), "PNG")) {
        m_failure = QStringLiteral("The picture %1 can't be written.").arg(QDir::toNativeSeparators(QDir(folder).filePath(name)));
        return;
    }
    m_pictures << name;
    m_book.addPicture(m_key, m_caption, name, TopicPage::kWidth, TopicPage::kHeight);
}

void clsHtmlExporter::PrintTextPage(const TextPage &page)
{
    // One block is one line of the page, in the format found at its end, as on paper.
    QString html;
    const QTextDocument *doc = page.rtfText->document();
    for (QTextBlock b = doc->begin(); b.isValid(); b = b.next()) {
        const QString text = b.text().trimmed();
        if (text.isEmpty())
            continue;
        QTextCharFormat f = b.charFormat();
        for (auto it = b.begin(); !it.atEnd(); ++it)
            f = it.fragment().charFormat();
        const QFont font = f.font();
        const QColor colour = f.foreground().style() == Qt::NoBrush ? QColor(Qt::black) : f.foreground().color();
        html += HtmlBook::Paragraph(text, font.pointSizeF() > 0 ? font.pointSizeF() : 10, font.bold(), colour.name());
    }
    m_book.addText(m_key, m_caption, html);
}

bool clsHtmlExporter::FinishFile(QString *error)
{
    if (failed()) {
        if (error)
            *error = m_failure;
        return false;
    }
    return m_book.write(folder, error);
}

QStringList clsHtmlExporter::files() const { return QStringList{QString::fromLatin1(HtmlBook::kIndexFile)} + m_pictures; }

int WriteSessionHtml(int progMode, const QSet<QString> &ticked, const QString &folder, QTextStream &out, QTextStream &err)
{
    clsHtmlExporter html;
    html.folder = folder;
    QString why;
    if (!html.StartExport(&why)) {
        err << why << '\n';
        return 1;
    }
    Output().PrintAbort = false;
    PageCache pages;
    PageOutput output(&html);
    const int drawn = WalkSteps(SelectedSteps(progMode, Session().Language.Extended, ticked), pages, output);
    pages.UnloadPages();
    if (!html.FinishFile(&why)) {
        err << why << '\n';
        return 1;
    }
    out << "Wrote " << drawn << " topics to " << QDir(folder).filePath(QLatin1String(HtmlBook::kIndexFile)) << '\n';
    return 0;
}
