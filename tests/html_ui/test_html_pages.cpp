// SPDX-License-Identifier: AGPL-3.0-or-later
// The horoscope as HTML: the walk of the PDF gives one section per chosen topic in its order,
// drawn pages as pictures beside Index.HTML and text pages as paragraphs; the page reads in a
// rich-text view as in a browser.
#include "html/HtmlCheck.h"
#include "output/PrintTree.h"
#include "output/TopicList.h"
#include "output/ui/HtmlExport.h"
#include "output/ui/PageCache.h"
#include "output/ui/frmPrint.h"
#include "output/ui/TopicPage.h"
#include "output_ui/DelhiSession.h"
#include "support/RecordingSink.h"

#include <QImage>
#include <QPainter>
#include <QPushButton>
#include <QTest>
#include <QTextDocument>

#include <gtest/gtest.h>

namespace {

class HtmlExport : public DelhiSession
{
protected:
    // Writes the ticked topics into a folder of dir; the folder.
    QString exportTopics(const QSet<QString> &ticked, const QString &name = "site")
    {
        const QString folder = dir.filePath(name);
        QString o, e;
        QTextStream out(&o), err(&e);
        EXPECT_EQ(WriteSessionHtml(1, ticked, folder, out, err), 0) << e.toStdString();
        return folder;
    }
    // The keys of the walk's steps that ticked chooses and this program draws, in walk order.
    static QStringList expectedSections(const QSet<QString> &ticked)
    {
        QStringList keys;
        for (const PrintStep &s : SelectedSteps(1, false, ticked))
            if (PageIsBuilt(s.Page))
                keys << s.Key;
        return keys;
    }
    // The share of pixels of an image that aren't white.
    static double inked(const QImage &image)
    {
        qint64 ink = 0;
        for (int y = 0; y < image.height(); y += 2)
            for (int x = 0; x < image.width(); x += 2)
                ink += image.pixelColor(x, y).lightness() < 200;
        return 4.0 * ink / (double(image.width()) * image.height());
    }
};

} // namespace

TEST_F(HtmlExport, EveryChosenTopicIsOneSectionInWalkOrderWithItsPictureBeside)
{
    RecordingSink sink;
    const ScopedMessageSink recording(&sink);
    const QStringList all = PrintKeys(1, false);
    const QSet<QString> every(all.begin(), all.end());
    const QString folder = exportTopics(every);
    const HtmlShape s = ReadHtmlFile(folder + "/Index.HTML");
    ASSERT_TRUE(s.error.isEmpty()) << s.error.toStdString();
    EXPECT_EQ(s.sections, expectedSections(every));
    EXPECT_GE(s.sections.size(), 15);
    EXPECT_FALSE(s.text.contains("Item Not Found"));
    EXPECT_TRUE(sink.reports.isEmpty()) << sink.reports.join('\n').toStdString();
    EXPECT_TRUE(s.text.contains("Horoscope of Asha"));

    // Each picture is there, drawn at twice the page's size, and not blank.
    ASSERT_FALSE(s.images.isEmpty());
    for (const QString &src : s.images) {
        const QImage image(folder + "/" + src);
        ASSERT_FALSE(image.isNull()) << src.toStdString();
        EXPECT_EQ(image.size(), QSize(2 * TopicPage::kWidth, 2 * TopicPage::kHeight));
        EXPECT_GT(inked(image), 0.01) << src.toStdString();
    }
    // Text pages are words, not pictures: one picture for each drawn topic only.
    const int textSteps = static_cast<int>(std::count_if(s.sections.begin(), s.sections.end(), [](const QString &k) {
        for (const PrintStep &st : PrintWalkForMode(1, false))
            if (st.Key == k)
                return st.Kind == StepKind::Text;
        return false;
    }));
    EXPECT_GT(textSteps, 0);
    EXPECT_EQ(s.images.size(), s.sections.size() - textSteps);
    EXPECT_TRUE(s.text.contains("Gaja Kesari") || s.text.contains("Yoga")) << "the yogas page is written out";

    // Only the chosen topics, in the walk's order, whatever the order they are named in.
    const HtmlShape two = ReadHtmlFile(exportTopics({"Yoga", "Janma"}, "two") + "/Index.HTML");
    EXPECT_EQ(two.sections, (QStringList{"Janma", "Yoga"}));
    EXPECT_EQ(two.images, QStringList{"page-001.png"});
}

TEST_F(HtmlExport, TheIndexReadsInARichTextViewWithItsPictures)
{
    const QString folder = exportTopics({"Janma", "Vimsot", "Yoga"});
    QFile f(folder + "/Index.HTML");
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    QTextDocument doc;
    doc.setBaseUrl(QUrl::fromLocalFile(folder + "/"));
    const QString html = QString::fromUtf8(f.readAll());
    // The pictures hold two pixels for each pixel of the page; a browser reads the page's size
    // from the width and height of the img, the rich-text view from the picture.
    for (const QString &src : ReadHtmlShape(html).images) {
        QImage picture(folder + "/" + src);
        picture.setDevicePixelRatio(2);
        doc.addResource(QTextDocument::ImageResource, QUrl(src), picture);
    }
    doc.setHtml(html);
    doc.setTextWidth(820);
    const QSizeF size = doc.size();
    EXPECT_GT(size.height(), 2 * TopicPage::kHeight) << "two pictures of a page's height and the text";
    QImage shot(QSize(820, qMin(4000, int(size.height()))), QImage::Format_RGB32);
    shot.fill(Qt::white);
    {
        QPainter p(&shot);
        doc.drawContents(&p, QRectF(QPointF(), shot.size()));
    }
    EXPECT_GT(inked(shot), 0.02) << "the pictures were found beside the file";
    if (const QString out = qEnvironmentVariable("ORBANTA_SCREENSHOTS"); !out.isEmpty())
        shot.save(out + "/html-export.png");
}

// File > Export HTML is the print screen in its HTML mode: the ticked topics go to its folder, and
// the screen reports what it wrote, which the mail then takes.
TEST_F(HtmlExport, ThePrintScreenInItsHtmlModeWritesTheTickedTopics)
{
    PageCache pages;
    frmPrint dialog(pages);
    dialog.setMode(PageOutput::kHtmlMode);
    EXPECT_EQ(dialog.windowTitle(), "Select Topics To Export HTML");
    dialog.setTicked("Main", false);
    dialog.setTicked("Janma", true);
    dialog.setTicked("Yoga", true);
    const QString folder = dir.filePath("chosen");
    dialog.setTarget(folder);
    dialog.show();
    if (const QString out = qEnvironmentVariable("ORBANTA_SCREENSHOTS"); !out.isEmpty())
        dialog.grab().save(out + "/print-screen-html.png");
    QTest::mouseClick(dialog.cmdPrint, Qt::LeftButton);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(dialog.exportedPath(), folder);
    EXPECT_EQ(dialog.exportedFiles(), (QStringList{"Index.HTML", "page-001.png"}));
    EXPECT_EQ(ReadHtmlFile(folder + "/Index.HTML").sections, (QStringList{"Janma", "Yoga"}));
    EXPECT_EQ(pages.count(), 0) << "the run unloads its pages";
}
