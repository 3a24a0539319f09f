// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// A private copy of the records and a clean user folder (no GENDAT.INI, no INIFILES) for the
// tests of the chart look and the colour schemes.
#include "session/clsIni.h"
#include "sky/DataPaths.h"
#include "support/TestSupport.h"

#include <QDir>
#include <QFile>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>

#include <gtest/gtest.h>

class LookFixture : public ::testing::Test
{
protected:
    void SetUp() override
    {
        cleanUserFolder();
        const QString file = dir.filePath("RECOS.Dat");
        ASSERT_TRUE(QFile::copy(ORBANTA_BINARY_DIR "/STUFF/COMMON/RECOS.Dat", file));
        QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner);
        db = QSqlDatabase::addDatabase("QSQLITE", "look_test");
        db.setDatabaseName(file);
        ASSERT_TRUE(db.open());
    }
    void TearDown() override
    {
        db.close();
        db = QSqlDatabase();
        QSqlDatabase::removeDatabase("look_test");
        cleanUserFolder();
    }
    static void cleanUserFolder()
    {
        QFile::remove(clsIni::IniPath());
        QDir(DataPaths::UserFolder() + "/INIFILES").removeRecursively();
    }
    int rows()
    {
        QSqlQuery q(db);
        q.exec("SELECT COUNT(*) FROM DisplayThemes");
        return q.next() ? q.value(0).toInt() : -1;
    }
    ScopedSettingsStore store;
    QTemporaryDir dir;
    QSqlDatabase db;
};
