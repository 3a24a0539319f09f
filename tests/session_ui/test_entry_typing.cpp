// SPDX-License-Identifier: AGPL-3.0-or-later
// The entry screen typed into and clicked as a user does: what the boxes accept is what is cast
// and stored, the option groups stay apart, the name box and the fields keep agreeing, and the
// place list fills what it names.
#include "session/PersonStore.h"
#include "session/Session.h"
#include "session_ui/SessionWindow.h"

#include <QSqlQuery>
#include <QTest>
#include <QTreeWidget>

#include <gtest/gtest.h>

namespace {

class EntryTyping : public EntryScreen
{
protected:
    void SetUp() override
    {
        EntryScreen::SetUp();
        window->show();
        QApplication::processEvents();
    }
    void typeBirthByKeys(BirthPanel *p, const QString &name, const QString &date, const QString &time, const QString &lat,
                         const QString &lon)
    {
        type(p->cmbName, name);
        type(p->txtDate, date);
        type(p->txtTime, time);
        type(p->txtLati, lat);
        type(p->txtLongi, lon);
    }
    std::optional<PersonRow> stored(const QString &name) const { return PersonStore(Session().RecDB).FindPerson(name); }
    int storedCount() const { return PersonStore(Session().RecDB).Count(); }
    static void click(QAbstractButton *b) { QTest::mouseClick(b, Qt::LeftButton); }
    static void click(QToolBar *bar, const char *action)
    {
        QAction *a = bar->findChild<QAction *>(QString::fromLatin1(action));
        ASSERT_NE(a, nullptr) << action;
        QTest::mouseClick(bar->widgetForAction(a), Qt::LeftButton);
    }
};

TEST_F(EntryTyping, SexAndTheHalfOfTheDayAreTwoChoices)
{
    BirthPanel *p = screen->single;
    click(p->optMale);
    typeBirthByKeys(p, "Mohan", "03041975", "0720", "02838", "07712");
    EXPECT_TRUE(p->optAM->isChecked()); // the morning time chose AM ...
    EXPECT_TRUE(p->optMale->isChecked()); // ... and left the sex alone
    click(p->optPM);
    EXPECT_EQ(p->txtTime->text(), "19.20");
    click(p->optFemale);
    EXPECT_TRUE(p->optPM->isChecked());
    click(p->optMale);
    click(p->optAM);
    EXPECT_EQ(p->txtTime->text(), "07.20");

    click(screen->tbTools, "Save");
    ASSERT_TRUE(stored("Mohan"));
    EXPECT_EQ(stored("Mohan")->Sex, 1);
    EXPECT_EQ(stored("Mohan")->AMPM, 1);
    EXPECT_EQ(stored("Mohan")->Hour, 7);

    click(screen->cmdGenerate);
    ASSERT_TRUE(Session().CurPlanets);
    EXPECT_EQ(Session().CurPlanets->Person().Sex(), 1);
    EXPECT_EQ(Session().CurPlanets->Person().AMPM(), 1);
}

// A box left with a blank in a part: the check, the cast and the store read the same numbers,
// or all refuse.
TEST_F(EntryTyping, WhatTheChecksAcceptIsWhatIsCastAndStored)
{
    struct Case
    {
        const char *what;
        const char *date, *time, *lat, *lon;
        bool accepted;
        int day, month, hour, minute, latDeg, latMin, lonDeg, lonMin;
    };
    const Case cases[] = {
        {"full boxes", "01122000", "1035", "02838", "07712", true, 1, 12, 10, 35, 28, 38, 77, 12},
        {"day of one digit", "1/122000", "1035", "02838", "07712", true, 1, 12, 10, 35, 28, 38, 77, 12},
        {"month of one digit", "15/2/2000", "1035", "02838", "07712", true, 15, 2, 10, 35, 28, 38, 77, 12},
        {"minute of one digit", "01122000", "105", "02838", "07712", true, 1, 12, 10, 5, 28, 38, 77, 12},
        {"hour of one digit", "01122000", "9.30", "02838", "07712", true, 1, 12, 9, 30, 28, 38, 77, 12},
        {"latitude minute of one digit", "01122000", "1035", "0283", "07712", true, 1, 12, 10, 35, 28, 3, 77, 12},
        {"longitude of two digits", "01122000", "1035", "02838", "77:12", true, 1, 12, 10, 35, 28, 38, 77, 12},
        {"no minutes at all", "01122000", "10", "02838", "07712", false, 0, 0, 0, 0, 0, 0, 0, 0},
        {"no day", "/122000", "1035", "02838", "07712", false, 0, 0, 0, 0, 0, 0, 0, 0},
        {"minute 61", "01122000", "1061", "02838", "07712", false, 0, 0, 0, 0, 0, 0, 0, 0},
    };
    BirthPanel *p = screen->single;
    for (const Case &c : cases) {
        SCOPED_TRACE(c.what);
        Session().ReleaseCharts();
        messages.clear();
        const QString name = QStringLiteral("Typed %1").arg(QString::fromLatin1(c.what));
        typeBirthByKeys(p, name, c.date, c.time, c.lat, c.lon);
        const int before = storedCount();
        click(screen->tbTools, "Save");
        click(screen->cmdGenerate);
        if (!c.accepted) {
            EXPECT_FALSE(Session().CurPlanets);
            EXPECT_EQ(storedCount(), before);
            EXPECT_FALSE(messages.empty());
            window->ShowEntryScreen();
            continue;
        }
        EXPECT_TRUE(messages.empty()) << messages.front().text.toStdString();
        ASSERT_TRUE(Session().CurPlanets);
        const clsPerson &cast = Session().CurPlanets->Person();
        const auto row = stored(name);
        ASSERT_TRUE(row);
        EXPECT_EQ(row->Day, c.day);
        EXPECT_EQ(row->Month, c.month);
        EXPECT_EQ(row->Hour, c.hour);
        EXPECT_EQ(row->Minutes, c.minute);
        EXPECT_EQ(row->LatDeg, c.latDeg);
        EXPECT_EQ(row->LatMT, c.latMin);
        EXPECT_EQ(row->LongDeg, c.lonDeg);
        EXPECT_EQ(row->LongMT, c.lonMin);
        // The chart was cast from the same numbers (the cast moves the clock to universal time
        // and back, so the date and the place are compared).
        EXPECT_EQ(cast.LatDeg(), c.latDeg);
        EXPECT_EQ(cast.LatMT(), c.latMin);
        EXPECT_EQ(cast.LongMT(), c.lonMin);
        EXPECT_EQ(QDate(cast.Year(), cast.Month(), cast.Day()), QDate(2000, c.month, c.day));
        window->ShowEntryScreen();
    }
}

TEST_F(EntryTyping, TheNameBoxAndTheFieldsAgreeAfterEveryStep)
{
    BirthPanel *p = screen->single;
    typeBirthByKeys(p, "Bela", "02021990", "0600", "01904", "07253");
    click(p->optFemale);
    click(screen->tbTools, "Save");
    typeBirthByKeys(p, "Arun", "05051985", "2215", "01305", "08017");
    click(p->optMale);
    click(screen->tbTools, "Save");
    EXPECT_EQ(p->cmbName->currentText(), "Arun"); // after Save
    EXPECT_EQ(p->txtDate->text(), "05/05/1985");

    // At start the first person is chosen and shown.
    window.reset();
    window = std::make_unique<mdiMother>();
    screen = window->login();
    screen->cmdHoroscope_Click();
    window->show();
    p = screen->single;
    EXPECT_EQ(p->cmbName->currentText(), "Bela");
    EXPECT_EQ(p->txtDate->text(), "02/02/1990");
    EXPECT_TRUE(p->optFemale->isChecked());

    // A pick from the list shows that person; Delete keeps the deleted person on view.
    p->cmbName->setCurrentIndex(p->cmbName->findText("Arun"));
    Q_EMIT p->cmbName->activated(p->cmbName->currentIndex());
    EXPECT_EQ(p->txtDate->text(), "05/05/1985");
    click(screen->tbTools, "Delete");
    EXPECT_EQ(p->cmbName->currentText(), "Arun");
    EXPECT_EQ(p->txtDate->text(), "05/05/1985");
    EXPECT_FALSE(stored("Arun"));

    // Save after a Delete writes the person on view, not the first of the list.
    click(screen->tbTools, "Save");
    ASSERT_TRUE(stored("Arun"));
    EXPECT_EQ(stored("Arun")->Year, 1985);
    EXPECT_EQ(stored("Bela")->Year, 1990);

    // Import keeps the name box on its person.
    const QString file = dir.filePath("both.JKD");
    ASSERT_TRUE(screen->ExportPersonDBTo(file));
    ASSERT_TRUE(screen->ImportPersonsFrom(file));
    EXPECT_EQ(p->cmbName->currentText(), "Arun");
    EXPECT_EQ(p->txtDate->text(), "05/05/1985");

    // Marriage mode fills each partner from the first name of its list.
    click(screen->cmdMatch);
    EXPECT_EQ(screen->boy->cmbName->currentText(), "Arun");
    EXPECT_EQ(screen->boy->txtDate->text(), "05/05/1985");
    EXPECT_EQ(screen->gal->cmbName->currentText(), "Bela");
    EXPECT_EQ(screen->gal->txtDate->text(), "02/02/1990");
    click(screen->cmdHoroscope);
    EXPECT_EQ(p->cmbName->currentText(), "Arun");
    EXPECT_EQ(p->txtDate->text(), "05/05/1985");
}

TEST_F(EntryTyping, DeleteAsksForAStoredNameAndCanBeUndone)
{
    BirthPanel *p = screen->single;
    typeBirthByKeys(p, "Chitra", "09091999", "1240", "02234", "08822");
    click(screen->tbTools, "Delete"); // not stored yet
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_TRUE(messages.back().text.contains("not in the database"));
    EXPECT_NE(screen->lblHints->text(), "The person has been deleted from the database.");

    type(p->cmbName, "");
    click(screen->tbTools, "Save"); // no name: nothing is stored, and the user is told
    EXPECT_EQ(messages.size(), 2u);
    EXPECT_EQ(storedCount(), 0);

    type(p->cmbName, "Chitra");
    click(screen->tbTools, "Save");
    EXPECT_EQ(storedCount(), 1);
    EXPECT_FALSE(screen->cmdUndoDelete->isVisible());
    click(screen->tbTools, "Delete");
    EXPECT_EQ(storedCount(), 0);
    ASSERT_TRUE(screen->cmdUndoDelete->isVisible());
    type(p->cmbName, "Someone else");
    click(screen->cmdUndoDelete);
    ASSERT_TRUE(stored("Chitra"));
    EXPECT_EQ(stored("Chitra")->Year, 1999);
    EXPECT_EQ(p->cmbName->currentText(), "Chitra");
    EXPECT_FALSE(screen->cmdUndoDelete->isVisible());
}

// The main window's tool bar appears above the fields after Generate and goes at the entry
// screen: neither position of it may cover the person's tools.
TEST_F(EntryTyping, TheToolBarsNeverCoverEachOther)
{
    typeBirthByKeys(screen->single, "Dev", "01012001", "1000", "02838", "07712");
    click(screen->tbTools, "Save");
    click(screen->cmdGenerate);
    QToolBar *mainBar = window->findChild<QToolBar *>("tbMain");
    ASSERT_NE(mainBar, nullptr);
    QAction *entry = mainBar->findChild<QAction *>("Entry");
    QWidget *entryButton = mainBar->widgetForAction(entry);
    const QPoint at = entryButton->mapTo(window.get(), entryButton->rect().center());
    QTest::mouseClick(entryButton, Qt::LeftButton);
    QApplication::processEvents();
    // The second click of a double click lands where the first did: on nothing that deletes.
    QWidget *under = window->childAt(at);
    for (QWidget *w = under; w; w = w->parentWidget())
        EXPECT_NE(w, screen->tbTools);
    QAction *del = screen->tbTools->findChild<QAction *>("Delete");
    const QRect deleteRect(screen->tbTools->widgetForAction(del)->mapTo(window.get(), QPoint()),
                           screen->tbTools->widgetForAction(del)->size());
    EXPECT_FALSE(deleteRect.intersects(QRect(at - QPoint(4, 4), QSize(9, 9))));
    EXPECT_TRUE(stored("Dev"));

    click(screen->cmdMatch);
    EXPECT_FALSE(screen->tbTools->isVisible()); // the single person's tools go with its frame
}

TEST_F(EntryTyping, PlacesFillWhatTheyNameAndThePlusStoresThem)
{
    BirthPanel *p = screen->single;
    type(p->cmbCountry, "India");
    type(p->cmbPlace, "Kolk");
    EXPECT_EQ(p->txtLati->text(), "022:34");
    EXPECT_EQ(p->txtNS->text(), "N");
    EXPECT_EQ(p->txtLongi->text(), "088:22");

    // Two places of one name are told apart, and each pick gives its own coordinates.
    QStringList shown;
    for (int i = 0; i < p->cmbPlace->count(); ++i)
        if (p->cmbPlace->itemText(i).startsWith("Aurangabad"))
            shown << p->cmbPlace->itemText(i);
    ASSERT_EQ(shown.size(), 2);
    EXPECT_NE(shown[0], shown[1]);
    QStringList latitudes;
    for (const QString &entry : shown) {
        const int row = p->cmbPlace->findText(entry);
        p->cmbPlace->setCurrentIndex(row);
        Q_EMIT p->cmbPlace->activated(row);
        EXPECT_EQ(p->cmbPlace->currentText(), "Aurangabad");
        latitudes << p->txtLati->text();
    }
    EXPECT_NE(latitudes[0], latitudes[1]);

    // A new place by hand, stored with "+", is in the list and fills from it afterwards.
    type(p->cmbPlace, "Zzyzx Village");
    EXPECT_EQ(p->txtLati->text(), "000:00");
    type(p->txtLati, "02150");
    type(p->txtLongi, "07930");
    click(p->cmdAddCity);
    QSqlQuery q(Session().RecDB);
    ASSERT_TRUE(q.exec("SELECT Lat, Longy, Country FROM City WHERE City = 'Zzyzx Village'"));
    ASSERT_TRUE(q.next());
    EXPECT_EQ(q.value(0).toString(), "02150");
    EXPECT_EQ(q.value(1).toString(), "07930");
    EXPECT_EQ(q.value(2).toString(), "India");
    // A second "+" with new coordinates corrects the same row instead of adding one.
    type(p->txtLati, "02151");
    click(p->cmdAddCity);
    ASSERT_TRUE(q.exec("SELECT COUNT(*), MAX(Lat) FROM City WHERE City = 'Zzyzx Village'"));
    ASSERT_TRUE(q.next());
    EXPECT_EQ(q.value(0).toInt(), 1);
    EXPECT_EQ(q.value(1).toString(), "02151");
    type(p->cmbPlace, "Zzyzx");
    EXPECT_EQ(p->txtLati->text(), "021:51");
}

TEST_F(EntryTyping, ExportedFilesGetTheirExtensionAndHintsShowForLanguageAndOptions)
{
    EXPECT_EQ(frmLogin::WithExtension("/tmp/asha", ".JKP"), "/tmp/asha.JKP");
    EXPECT_EQ(frmLogin::WithExtension("/tmp/asha.jkp", ".JKP"), "/tmp/asha.jkp");
    screen->cmbLangu->setFocus();
    QApplication::processEvents();
    EXPECT_EQ(screen->lblHints->text(), "Select the language to display the details in.");
    screen->cmdOptions->setFocus();
    QApplication::processEvents();
    EXPECT_TRUE(screen->lblHints->text().startsWith("Change Software Settings"));
}

TEST_F(EntryTyping, ModesWithoutTopicsLeaveOutputAndSteppingOff)
{
    // Varshaphala mode, whose pages are still to come.
    click(screen->cmdVarshaphala);
    type(screen->single->txtDate, "01011985");
    click(screen->cmdGenerate);
    ASSERT_TRUE(Session().CurPlanets);
    if (!window->topics().isEmpty())
        GTEST_SKIP() << "Varshaphala mode has its topics";
    EXPECT_FALSE(window->tbNext->isEnabled());
    EXPECT_FALSE(window->findChild<QAction *>("PDFExport")->isEnabled());
    EXPECT_FALSE(window->findChild<QAction *>("mnuPrint")->isEnabled());
}

} // namespace
