// SPDX-License-Identifier: AGPL-3.0-or-later
// The conjunction and placement pages of a Delhi birth: what the tables and headings show, and
// that the five pages go to the printer and into a PDF with their words.
#include "output/PrintTree.h"
#include "output_ui/DelhiSession.h"
#include "output/ui/PageCache.h"
#include "output/ui/PageOutput.h"
#include "output/ui/PrintRun.h"
#include "session/Session.h"
#include "support/TestSupport.h"
#include "text/TextDB.h"
#include "text/pages/ReadingPage.h"
#include "text/pages/frmConj.h"

#include <QDir>
#include <QPainter>
#include <QPrinter>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTextEdit>

#include <gtest/gtest.h>

namespace {

class ReadingPages : public DelhiSession
{
protected:
    ReadingPages() : DelhiSession(2) {}
    const clsPlanets &chart() const { return *Session().CurPlanets; }
};

} // namespace

TEST_F(ReadingPages, TheConjunctionTablesShowTheAspectsAndEveryPair)
{
    frmConj page;
    page.Load();
    const clsPlanets &c = chart();
    // The Sun's row: the planets whose sign aspects reach the Sun's sign.
    QStringList names;
    for (int p : ParashariAspectors(c, c.PlanetRashiNum(1)))
        names << c.PlanetName(p);
    EXPECT_EQ(page.aspects.cell(0, 0)->text(), c.PlanetName(1));
    EXPECT_EQ(page.aspects.cell(0, 1)->text(), names.isEmpty() ? QString("None") : names.join(' '));
    EXPECT_EQ(page.aspects.cell(4, 2)->text(), c.PlanetName(0)); // the Lagna closes the second half
    // Both triangles of the matrix, the whole degrees and the relation.
    const double d = c.PlanetLongi(1) - c.PlanetLongi(7);
    const QString cell = QString::number(int(std::fabs(d))) + "\n" + clsPlanets::FindRelation(d);
    EXPECT_EQ(page.matrix.cell(1, 8)->text(), cell);
    EXPECT_EQ(page.matrix.cell(7, 2)->text(), cell);
    EXPECT_TRUE(page.matrix.cell(3, 4)->text().isEmpty());
    shoot(page, "page-conj.png");
}

TEST_F(ReadingPages, TextPagesShowEveryHeadingAndStartAtTheTop)
{
    struct Case
    {
        const char *name, *title, *shot, *heading1, *heading2;
    };
    const Case cases[] = {
        {"frmConjPredi", "Planetary Conjunction Results", "page-conjpredi.png", " with ", " to "},
        {"frmNakshatra", "Birth Nakshatra Result", "page-nakshatra.png", "General Nature", "Health"},
        {"frmGrahaFala", "Result for Placement of Planets", "page-grahafala.png", "Result of the Lagna", "Pluto"},
        {"frmBhavaFal", "Prediction on Houses", "page-bhavafal.png", "Lord of the Lagna", "Planets in the Houses"},
    };
    for (const Case &k : cases) {
        PageCache pages;
        auto *page = qobject_cast<TextPage *>(pages.load(k.name));
        ASSERT_NE(page, nullptr) << k.name;
        const QString text = page->rtfText->toPlainText();
        EXPECT_TRUE(text.contains(k.title)) << k.name;
        EXPECT_FALSE(text.contains("Item Not Found"));
        EXPECT_EQ(page->rtfText->textCursor().position(), 0);
        EXPECT_TRUE(text.contains(k.heading1)) << k.name;
        EXPECT_TRUE(text.contains(k.heading2)) << k.name;
        page->resize(TopicPage::kWidth, TopicPage::kHeight);
        shoot(*page, k.shot);
    }
}

TEST_F(ReadingPages, TheFivePagesPrintAndExport)
{
    const QSet<QString> keys{"Conjunctions", "Conjunct", "Grahafala", "Bhavafala", "Nakshatrafala"};
    const QList<PrintStep> steps = SelectedSteps(1, true, keys);
    ASSERT_EQ(steps.size(), 5);

    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(dir.filePath("printed.pdf"));
    QPainter painter(&printer);
    painter.scale(printer.resolution() / 96.0, printer.resolution() / 96.0);
    PageCache printed;
    PageOutput toPaper(&printer, &painter, nullptr);
    EXPECT_EQ(WalkSteps(steps, printed, toPaper), 5);
    painter.end();

    clsPDFExporter pdf;
    pdf.filename = dir.filePath("Asha-Horoscope.PDF");
    ASSERT_TRUE(pdf.StartExport());
    Output() = OutputState{};
    PageCache exported;
    PageOutput toPdf(nullptr, nullptr, &pdf);
    EXPECT_EQ(WalkSteps(steps, exported, toPdf), 5);
    ASSERT_TRUE(pdf.FinishFile());

    for (const QString &file : {dir.filePath("printed.pdf"), pdf.filename}) {
        const QString text = pdfText(file);
        if (text.isEmpty())
            GTEST_SKIP() << "pdftotext is not installed";
        for (const char *title : {"Planetary Conjunctions", "Planetary Conjunction Results", "Result for Placement of Planets",
                                  "Prediction on Houses", "Birth Nakshatra Result"})
            EXPECT_TRUE(text.contains(title)) << title << " in " << file.toStdString();
    }
}
