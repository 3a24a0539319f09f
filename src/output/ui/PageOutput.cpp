// SPDX-License-Identifier: AGPL-3.0-or-later
#include "output/ui/PageOutput.h"

#include "chartdraw/ui/Kundali.h"
#include "output/PrintTree.h"
#include "output/ui/HtmlExport.h"
#include "output/ui/PageParts.h"
#include "output/ui/PageStyle.h"
#include "output/ui/TextPage.h"
#include "output/ui/TopicPage.h"
#include "session/Session.h"
#include "sky/MessageSink.h"

#include <QAbstractTextDocumentLayout>
#include <QFontMetricsF>
#include <QLabel>
#include <QPainter>
#include <QPrinter>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextEdit>

#include <optional>

namespace {
constexpr double kTwip = 1.0 / 15.0; // a twip in form pixels
// The emblem of the header: any glyph serves; this one is in the fonts every installation has.
const QString kEmblem = QStringLiteral("\u0950");
const QString kEmblemFont = QStringLiteral("FreeSerif");

void printerFailed()
{
    messageSink().warn(QStringLiteral("Erro Printing!"),
                       QStringLiteral("Printer Performed an Invalid Operation. Please Check if Printer is Connected or Has Enough Paper."));
    Output().PrintAbort = true;
}

QColor textColour(const QLabel &l) { return l.palette().color(QPalette::WindowText); }
// The background a label paints under its text (the cells of a table in their scheme's colour);
// white paper needs none.
std::optional<QColor> labelBack(const QLabel &l)
{
    if (!l.autoFillBackground())
        return std::nullopt;
    const QColor c = l.palette().color(QPalette::Window);
    if (c == QColor(Qt::white) || c.alpha() == 0)
        return std::nullopt;
    return c;
}

// Direct children of a page in the order they were made.
QList<QWidget *> partsOf(const TopicPage &form)
{
    QList<QWidget *> out;
    for (QObject *o : form.children())
        if (auto *w = qobject_cast<QWidget *>(o))
            out.append(w);
    return out;
}

bool shown(const QWidget &w, const TopicPage &form) { return w.isVisibleTo(&form) || (!w.isHidden() && !form.isVisible()); }
} // namespace

OutputState &Output()
{
    static OutputState state;
    return state;
}

QString HeaderName(const QString &joint)
{
    const SessionGlobals &s = Session();
    if (s.ProgMode == 2 && s.BoyPlanets && s.GalPlanets)
        return s.BoyPlanets->Person().Name() + joint + s.GalPlanets->Person().Name();
    return s.CurPlanets ? s.CurPlanets->Person().Name() : QString();
}

int LabelAlignment(const QLabel &l)
{
    const Qt::Alignment a = l.alignment();
    if (a & Qt::AlignRight)
        return 1;
    if (a & Qt::AlignHCenter)
        return 2;
    return 0;
}

QStringList LabelLines(const QString &caption, const std::function<double(const QString &)> &width, double boxWidth)
{
    const QString text = QString(caption).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    const bool multiLine = text.contains(QLatin1Char('\n'));
    if (width(text) <= boxWidth || (!multiLine && !text.contains(QLatin1Char(' '))))
        return multiLine ? text.split(QLatin1Char('\n')) : QStringList{text};
    // Wrap: a piece joins the line while line and piece fit; else the line is printed and the
    // piece begins the next one.
    const QStringList pieces = multiLine ? text.split(QLatin1Char('\n')) : text.split(QLatin1Char(' '));
    const QString joint = multiLine ? QStringLiteral(" ") : QStringLiteral(" ");
    QStringList lines;
    QString line;
    for (const QString &piece : pieces) {
        const QString candidate = line.isEmpty() ? piece : line + joint + piece;
        if (line.isEmpty() || width(candidate) <= boxWidth) {
            line = candidate;
            continue;
        }
        lines << line;
        line = piece;
    }
    lines << line;
    return lines;
}

// ---- the printer ----

void clsPrintMaker::PrintForm(const TopicPage &form)
{
    if (Output().PrintAbort)
        return;
    if (!m_p.isActive()) {
        printerFailed();
        return;
    }
    const QList<QWidget *> parts = partsOf(form);
    for (QWidget *w : parts)
        if (auto *s = qobject_cast<PageShape *>(w); s && shown(*s, form))
            PrintShape(*s);
    for (QWidget *w : parts) {
        if (!shown(*w, form))
            continue;
        if (auto *l = qobject_cast<QLabel *>(w)) {
            if (!l->pixmap().isNull())
                PrintPicture(*l);
            else
                PrintLabel(*l);
        } else if (auto *line = qobject_cast<PageLine *>(w)) {
            PrintLine(*line);
        } else if (auto *k = qobject_cast<Kundali *>(w)) {
            k->PrintKundli(m_p, k->x(), k->y() + kTopOffset);
        }
    }
}

void clsPrintMaker::PrintLine(const PageLine &l)
{
    m_p.save();
    QPen pen(l.BorderColor(), 2);
    pen.setCosmetic(true);
    m_p.setPen(pen);
    m_p.drawLine(l.pageLine().translated(0, kTopOffset));
    m_p.restore();
}

void clsPrintMaker::PrintShape(const PageShape &s)
{
    if (s.kind() == PageShape::Rectangle)
        PrintRectangle(s);
    else if (s.kind() == PageShape::Ellipse)
        PrintCircle(s);
}

void clsPrintMaker::PrintRectangle(const PageShape &s)
{
    m_p.save();
    QPen pen(s.BorderColor(), 2);
    pen.setCosmetic(true);
    m_p.setPen(pen);
    const QRectF r = QRectF(s.geometry()).translated(0, kTopOffset);
    m_p.drawLine(r.topLeft(), r.topRight());
    m_p.drawLine(r.topRight(), r.bottomRight());
    m_p.drawLine(r.bottomRight(), r.bottomLeft());
    m_p.drawLine(r.bottomLeft(), r.topLeft());
    m_p.restore();
}

void clsPrintMaker::PrintCircle(const PageShape &s)
{
    m_p.save();
    QPen pen(s.BorderColor(), 2);
    pen.setCosmetic(true);
    m_p.setPen(pen);
    m_p.setBrush(Qt::NoBrush);
    const QRectF r = s.geometry();
    m_p.drawEllipse(QPointF(r.left() + r.width() / 2.0, r.top() + r.height() / 2.0 + kTopOffset), r.height() / 2.0, r.height() / 2.0);
    m_p.restore();
}

void clsPrintMaker::PrintPicture(const QLabel &l)
{
    m_p.drawPixmap(QPointF(l.x(), l.y() + kTopOffset), l.pixmap());
}

void clsPrintMaker::PrintLabel(const QLabel &l)
{
    m_p.save();
    const QFont font = Kundali::FontForDevice(l.font(), m_p);
    m_p.setFont(font);
    const QRectF box(l.x(), l.y() + kTopOffset, l.width(), l.height());
    if (const auto back = labelBack(l))
        m_p.fillRect(box, *back);
    m_p.setPen(textColour(l));
    const QFontMetricsF fm(font, m_p.device());
    const QStringList lines = LabelLines(l.text(), [&fm](const QString &t) { return fm.horizontalAdvance(t); }, box.width());
    // Labels centred upright on screen stay so on paper.
    double y = box.top();
    if (l.alignment() & Qt::AlignVCenter)
        y += qMax(0.0, (box.height() - lines.size() * fm.height()) / 2.0);
    const int align = LabelAlignment(l);
    for (const QString &line : lines) {
        const double w = fm.horizontalAdvance(line);
        const double x = align == 1 ? box.right() - w : align == 2 ? box.left() + (box.width() - w) / 2.0 : box.left();
        m_p.drawText(QPointF(x, y + fm.ascent()), line);
        y += fm.height();
    }
    m_p.restore();
}

// ---- text pages on the printer ----

void RTFPrint::PrintTextHeader(QPainter &p)
{
    p.save();
    QPen rule(Qt::black, 8 * kTwip * 2);
    p.setPen(rule);
    p.drawLine(QPointF(480 * kTwip, 1600 * kTwip), QPointF(5040 * kTwip, 1600 * kTwip));
    p.drawLine(QPointF(6360 * kTwip, 1600 * kTwip), QPointF(10920 * kTwip, 1600 * kTwip));
    p.setPen(Qt::black);
    // The name and the page number in the body family of the theme.
    const QString family = PageFonts::Current().Body.Family;
    QFont name = Kundali::FontForDevice(QFont(family, 11), p);
    p.setFont(name);
    p.drawText(QPointF(480 * kTwip, 1280 * kTwip + QFontMetricsF(name, p.device()).ascent()), HeaderName(QStringLiteral(" and ")));
    p.setPen(QPen(Qt::black, 1));
    p.drawEllipse(QPointF(5708 * kTwip, 1488 * kTwip), 607.5 * kTwip, 607.5 * kTwip);
    QFont emblem = Kundali::FontForDevice(QFont(kEmblemFont, 36), p);
    p.setFont(emblem);
    p.drawText(QRectF((5708 - 607.5) * kTwip, (1488 - 607.5) * kTwip, 1215 * kTwip, 1215 * kTwip), Qt::AlignCenter, kEmblem);
    QFont number = Kundali::FontForDevice(QFont(family, 10, QFont::Bold), p);
    p.setFont(number);
    p.drawText(QPointF(10500 * kTwip, 1280 * kTwip + QFontMetricsF(number, p.device()).ascent()), QString::number(Output().PageCounter));
    p.restore();
    ++Output().PageCounter;
}

int RTFPrint::PrintTextPage(QPrinter &printer, QPainter &p, const QTextDocument &doc, const std::function<void()> &newSheet)
{
    // Margins: 2400 twips at the top and the sides, 2000 at the foot; the header stands above the body.
    const double side = 2400 * kTwip, top = 2400 * kTwip, foot = 2000 * kTwip;
    const QRectF page = printer.pageRect(QPrinter::Inch);
    const QSizeF sheet(page.width() * 96.0, page.height() * 96.0); // form pixels
    std::unique_ptr<QTextDocument> copy(doc.clone());
    copy->documentLayout()->setPaintDevice(nullptr);
    const QSizeF body(sheet.width() - 2 * side, sheet.height() - top - foot);
    copy->setPageSize(body);
    const int pages = copy->pageCount();
    for (int i = 0; i < pages; ++i) {
        if (i > 0)
            newSheet();
        PrintTextHeader(p);
        p.save();
        p.translate(side, top - i * body.height());
        const QRectF clip(0, i * body.height(), body.width(), body.height());
        copy->drawContents(&p, clip);
        p.restore();
    }
    return pages;
}

// ---- PDF ----

bool clsPDFExporter::StartExport()
{
    m_surface.FileName = filename;
    m_surface.Creator = QStringLiteral("Orbanta");
    m_surface.Author = QStringLiteral("Meridane Software");
    m_surface.Title = QStringLiteral("Astrology Chart");
    m_surface.Keywords = {QStringLiteral("Indian astrology"), QStringLiteral("Astrology"), QStringLiteral("Muhurtha"),
                          QStringLiteral("Electional Astrology"), QStringLiteral("Orbanta"), QStringLiteral("Horoscope"),
                          QStringLiteral("Kundli"), QStringLiteral("Vedic Astrology"), QStringLiteral("Meridane"),
                          QStringLiteral("Jyotish")};
    m_surface.EmbedFonts = true;
    if (!m_surface.BeginDoc())
        return false;
    Output().PageCounter = 0;
    return true;
}

bool clsPDFExporter::FinishFile() { return m_surface.EndDoc(); }

void clsPDFExporter::PrintLabel(const QLabel &l)
{
    const QFont f = l.font();
    m_surface.setFontName(f.family());
    m_surface.setFontBold(f.bold());
    m_surface.setFontItalic(f.italic());
    m_surface.setFontSize(f.pointSizeF() > 0 ? std::round(f.pointSizeF()) : 9);
    m_surface.setFontStrikeOut(f.strikeOut());
    m_surface.setFontUnderline(f.underline());
    m_surface.setTextColor(textColour(l));
    const double left = l.x() * kUnit, top = l.y() * kUnit;
    const double right = (l.x() + l.width()) * kUnit, bottom = (l.y() + l.height()) * kUnit;
    if (!l.isHidden()) {
        if (const auto back = labelBack(l); back && m_surface.painter())
            m_surface.painter()->fillRect(QRectF(left, top, right - left, bottom - top), *back);
        double y = top;
        if (l.alignment() & Qt::AlignVCenter) {
            const int lines = static_cast<int>(
                LabelLines(l.text(), [this](const QString &t) { return m_surface.TextWidth(t); }, right - left).size());
            y += qMax(0.0, (bottom - top - lines * m_surface.LineHeight()) / 2.0);
        }
        m_surface.TextBox(left, y, right, bottom, LabelAlignment(l), 0, l.text());
    }
}

void clsPDFExporter::PrintForm(const TopicPage &form)
{
    m_surface.setPenWidth(5 / kTwipsPerUnit * 1.0);
    for (QWidget *w : partsOf(form)) {
        if (auto *l = qobject_cast<QLabel *>(w)) {
            if (!l->pixmap().isNull())
                m_surface.StretchDraw(l->pixmap(), l->x() * kUnit, l->y() * kUnit, (l->x() + l->width()) * kUnit,
                                      (l->y() + l->height()) * kUnit);
            else
                PrintLabel(*l);
        } else if (auto *line = qobject_cast<PageLine *>(w)) {
            m_surface.setPenColor(line->BorderColor());
            m_surface.setPenWidth(line->BorderWidth() * kUnit);
            const QLineF v = line->pageLine();
            m_surface.MoveTo(v.x1() * kUnit, v.y1() * kUnit);
            m_surface.LineTo(v.x2() * kUnit, v.y2() * kUnit);
        } else if (auto *s = qobject_cast<PageShape *>(w)) {
            m_surface.setPenColor(s->BorderColor());
            const QRectF r = s->geometry();
            if (s->kind() == PageShape::Rectangle)
                m_surface.Rectangle(r.left() * kUnit, r.top() * kUnit, r.right() * kUnit, r.bottom() * kUnit);
            else
                m_surface.Ellipse(r.left() * kUnit + r.width() * kUnit / 4, r.top() * kUnit,
                                  r.left() * kUnit + r.width() * kUnit / 4 + r.height() * kUnit, r.top() * kUnit + r.height() * kUnit);
        } else if (auto *k = qobject_cast<Kundali *>(w)) {
            QPainter *p = m_surface.painter();
            if (!p)
                continue;
            p->save();
            p->translate(k->x() * kUnit, k->y() * kUnit);
            p->scale(kUnit, kUnit);
            k->DrawPDFKundli(*p, 0, 0);
            p->restore();
        } else if (qobject_cast<QTextEdit *>(w)) {
            if (auto *page = qobject_cast<const TextPage *>(&form))
                PrintTextPage(*page);
        }
    }
}

void clsPDFExporter::PageHeader()
{
    const double u = 1.0 / kTwipsPerUnit;
    m_surface.setPenColor(Qt::black);
    m_surface.setPenWidth(8 * u);
    m_surface.MoveTo(480 * u, 1600 * u);
    m_surface.LineTo(5040 * u, 1600 * u);
    m_surface.MoveTo(6360 * u, 1600 * u);
    m_surface.LineTo(10920 * u, 1600 * u);
    const QString font = m_surface.FontName();
    const double size = m_surface.FontSize();
    const bool bold = m_surface.FontBold();
    m_surface.setTextColor(Qt::black);
    const QString family = PageFonts::Current().Body.Family;
    m_surface.setFontName(family);
    m_surface.setFontSize(11);
    m_surface.setFontBold(false);
    m_surface.TextOut(HeaderName(QStringLiteral(" & ")), 480 * u, 1280 * u);
    if (Output().PageCounter == 0)
        Output().PageCounter = 1;
    m_surface.setPenWidth(3 * u);
    m_surface.Ellipse(5100 * u, 950 * u, (5100 + 1215) * u, (950 + 1215) * u);
    m_surface.setFontName(kEmblemFont);
    m_surface.setFontSize(36);
    const double w = m_surface.TextWidth(kEmblem);
    m_surface.TextOut(kEmblem, (5100 + 607.5) * u - w / 2, (950 + 607.5) * u - m_surface.LineHeight() / 2);
    m_surface.setFontName(family);
    m_surface.setFontSize(10);
    m_surface.setFontBold(true);
    m_surface.TextOut(QString::number(Output().PageCounter), 10500 * u, 1280 * u);
    m_surface.setFontName(font);
    m_surface.setFontSize(size);
    m_surface.setFontBold(bold);
}

void clsPDFExporter::layoutLine(const QString &line)
{
    const auto put = [this](const QString &text) {
        m_surface.TextBox(kTextLeft, m_surface.TextY, kTextRight, 0, 0, 0, text.trimmed());
        if (m_surface.TextY > kPageLimit) {
            m_surface.NewPage();
            ++Output().PageCounter;
            PageHeader();
            m_surface.TextY = kFirstLineY;
        }
    };
    if (line.isEmpty()) {
        put(QString()); // an empty line still takes a line's height
        return;
    }
    QString current;
    for (const QString &word : line.split(QLatin1Char(' '))) {
        if (m_surface.TextWidth(current + word) < kWrapWidth) {
            current += word + QLatin1Char(' ');
            continue;
        }
        if (current.isEmpty()) {
            put(word); // a word wider than the line stands alone on it
            continue;
        }
        put(current);
        current = word + QLatin1Char(' ');
    }
    if (!current.isEmpty())
        put(current);
}

void clsPDFExporter::PrintTextPage(const TextPage &page)
{
    m_surface.TextY = kFirstLineY;
    PageHeader();
    const QTextDocument *doc = page.rtfText->document();
    // One block a line; a line takes the format found at its end. The text after the last line
    // break is not laid out: the fillers end every paragraph with one.
    for (QTextBlock b = doc->begin(); b.isValid() && b.next().isValid(); b = b.next()) {
        QTextCharFormat f = b.charFormat();
        for (auto it = b.begin(); !it.atEnd(); ++it)
            f = it.fragment().charFormat();
        const QFont font = f.font();
        m_surface.setFontName(font.family());
        m_surface.setFontBold(font.bold());
        m_surface.setFontItalic(font.italic());
        m_surface.setFontSize(font.pointSizeF() > 0 ? font.pointSizeF() : 10);
        m_surface.setFontUnderline(font.underline());
        m_surface.setTextColor(f.foreground().style() == Qt::NoBrush ? QColor(Qt::black) : f.foreground().color());
        layoutLine(b.text());
    }
    ++Output().PageCounter;
}

// ---- the steps of a run ----

void PageOutput::beginSheet()
{
    if (m_sheets > 0 && m_printer)
        m_printer->newPage();
    ++m_sheets;
}

void PageOutput::BeginStep(const PrintStep &step)
{
    if (m_html)
        m_html->BeginTopic(step);
}

void PageOutput::OutputPage(TopicPage &form)
{
    if (m_html) {
        form.lblPageNo->setText(QString::number(Output().PageCounter));
        m_html->PrintForm(form);
        return;
    }
    if (m_pdf) {
        if (Output().PageCounter > 1)
            m_pdf->NewTopic();
        form.lblPageNo->setText(QString::number(Output().PageCounter));
        m_pdf->PrintForm(form);
        return;
    }
    form.lblPageNo->setText(QString::number(Output().PageCounter));
    if (Output().PrintAbort)
        return;
    beginSheet();
    clsPrintMaker(*m_painter).PrintForm(form);
}

void PageOutput::OutputTextPage(TextPage &page)
{
    if (m_html) {
        m_html->PrintTextPage(page);
        ++Output().PageCounter;
        return;
    }
    if (m_pdf) {
        if (Output().PageCounter > 1)
            m_pdf->NewTopic();
        m_pdf->PrintForm(page);
        return;
    }
    if (Output().PrintAbort || !m_printer)
        return;
    beginSheet();
    const int sheets = RTFPrint::PrintTextPage(*m_printer, *m_painter, *page.rtfText->document(), [this] { beginSheet(); });
    Q_UNUSED(sheets)
}
