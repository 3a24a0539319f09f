// SPDX-License-Identifier: AGPL-3.0-or-later
// The moving sky, driven from the main window as a user would: typed date and time, the unit
// buttons, Generate, Start and Stop.
#include "muhurtha/ui/frmVisualTransits.h"
#include "session_ui/SessionWindow.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTest>
#include <QTimer>

namespace {

class VisualTransitsWindow : public EntryScreen
{
protected:
    frmVisualTransits *open()
    {
        screen->single->cmbName->setEditText("Asha");
        typeBirth(screen->single, "15/08/1980", "14.35", "028:38", "077:12", "+05.30");
        if (!screen->cmdGenerate_Click())
            return nullptr;
        window->tbTransits->trigger();
        return window->findChild<frmVisualTransits *>();
    }
};

} // namespace

TEST_F(VisualTransitsWindow, TypedMomentCastsAtTheBirthPlaceAndTicksStepByTheUnit)
{
    frmVisualTransits *sky = open();
    ASSERT_NE(sky, nullptr);
    EXPECT_TRUE(window->tbTransits->isEnabled());
    // The place is the birth's; the moment the one typed, a PM hour read on the 24-hour clock.
    type(sky->txtDate, "31012024");
    type(sky->txtTime, "0245");
    QTest::mouseClick(sky->optPM, Qt::LeftButton);
    QTest::mouseClick(sky->cmdGenerate, Qt::LeftButton);
    EXPECT_EQ(sky->moment(), QDateTime(QDate(2024, 1, 31), QTime(14, 45), Qt::UTC));
    EXPECT_EQ(sky->sky().Person().LatDeg(), 28);
    EXPECT_EQ(sky->sky().Person().LongDeg(), 77);
    EXPECT_FALSE(sky->lblAscVal->text().isEmpty());
    EXPECT_EQ(sky->lblValues->text().count(QLatin1Char('\n')), 11) << "one line a planet, 1 to 12";
    const double sunBefore = sky->sky().PlanetLongi(1);

    // A month from the 31st lands on the last day of February; the controls rest while it runs.
    QTest::mouseClick(sky->optMonths, Qt::LeftButton);
    QTest::mouseClick(sky->cmdStart, Qt::LeftButton);
    EXPECT_TRUE(sky->Trigger->isActive());
    EXPECT_FALSE(sky->txtDate->isEnabled());
    EXPECT_FALSE(sky->cmdStart->isEnabled());
    sky->Tick();
    EXPECT_EQ(sky->moment().date(), QDate(2024, 2, 29));
    EXPECT_EQ(sky->txtDate->text(), "29/02/2024");
    EXPECT_GT(sky->sky().PlanetLongi(1), sunBefore + 25) << "the Sun moved on about a sign";
    QTest::mouseClick(sky->cmdStop, Qt::LeftButton);
    EXPECT_FALSE(sky->Trigger->isActive());
    EXPECT_TRUE(sky->txtDate->isEnabled());

    // Centuries: one tick with a factor of 2 is two hundred years.
    QTest::mouseClick(sky->optCenturies, Qt::LeftButton);
    sky->txtFactor->setFocus();
    sky->txtFactor->selectAll();
    QTest::keyClicks(sky->txtFactor, "2");
    sky->Tick();
    EXPECT_EQ(sky->moment().date(), QDate(2224, 2, 29));
}

TEST_F(VisualTransitsWindow, ANonsenseDateIsRefusedAndTheSkyStays)
{
    frmVisualTransits *sky = open();
    ASSERT_NE(sky, nullptr);
    const QDateTime before = sky->moment();
    type(sky->txtDate, "31022024");
    // The refusal shows a message box; close it as a user would.
    QTimer::singleShot(0, [] {
        if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget()))
            box->accept();
    });
    QTest::mouseClick(sky->cmdStart, Qt::LeftButton);
    EXPECT_EQ(sky->moment(), before);
    EXPECT_FALSE(sky->Trigger->isActive());
    EXPECT_TRUE(sky->cmdStart->isEnabled());
}

TEST_F(VisualTransitsWindow, OnlyTheHoroscopeHasTheSky)
{
    screen->cmdMatch_Click();
    screen->boy->cmbName->setEditText("Ravi");
    typeBirth(screen->boy, "01/01/1985", "06.00", "019:04", "072:52", "+05.30");
    screen->gal->cmbName->setEditText("Asha");
    typeBirth(screen->gal, "15/08/1980", "14.35", "028:38", "077:12", "+05.30");
    if (!screen->cmdGenerate_Click())
        GTEST_SKIP() << "the couple wasn't cast";
    EXPECT_FALSE(window->tbTransits->isEnabled());
    EXPECT_EQ(window->tbTransits->toolTip(), "Valid Only in Horoscope Mode.");
}

TEST_F(VisualTransitsWindow, Screenshot)
{
    const QString out = qEnvironmentVariable("ORBANTA_SCREENSHOTS");
    if (out.isEmpty())
        GTEST_SKIP() << "set ORBANTA_SCREENSHOTS to a folder to write the pictures";
    frmVisualTransits *sky = open();
    ASSERT_NE(sky, nullptr);
    sky->setMoment(QDateTime(QDate(2026, 11, 23), QTime(9, 30), Qt::UTC));
    sky->resize(820, 480);
    QApplication::processEvents();
    QDir().mkpath(out);
    sky->grab().save(out + "/visual-transits.png");
}
