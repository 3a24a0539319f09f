// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The session of one Delhi birth, as Generate leaves it, for the tests of pages on paper and in
// PDF; and the text of a PDF they write.
#include "output/ui/PageOutput.h"
#include "session/Session.h"
#include "support/TestSupport.h"
#include "text/TextDB.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>

class DelhiSession : public ::testing::Test
{
protected:
    // sex: 1 or 2 for the person; 0 leaves the record's default.
    explicit DelhiSession(int sex = 0) : m_sex(sex) {}
    void SetUp() override
    {
        ASSERT_TRUE(OpenTextDB("ENGLISH", Session().TextDB));
        auto c = std::make_unique<clsPlanets>();
        c->setTextDB(Session().TextDB, QSqlDatabase());
        c->Person() = MakePerson(15, 8, 1980, 14, 35, "5.5", 28, 38, "N", 77, 12, "E");
        c->Person().setName("Asha");
        if (m_sex != 0)
            c->Person().setSex(m_sex);
        c->Calculate();
        Session().ProgMode = 1;
        Session().CurPlanets = std::move(c);
        Output() = OutputState{};
    }
    void TearDown() override
    {
        Session().ReleaseCharts();
        CloseTextDB(Session().TextDB);
    }
    // The text of a PDF, or an empty string when the tool isn't there.
    static QString pdfText(const QString &file)
    {
        const QString tool = QStandardPaths::findExecutable("pdftotext");
        if (tool.isEmpty())
            return {};
        QProcess p;
        p.start(tool, {"-layout", file, "-"});
        p.waitForFinished();
        return QString::fromUtf8(p.readAllStandardOutput());
    }
    ScopedSettingsStore store;
    QTemporaryDir dir;

private:
    int m_sex;
};
