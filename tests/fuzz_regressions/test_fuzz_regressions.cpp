// SPDX-License-Identifier: AGPL-3.0-or-later
// Every seed of the fuzz targets and every input that once made one fail, run again through the
// target's body. A body that breaks a promise aborts this program, after the input's name.
#include "FuzzBodies.h"

#include "text/TextDB.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

#include <cstdio>
#include <ostream>

// Test names show the target's name.
inline void PrintTo(const FuzzTarget &t, std::ostream *os) { *os << t.name; }

namespace {
const QString kFuzz = QStringLiteral(ORBANTA_SOURCE_DIR "/fuzz/");

QStringList inputsOf(const QString &folder)
{
    QStringList files;
    const QDir dir(folder);
    for (const QString &f : dir.entryList(QDir::Files, QDir::Name))
        files << dir.filePath(f);
    return files;
}

// Runs each file through the body; the number of files run.
int replay(const FuzzTarget &target, const QStringList &files)
{
    for (const QString &path : files) {
        QFile f(path);
        if (!f.open(QIODevice::ReadOnly)) {
            ADD_FAILURE() << "cannot read " << path.toStdString();
            continue;
        }
        const QByteArray bytes = f.readAll();
        std::fprintf(stderr, "%s: %s\n", target.name, qPrintable(path));
        target.body(reinterpret_cast<const std::uint8_t *>(bytes.constData()), std::size_t(bytes.size()));
    }
    return int(files.size());
}

class FuzzTargetInputs : public ::testing::TestWithParam<FuzzTarget>
{
};
} // namespace

TEST_P(FuzzTargetInputs, SeedsAndFormerFailuresRunCleanly)
{
    const FuzzTarget &t = GetParam();
    // A target fuzzed from nothing finds little in the seconds it gets: every one has seeds.
    EXPECT_GT(replay(t, inputsOf(kFuzz + "corpus/" + t.name)), 0) << "no seeds in fuzz/corpus/" << t.name;
    replay(t, inputsOf(kFuzz + "regressions/" + t.name));
}

INSTANTIATE_TEST_SUITE_P(Targets, FuzzTargetInputs, ::testing::ValuesIn(FuzzTargets()),
                         [](const ::testing::TestParamInfo<FuzzTarget> &info) { return std::string(info.param.name); });

TEST(FuzzRegressions, EveryFolderNamesATarget)
{
    // An input filed under a misspelt name would never run again.
    for (const char *kind : {"corpus", "regressions"})
        for (const QString &name : QDir(kFuzz + kind).entryList(QDir::Dirs | QDir::NoDotAndDotDot))
            EXPECT_NE(FindFuzzTarget(name), nullptr) << kind << "/" << name.toStdString();
}

TEST(FuzzRegressions, AScoreBeyondALongReadsAsNoScore)
{
    // Found by tagged_text: the cast of such a number to a whole score was undefined.
    const QString block = QStringLiteral("HorseS-4.75|CatS-99999999999999999999999|RatS--99999999999999999999999|");
    EXPECT_EQ(TagEntryScore(block, QStringLiteral("HorseS")), 4);
    EXPECT_EQ(TagEntryScore(block, QStringLiteral("CatS")), 0);
    EXPECT_EQ(TagEntryScore(block, QStringLiteral("RatS")), 0);
}
