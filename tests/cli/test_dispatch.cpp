// SPDX-License-Identifier: AGPL-3.0-or-later
#include "cli/CommandLine.h"
#include "support/TestSupport.h"

#include <QProcess>
#include <QProcessEnvironment>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <array>

namespace {

QStringList g_seen; // the arguments the last verb was run with

int runAlpha(const QStringList &args, QTextStream &out, QTextStream &)
{
    g_seen = QStringList{QStringLiteral("alpha")} + args;
    out << "alpha ran";
    return 7;
}

int runBeta(const QStringList &args, QTextStream &, QTextStream &)
{
    g_seen = QStringList{QStringLiteral("beta")} + args;
    return 0;
}

constexpr std::array kVerbs{
    CliVerb{"alpha", "The first verb.", false, runAlpha},
    CliVerb{"beta", "The second verb.", true, runBeta},
};

struct Answer
{
    int status;
    QString out;
    QString err;
};

Answer dispatch(const QStringList &args)
{
    g_seen.clear();
    QString out, err;
    QTextStream o(&out), e(&err);
    const int status = RunCommandLine(kVerbs, args, o, e);
    o.flush();
    e.flush();
    return {status, out, err};
}

} // namespace

TEST(Dispatch, VerbsRunWithTheirOwnArgumentsAndStatus)
{
    const Answer a = dispatch({"alpha", "--date", "1/1/2000", "help"});
    EXPECT_EQ(a.status, 7);
    EXPECT_EQ(a.out, "alpha ran");
    EXPECT_EQ(g_seen, (QStringList{"alpha", "--date", "1/1/2000", "help"}));

    const CliRequest beta = ReadCliRequest(kVerbs, {"beta"});
    EXPECT_EQ(beta.kind, CliRequest::Verb);
    EXPECT_EQ(beta.verb, &kVerbs[1]);
    EXPECT_EQ(ReadCliRequest(kVerbs, {}).kind, CliRequest::Window);
}

TEST(Dispatch, HelpListsEveryVerbAndHelpOfAVerbIsItsOwn)
{
    for (const QStringList &args : {QStringList{"--help"}, QStringList{"-h"}, QStringList{"help"}}) {
        const Answer a = dispatch(args);
        EXPECT_EQ(a.status, 0) << args.join(' ').toStdString();
        EXPECT_TRUE(a.err.isEmpty());
        EXPECT_TRUE(a.out.contains(QRegularExpression("alpha +The first verb\\.")));
        EXPECT_TRUE(a.out.contains(QRegularExpression("beta +The second verb\\.")));
        EXPECT_TRUE(g_seen.isEmpty()); // no verb ran
    }
    EXPECT_EQ(dispatch({"help", "beta"}).status, 0);
    EXPECT_EQ(g_seen, (QStringList{"beta", "--help"}));
    // Help of a verb needs what the verb needs, so that its application can be chosen before.
    EXPECT_EQ(ReadCliRequest(kVerbs, {"help", "beta"}).verb, &kVerbs[1]);

    const Answer version = dispatch({"--version"});
    EXPECT_EQ(version.status, 0);
    EXPECT_EQ(version.out, QStringLiteral("Orbanta " ORBANTA_VERSION "\n"));
}

TEST(Dispatch, WordsItDoesNotKnowAreStatusTwoWithTheUsageOnStandardError)
{
    const struct
    {
        QStringList args;
        const char *says;
    } cases[] = {
        {{"aplha"}, "Unknown verb: aplha"},
        {{"--bogus"}, "Unknown option: --bogus"},
        {{"-platform", "xcb"}, "Unknown option: -platform"},
        {{"help", "gamma"}, "Unknown verb: gamma"},
        {{"help", "alpha", "beta"}, "Unknown verb: beta"},
        {{"--help", "alpha"}, "Unknown verb: alpha"},
        {{"--version", "--json"}, "Unknown option: --json"},
    };
    for (const auto &c : cases) {
        const Answer a = dispatch(c.args);
        const std::string what = c.args.join(' ').toStdString();
        EXPECT_EQ(a.status, 2) << what;
        EXPECT_TRUE(a.out.isEmpty()) << what;
        EXPECT_TRUE(a.err.startsWith(QString::fromUtf8(c.says))) << a.err.toStdString();
        EXPECT_TRUE(a.err.contains("alpha") && a.err.contains("beta")) << what;
        EXPECT_TRUE(g_seen.isEmpty()) << what;
    }
}

// The program itself, run as a user would, on a machine without a display.
class Program : public ::testing::Test
{
protected:
    Answer run(const QStringList &args)
    {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
            env.remove(QString::fromLatin1(name));
        QProcess p;
        p.setProcessEnvironment(env);
        p.start(QStringLiteral(ORBANTA_BINARY_DIR "/orbanta"), args);
        if (!p.waitForFinished(60000)) {
            p.kill();
            p.waitForFinished();
            ADD_FAILURE() << "orbanta " << args.join(' ').toStdString() << " did not finish";
        }
        return {p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1, QString::fromUtf8(p.readAllStandardOutput()),
                QString::fromUtf8(p.readAllStandardError())};
    }
};

TEST_F(Program, AnswersHelpVersionAndMistakesWithoutADisplay)
{
    for (const char *help : {"--help", "help"}) {
        const Answer a = run({help});
        EXPECT_EQ(a.status, 0) << a.err.toStdString();
        EXPECT_TRUE(a.out.contains(QRegularExpression("\\n  chart +\\S")));
        EXPECT_TRUE(a.out.contains(QRegularExpression("\\n  pdf +\\S")));
    }
    const Answer version = run({"--version"});
    EXPECT_EQ(version.status, 0);
    EXPECT_EQ(version.out.trimmed(), QStringLiteral("Orbanta " ORBANTA_VERSION));

    const Answer typo = run({"chrat"});
    EXPECT_EQ(typo.status, 2);
    EXPECT_TRUE(typo.out.isEmpty());
    EXPECT_TRUE(typo.err.contains("Unknown verb: chrat"));
    EXPECT_TRUE(typo.err.contains("\n  chart "));

    // The pdf verb draws pages, and its help comes through the offscreen platform too.
    const Answer pdfHelp = run({"help", "pdf"});
    EXPECT_EQ(pdfHelp.status, 0) << pdfHelp.err.toStdString();
    EXPECT_TRUE(pdfHelp.out.contains("--out FILE"));
}
