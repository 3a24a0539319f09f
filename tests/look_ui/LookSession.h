// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The Delhi session with a private copy of the records as the session's RecDB and a clean user
// folder, for the tests of the chart editor and the page designer; and the helpers they share:
// a colour dialog that answers by itself, a page drawn to a picture or a PDF sheet.
#include "chartdraw/ui/LookControls.h"
#include "output/ui/PageCache.h"
#include "output/ui/PageOutput.h"
#include "output/ui/PageStyle.h"
#include "output/ui/TopicPage.h"
#include "output_ui/DelhiSession.h"
#include "session/clsIni.h"
#include "sky/MessageSink.h"
#include "sky/DataPaths.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QSqlDatabase>
#include <QStandardPaths>

#include <deque>
#include <memory>

class LookSession : public DelhiSession
{
protected:
    void SetUp() override
    {
        cleanUserFolder();
        DelhiSession::SetUp();
        const QString file = dir.filePath("RECOS.Dat");
        ASSERT_TRUE(QFile::copy(ORBANTA_BINARY_DIR "/STUFF/COMMON/RECOS.Dat", file));
        QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner);
        Session().RecDB = QSqlDatabase::addDatabase("QSQLITE", "look_ui_test");
        Session().RecDB.setDatabaseName(file);
        ASSERT_TRUE(Session().RecDB.open());
        ColorBox::setPicker([this](const QColor &current, QWidget *) {
            if (answers.empty())
                return current;
            const QColor c = answers.front();
            answers.pop_front();
            return c;
        });
        setMessageSink(&sink);
        PageColors::Reload();
    }
    void TearDown() override
    {
        ColorBox::setPicker({});
        setMessageSink(nullptr);
        Session().RecDB.close();
        Session().RecDB = QSqlDatabase();
        QSqlDatabase::removeDatabase("look_ui_test");
        DelhiSession::TearDown();
        cleanUserFolder();
        PageColors::Reload();
    }
    static void cleanUserFolder()
    {
        QFile::remove(clsIni::IniPath());
        QDir(DataPaths::UserFolder() + "/INIFILES").removeRecursively();
    }
    // A page made now, as the screen would show it.
    static std::unique_ptr<TopicPage> loadPage(const QString &name)
    {
        std::unique_ptr<TopicPage> page(CreateTopicPage(name));
        page->Load();
        return page;
    }
    static QImage screenImage(TopicPage &page) { return page.grab().toImage(); }
    // The first sheet of the page in PDF, at 96 dots an inch (one form pixel a dot); a null image
    // when the tool that draws PDF files is missing.
    QImage pdfImage(TopicPage &page, const QString &stem)
    {
        const QString tool = QStandardPaths::findExecutable("pdftoppm");
        if (tool.isEmpty())
            return {};
        const QString file = dir.filePath(stem + ".pdf");
        clsPDFExporter pdf;
        pdf.filename = file;
        if (!pdf.StartExport())
            return {};
        PageOutput out(nullptr, nullptr, &pdf);
        out.OutputPage(page);
        if (!pdf.FinishFile())
            return {};
        QProcess::execute(tool, {"-r", "96", "-png", "-f", "1", "-l", "1", "-singlefile", file, dir.filePath(stem)});
        return QImage(dir.filePath(stem + ".png"));
    }
    // Whether a pixel within `reach` of (x, y) has colour c, give or take a little for smoothing.
    static bool colourNear(const QImage &img, int x, int y, const QColor &c, int reach = 3)
    {
        for (int dy = -reach; dy <= reach; ++dy)
            for (int dx = -reach; dx <= reach; ++dx) {
                const QColor p = img.pixelColor(x + dx, y + dy);
                if (qAbs(p.red() - c.red()) <= 12 && qAbs(p.green() - c.green()) <= 12 && qAbs(p.blue() - c.blue()) <= 12)
                    return true;
            }
        return false;
    }
    // Answers of the colour dialog, one a click.
    std::deque<QColor> answers;
    // What the program told the user.
    QStringList messages;
    struct Collect : MessageSink
    {
        QStringList &into;
        explicit Collect(QStringList &list) : into(list) {}
        void warn(const QString &, const QString &text) override { into << text; }
    } sink{messages};
};
