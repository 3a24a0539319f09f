// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The Delhi session with a private copy of the records as the session's RecDB and a clean user
// folder, for the tests of the chart editor and the page designer; and the helpers they share:
// a colour dialog and a font dialog that answer by themselves, a page drawn to a picture or a PDF
// sheet.
#include "chartdraw/ui/LookControls.h"
#include "output/ui/FontBox.h"
#include "output/ui/frmColorEnv.h"
#include "output/ui/PageCache.h"
#include "output/ui/PageOutput.h"
#include "output/ui/PageStyle.h"
#include "output/ui/TopicPage.h"
#include "output_ui/DelhiSession.h"
#include "session/clsIni.h"
#include "sky/MessageSink.h"
#include "sky/DataPaths.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QLineEdit>
#include <QProcess>
#include <QSqlDatabase>
#include <QStandardPaths>
#include <QTest>

#include <deque>
#include <memory>

// Chooses a scheme in the designer's list with the arrow keys, as a user would.
inline void choose(frmColorEnv &f, const QString &name)
{
    const int target = f.cmbTheme->findText(name);
    ASSERT_GE(target, 0) << name.toStdString();
    f.cmbTheme->setFocus();
    for (int guard = 0; guard < 50 && f.cmbTheme->currentIndex() != target; ++guard)
        QTest::keyClick(f.cmbTheme, f.cmbTheme->currentIndex() < target ? Qt::Key_Down : Qt::Key_Up);
    ASSERT_EQ(f.cmbTheme->currentText(), name);
}

// Types a scheme's name into the designer's list.
inline void typeName(frmColorEnv &f, const QString &name)
{
    QLineEdit *edit = f.cmbTheme->lineEdit();
    edit->setFocus();
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Delete);
    QTest::keyClicks(edit, name);
}

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
        FontBox::setPicker([this](const QFont &, QWidget *) -> std::optional<QFont> {
            if (fontAnswers.empty())
                return std::nullopt; // the dialog cancelled
            const QFont f = fontAnswers.front();
            fontAnswers.pop_front();
            return f;
        });
        setMessageSink(&sink);
        PageColors::Reload();
        PageFonts::Reload();
    }
    void TearDown() override
    {
        ColorBox::setPicker({});
        FontBox::setPicker({});
        setMessageSink(nullptr);
        Session().RecDB.close();
        Session().RecDB = QSqlDatabase();
        QSqlDatabase::removeDatabase("look_ui_test");
        DelhiSession::TearDown();
        cleanUserFolder();
        PageColors::Reload();
        PageFonts::Reload();
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
    // Answers of the font dialog, one a click; none left cancels it.
    std::deque<QFont> fontAnswers;
    // What the program told the user.
    QStringList messages;
    struct Collect : MessageSink
    {
        QStringList &into;
        explicit Collect(QStringList &list) : into(list) {}
        void warn(const QString &, const QString &text) override { into << text; }
    } sink{messages};
};
