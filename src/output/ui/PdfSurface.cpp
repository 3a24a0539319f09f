// SPDX-License-Identifier: AGPL-3.0-or-later
#include "output/ui/PdfSurface.h"

#include "chartdraw/ui/Kundali.h"

#include <QFile>
#include <QFontMetricsF>
#include <QPageLayout>
#include <QPageSize>

namespace {
// A small XMP packet with the properties the writer has no setter for.
QByteArray xmpOf(const PdfSurface &s)
{
    const auto esc = [](const QString &t) { return t.toHtmlEscaped(); };
    QString keywords = esc(s.Keywords.join(QLatin1Char(';')));
    return QStringLiteral(
               "<?xpacket begin='' id='W5M0MpCehiHzreSzNTczkc9d'?>"
               "<x:xmpmeta xmlns:x='adobe:ns:meta/'><rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'>"
               "<rdf:Description rdf:about='' xmlns:dc='http://purl.org/dc/elements/1.1/' "
               "xmlns:pdf='http://ns.adobe.com/pdf/1.3/' xmlns:xmp='http://ns.adobe.com/xap/1.0/'>"
               "<dc:title><rdf:Alt><rdf:li xml:lang='x-default'>%1</rdf:li></rdf:Alt></dc:title>"
               "<dc:creator><rdf:Seq><rdf:li>%2</rdf:li></rdf:Seq></dc:creator>"
               "<pdf:Keywords>%3</pdf:Keywords><xmp:CreatorTool>%4</xmp:CreatorTool>"
               "</rdf:Description></rdf:RDF></x:xmpmeta><?xpacket end='w'?>")
        .arg(esc(s.Title), esc(s.Author), keywords, esc(s.Creator))
        .toUtf8();
}
} // namespace

bool PdfSurface::BeginDoc()
{
    QFile probe(FileName);
    if (FileName.isEmpty() || !probe.open(QIODevice::WriteOnly))
        return false;
    probe.close();
    m_writer = std::make_unique<QPdfWriter>(FileName);
    m_writer->setResolution(254); // one unit a tenth of a millimetre
    m_writer->setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(0, 0, 0, 0)));
    m_writer->setCreator(Creator);
    m_writer->setTitle(Title);
    m_writer->setDocumentXmpMetadata(xmpOf(*this));
    m_painter = std::make_unique<QPainter>();
    if (!m_painter->begin(m_writer.get())) {
        m_painter.reset();
        m_writer.reset();
        return false;
    }
    m_painter->setRenderHint(QPainter::Antialiasing, true);
    m_pages = 1;
    TextY = 0;
    return true;
}

bool PdfSurface::EndDoc()
{
    if (!m_painter)
        return false;
    const bool ok = m_painter->end();
    m_painter.reset();
    m_writer.reset();
    return ok;
}

void PdfSurface::NewPage()
{
    if (m_writer && m_writer->newPage())
        ++m_pages;
}

void PdfSurface::setFontName(const QString &name)
{
    m_font.setFamily(name == QLatin1String("MS Sans Serif") ? QStringLiteral("Arial") : name);
}

void PdfSurface::setFontSize(double points) { m_font.setPointSizeF(points > 0 ? points : 1); }

void PdfSurface::applyFont()
{
    m_painter->setFont(m_font);
    m_painter->setPen(m_textColor);
}

void PdfSurface::LineTo(double x, double y)
{
    if (!m_painter)
        return;
    m_painter->setPen(QPen(m_penColor, m_penWidth));
    m_painter->drawLine(QPointF(m_x, m_y), QPointF(x, y));
    m_x = x, m_y = y;
}

void PdfSurface::Rectangle(double x1, double y1, double x2, double y2)
{
    if (!m_painter)
        return;
    m_painter->setPen(QPen(m_penColor, m_penWidth));
    m_painter->setBrush(Qt::NoBrush);
    m_painter->drawRect(QRectF(QPointF(x1, y1), QPointF(x2, y2)).normalized());
}

void PdfSurface::Ellipse(double x1, double y1, double x2, double y2)
{
    if (!m_painter)
        return;
    m_painter->setPen(QPen(m_penColor, m_penWidth));
    m_painter->setBrush(Qt::NoBrush);
    m_painter->drawEllipse(QRectF(QPointF(x1, y1), QPointF(x2, y2)).normalized());
}

void PdfSurface::StretchDraw(const QPixmap &picture, double x1, double y1, double x2, double y2)
{
    if (m_painter && !picture.isNull())
        m_painter->drawPixmap(QRectF(QPointF(x1, y1), QPointF(x2, y2)).normalized(), picture, QRectF(picture.rect()));
}

void PdfSurface::TextOut(const QString &text, double x, double y)
{
    if (!m_painter)
        return;
    applyFont();
    const QFontMetricsF fm(m_font, m_writer.get());
    m_painter->drawText(QPointF(x, y + fm.ascent()), text);
}

double PdfSurface::TextWidth(const QString &text) const
{
    return QFontMetricsF(m_font, m_writer.get()).horizontalAdvance(text);
}

double PdfSurface::LineHeight() const { return QFontMetricsF(m_font, m_writer.get()).lineSpacing(); }

void PdfSurface::TextBox(double left, double top, double right, double bottom, int alignment, int /*flag*/,
                         const QString &text)
{
    if (!m_painter)
        return;
    Q_UNUSED(bottom) // the text flows as far as it needs; a box never hides a word
    applyFont();
    const QFontMetricsF fm(m_font, m_writer.get());
    double y = top;
    const QStringList paragraphs = QString(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n")).split(QLatin1Char('\n'));
    for (const QString &paragraph : paragraphs) {
        const QStringList lines = paragraph.trimmed().isEmpty() ? QStringList{QString()} : WrapWords(paragraph, fm, right - left);
        for (const QString &line : lines) {
            const double w = fm.horizontalAdvance(line);
            const double x = alignment == 1 ? right - w : alignment == 2 ? left + (right - left - w) / 2.0 : left;
            m_painter->drawText(QPointF(x, y + fm.ascent()), line);
            y += fm.lineSpacing();
        }
    }
    TextY = y;
}
