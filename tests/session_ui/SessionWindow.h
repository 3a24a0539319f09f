// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The main window with its entry screen over a private copy of the records, as the tests of the
// session's screens drive it.
#include "session/Session.h"
#include "session/ui/frmLogin.h"
#include "app/mdiMother.h"
#include "support/TestSupport.h"

#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QTest>
#include <QSqlDatabase>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

class EntryScreen : public ::testing::Test
{
protected:
    void SetUp() override
    {
        qputenv("ORBANTA_STUFF", ORBANTA_BINARY_DIR "/STUFF");
        const QString file = dir.filePath("RECOS.Dat");
        ASSERT_TRUE(QFile::copy(ORBANTA_BINARY_DIR "/STUFF/COMMON/RECOS.Dat", file));
        QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner);
        Session().RecDB = QSqlDatabase::addDatabase("QSQLITE", "entry_test");
        Session().RecDB.setDatabaseName(file);
        ASSERT_TRUE(Session().RecDB.open());
        frmLogin::setMessageHandler([this](const EntryMessage &m) { messages.push_back(m); });
        mdiMother::setAskOnExit(false);
        window = std::make_unique<mdiMother>();
        screen = window->login();
        screen->cmdHoroscope_Click();
    }
    void TearDown() override
    {
        window.reset();
        Session().ReleaseCharts();
        Session().RecDB.close();
        Session().RecDB = QSqlDatabase();
        QSqlDatabase::removeDatabase("entry_test");
        frmLogin::setMessageHandler({});
    }
    void typeBirth(BirthPanel *p, const QString &date, const QString &time, const QString &lat, const QString &lon,
                   const QString &gmt)
    {
        p->txtDate->setText(date);
        p->txtTime->setText(time);
        p->txtLati->setText(lat);
        p->txtLongi->setText(lon);
        p->txtGMT->setText(gmt);
    }
    // Clears a box (a line edit, or an editable list's) and types keys into it, as a user would.
    static void type(QWidget *box, const QString &keys)
    {
        auto *edit = qobject_cast<QLineEdit *>(box);
        if (!edit)
            edit = qobject_cast<QComboBox *>(box)->lineEdit();
        edit->setFocus();
        edit->selectAll();
        QTest::keyClick(edit, Qt::Key_Delete);
        edit->home(false);
        QTest::keyClicks(edit, keys);
    }
    std::vector<int> numbers() const
    {
        std::vector<int> n;
        for (const EntryMessage &m : messages)
            n.push_back(m.number);
        return n;
    }

    ScopedSettingsStore store;
    QTemporaryDir dir;
    std::vector<EntryMessage> messages;
    std::unique_ptr<mdiMother> window;
    frmLogin *screen = nullptr;
};

