// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// Topic pages on paper and in PDF. A form page is drawn by walking its children at their own
// places; a text page is paginated, with a drawn header on every sheet. The printer and the PDF
// file read the same pages.

#include "output/ui/PdfSurface.h"

#include <QPointer>
#include <QString>

#include <functional>
#include <memory>

class QLabel;
class QPainter;
class QPrinter;
class QTextDocument;
class Kundali;
class PageLine;
class PageShape;
class TextPage;
class TopicPage;
class clsHtmlExporter;
struct PrintStep;

// The state every output shares: the number of the next page, and whether the printer failed.
struct OutputState
{
    long PageCounter = 1;
    bool PrintAbort = false;
};
OutputState &Output();

// The name the header of text pages shows: the person's, or the couple's joined by joint.
QString HeaderName(const QString &joint);

// Forms on a printer. The painter's unit is one form pixel (the run scales it); every y is moved
// down by 200 twips, x not at all.
class clsPrintMaker
{
public:
    static constexpr double kTopOffset = 200.0 / 15.0; // 200 twips in form pixels

    explicit clsPrintMaker(QPainter &p) : m_p(p) {}
    // Shapes first, so that backgrounds lie under everything; then labels, lines, charts, pictures.
    void PrintForm(const TopicPage &form);
    void PrintLine(const PageLine &l);
    void PrintShape(const PageShape &s);
    void PrintRectangle(const PageShape &s);
    void PrintCircle(const PageShape &s);
    void PrintPicture(const QLabel &l);
    void PrintLabel(const QLabel &l);

private:
    QPainter &m_p;
};

// Alignment of a label as the drawing code counts it: 0 left, 1 right, 2 centre.
int LabelAlignment(const QLabel &l);
// The lines of a label's caption as paper takes them: split at line breaks when it has them,
// else wrapped at blanks when it is wider than width; a single word wider stays on its line.
QStringList LabelLines(const QString &caption, const std::function<double(const QString &)> &width, double boxWidth);

namespace RTFPrint {
// Every page of the document on the printer: the header, then the page within its margins.
// Returns the number of sheets.
int PrintTextPage(QPrinter &printer, QPainter &p, const QTextDocument &doc, const std::function<void()> &newSheet);
// The header of a text page: two rules, the name, the emblem in a circle, the page number.
void PrintTextHeader(QPainter &p);
} // namespace RTFPrint

// The PDF counterpart of clsPrintMaker: it lays out text pages itself, word by word.
class clsPDFExporter
{
public:
    static constexpr double kTwipsPerUnit = 5.67;        // twips in a tenth of a millimetre
    static constexpr double kUnit = 15.0 / kTwipsPerUnit; // tenths of a millimetre in a form pixel
    static constexpr double kFirstLineY = 400, kTextLeft = 200, kTextRight = 1800, kWrapWidth = 1570, kPageLimit = 2600;

    QString filename;
    PdfSurface &surface() { return m_surface; }

    // Document properties, then the document begins; false when the file can't be written.
    bool StartExport();
    // Ends the document; false when it could not be completed.
    bool FinishFile();
    // Draws one page: its children in their order; labels only when visible.
    void PrintForm(const TopicPage &form);
    void PrintLabel(const QLabel &l);
    void NewTopic() { m_surface.NewPage(); }
    // A text page: header, then its lines word by word, with new sheets past the page limit.
    void PrintTextPage(const TextPage &page);
    // The header of a text sheet, the twin of the printed one.
    void PageHeader();

private:
    void layoutLine(const QString &line);
    PdfSurface m_surface;
};

// The page steps of a run: a form page, and a text page whose header counts its own sheets.
// Mode 1 prints to the printer of the run, mode 3 exports to its PDF, mode 5 to HTML.
class PageOutput
{
public:
    static constexpr int kHtmlMode = 5;
    // A printer run draws into p (begun on printer); a PDF run into exporter.
    PageOutput(QPrinter *printer, QPainter *p, clsPDFExporter *pdf) : m_printer(printer), m_painter(p), m_pdf(pdf) {}
    // An HTML run.
    explicit PageOutput(clsHtmlExporter *html) : m_printer(nullptr), m_painter(nullptr), m_pdf(nullptr), m_html(html) {}
    int Mode() const { return m_html ? kHtmlMode : m_pdf ? 3 : 1; }
    // The step whose pages follow (HTML names its sections after it).
    void BeginStep(const PrintStep &step);
    void OutputPage(TopicPage &form);
    void OutputTextPage(TextPage &page);
    // Ends the current printer sheet without starting another (a new one begins with the next page).
    bool printedAnything() const { return m_sheets > 0; }

private:
    void beginSheet();
    QPrinter *m_printer;
    QPainter *m_painter;
    clsPDFExporter *m_pdf;
    clsHtmlExporter *m_html = nullptr;
    int m_sheets = 0;
};
