// SPDX-License-Identifier: AGPL-3.0-or-later
// Pages on paper and in PDF: the walk writes one sheet per form page in its order, text pages
// paginate under their header and count their sheets, labels wrap as paper needs, and the
// command line writes a file or says why not.
#include "output/PrintTree.h"
#include "output_ui/DelhiSession.h"
#include "output/ui/PageCache.h"
#include "output/ui/PageOutput.h"
#include "output/ui/PdfCommand.h"
#include "output/ui/PrintRun.h"
#include "output/ui/TextPage.h"
#include "output/ui/frmPrint.h"
#include "session/Session.h"
#include "support/TestSupport.h"
#include "text/TextDB.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPrinter>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class PdfExport : public DelhiSession
{
protected:
    // With ORBANTA_SCREENSHOTS set, the first sheet of a PDF as a picture there.
    static void snapshot(const QString &file, const QString &name)
    {
        const QString out = qEnvironmentVariable("ORBANTA_SCREENSHOTS");
        const QString tool = QStandardPaths::findExecutable("pdftoppm");
        if (out.isEmpty() || tool.isEmpty())
            return;
        QProcess::execute(tool, {"-r", "70", "-png", "-f", "1", "-l", "1", "-singlefile", file, out + "/" + name});
    }
};

// A text page of n paragraphs.
class LongText : public TextPage
{
public:
    explicit LongText(int n) : TextPage("frmLongText"), m_n(n) {}

protected:
    void fill() override
    {
        Title("Results");
        for (int i = 0; i < m_n; ++i) {
            PutHead(QStringLiteral("Paragraph %1").arg(i + 1));
            PutText(QString("The placement of the planet promises a steady rise through patient effort. ").repeated(6));
        }
    }

private:
    int m_n;
};

} // namespace

TEST_F(PdfExport, AllTopicsInWalkOrderOneSheetEachWithTheirNumbers)
{
    const QString file = dir.filePath("Asha-Horoscope.PDF");
    clsPDFExporter pdf;
    pdf.filename = file;
    ASSERT_TRUE(pdf.StartExport());
    Output().PageCounter = 1;
    PageCache pages;
    PageOutput out(nullptr, nullptr, &pdf);
    const QStringList keys = PrintKeys(1, false);
    const QList<PrintStep> steps = SelectedSteps(1, false, QSet<QString>(keys.begin(), keys.end()));
    const int drawn = WalkSteps(steps, pages, out);
    // Form pages take a sheet each and text pages as many as they need; the count runs on through both.
    EXPECT_GE(pdf.surface().PageCount(), drawn);
    EXPECT_EQ(Output().PageCounter, pdf.surface().PageCount() + 1);
    EXPECT_EQ(pages.loaded("frmPage2")->lblPageNo->text(), "2");
    ASSERT_TRUE(pdf.FinishFile());
    snapshot(file, "pdf-first-page");

    const QString text = pdfText(file);
    if (text.isEmpty())
        GTEST_SKIP() << "pdftotext is not installed";
    EXPECT_FALSE(text.contains("Item Not Found"));
    int at = 0;
    for (const char *heading : {"General Details", "Lagna & Planet Positions", "Shodash Varga Kundlis - 1",
                                "Shodash Varga Kundlis - 4", "Bhava Table & Chalit Chakra"}) {
        const int found = static_cast<int>(text.indexOf(heading, at));
        EXPECT_GE(found, at) << heading;
        at = qMax(at, found);
    }
}

// File > Export PDF goes through the print screen; it must write the very pages that the command
// line writes for the same birth, numbered alike from 1.
TEST_F(PdfExport, ThePrintScreensExportHasTheCommandLinesPages)
{
    const QString screenFile = dir.filePath("screen.PDF"), cliFile = dir.filePath("cli.PDF");
    {
        PageCache pages;
        frmPrint dialog(pages);
        dialog.setMode(3);
        ASSERT_TRUE(dialog.cmdPrint_Click(screenFile));
    }
    QString outText, errText;
    QTextStream out(&outText), err(&errText);
    ASSERT_EQ(RunPdfCommand({"--date", "15/08/1980", "--time", "14.35", "--lat", "28:38N", "--lon", "77:12E", "--gmt", "+05.30",
                             "--name", "Asha", "--out", cliFile},
                            out, err),
              0)
        << errText.toStdString();
    const QString a = pdfText(screenFile), b = pdfText(cliFile);
    if (a.isEmpty())
        GTEST_SKIP() << "pdftotext is not installed";
    const QStringList sheetsA = a.split('\f'), sheetsB = b.split('\f');
    ASSERT_EQ(sheetsA.size(), sheetsB.size());
    for (int i = 0; i < sheetsA.size(); ++i)
        EXPECT_EQ(sheetsA[i], sheetsB[i]) << "sheet " << i + 1;
}

TEST_F(PdfExport, TextPagesPaginateUnderTheirHeaderAndCountTheirSheets)
{
    clsPDFExporter pdf;
    pdf.filename = dir.filePath("text.pdf");
    ASSERT_TRUE(pdf.StartExport());
    LongText page(40);
    page.Load();
    Output().PageCounter = 3;
    pdf.PrintTextPage(page);
    const int sheets = pdf.surface().PageCount();
    EXPECT_GT(sheets, 2);
    EXPECT_EQ(Output().PageCounter, 3 + sheets) << "each break adds one, the end of the topic one more";
    EXPECT_LE(pdf.surface().TextY, clsPDFExporter::kPageLimit + pdf.surface().LineHeight());
    ASSERT_TRUE(pdf.FinishFile());
    snapshot(pdf.filename, "pdf-text-page");
    const QString text = pdfText(pdf.filename);
    if (!text.isEmpty()) {
        EXPECT_TRUE(text.contains("Asha")) << "the header names the person on every sheet";
        EXPECT_TRUE(text.contains("Paragraph 40"));
    }

    clsPDFExporter empty;
    empty.filename = dir.filePath("empty.pdf");
    ASSERT_TRUE(empty.StartExport());
    LongText none(0);
    none.Load();
    Output().PageCounter = 1;
    empty.PrintTextPage(none);
    EXPECT_EQ(empty.surface().PageCount(), 1);
    EXPECT_GT(empty.surface().TextY, clsPDFExporter::kFirstLineY) << "even an empty line takes its height";
    EXPECT_TRUE(empty.FinishFile());
}

TEST_F(PdfExport, ThePrinterDrawsEachFormOnItsOwnSheetAndStopsAfterAFailure)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(dir.filePath("printed.pdf"));
    QPainter painter(&printer);
    painter.scale(printer.resolution() / 96.0, printer.resolution() / 96.0);
    PageCache pages;
    PageOutput out(&printer, &painter, nullptr);
    Output().PageCounter = 1;
    const QList<PrintStep> steps = SelectedSteps(1, false, {"FrontPage", "Janma"});
    WalkSteps(steps, pages, out);
    EXPECT_EQ(Output().PageCounter, 3);
    Output().PrintAbort = true;
    WalkSteps(SelectedSteps(1, false, {"Bhav"}), pages, out);
    painter.end();
    const QString text = pdfText(dir.filePath("printed.pdf"));
    if (text.isEmpty())
        GTEST_SKIP() << "pdftotext is not installed";
    EXPECT_EQ(text.count(QChar('\f')), 2) << "two sheets, nothing after the failure";
    EXPECT_TRUE(text.contains("Lagna & Planet Positions"));
    EXPECT_FALSE(text.contains("Bhava Table"));

    // A text page counts one page a sheet in its headers.
    Output() = OutputState{};
    Output().PageCounter = 3;
    QPrinter second(QPrinter::HighResolution);
    second.setOutputFormat(QPrinter::PdfFormat);
    second.setOutputFileName(dir.filePath("yogas.pdf"));
    QPainter p2(&second);
    p2.scale(second.resolution() / 96.0, second.resolution() / 96.0);
    PageOutput yogas(&second, &p2, nullptr);
    WalkSteps(SelectedSteps(1, false, {"Yoga"}), pages, yogas);
    p2.end();
    const int sheets = static_cast<int>(pdfText(dir.filePath("yogas.pdf")).count(QChar('\f')));
    EXPECT_GE(sheets, 1);
    EXPECT_EQ(Output().PageCounter, 3 + sheets);
}

TEST(LabelLines, WrapAtBlanksOnlyWhenTheCaptionIsTooWide)
{
    const auto width = [](const QString &t) { return 10.0 * t.size(); };
    EXPECT_EQ(LabelLines("Sun Mercury", width, 200), QStringList({"Sun Mercury"}));
    EXPECT_EQ(LabelLines("Sun Mercury Rahu", width, 120), QStringList({"Sun Mercury", "Rahu"}));
    EXPECT_EQ(LabelLines("Uttarabhadrapada", width, 50), QStringList({"Uttarabhadrapada"})) << "no blank: one line past the box";
    EXPECT_EQ(LabelLines("Lagna\nLord", width, 200), QStringList({"Lagna", "Lord"}));
}

TEST(PdfCommand, AnUnwritableFileOrAnUnknownTopicIsRefusedWithAMessage)
{
    ScopedSettingsStore store;
    const QStringList birth{"--date", "15/08/1980", "--time", "14.35", "--lat", "28:38N", "--lon", "077:12E", "--gmt", "+05.30"};
    QString o, e;
    QTextStream out(&o), err(&e);
    EXPECT_EQ(RunPdfCommand(birth + QStringList{"--out", "/nonexistent-folder/x.pdf"}, out, err), 1);
    EXPECT_TRUE(e.contains("Cannot write")) << e.toStdString();
    e.clear();
    EXPECT_EQ(RunPdfCommand(birth + QStringList{"--out", "/tmp/x.pdf", "--topics", "Janma,Nope"}, out, err), 2);
    EXPECT_TRUE(e.contains("Unknown topic key: Nope"));
    EXPECT_EQ(RunPdfCommand(birth, out, err), 2) << "no --out";
    EXPECT_FALSE(Session().CurPlanets) << "the chart of the command is released";
}
