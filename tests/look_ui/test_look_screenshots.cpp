// SPDX-License-Identifier: AGPL-3.0-or-later
// Renders the chart editor, the page designer with two schemes, a page in each scheme and a text
// page in the serif one to PNG files when ORBANTA_SCREENSHOTS names a folder.
#include "LookSession.h"

#include "chartdraw/ui/frmKunEdit.h"
#include "output/Themes.h"
#include "output/ui/frmColorEnv.h"

#include <QApplication>
#include <QComboBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

using LookScreenshots = LookSession;

TEST_F(LookScreenshots, EditorDesignerAndPagesInTwoSchemes)
{
    const QString folder = qEnvironmentVariable("ORBANTA_SCREENSHOTS");
    if (folder.isEmpty())
        GTEST_SKIP() << "ORBANTA_SCREENSHOTS not set";
    QDir().mkpath(folder);
    const auto save = [&folder](QWidget &w, const QString &name) {
        w.show();
        QApplication::processEvents();
        ASSERT_TRUE(w.grab().save(QDir(folder).filePath(name + ".png")));
    };

    {
        frmKunEdit editor;
        editor.show();
        answers = {QColor(255, 248, 231), QColor(204, 102, 0), QColor(128, 32, 0)};
        QTest::mouseClick(editor.picBackColor, Qt::LeftButton);
        QTest::mouseClick(editor.picLineColor, Qt::LeftButton);
        QTest::mouseClick(editor.picBorderColor, Qt::LeftButton);
        QTest::mouseClick(editor.optNorthKun, Qt::LeftButton);
        QTest::keyClick(editor.txtBorderWidth, Qt::Key_Up);
        save(editor, "look-chart-editor");
    }

    const QStringList names = Themes::Names(Session().RecDB);
    for (const QString &name : {names.at(1), names.at(2)}) {
        const QString stem = name.section(' ', 0, 0).toLower();
        {
            frmColorEnv designer;
            designer.show();
            const int at = designer.cmbTheme->findText(name);
            designer.cmbTheme->setFocus();
            while (designer.cmbTheme->currentIndex() < at)
                QTest::keyClick(designer.cmbTheme, Qt::Key_Down);
            save(designer, "look-designer-" + stem);
            QTest::mouseClick(designer.cmdSaveAyanKundStyle, Qt::LeftButton);
        }
        std::unique_ptr<TopicPage> page = loadPage("frmPage2");
        save(*page, "look-page-" + stem);
        if (Themes::Stock(name).HeadFont.Family.contains("Serif")) {
            std::unique_ptr<TopicPage> text = loadPage("frmForText");
            save(*text, "look-text-page-" + stem);
        }
    }
}
