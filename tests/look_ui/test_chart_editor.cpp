// SPDX-License-Identifier: AGPL-3.0-or-later
// The chart style editor as a user drives it, and how its saved look reaches every chart.
#include "LookSession.h"

#include "app/mdiMother.h"
#include "chartdraw/ChartLook.h"
#include "chartdraw/ui/Kundali.h"
#include "chartdraw/ui/frmKunEdit.h"
#include "output/Themes.h"
#include "output/ui/frmColorEnv.h"

#include <QComboBox>

#include <QApplication>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>

namespace {
using ChartEditor = LookSession;

void press(QWidget *w, Qt::Key key, int times = 1)
{
    for (int i = 0; i < times; ++i)
        QTest::keyClick(w, key);
}
} // namespace

TEST_F(ChartEditor, SampleFollowsEveryChangeAndNothingIsStoredBeforeSave)
{
    clsIni::WriteIniString("KunLineWidth", "0", "KUNCOLOR");
    clsIni::WriteIniString("KunBorderWidth", "3", "KUNCOLOR");
    clsIni::WriteIniString("KunLineColor", QString::number(0x00336699), "KUNCOLOR");
    AppSettings::setValue("Init", "KundStyle", 1);
    const ChartLook before = ChartLook::Read();

    frmKunEdit f;
    f.show();
    EXPECT_TRUE(f.optEastKun->isChecked());
    EXPECT_EQ(f.kunDemo->ChartStyle(), 1);
    EXPECT_EQ(f.txtLineWidth->value(), 0) << "a stored 0 shows as it is";
    EXPECT_EQ(f.kunDemo->LineWidth(), 1) << "and is drawn as 1";
    EXPECT_EQ(f.txtBorderWidth->value(), 3);
    EXPECT_EQ(f.picLineColor->value(), 0x00336699);
    for (int i = 1; i <= 12; ++i)
        EXPECT_FALSE(f.kunDemo->HouseText(i).isEmpty()) << "cell " << i;

    QTest::mouseClick(f.optNorthKun, Qt::LeftButton);
    EXPECT_EQ(f.kunDemo->ChartStyle(), 0);
    QTest::mouseClick(f.optSouthKun, Qt::LeftButton);
    EXPECT_EQ(f.kunDemo->ChartStyle(), 2);

    answers = {QColor(200, 0, 0), QColor(10, 120, 10)};
    QTest::mouseClick(f.picLineColor, Qt::LeftButton);
    QTest::mouseClick(f.picNumberColor, Qt::LeftButton);
    EXPECT_EQ(f.kunDemo->LineColor(), QColor(200, 0, 0));
    EXPECT_EQ(f.kunDemo->NumberColor(), QColor(10, 120, 10));
    EXPECT_EQ(f.picLineColor->colour(), QColor(200, 0, 0));

    // The width boxes take no typing; their arrows step from 1 to 10 and stop there.
    f.txtLineWidth->setFocus();
    QTest::keyClicks(f.txtLineWidth, "7");
    EXPECT_EQ(f.txtLineWidth->value(), 0);
    press(f.txtLineWidth, Qt::Key_Up);
    EXPECT_EQ(f.txtLineWidth->value(), 1) << "the first step up from 0 shows 1";
    press(f.txtLineWidth, Qt::Key_Up, 12);
    EXPECT_EQ(f.txtLineWidth->value(), 10);
    EXPECT_EQ(f.kunDemo->LineWidth(), 10);
    press(f.txtLineWidth, Qt::Key_Down, 12);
    EXPECT_EQ(f.txtLineWidth->value(), 1);
    press(f.txtLineWidth, Qt::Key_Up, 3);

    EXPECT_EQ(ChartLook::Read(), before) << "nothing is stored before Save";

    QTest::mouseClick(f.cmdSaveAyanKundStyle, Qt::LeftButton);
    const ChartLook saved = ChartLook::Read();
    EXPECT_EQ(saved.Style, 2);
    EXPECT_EQ(saved[ChartLook::LineWidth], 4);
    EXPECT_EQ(saved[ChartLook::BorderWidth], 3);
    EXPECT_EQ(saved[ChartLook::LineColor], 200);
    EXPECT_EQ(saved[ChartLook::NumColor], 10 | 120 << 8 | 10 << 16);
    EXPECT_EQ(f.result(), QDialog::Accepted);
}

TEST_F(ChartEditor, CancelKeepsTheSavedLook)
{
    const ChartLook before = ChartLook::Read();
    frmKunEdit f;
    f.show();
    answers = {QColor(1, 2, 3)};
    QTest::mouseClick(f.picBackColor, Qt::LeftButton);
    QTest::mouseClick(f.optNorthKun, Qt::LeftButton);
    QTest::mouseClick(f.cmdCancel, Qt::LeftButton);
    EXPECT_EQ(ChartLook::Read(), before);
    EXPECT_EQ(f.result(), QDialog::Rejected);
}

TEST_F(ChartEditor, SavedLookReachesAnOpenPageOnScreenAndInPdf)
{
    // The page is open before the look changes: its chart takes the new look at its next paint.
    std::unique_ptr<TopicPage> page = loadPage("frmPage2");
    const QColor back(255, 236, 190), line(220, 0, 0);
    {
        frmKunEdit f;
        f.show();
        answers = {back, line};
        QTest::mouseClick(f.picBackColor, Qt::LeftButton);
        QTest::mouseClick(f.picLineColor, Qt::LeftButton);
        f.txtLineWidth->setFocus();
        press(f.txtLineWidth, Qt::Key_Up, 5); // 1 -> 6
        QTest::mouseClick(f.cmdSaveAyanKundStyle, Qt::LeftButton);
    }
    ASSERT_EQ(ChartLook::Read()[ChartLook::LineWidth], 6);

    // The Lagna chart stands at (190, 96), 380 square, in the South style: its middle is empty
    // and its first inner line runs down at a quarter of its width.
    const QPoint middle(380, 286), onLine(285, 323);
    const QImage screen = screenImage(*page);
    EXPECT_EQ(screen.pixelColor(middle), back);
    EXPECT_TRUE(colourNear(screen, onLine.x(), onLine.y(), line));

    const QImage sheet = pdfImage(*page, "chart-look");
    if (sheet.isNull())
        GTEST_SKIP() << "pdftoppm is not installed";
    EXPECT_TRUE(colourNear(sheet, middle.x(), middle.y(), back, 1));
    EXPECT_TRUE(colourNear(sheet, onLine.x(), onLine.y(), line, 2));
    EXPECT_FALSE(colourNear(sheet, 100, 286, back, 1)) << "the paper beside the chart stays white";
}

TEST_F(ChartEditor, MenusOpenBothEditorsAndTheirSaveHolds)
{
    mdiMother::setAskOnExit(false);
    mdiMother window;
    QAction *item = window.findChild<QAction *>("mnuSettingsKundStyle");
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(item->text(), "&Kundli Style...");
    bool seen = false;
    QTimer::singleShot(0, [&seen] {
        auto *f = qobject_cast<frmKunEdit *>(QApplication::activeModalWidget());
        if (!f)
            return;
        seen = true;
        QTest::mouseClick(f->optNorthKun, Qt::LeftButton);
        QTest::mouseClick(f->cmdSaveAyanKundStyle, Qt::LeftButton);
    });
    item->trigger();
    EXPECT_TRUE(seen);
    EXPECT_EQ(AppSettings::KundStyle(), 0);
    Kundali fresh;
    EXPECT_EQ(fresh.ChartStyle(), 0) << "a chart made now stands in the saved style";

    QAction *designer = window.findChild<QAction *>("mnuPageDesigner");
    ASSERT_NE(designer, nullptr);
    EXPECT_EQ(designer->text(), "&Page Designer...");
    const QString scheme = Themes::StockNames().at(1);
    QTimer::singleShot(0, [&scheme] {
        auto *f = qobject_cast<frmColorEnv *>(QApplication::activeModalWidget());
        if (!f)
            return;
        f->cmbTheme->setFocus();
        while (f->cmbTheme->currentText() != scheme && f->cmbTheme->currentIndex() < f->cmbTheme->count() - 1)
            QTest::keyClick(f->cmbTheme, Qt::Key_Down);
        QTest::mouseClick(f->cmdSaveAyanKundStyle, Qt::LeftButton);
    });
    designer->trigger();
    EXPECT_EQ(Themes::InForceName(), scheme);
    EXPECT_EQ(Themes::InForce(), Themes::Stock(scheme));
}
