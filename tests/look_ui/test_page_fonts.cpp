// SPDX-License-Identifier: AGPL-3.0-or-later
// The fonts of a scheme: chosen in the designer through its font buttons, kept with the scheme,
// and taken by the pages on screen, on paper and in PDF; a family the system lacks stands in
// quietly.
#include "LookSession.h"

#include "output/Themes.h"
#include "output/ui/TextPage.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QPainter>
#include <QPrinter>

namespace {
using SchemeFontsOnPages = LookSession;

// The width of what is drawn inside r: from the first to the last column holding a dark pixel.
int inkWidth(const QImage &img, const QRect &r)
{
    int first = -1, last = -1;
    for (int x = r.left(); x <= r.right(); ++x)
        for (int y = r.top(); y <= r.bottom(); ++y)
            if (qGray(img.pixel(x, y)) < 160) {
                if (first < 0)
                    first = x;
                last = x;
                break;
            }
    return first < 0 ? 0 : last - first + 1;
}

QLabel *labelWithText(const TopicPage &page, const QString &text)
{
    for (QLabel *l : page.findChildren<QLabel *>())
        if (l->text() == text)
            return l;
    return nullptr;
}

// The font list of a PDF file, or an empty string when the tool isn't there.
QString pdfFonts(const QString &file)
{
    const QString tool = QStandardPaths::findExecutable("pdffonts");
    if (tool.isEmpty())
        return {};
    QProcess p;
    p.start(tool, {file});
    p.waitForFinished();
    return QString::fromUtf8(p.readAllStandardOutput());
}
} // namespace

TEST_F(SchemeFontsOnPages, FontButtonsChooseTheFontsASchemeKeepsAndThePagesShowThem)
{
    std::unique_ptr<TopicPage> plain = loadPage("frmPage2");
    const int plainTitle = inkWidth(screenImage(*plain), plain->lblTitle->geometry());
    ASSERT_GT(plainTitle, 100);
    {
        frmColorEnv f;
        f.show();
        fontAnswers = {QFont("DejaVu Serif", 18)};
        QTest::mouseClick(f.cmdHeadFont, Qt::LeftButton);
        EXPECT_EQ(f.cmdHeadFont->pageFont(), (Themes::PageFont{"DejaVu Serif", 18}));
        EXPECT_TRUE(f.cmdHeadFont->text().contains("DejaVu Serif, 18 pt")) << f.cmdHeadFont->text().toStdString();

        // Too large for the body text: the user is told and the box keeps its font; a cancelled
        // dialog changes nothing either.
        fontAnswers = {QFont("FreeSans", 20)};
        QTest::mouseClick(f.cmdBodyFont, Qt::LeftButton);
        ASSERT_EQ(messages.size(), 1);
        EXPECT_TRUE(messages[0].contains("7 to 12 points")) << messages[0].toStdString();
        QTest::mouseClick(f.cmdBodyFont, Qt::LeftButton);
        EXPECT_EQ(f.cmdBodyFont->pageFont(), Themes::Defaults().BodyFont);
        // The size the box showed, chosen again, keeps the language's own sizes.
        fontAnswers = {QFont("FreeSans", 9)};
        QTest::mouseClick(f.cmdBodyFont, Qt::LeftButton);
        EXPECT_EQ(f.cmdBodyFont->pageFont(), (Themes::PageFont{"FreeSans", 0}));

        typeName(f, "Evening Serif");
        QTest::mouseClick(f.cmdSaveTheme, Qt::LeftButton);
        const QString stock = Themes::StockNames().at(2);
        choose(f, stock);
        EXPECT_EQ(f.cmdHeadFont->pageFont(), Themes::Stock(stock).HeadFont);
        choose(f, "Evening Serif");
        EXPECT_EQ(f.cmdHeadFont->pageFont(), (Themes::PageFont{"DejaVu Serif", 18}));
        EXPECT_EQ(f.cmdBodyFont->pageFont(), (Themes::PageFont{"FreeSans", 0}));
        QTest::mouseClick(f.cmdSaveAyanKundStyle, Qt::LeftButton);
        EXPECT_EQ(messages.size(), 1) << messages.join("\n").toStdString();
    }
    EXPECT_EQ(Themes::InForce().HeadFont, (Themes::PageFont{"DejaVu Serif", 18}));

    // A page loaded now: title and sub-heading in the heading font, the sub-heading scaled with it
    // (11 * 18 / 14 = 14.14), table text in the body family at the language's size.
    std::unique_ptr<TopicPage> page = loadPage("frmPage2");
    const QFontInfo title(page->lblTitle->font());
    EXPECT_EQ(title.family(), "DejaVu Serif");
    EXPECT_EQ(title.pointSize(), 18);
    QLabel *chartTitle = labelWithText(*page, "Lagna Kundli");
    ASSERT_NE(chartTitle, nullptr);
    EXPECT_EQ(QFontInfo(chartTitle->font()).family(), "DejaVu Serif");
    EXPECT_EQ(chartTitle->font().pointSize(), 14);
    QLabel *cell = labelWithText(*page, "Ascendant");
    ASSERT_NE(cell, nullptr);
    EXPECT_EQ(QFontInfo(cell->font()).family(), "FreeSans");
    EXPECT_EQ(cell->font().pointSize(), labelWithText(*plain, "Ascendant")->font().pointSize());
    const int serifTitle = inkWidth(screenImage(*page), page->lblTitle->geometry());
    EXPECT_GT(serifTitle, plainTitle * 1.15) << plainTitle << " -> " << serifTitle;
}

TEST_F(SchemeFontsOnPages, PaperAndPdfCarryTheSchemesFonts)
{
    Themes::Scheme s = Themes::Defaults();
    s.HeadFont = {"DejaVu Serif", 0};
    s.BodyFont = {"FreeSans", 0};
    Themes::Apply(s, QString());
    std::unique_ptr<TopicPage> form = loadPage("frmPage2");
    std::unique_ptr<TopicPage> text = loadPage("frmForText");
    auto *textPage = qobject_cast<TextPage *>(text.get());
    ASSERT_NE(textPage, nullptr);

    clsPDFExporter pdf;
    pdf.filename = dir.filePath("fonts.pdf");
    ASSERT_TRUE(pdf.StartExport());
    PageOutput toPdf(nullptr, nullptr, &pdf);
    toPdf.OutputPage(*form);
    toPdf.OutputTextPage(*textPage);
    ASSERT_TRUE(pdf.FinishFile());

    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(dir.filePath("printed.pdf"));
    QPainter painter(&printer);
    painter.scale(printer.resolution() / 96.0, printer.resolution() / 96.0);
    PageOutput toPaper(&printer, &painter, nullptr);
    toPaper.OutputPage(*form);
    toPaper.OutputTextPage(*textPage);
    painter.end();

    for (const QString &file : {pdf.filename, dir.filePath("printed.pdf")}) {
        const QString fonts = pdfFonts(file);
        if (fonts.isEmpty())
            GTEST_SKIP() << "pdffonts is not installed";
        EXPECT_TRUE(fonts.contains("DejaVuSerif-Bold")) << file.toStdString() << "\n" << fonts.toStdString();
        EXPECT_TRUE(fonts.contains("FreeSans")) << file.toStdString();
        // Nothing is left in the stand-in of the default family.
        EXPECT_FALSE(fonts.contains("DejaVuSans")) << file.toStdString() << "\n" << fonts.toStdString();
    }
}

TEST_F(SchemeFontsOnPages, AFamilyTheSystemLacksStandsInQuietly)
{
    for (const QString &name : Themes::StockNames())
        for (const Themes::PageFont &f : {Themes::Stock(name).HeadFont, Themes::Stock(name).BodyFont})
            EXPECT_TRUE(QFontDatabase::hasFamily(f.Family)) << f.Family.toStdString();

    const QString ghost = "Orbanta Missing Face";
    Themes::Scheme s = Themes::Defaults();
    s.HeadFont = {ghost, 16};
    ASSERT_EQ(Themes::Save(Session().RecDB, "Ghost", s), QString());
    {
        frmColorEnv f;
        f.show();
        choose(f, "Ghost");
        EXPECT_TRUE(f.cmdHeadFont->text().startsWith(ghost + " (as ")) << f.cmdHeadFont->text().toStdString();
        QTest::mouseClick(f.cmdSaveAyanKundStyle, Qt::LeftButton);
    }
    std::unique_ptr<TopicPage> page = loadPage("frmPage2");
    EXPECT_EQ(page->lblTitle->font().family(), ghost) << "the choice is kept as made";
    EXPECT_TRUE(QFontDatabase::hasFamily(QFontInfo(page->lblTitle->font()).family()));
    EXPECT_GT(inkWidth(screenImage(*page), page->lblTitle->geometry()), 100);
    EXPECT_TRUE(messages.isEmpty()) << messages.join("\n").toStdString();
}
