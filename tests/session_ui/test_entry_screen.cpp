// SPDX-License-Identifier: AGPL-3.0-or-later
// The entry screen driven as a user would: fields, checks, the person store, Generate.
#include "session/Session.h"
#include "session/ui/frmLogin.h"
#include "session/ui/frmSplash.h"
#include "app/mdiMother.h"
#include "support/TestSupport.h"
#include "session_ui/SessionWindow.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QSqlQuery>
#include <QFocusEvent>
#include <QTest>

#include <gtest/gtest.h>


TEST_F(EntryScreen, GenerateRefusesEachWrongFieldWithItsMessageInOrder)
{
    typeBirth(screen->single, "31/02/1980", "25.61", "181:00", "180:60", "+05.30");
    EXPECT_FALSE(screen->cmdGenerate_Click());
    EXPECT_EQ(numbers(), (std::vector<int>{5, 6, 10, 11}));
    EXPECT_EQ(messages[0].title, "Invalid Date");
    EXPECT_EQ(messages[2].title, "Invalid Lattitude");
    EXPECT_FALSE(Session().CurPlanets);

    messages.clear();
    typeBirth(screen->single, "31/12/1899", "24.00", "120:00", "180:00", "+05.30");
    EXPECT_FALSE(screen->cmdGenerate_Click()); // only the date: 24 hours, latitude 120 and longitude 180 pass Generate
    EXPECT_EQ(numbers(), (std::vector<int>{5}));
}

TEST_F(EntryScreen, GenerateCastsTheChartFromTheFields)
{
    screen->single->cmbName->setEditText("Asha");
    typeBirth(screen->single, "15/08/1980", "14.35", "028:38", "077:12", "+05.30");
    ASSERT_TRUE(screen->cmdGenerate_Click());
    ASSERT_TRUE(Session().CurPlanets);
    const clsPerson &p = Session().CurPlanets->Person();
    EXPECT_EQ(p.Name(), "Asha");
    EXPECT_EQ(p.GMTDIFF(), "5.5");
    EXPECT_EQ(p.GetBirthTime(), "14.35");
    EXPECT_NEAR(Session().CurPlanets->PlanetLongi(1), 119.09, 0.01);
    window->ShowEntryScreen();
    EXPECT_FALSE(Session().CurPlanets);
    EXPECT_EQ(screen->single->txtDate->text(), "15/08/1980"); // the fields keep their contents
}

TEST_F(EntryScreen, MarriageModeCastsBothPartners)
{
    screen->cmdMatch_Click();
    EXPECT_EQ(Session().ProgMode, 2);
    typeBirth(screen->boy, "01/01/1985", "06.00", "019:04", "072:53", "+05.30");
    typeBirth(screen->gal, "02/02/1987", "18.00", "013:05", "080:17", "+05.30");
    ASSERT_TRUE(screen->cmdGenerate_Click());
    ASSERT_TRUE(Session().BoyPlanets && Session().GalPlanets);
    EXPECT_EQ(Session().BoyPlanets->Person().Sex(), 1);
    EXPECT_EQ(Session().GalPlanets->Person().Sex(), 2);
    EXPECT_FALSE(Session().CurPlanets);
}

TEST_F(EntryScreen, ClockAmPmAndCorrectionList)
{
    BirthPanel *p = screen->single;
    p->txtTime->setText("09.30");
    EXPECT_TRUE(p->optAM->isChecked());
    p->optPM->click();
    EXPECT_EQ(p->txtTime->text(), "21.30");
    p->optAM->click();
    EXPECT_EQ(p->txtTime->text(), "09.30");
    p->cmbTCorr->setCurrentIndex(3);
    EXPECT_EQ(p->txtTCorr->text(), "-01.00");
    p->cmbTCorr->setCurrentIndex(4);
    EXPECT_EQ(p->txtTCorr->text(), "-00.00");
    EXPECT_FALSE(p->txtTCorr->isReadOnly());
}

TEST_F(EntryScreen, NamesTakeNoApostrophe)
{
    screen->show();
    QLineEdit *name = screen->single->cmbName->lineEdit();
    name->clear();
    name->setFocus();
    QTest::keyClicks(name, "D'Souza");
    EXPECT_EQ(name->text(), "DSouza");
}

TEST_F(EntryScreen, SaveFindDeleteAndExchangePersons)
{
    BirthPanel *p = screen->single;
    p->cmbName->setEditText("Ravi");
    typeBirth(p, "02/09/2000", "14.05", "019:04", "072:53", "+05.30");
    screen->SavePerson();
    EXPECT_EQ(screen->lblHints->text(), "The person's details have been saved.");
    EXPECT_EQ(p->cmbName->count(), 1);
    EXPECT_EQ(screen->boy->cmbName->count(), 1); // male by default

    const QString jkp = dir.filePath("ravi.JKP");
    ASSERT_TRUE(screen->ExportPersonFileTo(jkp));
    ASSERT_TRUE(screen->ImportPersonsFrom(jkp));
    EXPECT_EQ(p->cmbName->count(), 2); // importing adds, with no test for the name

    typeBirth(p, "01/01/2001", "01.01", "000:00", "000:00", "+00.00");
    p->cmbName->setEditText("Ra");
    p->cmbName->lineEdit()->returnPressed();
    EXPECT_EQ(p->txtDate->text(), "02/09/2000");
    EXPECT_EQ(p->txtTime->text(), "14.05");

    p->cmbName->setEditText("Ravi");
    screen->DeletePerson();
    EXPECT_EQ(screen->lblHints->text(), "The person has been deleted from the database.");
    EXPECT_EQ(p->cmbName->count(), 1);

    const QString junk = dir.filePath("junk.JKD");
    QFile f(junk);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write("not a database at all");
    f.close();
    EXPECT_FALSE(screen->ImportPersonsFrom(junk));
    ASSERT_FALSE(messages.empty());
    EXPECT_TRUE(messages.back().text.contains("Nothing was imported"));
    EXPECT_EQ(p->cmbName->count(), 1);
}

TEST_F(EntryScreen, PickedPlacesBringTheirZoneHistory)
{
    BirthPanel *p = screen->single;
    p->txtDate->setText("10/06/1944");
    p->txtTime->setText("10.00");
    p->cmbCountry->setCurrentText("India");
    p->cmbPlace->setEditText("Delhi");
    const int row = p->cmbPlace->findText("Delhi");
    ASSERT_GE(row, 0);
    p->cmbPlace->setCurrentIndex(row);
    p->cmbPlace->activated(row);
    EXPECT_EQ(p->txtLati->text(), "028:39");
    EXPECT_EQ(p->txtGMT->text(), "+05.30");
    EXPECT_EQ(p->cmbTCorr->currentIndex(), 3); // War Time
    EXPECT_EQ(p->txtTCorr->text(), "-01.00");
    EXPECT_TRUE(screen->lblHints->text().contains("time-zone history"));

    p->txtDate->setText("10/06/1950");
    p->txtDate->editingFinished();
    EXPECT_EQ(p->cmbTCorr->currentIndex(), 0);
    EXPECT_EQ(p->txtTCorr->text(), "-00.00");
}

TEST_F(EntryScreen, LeavingAFieldChecksIt)
{
    BirthPanel *p = screen->single;
    p->txtLati->setText("120:00"); // passes Generate but not the field's own check
    QFocusEvent leave(QEvent::FocusOut);
    QApplication::sendEvent(p->txtLati, &leave);
    ASSERT_FALSE(messages.empty());
    EXPECT_EQ(messages.back().number, 7);
}

TEST_F(EntryScreen, Screenshots)
{
    const QString out = qEnvironmentVariable("ORBANTA_SCREENSHOTS");
    if (out.isEmpty())
        GTEST_SKIP() << "set ORBANTA_SCREENSHOTS to a folder to write the pictures";
    QDir().mkpath(out);
    window->resize(980, 640);
    window->show();
    screen->single->cmbName->setEditText("Asha");
    typeBirth(screen->single, "15/08/1980", "14.35", "028:38", "077:12", "+05.30");
    screen->single->cmbPlace->setEditText("Delhi");
    QApplication::processEvents();
    window->grab().save(out + "/entry-screen.png");
    screen->SavePerson();
    screen->DeletePerson();
    QApplication::processEvents();
    window->grab().save(out + "/entry-screen-deleted.png"); // the Undo beside the hint
    screen->UndoDelete();
    screen->cmdMatch_Click();
    QApplication::processEvents();
    window->grab().save(out + "/entry-screen-marriage.png");
    screen->cmdHoroscope_Click();
    ASSERT_TRUE(screen->cmdGenerate_Click());
    QApplication::processEvents();
    window->grab().save(out + "/session-summary.png");
    frmSplash splash;
    splash.lblStatus->setText("Checking Files...");
    splash.show();
    QApplication::processEvents();
    splash.grab().save(out + "/splash.png");
}

TEST_F(EntryScreen, VarshaphalaModeOffersAHundredYears)
{
    screen->cmdVarshaphala_Click();
    EXPECT_EQ(Session().ProgMode, 4);
    EXPECT_EQ(screen->frmSingleGuy->title(), "Varsha Phala");
    const int birthYear = QDate::currentDate().year() - 30;
    typeBirth(screen->single, "01/01/" + QString::number(birthYear), "10.00", "028:38", "077:12", "+05.30");
    ASSERT_TRUE(screen->cmdGenerate_Click());
    QComboBox *years = window->cmbYearList();
    ASSERT_EQ(years->count(), 100);
    EXPECT_EQ(years->itemText(0), QString::number(birthYear));
    EXPECT_EQ(years->currentIndex(), 29);
    EXPECT_EQ(Session().VarshaYear, 29); // the selected year less the birth year
    screen->cmdHoroscope_Click();
}
