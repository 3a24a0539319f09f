// SPDX-License-Identifier: AGPL-3.0-or-later
// The settings dialogs: the setup wizard, Options (atlas, calculation, details), Regional
// Settings and the silenceable message.
#include "sky/AppSettings.h"
#include "session/Session.h"
#include "session/clsIni.h"
#include "session/ui/frmCalcOptions.h"
#include "session/ui/frmEditLongLat.h"
#include "session/ui/frmMessage.h"
#include "session/ui/frmWizard.h"
#include "support/TestSupport.h"

#include <QTest>

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>

namespace {
struct Shown
{
    QString title, text;
};

// A throw-away settings store and GENDAT.INI, with every message box answered and recorded.
class SettingsFormsTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        QFile::remove(clsIni::IniPath());
        frmMessage::setMessageHook([this](QMessageBox::Icon, const QString &title, const QString &text) {
            shown.push_back({title, text});
        });
    }
    void TearDown() override
    {
        frmMessage::setMessageHook({});
        QFile::remove(clsIni::IniPath());
    }
    QStringList storedKeys() const { return QSettings(AppSettings::storeFile(), QSettings::IniFormat).allKeys(); }

    ScopedSettingsStore store;
    std::vector<Shown> shown;
};

// The session's RecDB on a private copy of the shipped records database.
class AtlasFormTest : public SettingsFormsTest
{
protected:
    void SetUp() override
    {
        SettingsFormsTest::SetUp();
        const QString copy = dir.filePath(QStringLiteral("RECOS.Dat"));
        ASSERT_TRUE(QFile::copy(QStringLiteral(ORBANTA_BINARY_DIR "/STUFF/COMMON/RECOS.Dat"), copy));
        QFile(copy).setPermissions(QFile::ReadOwner | QFile::WriteOwner);
        saved = Session().RecDB;
        Session().RecDB = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("forms_recdb"));
        Session().RecDB.setDatabaseName(copy);
        ASSERT_TRUE(Session().RecDB.open());
    }
    void TearDown() override
    {
        Session().RecDB.close();
        Session().RecDB = saved;
        QSqlDatabase::removeDatabase(QStringLiteral("forms_recdb"));
        SettingsFormsTest::TearDown();
    }
    int count(const QString &sql)
    {
        QSqlQuery q(Session().RecDB);
        q.exec(sql);
        q.next();
        return q.value(0).toInt();
    }

    QTemporaryDir dir;
    QSqlDatabase saved;
};
} // namespace

TEST_F(SettingsFormsTest, WizardStepsEnableTheirButtons)
{
    frmWizard w;
    EXPECT_EQ(w.Step(), 1);
    for (int step = 1; step <= frmWizard::kSteps; ++step) {
        SCOPED_TRACE(step);
        EXPECT_EQ(w.Step(), step);
        EXPECT_EQ(w.frames->currentWidget(), w.frmSteps[static_cast<size_t>(step - 1)]);
        EXPECT_EQ(w.cmdBack->isEnabled(), step != 1);
        EXPECT_EQ(w.cmdNext->isEnabled(), step != 7);
        EXPECT_EQ(w.cmdFinish->isEnabled(), step == 7);
        EXPECT_TRUE(w.cmdCancel->isEnabled());
        if (step < frmWizard::kSteps)
            w.cmdNext->click();
    }
    EXPECT_EQ(w.frmSteps[6]->objectName(), QStringLiteral("frmStepFinal"));
    EXPECT_EQ(w.frmSteps[5]->objectName(), QStringLiteral("frmStepVakya"));
    w.cmdBack->click();
    w.cmdBack->click();
    EXPECT_EQ(w.Step(), 5);
    EXPECT_TRUE(w.cmdNext->isEnabled());
    EXPECT_FALSE(w.cmdFinish->isEnabled());
}

TEST_F(SettingsFormsTest, WizardFinishWritesEveryAnswer)
{
    frmWizard w;
    // A fresh store opens on the settings in force: the South style, Lahiri, mean nodes, the ephemeris.
    EXPECT_TRUE(w.optSouthKundli->isChecked());
    EXPECT_TRUE(w.optLahiri->isChecked());
    EXPECT_TRUE(w.optCalcModern->isChecked());
    EXPECT_EQ(w.txtName->text(), QStringLiteral("Orbanta user"));

    w.optEastKundli->setChecked(true);
    w.optKP->setChecked(true);
    w.optRahuTrue->setChecked(true);
    w.txtName->setText(QStringLiteral("Ravi O'Brien"));
    w.txtAddress->setPlainText(QStringLiteral("4, Temple Road\nMadurai"));
    w.optMangSouth->setChecked(true);
    w.optVarnSouth->setChecked(true);
    w.OptVakya->setChecked(true);
    w.GoToStep(7);
    w.cmdFinish->click();

    EXPECT_EQ(w.result(), QDialog::Accepted);
    EXPECT_EQ(AppSettings::KundStyle(), 1);
    EXPECT_EQ(AppSettings::AyanType(), 3);
    EXPECT_EQ(AppSettings::RahuKetuMode(), 2);
    EXPECT_TRUE(AppSettings::Vakya());
    EXPECT_EQ(AppSettings::value(QStringLiteral("Settings"), QStringLiteral("CalcMangMod")).toInt(), 2);
    EXPECT_EQ(AppSettings::value(QStringLiteral("Settings"), QStringLiteral("CalcVarMod")).toInt(), 2);
    EXPECT_TRUE(AppSettings::value(QStringLiteral("Settings"), QStringLiteral("DoneSetup")).toBool());
    EXPECT_EQ(clsIni::DispName(), QStringLiteral("Ravi O'Brien"));
    EXPECT_EQ(clsIni::DispAdd(), QStringLiteral("4, Temple Road\nMadurai"));
    EXPECT_TRUE(shown.empty());

    // Run again, the wizard shows what was written.
    frmWizard again;
    EXPECT_TRUE(again.optEastKundli->isChecked());
    EXPECT_TRUE(again.optKP->isChecked());
    EXPECT_TRUE(again.optMangSouth->isChecked());
    EXPECT_TRUE(again.OptVakya->isChecked());
}

TEST_F(SettingsFormsTest, WizardCancelWritesOnlyDoneSetup)
{
    {
        frmWizard w;
        w.optNorthKundli->setChecked(true);
        w.txtName->setText(QStringLiteral("Someone"));
        w.cmdNext->click();
        w.cmdCancel->click();
        EXPECT_EQ(w.result(), QDialog::Rejected);
    }
    ASSERT_EQ(shown.size(), 1u);
    EXPECT_EQ(shown[0].title, QStringLiteral("Setup not completed"));
    EXPECT_TRUE(shown[0].text.startsWith(
        QStringLiteral("You have chosen to cancel Setup Wizard, Orbanta will run on default settings.")));
    EXPECT_EQ(storedKeys(), QStringList{QStringLiteral("Settings/DoneSetup")});
    EXPECT_EQ(AppSettings::KundStyle(), 2);
    EXPECT_FALSE(QFile::exists(clsIni::IniPath()));

    // Esc ends the wizard the same way, once.
    frmWizard w;
    w.reject();
    w.reject();
    EXPECT_EQ(shown.size(), 2u);
    EXPECT_EQ(storedKeys(), QStringList{QStringLiteral("Settings/DoneSetup")});
}

// Run again from the menu: an ayanamsh the wizard doesn't list survives Finish, and Cancel says
// the settings stay.
TEST_F(SettingsFormsTest, TheWizardRunAgainKeepsWhatItDoesNotList)
{
    AppSettings::setValue(QStringLiteral("Settings"), QStringLiteral("DoneSetup"), true);
    for (int ayan : {4, 7, 11, 13, 14}) {
        AppSettings::setValue(QStringLiteral("Init"), QStringLiteral("AyanType"), ayan);
        frmWizard w;
        EXPECT_TRUE(w.optAyanKeep->isChecked()) << ayan;
        EXPECT_FALSE(w.optLahiri->isChecked()) << ayan;
        w.GoToStep(7);
        QTest::mouseClick(w.cmdFinish, Qt::LeftButton);
        EXPECT_EQ(AppSettings::AyanType(), ayan);
    }
    {
        frmWizard w;
        w.optRaman->setChecked(true); // a listed choice still replaces it
        w.GoToStep(7);
        QTest::mouseClick(w.cmdFinish, Qt::LeftButton);
        EXPECT_EQ(AppSettings::AyanType(), 2);
    }
    frmWizard w;
    EXPECT_FALSE(w.optAyanKeep->isVisibleTo(&w));
    QTest::mouseClick(w.cmdCancel, Qt::LeftButton);
    ASSERT_FALSE(shown.empty());
    EXPECT_EQ(shown.back().text, QStringLiteral("You have chosen to cancel Setup Wizard; the settings stay as they were."));
    EXPECT_EQ(AppSettings::AyanType(), 2);
}

TEST_F(SettingsFormsTest, CalculationPageWritesTheStore)
{
    AppSettings::setValue(QStringLiteral("Init"), QStringLiteral("AyanType"), 2);
    {
        frmEditLongLat f(frmEditLongLat::CalculationPage);
        EXPECT_EQ(f.EditTab->currentIndex(), 2);
        EXPECT_TRUE(f.optRaman->isChecked());
        EXPECT_TRUE(f.optRahuMean->isChecked());
        EXPECT_TRUE(f.optCalcEphem->isChecked());
        EXPECT_FALSE(f.txtCustAyan->isEnabled());
        f.optCustom->setChecked(true);
        EXPECT_TRUE(f.txtCustAyan->isEnabled());
        f.txtCustAyan->setText(QStringLiteral("23.15"));
        f.optRahuTrue->setChecked(true);
        f.optCalcVakya->setChecked(true);
        f.cmdSaveAyanKundStyle->click();
        EXPECT_EQ(f.result(), QDialog::Accepted);
    }
    EXPECT_EQ(AppSettings::AyanType(), 13);
    EXPECT_EQ(AppSettings::CustAyan(), QStringLiteral("23.15"));
    EXPECT_EQ(AppSettings::RahuKetuMode(), 2);
    EXPECT_TRUE(AppSettings::Vakya());

    // An ayanamsa the page doesn't offer shows no option and is kept by OK.
    AppSettings::setValue(QStringLiteral("Init"), QStringLiteral("AyanType"), 7);
    frmEditLongLat f(frmEditLongLat::CalculationPage);
    EXPECT_FALSE(f.optLahiri->isChecked() || f.optRaman->isChecked() || f.optKP->isChecked() || f.optSayan->isChecked() ||
                 f.optCustom->isChecked() || f.optVakya->isChecked());
    f.cmdSaveAyanKundStyle->click();
    EXPECT_EQ(AppSettings::AyanType(), 7);
}

TEST_F(SettingsFormsTest, DetailsPageAndRegionalSettings)
{
    {
        frmEditLongLat f(frmEditLongLat::DetailsPage);
        EXPECT_EQ(f.txtName->text(), QStringLiteral("Orbanta user"));
        f.txtName->setText(QStringLiteral("Asha"));
        f.txtAddress->setPlainText(QStringLiteral("Pune, Maharashtra"));
        f.cmdSaveYourDet->click();
    }
    EXPECT_EQ(clsIni::DispName(), QStringLiteral("Asha"));
    EXPECT_EQ(clsIni::DispAdd(), QStringLiteral("Pune, Maharashtra"));

    {
        frmCalcOptions r;
        EXPECT_EQ(r.windowTitle(), QStringLiteral("Regional Settings"));
        EXPECT_TRUE(r.optNorthMang->isChecked());
        EXPECT_TRUE(r.optNorthMar->isChecked());
        r.optSouthMang->setChecked(true);
        r.optSouthMar->setChecked(true);
        r.cmdClose->click();
    }
    EXPECT_FALSE(storedKeys().contains(QStringLiteral("Settings/CalcMangMod")));
    frmCalcOptions r;
    r.optSouthMang->setChecked(true);
    r.optNorthMar->setChecked(true);
    r.cmdOK->click();
    EXPECT_EQ(AppSettings::value(QStringLiteral("Settings"), QStringLiteral("CalcMangMod")).toInt(), 2);
    EXPECT_EQ(AppSettings::value(QStringLiteral("Settings"), QStringLiteral("CalcVarMod")).toInt(), 1);
    frmCalcOptions again;
    EXPECT_TRUE(again.optSouthMang->isChecked());
}

TEST_F(SettingsFormsTest, MessageRemembersDontShow)
{
    EXPECT_TRUE(frmMessage::LowResolutionWanted(799));
    EXPECT_FALSE(frmMessage::LowResolutionWanted(800));
    frmMessage::CheckDisplay(640);
    ASSERT_EQ(shown.size(), 1u);
    EXPECT_EQ(shown[0].title, QStringLiteral("Low Resolution"));

    frmMessage m;
    m.Prepare(13, QStringLiteral("text"), QStringLiteral("Low Resolution"));
    m.cmdOK->click();
    EXPECT_EQ(clsIni::GetIniString(QStringLiteral("13"), QString(), QStringLiteral("SHOWERROR")), QStringLiteral("True"));
    m.Prepare(13, QStringLiteral("text"), QStringLiteral("Low Resolution"));
    m.chkDontShow->setChecked(true);
    m.cmdOK->click();
    EXPECT_EQ(clsIni::GetIniString(QStringLiteral("13"), QString(), QStringLiteral("SHOWERROR")), QStringLiteral("False"));
    EXPECT_FALSE(frmMessage::LowResolutionWanted(640));
}

TEST_F(AtlasFormTest, CityOfAnUnknownCountryIsRefusedAndAKnownOneSaved)
{
    frmEditLongLat f(frmEditLongLat::CitiesPage);
    const int before = f.cmbCityList->count();
    EXPECT_EQ(before, count(QStringLiteral("SELECT COUNT(*) FROM City")));
    f.cmdAdd->click();
    EXPECT_EQ(f.EditState(), 2);
    EXPECT_TRUE(f.cmdSave->isEnabled());
    EXPECT_EQ(f.txtLat->text(), QStringLiteral("000:00"));
    EXPECT_TRUE(f.optNorth->isChecked() && f.optEast->isChecked());
    f.cmbCityList->setEditText(QStringLiteral("Port O'Call"));
    f.txtLat->setText(QStringLiteral("012:34"));
    f.txtLong->setText(QStringLiteral("179:59"));
    f.optWest->setChecked(true);
    f.cbocCountry->setEditText(QStringLiteral("Atlantis"));
    f.txtCitGMT->setText(QStringLiteral("-11.00"));
    f.cmdSave->click();
    ASSERT_EQ(shown.size(), 1u);
    EXPECT_EQ(shown[0].title, QStringLiteral("Country Not Found"));
    EXPECT_EQ(shown[0].text, QStringLiteral("Invalid Country, Please Select a Country From The List."));
    EXPECT_EQ(f.EditState(), 2);
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM City")), before);

    f.cbocCountry->setEditText(QStringLiteral("fiji"));
    f.cmdSave->click();
    EXPECT_EQ(shown.size(), 1u);
    EXPECT_EQ(f.EditState(), 0);
    EXPECT_FALSE(f.cmdSave->isEnabled());
    EXPECT_EQ(f.cmbCityList->count(), before + 1);
    EXPECT_EQ(f.cmbCityList->currentText(), QStringLiteral("Port O'Call"));
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM City WHERE City = 'Port O''Call' AND Lat = '01234' "
                                   "AND Longy = '17959' AND NOSO = 'N' AND EaWe = 'W' AND GMTDIFF = '-11.00'")),
              1);

    // Picking a row shows it.
    const int chennai = f.cmbCityList->findText(QStringLiteral("Chennai"));
    ASSERT_GE(chennai, 0);
    f.cmbCityList->setCurrentIndex(chennai);
    EXPECT_EQ(f.cbocCountry->currentText(), QStringLiteral("India"));
    EXPECT_EQ(f.txtCitGMT->text(), QStringLiteral("+05.30"));
    EXPECT_TRUE(f.optNorth->isChecked() && f.optEast->isChecked());
    EXPECT_EQ(f.txtLat->text(), QStringLiteral("013:05"));

    // Delete asks nothing and takes the row on show.
    f.cmbCityList->setCurrentIndex(f.cmbCityList->findText(QStringLiteral("Port O'Call")));
    f.cmdDelete->click();
    EXPECT_EQ(f.cmbCityList->count(), before);
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM City WHERE City = 'Port O''Call'")), 0);
}

TEST_F(AtlasFormTest, CountriesAreAddedModifiedAndDeleted)
{
    frmEditLongLat f(frmEditLongLat::CountriesPage);
    const int before = f.cboCNTRY->count();
    EXPECT_TRUE(f.txtGMTDiff->isReadOnly());
    f.cmdCAdd->click();
    EXPECT_EQ(f.EditState(), 2);
    EXPECT_EQ(f.txtGMTDiff->text(), QStringLiteral("+00.00"));
    EXPECT_FALSE(f.txtGMTDiff->isReadOnly());
    f.cboCNTRY->setEditText(QStringLiteral("Côte d'Essai"));
    f.txtGMTDiff->setText(QStringLiteral("+01.00"));
    f.cmdCSave->click();
    EXPECT_FALSE(f.cmdCSave->isEnabled());
    EXPECT_EQ(f.cboCNTRY->count(), before + 1);
    EXPECT_EQ(f.cbocCountry->count(), before + 1);
    EXPECT_EQ(f.cboCNTRY->currentText(), QStringLiteral("Côte d'Essai"));

    f.cmdCModify->click();
    f.txtGMTDiff->setText(QStringLiteral("+01.30"));
    f.cmdCSave->click();
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM Country WHERE Name = 'Côte d''Essai' AND GMTDIF = '+01.30'")), 1);

    f.cmdCDel->click();
    EXPECT_EQ(f.cboCNTRY->count(), before);
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM Country WHERE Name = 'Côte d''Essai'")), 0);
    EXPECT_TRUE(shown.empty());
}
