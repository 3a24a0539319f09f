// SPDX-License-Identifier: AGPL-3.0-or-later
// Marriage mode from the entry screen to paper, driven as a user drives it: two births typed,
// Generate, the four topics with what the match holds, back to the entry screen and a new match,
// and File > Export PDF writing the very pages that "orbanta match --out" writes.
#include "chartdraw/ui/Kundali.h"
#include "cli/MatchCommand.h"
#include "marriage/MarrSession.h"
#include "marriage/clsMarr.h"
#include "marriage/pages/frmMarScore.h"
#include "output/ui/PageCache.h"
#include "output/ui/PageOutput.h"
#include "output/ui/TextPage.h"
#include "output/ui/frmPrint.h"
#include "session_ui/SessionWindow.h"
#include "support/PdfText.h"
#include "sky/Functions.h"
#include "support/RecordingSink.h"

#include <QApplication>
#include <QDir>
#include <QMenu>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTest>
#include <QTextEdit>

namespace {

class MatchPages : public EntryScreen
{
protected:
    void SetUp() override
    {
        EntryScreen::SetUp();
        window->resize(1100, 860);
        window->show();
        QApplication::processEvents();
    }
    static void click(QAbstractButton *b) { QTest::mouseClick(b, Qt::LeftButton); }
    void typeBirth(BirthPanel *p, const QString &name, const QString &date, const QString &time, const QString &lat,
                   const QString &lon)
    {
        type(p->cmbName, name);
        type(p->txtDate, date);
        type(p->txtTime, time);
        type(p->txtLati, lat);
        type(p->txtLongi, lon);
    }
    // Arun, born 15/08/1980 at 14.35 in Delhi, and Bela, born 02/02/1987 at 18.00 in Chennai.
    void generateCouple()
    {
        click(screen->cmdMatch);
        typeBirth(screen->boy, "Arun", "15081980", "1435", "02838", "07712");
        typeBirth(screen->gal, "Bela", "02021987", "1800", "01305", "08017");
        click(screen->cmdGenerate);
    }
    static QString pdfText(const QString &file) { return PdfText(file); }
    RecordingSink sink;
    ScopedMessageSink scoped{&sink};
};

} // namespace

TEST_F(MatchPages, GenerateOpensTheFourTopicsOfTheCouple)
{
    generateCouple();
    ASSERT_TRUE(Session().BoyPlanets && Session().GalPlanets);
    ASSERT_EQ(window->topics().size(), 4);
    EXPECT_TRUE(window->mnuMarNav->menuAction()->isVisible());
    EXPECT_TRUE(window->tbNext->isEnabled());
    const QStringList pages{"frmMarFront", "frmMarCover", "frmMarScore", "frmMarText"};
    for (int i = 0; i < 4; ++i) {
        window->SelectTopic(i);
        ASSERT_NE(window->activePage(), nullptr);
        EXPECT_EQ(window->activePage()->objectName(), pages[i]);
        for (const QLabel *l : window->activePage()->findChildren<QLabel *>())
            EXPECT_FALSE(l->text().contains("Item Not Found")) << pages[i].toStdString();
    }
    EXPECT_EQ(sink.reports, QStringList()) << "every key the pages read is in the English database";

    clsMarr *m = SessionMarr();
    ASSERT_NE(m, nullptr);
    EXPECT_EQ(m->clsBoy(), Session().BoyPlanets.get());
    // The score page shows the sum as it stands, and the verdict of the rounded sum.
    window->SelectTopic(2);
    auto *score = qobject_cast<frmMarScore *>(window->activePage());
    ASSERT_NE(score, nullptr);
    EXPECT_EQ(score->lblMMScore->text(), NumText(m->TotalScore()));
    const QString verdict = Session().BoyPlanets->GetHeadValue(1, m->GetTotSCO(), "Marriage").toString();
    EXPECT_FALSE(verdict.isEmpty());
    EXPECT_EQ(score->findChild<QLabel *>("lblVerdict")->text(), verdict);
    // The analysis holds the paragraph of each kuta's pairing, in order.
    window->SelectTopic(3);
    const QString text = qobject_cast<TextPage *>(window->activePage())->rtfText->toPlainText();
    qsizetype at = 0;
    for (int k = 0; k < clsMarr::kKutaCount; ++k) {
        const QString para = Session().BoyPlanets->GetHeadValue(4, m->MatchTag(k)).toString();
        const qsizetype found = text.indexOf(para, at);
        EXPECT_GE(found, at) << m->MatchTag(k).toStdString();
        at = qMax(at, found);
    }
    // The cover shows both charts, each from its own chart.
    window->SelectTopic(1);
    auto *kunBoy = window->activePage()->findChild<Kundali *>("kunBoy");
    auto *kunGal = window->activePage()->findChild<Kundali *>("kunGal");
    ASSERT_TRUE(kunBoy && kunGal);
    EXPECT_NE(kunBoy->model().HouseText(1) + kunBoy->model().HouseText(4), kunGal->model().HouseText(1) + kunGal->model().HouseText(4));

    // Back at the entry screen the match goes with the charts; a new couple gets a new one.
    window->ShowEntryScreen();
    EXPECT_FALSE(Session().Marr);
    typeBirth(screen->gal, "Chitra", "09091999", "1240", "01904", "07253");
    click(screen->cmdGenerate);
    ASSERT_NE(SessionMarr(), nullptr);
    EXPECT_EQ(SessionMarr()->clsGal()->Person().Name(), "Chitra");
}

TEST_F(MatchPages, TheEntryScreenRefusesABadGirlsDateAndCastsNothing)
{
    click(screen->cmdMatch);
    typeBirth(screen->boy, "Arun", "15081980", "1435", "02838", "07712");
    typeBirth(screen->gal, "Bela", "31021987", "1800", "01305", "08017");
    click(screen->cmdGenerate);
    EXPECT_FALSE(Session().BoyPlanets);
    EXPECT_FALSE(Session().Marr);
    ASSERT_FALSE(messages.empty());
    EXPECT_EQ(messages.front().title, "Invalid Date");
}

// File > Export PDF in Marriage mode writes the four topics, and the same sheets as the command line.
TEST_F(MatchPages, ExportPdfWritesTheFourTopicsAsTheCommandLineDoes)
{
    generateCouple();
    const QString screenFile = dir.filePath("screen.PDF"), cliFile = dir.filePath("cli.PDF");
    {
        PageCache pages;
        frmPrint dialog(pages);
        dialog.setMode(3);
        ASSERT_TRUE(dialog.cmdPrint_Click(screenFile));
    }
    QString outText, errText;
    QTextStream out(&outText), err(&errText);
    ASSERT_EQ(RunMatchCommand({"--date", "15/08/1980", "--time", "14.35", "--lat", "28:38N", "--lon", "77:12E", "--gmt", "+05.30",
                               "--name", "Arun", "--girl-date", "02/02/1987", "--girl-time", "18.00", "--girl-lat", "13:05N",
                               "--girl-lon", "80:17E", "--girl-gmt", "+05.30", "--girl-name", "Bela", "--out", cliFile},
                              out, err),
              0)
        << errText.toStdString();
    EXPECT_TRUE(outText.startsWith("Wrote 4 topics")) << outText.toStdString();
    const QString a = pdfText(screenFile), b = pdfText(cliFile);
    if (a.isEmpty())
        GTEST_SKIP() << "pdftotext is not installed";
    EXPECT_FALSE(a.contains("Item Not Found"));
    EXPECT_TRUE(a.contains("Arun & Bela"));
    // The entry screen names a country that typed coordinates on the command line don't.
    static const QRegularExpression country(QStringLiteral("\\n *Country[^\\n]*"));
    const QStringList sheetsA = QString(a).remove(country).split('\f'), sheetsB = QString(b).remove(country).split('\f');
    ASSERT_EQ(sheetsA.size(), sheetsB.size());
    for (int i = 0; i < sheetsA.size(); ++i)
        EXPECT_EQ(sheetsA[i], sheetsB[i]) << "sheet " << i + 1;
    qsizetype at = 0;
    for (const char *heading : {"Birth Details of the Couple", "Planetary Positions & Lagna Kundlis", "Ashtakoota Guna Milan",
                                "Manglik Consideration", "Further Checks", "Match Score Analysis"}) {
        const qsizetype found = a.indexOf(heading, at);
        EXPECT_GE(found, at) << heading;
        at = qMax(at, found);
    }
    const QString shots = qEnvironmentVariable("ORBANTA_SCREENSHOTS");
    if (!shots.isEmpty()) {
        QFile::remove(shots + "/match-report.pdf");
        QFile::copy(screenFile, shots + "/match-report.pdf");
    }
}

TEST_F(MatchPages, Screenshots)
{
    const QString out = qEnvironmentVariable("ORBANTA_SCREENSHOTS");
    if (out.isEmpty())
        GTEST_SKIP() << "set ORBANTA_SCREENSHOTS to a folder to write the pictures";
    QDir().mkpath(out);
    generateCouple();
    for (int i = 0; i < window->cmbTopic->count(); ++i) {
        window->SelectTopic(i);
        QApplication::processEvents();
        window->activePage()->grab().save(QStringLiteral("%1/page-%2.png").arg(out, window->topics()[i].Page.mid(3).toLower()));
    }
    window->SelectTopic(2);
    QApplication::processEvents();
    window->grab().save(out + "/main-window-marriage.png");
}
