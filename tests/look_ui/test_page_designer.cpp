// SPDX-License-Identifier: AGPL-3.0-or-later
// The page designer as a user drives it: schemes saved, chosen, read back and deleted, and the
// look it saves on the pages on screen and in PDF.
#include "LookSession.h"

#include "chartdraw/ui/Kundali.h"
#include "output/Themes.h"
#include "output/ui/frmColorEnv.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSqlQuery>
#include <QTest>

namespace {
using PageDesigner = LookSession;

enum { HeadingCol = 6, TableBackCol = 9, TableHeadCol = 10 };

} // namespace

TEST_F(PageDesigner, SchemeSavedAndReadBackChangesWhatThePagesPaint)
{
    const QColor head(255, 200, 0), body(235, 245, 255), chartBack(250, 235, 250);
    {
        frmColorEnv f;
        f.show();
        EXPECT_EQ(f.cmbTheme->count(), Themes::StockNames().size()) << "the stock schemes are there on first use";
        answers = {head, body, chartBack};
        QTest::mouseClick(f.picPage[TableHeadCol], Qt::LeftButton);
        QTest::mouseClick(f.picPage[TableBackCol], Qt::LeftButton);
        QTest::mouseClick(f.picBackColor, Qt::LeftButton);
        EXPECT_EQ(f.kunDemo->BackColor(), chartBack) << "the sample chart follows at once";
        typeName(f, "Marigold");
        QTest::mouseClick(f.cmdSaveTheme, Qt::LeftButton);
        EXPECT_TRUE(messages.isEmpty()) << messages.join("\n").toStdString();
        ASSERT_GE(f.cmbTheme->findText("Marigold"), 0);

        // Another scheme shows its own colours; the saved one brings its colours back.
        choose(f, Themes::StockNames().at(2));
        EXPECT_EQ(f.scheme(), Themes::Stock(Themes::StockNames().at(2)));
        choose(f, "Marigold");
        EXPECT_EQ(f.picPage[TableHeadCol]->colour(), head);
        EXPECT_EQ(f.picBackColor->colour(), chartBack);
        QTest::mouseClick(f.cmdSaveAyanKundStyle, Qt::LeftButton);
        EXPECT_EQ(f.result(), QDialog::Accepted);
    }
    EXPECT_EQ(Themes::InForceName(), "Marigold");

    // A page loaded now: the head and body cells of its table, and its chart's middle.
    std::unique_ptr<TopicPage> page = loadPage("frmPage2");
    const QPoint headCell(613, 514), bodyCell(613, 539), chartMiddle(380, 286);
    const QImage screen = screenImage(*page);
    EXPECT_EQ(screen.pixelColor(headCell), head);
    EXPECT_EQ(screen.pixelColor(bodyCell), body);
    EXPECT_EQ(screen.pixelColor(chartMiddle), chartBack);

    const QImage sheet = pdfImage(*page, "scheme");
    if (sheet.isNull())
        GTEST_SKIP() << "pdftoppm is not installed";
    EXPECT_TRUE(colourNear(sheet, headCell.x(), headCell.y(), head, 1));
    EXPECT_TRUE(colourNear(sheet, bodyCell.x(), bodyCell.y(), body, 1));
    EXPECT_TRUE(colourNear(sheet, chartMiddle.x(), chartMiddle.y(), chartBack, 1));
}

TEST_F(PageDesigner, SchemeThatLostItsFileSaysSoAndShowsTheDefaultLook)
{
    const QStringList names = Themes::Names(Session().RecDB);
    const QString lost = names.at(2);
    QSqlQuery q(Session().RecDB);
    q.prepare("SELECT file FROM DisplayThemes WHERE ThemeName = ?");
    q.addBindValue(lost);
    ASSERT_TRUE(q.exec() && q.next());
    ASSERT_TRUE(QFile::remove(Themes::FilePath(q.value(0).toString())));

    frmColorEnv f;
    f.show();
    choose(f, lost); // the arrows pass the two schemes before it, which read well

    ASSERT_EQ(messages.size(), 1);
    EXPECT_TRUE(messages[0].contains(lost)) << messages[0].toStdString();
    EXPECT_TRUE(messages[0].contains("lost its file"));
    EXPECT_EQ(f.scheme(), Themes::Defaults());
    EXPECT_EQ(f.kunDemo->BackColor(), QColor(Qt::white));
}

TEST_F(PageDesigner, DeleteAndNamelessSaveAndCancel)
{
    const Themes::Scheme inForce = Themes::InForce();
    frmColorEnv f;
    f.show();
    const QString gone = Themes::StockNames().at(3);
    choose(f, gone);
    QTest::mouseClick(f.cmdDelTheme, Qt::LeftButton);
    EXPECT_LT(f.cmbTheme->findText(gone), 0);
    EXPECT_FALSE(Themes::Names(Session().RecDB).contains(gone));

    const int count = f.cmbTheme->count();
    typeName(f, "   ");
    QTest::mouseClick(f.cmdSaveTheme, Qt::LeftButton);
    ASSERT_EQ(messages.size(), 1);
    EXPECT_TRUE(messages[0].contains("name"));
    EXPECT_EQ(f.cmbTheme->count(), count);

    answers = {QColor(9, 9, 9)};
    QTest::mouseClick(f.picPage[HeadingCol], Qt::LeftButton);
    QTest::mouseClick(f.cmdCancel, Qt::LeftButton);
    EXPECT_EQ(Themes::InForce(), inForce) << "Cancel keeps the look in force";
}
