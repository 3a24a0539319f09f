// SPDX-License-Identifier: AGPL-3.0-or-later
// Renders the settings dialogs to PNG files when ORBANTA_SCREENSHOTS names a folder.
#include "session/Session.h"
#include "session/ui/frmCalcOptions.h"
#include "session/ui/frmEditLongLat.h"
#include "session/ui/frmWizard.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QSqlDatabase>
#include <QTemporaryDir>

namespace {
void save(QWidget &w, const QString &folder, const QString &name)
{
    w.show();
    QApplication::processEvents();
    ASSERT_TRUE(w.grab().save(QDir(folder).filePath(name + QStringLiteral(".png"))));
}
} // namespace

TEST(SettingsScreenshots, RenderEveryStepAndPage)
{
    const QString folder = qEnvironmentVariable("ORBANTA_SCREENSHOTS");
    if (folder.isEmpty())
        GTEST_SKIP() << "ORBANTA_SCREENSHOTS not set";
    QDir().mkpath(folder);
    ScopedSettingsStore store;

    frmWizard wizard;
    for (int step = 1; step <= frmWizard::kSteps; ++step) {
        wizard.GoToStep(step);
        save(wizard, folder, QStringLiteral("wizard-step%1").arg(step));
    }
    wizard.hide();

    QTemporaryDir dir;
    const QString copy = dir.filePath(QStringLiteral("RECOS.Dat"));
    ASSERT_TRUE(QFile::copy(QStringLiteral(ORBANTA_BINARY_DIR "/STUFF/COMMON/RECOS.Dat"), copy));
    QFile(copy).setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    const QSqlDatabase saved = Session().RecDB;
    Session().RecDB = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("shots_recdb"));
    Session().RecDB.setDatabaseName(copy);
    ASSERT_TRUE(Session().RecDB.open());
    {
        frmEditLongLat options(frmEditLongLat::CitiesPage);
        options.cmbCityList->setCurrentIndex(options.cmbCityList->findText(QStringLiteral("Chennai")));
        options.cboCNTRY->setCurrentIndex(options.cboCNTRY->findText(QStringLiteral("India")));
        for (int page = 0; page < 4; ++page) {
            options.EditTab->setCurrentIndex(page);
            save(options, folder, QStringLiteral("options-page%1").arg(page));
        }
    }
    Session().RecDB.close();
    Session().RecDB = saved;
    QSqlDatabase::removeDatabase(QStringLiteral("shots_recdb"));

    frmCalcOptions regional;
    save(regional, folder, QStringLiteral("regional-settings"));
}
