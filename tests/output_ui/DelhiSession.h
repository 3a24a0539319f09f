// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The session of one Delhi birth, as Generate leaves it, for the tests of pages on paper and in
// PDF; and the text of a PDF they write.
#include "output/PrintTree.h"
#include "output/ui/PageCache.h"
#include "output/ui/PageOutput.h"
#include "output/ui/PrintRun.h"
#include "session/Session.h"
#include "support/PdfText.h"
#include "support/TestSupport.h"
#include "text/TextDB.h"

#include <QDir>
#include <QWidget>
#include <QProcess>
#include <QSet>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>

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
    static QString pdfText(const QString &file) { return PdfText(file); }
    // A topic page made and loaded as the topic list does it.
    template <typename Page> static std::unique_ptr<Page> load()
    {
        auto page = std::make_unique<Page>();
        page->Load();
        return page;
    }
    // Saves the page's picture under the name in ORBANTA_SCREENSHOTS, when that is set.
    static void shoot(QWidget &page, const QString &name)
    {
        const QString out = qEnvironmentVariable("ORBANTA_SCREENSHOTS");
        if (out.isEmpty())
            return;
        QDir().mkpath(out);
        page.grab().save(out + QLatin1Char('/') + name);
    }
    // Walks the print steps of the keys into a PDF file of the test's folder, as the print
    // screen's PDF export does: the pages drawn and the sheets written, or -1 drawn when the file
    // couldn't be started or finished.
    struct PdfWalk
    {
        QString file;
        int drawn = -1;
        int sheets = 0;
    };
    PdfWalk walkToPdf(const QString &name, const QStringList &keys)
    {
        PdfWalk w;
        w.file = dir.filePath(name);
        clsPDFExporter pdf;
        pdf.filename = w.file;
        if (!pdf.StartExport())
            return w;
        Output().PageCounter = 1;
        PageCache pages;
        PageOutput out(nullptr, nullptr, &pdf);
        const int drawn = WalkSteps(SelectedSteps(1, false, QSet<QString>(keys.begin(), keys.end())), pages, out);
        w.sheets = pdf.surface().PageCount();
        if (pdf.FinishFile())
            w.drawn = drawn;
        return w;
    }
    ScopedSettingsStore store;
    QTemporaryDir dir;

private:
    int m_sex;
};
