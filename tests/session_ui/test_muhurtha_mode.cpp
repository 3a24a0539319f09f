// SPDX-License-Identifier: AGPL-3.0-or-later
// Muhurtha mode driven as a user would: the act is picked, the span and the times typed, the place
// found in the atlas; Generate refuses what can't be searched and otherwise opens the two pages,
// which print to a PDF of their own.
#include "muhurtha/clsMuhurtha.h"
#include "output/ui/PageCache.h"
#include "output/ui/TextPage.h"
#include "output/ui/TopicPage.h"
#include "output/ui/frmPrint.h"
#include "session/PersonStore.h"
#include "session_ui/SessionWindow.h"
#include "support/PdfText.h"
#include "text/TextDB.h"

#include <QApplication>
#include <QDir>
#include <QListWidget>
#include <QProcess>
#include <QStandardPaths>
#include <QTest>
#include <QTextEdit>
#include <QTimer>

namespace {

class MuhurthaMode : public EntryScreen
{
protected:
    void SetUp() override
    {
        EntryScreen::SetUp();
        QSqlDatabase text;
        ASSERT_TRUE(OpenTextDB("ENGLISH", text));
        Session().TextDB = text;
    }
    void TearDown() override
    {
        EntryScreen::TearDown();
        CloseTextDB(Session().TextDB);
    }
    static void type(QLineEdit *e, const QString &text)
    {
        e->setFocus();
        e->selectAll();
        QTest::keyClicks(e, text);
    }
    void chooseAct(const QString &code)
    {
        clsMuhurtha muhu;
        const auto acts = muhu.Acts();
        for (size_t i = 0; i < acts.size(); ++i)
            if (acts[i].code == code) {
                QListWidget *list = screen->lstMuhu;
                list->scrollToItem(list->item(static_cast<int>(i)));
                QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(static_cast<int>(i))).center());
                return;
            }
        FAIL() << "no act " << code.toStdString();
    }
    // House-warming in February 2025 at Mumbai, from 06.00 to 18.00.
    void fillHouseWarming()
    {
        window->show();
        QTest::mouseClick(screen->cmdMuhurtha, Qt::LeftButton);
        chooseAct("GRIHAPRAVESH");
        type(screen->txtMuhuFrom, "01022025");
        type(screen->txtMuhuTo, "28022025");
        type(screen->txtMuhuStart, "0600");
        type(screen->txtMuhuEnd, "1800");
        screen->muhuPlace->cmbPlace->setFocus();
        QTest::keyClicks(screen->muhuPlace->cmbPlace->lineEdit(), "Mumbai");
    }
    bool clickGenerate()
    {
        messages.clear();
        QTest::mouseClick(screen->cmdGenerate, Qt::LeftButton);
        return Session().Muhurtha != nullptr;
    }
    static QString pageText(TopicPage *page)
    {
        QStringList parts;
        for (const QLabel *l : page->findChildren<QLabel *>())
            parts << l->text();
        if (auto *t = qobject_cast<TextPage *>(page))
            parts << t->rtfText->toPlainText();
        return parts.join('\n');
    }
};

} // namespace

TEST_F(MuhurthaMode, TheModeShowsTheActsSpanTimesAndPlace)
{
    window->show();
    QTest::mouseClick(screen->cmdMuhurtha, Qt::LeftButton);
    EXPECT_EQ(Session().ProgMode, 3);
    EXPECT_TRUE(screen->frmMuhu->isVisible());
    EXPECT_TRUE(screen->muhuPlace->isVisible());
    EXPECT_FALSE(screen->frmSingleGuy->isVisible());
    EXPECT_FALSE(screen->muhuPlace->txtDate->isVisible()) << "the place panel asks for no birth date";
    EXPECT_GE(screen->lstMuhu->count(), 12);
    EXPECT_TRUE(screen->lstMuhu->item(0)->text().contains(" ---> "));
    // The couple is asked for a marriage only.
    chooseAct("VIVAH");
    EXPECT_TRUE(screen->frmMuhuCouple->isVisible());
    chooseAct("YATRA");
    EXPECT_FALSE(screen->frmMuhuCouple->isVisible());
    QTest::mouseClick(screen->cmdHoroscope, Qt::LeftButton);
    EXPECT_FALSE(screen->frmMuhu->isVisible());
    EXPECT_TRUE(screen->frmSingleGuy->isVisible());
}

TEST_F(MuhurthaMode, GenerateRefusesWhatCantBeSearched)
{
    fillHouseWarming();
    type(screen->txtMuhuTo, "31012025");
    EXPECT_FALSE(clickGenerate());
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_TRUE(messages[0].text.contains("before the first"));
    EXPECT_EQ(Session().CurPlanets, nullptr);

    type(screen->txtMuhuTo, "01032036");
    EXPECT_FALSE(clickGenerate());
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_TRUE(messages[0].text.contains("ten years"));

    type(screen->txtMuhuTo, "28022025");
    type(screen->txtMuhuEnd, "2575");
    EXPECT_FALSE(clickGenerate());
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_TRUE(messages[0].text.contains("end time"));

    // A marriage needs the couple from the store, which is empty here.
    type(screen->txtMuhuEnd, "1800");
    chooseAct("VIVAH");
    EXPECT_FALSE(clickGenerate());
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_TRUE(messages[0].text.contains("groom and the bride"));
    EXPECT_EQ(Session().CurPlanets, nullptr);
}

TEST_F(MuhurthaMode, GenerateSearchesAndOpensTheTwoPages)
{
    fillHouseWarming();
    EXPECT_EQ(screen->muhuPlace->txtLati->text(), "019:04") << "Mumbai from the atlas";
    ASSERT_TRUE(clickGenerate());
    EXPECT_TRUE(messages.empty());
    const clsMuhurtha &m = *Session().Muhurtha;
    EXPECT_EQ(m.MuhuCode(), "GRIHAPRAVESH");
    EXPECT_EQ(m.SampleCount(), 28 * 5);
    ASSERT_EQ(window->topics().size(), 2);
    ASSERT_NE(window->activePage(), nullptr);
    EXPECT_EQ(window->activePage()->objectName(), "frmMuhuCover");
    const QString cover = pageText(window->activePage());
    EXPECT_TRUE(cover.contains(m.BestMuhuDate().toString("dd/MM/yyyy")));
    EXPECT_TRUE(cover.contains(m.BestMuhuTime()));
    EXPECT_TRUE(cover.contains("Mumbai"));
    window->SelectTopic(1);
    ASSERT_NE(window->activePage(), nullptr);
    const QString analysis = pageText(window->activePage());
    EXPECT_TRUE(analysis.contains("The elements that fired"));
    EXPECT_TRUE(analysis.contains(QString::number(m.BestMuhuPercent(), 'f', 2)));
    EXPECT_TRUE(analysis.contains("Reading"));
    for (const QString &t : {cover, analysis})
        EXPECT_FALSE(t.contains("Item Not Found"));
}

TEST_F(MuhurthaMode, PdfOfTheModeHoldsBothPages)
{
    fillHouseWarming();
    ASSERT_TRUE(clickGenerate());
    const QString file = dir.filePath("muhurtha.pdf");
    {
        frmPrint dialog(window->pages());
        dialog.setMode(3);
        ASSERT_TRUE(dialog.cmdPrint_Click(file));
    }
    ASSERT_GT(QFileInfo(file).size(), 1000);
    const QString text = PdfText(file);
    if (text.isEmpty())
        GTEST_SKIP() << "pdftotext is not installed";
    EXPECT_FALSE(text.contains("Item Not Found"));
    EXPECT_TRUE(text.contains("The best moment"));
    EXPECT_TRUE(text.contains("Muhurtha Analysis"));
    EXPECT_TRUE(text.contains("House-warming (Griha Pravesha)"));
    const QString out = qEnvironmentVariable("ORBANTA_SCREENSHOTS");
    const QString ppm = QStandardPaths::findExecutable("pdftoppm");
    if (!out.isEmpty() && !ppm.isEmpty())
        QProcess::execute(ppm, {"-r", "70", "-png", file, out + "/pdf-muhurtha"});
}

TEST_F(MuhurthaMode, Screenshots)
{
    const QString out = qEnvironmentVariable("ORBANTA_SCREENSHOTS");
    if (out.isEmpty())
        GTEST_SKIP() << "set ORBANTA_SCREENSHOTS to a folder to write the pictures";
    QDir().mkpath(out);
    window->resize(1100, 860);
    fillHouseWarming();
    QApplication::processEvents();
    window->grab().save(out + "/entry-muhurtha.png");
    ASSERT_TRUE(clickGenerate());
    for (int i = 0; i < 2; ++i) {
        window->SelectTopic(i);
        QApplication::processEvents();
        window->activePage()->grab().save(QStringLiteral("%1/page-%2.png").arg(out, window->topics()[i].Page.mid(3).toLower()));
    }
}

TEST_F(MuhurthaMode, AMarriageReadsTheCoupleChosenFromTheStore)
{
    PersonStore people(Session().RecDB);
    people.SavePerson(PersonRow::fromFields("Ravi", true, "03/03/1990", "10.00", true, "India", "Delhi", "028:39", "N", "077:14",
                                           "E", "+05.30", "-00.00", 0));
    people.SavePerson(PersonRow::fromFields("Sita", false, "09/09/1992", "15.00", false, "India", "Delhi", "028:39", "N", "077:14",
                                            "E", "+05.30", "-00.00", 0));
    screen->FillPersonLists();
    fillHouseWarming();
    chooseAct("VIVAH");
    ASSERT_TRUE(screen->frmMuhuCouple->isVisible());
    EXPECT_EQ(screen->cmbMuhuBoy->currentText(), "Ravi");
    EXPECT_EQ(screen->cmbMuhuGal->currentText(), "Sita");
    ASSERT_TRUE(clickGenerate());
    ASSERT_NE(Session().BoyPlanets, nullptr);
    ASSERT_NE(Session().GalPlanets, nullptr);
    EXPECT_EQ(Session().GalPlanets->Person().Year(), 1992);
    EXPECT_EQ(Session().CurPlanets->Person().Name(), "Ravi & Sita") << "the page foot and the print header name the couple";
    EXPECT_EQ(Session().Muhurtha->MuhuCategory(), "MARRIAGE");

    // The same moment scored without the couple loses exactly what their charts gave.
    const clsMuhurtha &m = *Session().Muhurtha;
    long natal = 0;
    for (const MuhuElementHit &h : clsMuhurtha::SplitFructElems(m.BestMuhuFructElems()))
        if (h.code == "TG" || h.code == "M12")
            natal += h.points;
    clsMuhurtha alone;
    clsPlanets at;
    Session().CurPlanets->CopySettingTo(at);
    at.Person().setDay(m.BestMuhuDate().day());
    at.Person().setMonth(m.BestMuhuDate().month());
    at.Person().setYear(m.BestMuhuDate().year());
    at.Person().setHour(m.BestMuhuTime().left(2).toInt());
    at.Person().setMinutes(m.BestMuhuTime().right(2).toInt());
    alone.CheckMuhuMoment(m.MuhuName(), "MARRIAGE", at);
    EXPECT_EQ(std::max(0.0, alone.BestMuhuScoreValue()), std::max(0.0, m.BestMuhuScoreValue() - natal));
}

TEST_F(MuhurthaMode, CancelInTheStatusWindowStopsTheSearch)
{
    fillHouseWarming();
    type(screen->txtMuhuTo, "28022026");
    bool clicked = false;
    // The first pending events the search lets through press the status window's Cancel.
    QTimer::singleShot(0, [&clicked] {
        for (QWidget *w : QApplication::topLevelWidgets())
            if (w->objectName() == "frmStatus" && w->isVisible())
                if (auto *cancel = w->findChild<QPushButton *>("cmdCancel"); cancel && cancel->isVisible()) {
                    QTest::mouseClick(cancel, Qt::LeftButton);
                    clicked = true;
                }
    });
    EXPECT_FALSE(clickGenerate());
    EXPECT_TRUE(clicked);
    EXPECT_EQ(Session().Muhurtha, nullptr);
    EXPECT_EQ(Session().CurPlanets, nullptr);
    EXPECT_TRUE(screen->lblHints->text().contains("stopped"));
    EXPECT_TRUE(screen->isVisible()) << "the entry screen stays";
}
