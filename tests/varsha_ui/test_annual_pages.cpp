// SPDX-License-Identifier: AGPL-3.0-or-later
// The annual mode as a user drives it: Generate in Varshaphala opens the year before this one on
// its front page, the nine pages fill from the reading, and another year from the list recasts
// the reading and starts again at the front page.
#include "chartdraw/ui/Kundali.h"
#include "output/PrintTree.h"
#include "output/ui/PageCache.h"
#include "output/ui/PageOutput.h"
#include "output/ui/PrintRun.h"
#include "output/ui/TextPage.h"
#include "session/ui/frmCalcOptions.h"
#include "output/ui/TopicPage.h"
#include "session_ui/SessionWindow.h"
#include "support/RecordingSink.h"
#include "varsha/AnnualReading.h"
#include "varsha/clsVarsha.h"

#include <QApplication>

#include <cmath>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QDir>
#include <QTest>
#include <QTextEdit>
#include <QToolBar>
#include <QToolButton>

namespace {

class AnnualPages : public EntryScreen
{
protected:
    void SetUp() override
    {
        EntryScreen::SetUp();
        window->show();
        QApplication::processEvents();
    }
    void generate()
    {
        QTest::mouseClick(screen->cmdVarshaphala, Qt::LeftButton);
        BirthPanel *p = screen->single;
        type(p->cmbName, "Asha");
        type(p->txtDate, "15081980");
        type(p->txtTime, "1435");
        type(p->txtLati, "02838");
        type(p->txtLongi, "07712");
        QTest::mouseClick(screen->cmdGenerate, Qt::LeftButton);
        QApplication::processEvents();
    }
    QString labelText(const char *name) const
    {
        const QLabel *l = window->activePage()->findChild<QLabel *>(QString::fromLatin1(name));
        return l ? l->text() : QString();
    }
};

} // namespace

TEST_F(AnnualPages, GenerateOpensLastYearsFrontPageAndEveryPageFills)
{
    RecordingSink sink;
    const ScopedMessageSink keep(&sink);
    generate();
    ASSERT_TRUE(Session().CurPlanets);
    const int lastYear = QDate::currentDate().year() - 1980 - 1;
    EXPECT_EQ(window->cmbYearList()->currentIndex(), lastYear);
    ASSERT_NE(SessionVarsha(), nullptr);
    EXPECT_EQ(SessionVarsha()->Age(), lastYear);
    EXPECT_EQ(Session().VarshaPlanets->Person().Year(), 1980 + lastYear);

    ASSERT_EQ(window->cmbTopic->count(), 9);
    ASSERT_NE(window->activePage(), nullptr);
    EXPECT_EQ(window->activePage()->objectName(), "frmVarFront");
    EXPECT_EQ(labelText("lblMunHouseVal"), QString::number(SessionVarsha()->MunthaHouse()));
    EXPECT_TRUE(labelText("lblVarsheshWar").endsWith(Session().VarshaPlanets->PlanetNameFull(SessionVarsha()->Varsheswara())));

    // Every page loads and fills; the six pages of tables and wheels read only words of the program.
    for (int i = 0; i < window->cmbTopic->count(); ++i) {
        window->SelectTopic(i);
        ASSERT_NE(window->activePage(), nullptr) << i;
        EXPECT_EQ(window->activePage()->objectName(), window->topics()[i].Page);
        if (auto *text = qobject_cast<TextPage *>(window->activePage()))
            EXPECT_GT(text->rtfText->toPlainText().size(), 200) << i;
        else
            EXPECT_GT(window->activePage()->findChildren<QLabel *>().size(), 20) << i;
        if (i < 6) {
            EXPECT_EQ(sink.reports, QStringList()) << window->topics()[i].Page.toStdString();
        }
        sink.reports.clear();
    }
}

TEST_F(AnnualPages, AnotherYearFromTheListRecastsAndReturnsToTheFrontPage)
{
    generate();
    ASSERT_NE(SessionVarsha(), nullptr);
    const int before = window->cmbYearList()->currentIndex();
    const int muntha = SessionVarsha()->Muntha();
    window->SelectTopic(4);

    QTest::keyClick(window->cmbYearList(), Qt::Key_Down);
    QApplication::processEvents();
    EXPECT_EQ(window->cmbYearList()->currentIndex(), before + 1);
    EXPECT_EQ(Session().VarshaYear, before + 1);
    ASSERT_NE(SessionVarsha(), nullptr);
    EXPECT_EQ(SessionVarsha()->Age(), before + 1);
    EXPECT_EQ(SessionVarsha()->Muntha(), muntha % 12 + 1);
    EXPECT_EQ(Session().VarshaPlanets->Person().Year(), 1980 + before + 1);
    EXPECT_EQ(window->cmbTopic->currentIndex(), 0);
    EXPECT_EQ(window->activePage()->objectName(), "frmVarFront");

    // The spin beside the list steps back a year.
    auto *down = window->findChild<QToolButton *>("udYearDown");
    ASSERT_NE(down, nullptr);
    QTest::mouseClick(down, Qt::LeftButton);
    QApplication::processEvents();
    EXPECT_EQ(window->cmbYearList()->currentIndex(), before);
    EXPECT_EQ(SessionVarsha()->Age(), before);

    // Back at the entry screen the reading is gone with the charts.
    window->ShowEntryScreen();
    EXPECT_EQ(SessionVarsha(), nullptr);
    EXPECT_FALSE(Session().VarshaPlanets);
}

TEST_F(AnnualPages, TheExactReturnIsASettingOfTheRegionalSettings)
{
    generate();
    const clsVarsha *traditional = SessionVarsha();
    ASSERT_NE(traditional, nullptr);
    const double natal = Session().CurPlanets->PlanetLongi(1);
    {
        frmCalcOptions options;
        EXPECT_FALSE(options.chkExactReturn->isChecked()); // off unless chosen
        QTest::mouseClick(options.chkExactReturn, Qt::LeftButton);
        QTest::mouseClick(options.cmdOK, Qt::LeftButton);
    }
    QTest::keyClick(window->cmbYearList(), Qt::Key_Up);
    QApplication::processEvents();
    ASSERT_NE(SessionVarsha(), nullptr);
    double off = std::fabs(Session().VarshaPlanets->PlanetLongi(1) - natal);
    off = off > 180 ? 360 - off : off;
    EXPECT_LT(off, 0.01);
}

TEST_F(AnnualPages, ThePdfWalkGoesYearByYear)
{
    generate();
    ASSERT_NE(SessionVarsha(), nullptr);
    const int age = Session().VarshaYear;
    RecordingSink sink;
    const ScopedMessageSink keep(&sink);
    QTemporaryDir dir;
    clsPDFExporter pdf;
    pdf.filename = dir.filePath("year.pdf");
    ASSERT_TRUE(pdf.StartExport());
    Output() = OutputState{};
    PageCache pages;
    PageOutput out(nullptr, nullptr, &pdf);
    QString error;
    const int drawn = WalkAnnualYears(PrintWalkForMode(4, false), pages, out, 20, 2, {}, &error);
    ASSERT_TRUE(pdf.FinishFile());
    EXPECT_TRUE(error.isEmpty());
    EXPECT_EQ(drawn, 18);
    EXPECT_GE(pdf.surface().PageCount(), 18);
    EXPECT_EQ(sink.reports, QStringList()) << "no key of the two years is missing";
    // The session's own year is back.
    EXPECT_EQ(Session().VarshaYear, age);
    ASSERT_NE(SessionVarsha(), nullptr);
    EXPECT_EQ(SessionVarsha()->Age(), age);
}

TEST_F(AnnualPages, Screenshots)
{
    const QString out = qEnvironmentVariable("ORBANTA_SCREENSHOTS");
    if (out.isEmpty())
        GTEST_SKIP() << "set ORBANTA_SCREENSHOTS to a folder to write the pictures";
    QDir().mkpath(out);
    AppSettings::setValue("Init", "KundStyle", 0);
    generate();
    window->resize(1100, 860);
    // A fixed year, so that the pictures don't change with the calendar.
    window->cmbYearList()->setCurrentIndex(45);
    QApplication::processEvents();
    for (int i = 0; i < window->cmbTopic->count(); ++i) {
        window->SelectTopic(i);
        QApplication::processEvents();
        window->activePage()->grab().save(QStringLiteral("%1/varsha-%2.png").arg(out, window->topics()[i].Page.mid(3).toLower()));
    }
    window->SelectTopic(0);
    QApplication::processEvents();
    window->grab().save(out + "/varsha-main-window.png");
}
