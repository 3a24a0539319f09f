// SPDX-License-Identifier: AGPL-3.0-or-later
// "orbanta html": bad input is refused with status 2 before anything is written; good input
// reaches the writer with the chosen topics and the session's chart.
#include "cli/HtmlCommand.h"
#include "output/PrintTree.h"
#include "session/Session.h"
#include "support/TestSupport.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

TEST(HtmlCommand, BadInputIsRefusedWithStatus2AndGoodInputReachesTheWriter)
{
    ScopedSettingsStore store;
    QTemporaryDir dir;
    const QStringList birth{"--date", "15/08/1980", "--time", "14.35", "--lat", "28:38N", "--lon", "077:12E", "--gmt", "+05.30", "--name", "Asha"};
    int calls = 0;
    QSet<QString> ticked;
    QString folder, name;
    const HtmlFolderWriter writer = [&](int mode, const QSet<QString> &t, const QString &f, QTextStream &out, QTextStream &) {
        ++calls;
        ticked = t;
        folder = f;
        name = Session().CurPlanets ? Session().CurPlanets->Person().Name() : QString();
        out << "written";
        return mode == 1 ? 0 : 9;
    };
    const auto run = [&](const QStringList &extra, QString *errText = nullptr) {
        QString o, e;
        QTextStream out(&o), err(&e);
        const int status = RunHtmlCommand(birth + extra, out, err, writer);
        err.flush();
        if (errText)
            *errText = e;
        return status;
    };

    QString e;
    EXPECT_EQ(run({"--out", dir.filePath("a"), "--topics", "Janma,Nope"}, &e), 2);
    EXPECT_TRUE(e.contains("Unknown topic key: Nope")) << e.toStdString();
    EXPECT_FALSE(QDir(dir.filePath("a")).exists()) << "nothing made for a refused run";
    EXPECT_EQ(run({}, &e), 2);
    EXPECT_TRUE(e.contains("Missing --out DIR"));
    {
        QFile f(dir.filePath("file"));
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    }
    EXPECT_EQ(run({"--out", dir.filePath("file")}, &e), 2);
    EXPECT_TRUE(e.contains("is a file, not a folder")) << e.toStdString();
    EXPECT_EQ(run({"--out", "/proc/orbanta/out"}, &e), 2);
    EXPECT_TRUE(e.contains("Cannot make the folder")) << e.toStdString();
    EXPECT_EQ(run({"--out", dir.filePath("b"), "--date", "31/02/1980"}, &e), 2) << "a birth the entry screen refuses";
    EXPECT_EQ(calls, 0);

    EXPECT_EQ(run({"--out", dir.filePath("c/d"), "--topics", "Yoga, Janma"}), 0);
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(ticked, (QSet<QString>{"Janma", "Yoga"}));
    EXPECT_EQ(folder, dir.filePath("c/d"));
    EXPECT_EQ(name, "Asha");
    EXPECT_TRUE(QDir(folder).isEmpty()) << "the probe of the folder leaves nothing behind";
    EXPECT_FALSE(Session().CurPlanets) << "the chart of the command is released";
    EXPECT_EQ(run({"--out", dir.filePath("e")}), 0);
    EXPECT_EQ(ticked.size(), PrintKeys(1, false).size()) << "every topic by default";
}
