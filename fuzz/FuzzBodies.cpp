// SPDX-License-Identifier: AGPL-3.0-or-later
#include "FuzzBodies.h"

#include "marriage/ScoreFiles.h"
#include "session/AtlasLookup.h"
#include "session/Languages.h"
#include "sky/MessageSink.h"
#include "text/TextDB.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

namespace {

// A fatal message (a data file that isn't ours) ends the program; here it ends the one input.
struct FatalMessage
{
};

class QuietSink : public MessageSink
{
public:
    void warn(const QString &, const QString &) override {}
    void fatal(const QString &, const QString &) override { throw FatalMessage{}; }
};

QTemporaryDir &scratchFolder()
{
    static QTemporaryDir dir;
    if (!dir.isValid())
        FuzzFail("no temporary folder");
    return dir;
}

// For its life: the input as the file at relative inside a scratch STUFF folder, the data
// folder pointed there, and messages kept quiet.
class ScratchDataFile
{
public:
    ScratchDataFile(const char *relative, const std::uint8_t *data, std::size_t size)
        : m_stuff(scratchFolder().filePath(QStringLiteral("STUFF"))), m_textFolder(StuffFolder()),
          m_env(qgetenv("ORBANTA_STUFF")), m_sink(&m_quiet)
    {
        const QString path = m_stuff + QLatin1Char('/') + QLatin1String(relative);
        QDir().mkpath(QFileInfo(path).path());
        // A journal left by the input before would be read with this one.
        for (const char *suffix : {"-journal", "-wal", "-shm"})
            QFile::remove(path + QLatin1String(suffix));
        QFile f(path);
        if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate)
            || f.write(reinterpret_cast<const char *>(data), qint64(size)) != qint64(size))
            FuzzFail("cannot write the scratch data file", path);
        f.close();
        setStuffFolder(m_stuff);
        qputenv("ORBANTA_STUFF", m_stuff.toLocal8Bit());
    }
    ~ScratchDataFile()
    {
        setStuffFolder(m_textFolder);
        qputenv("ORBANTA_STUFF", m_env);
    }
    ScratchDataFile(const ScratchDataFile &) = delete;
    ScratchDataFile &operator=(const ScratchDataFile &) = delete;

private:
    QString m_stuff;
    QString m_textFolder;
    QByteArray m_env;
    QuietSink m_quiet;
    ScopedMessageSink m_sink;
};

} // namespace

void ReadScoreFiles()
{
    for (int n = 0; n <= 15; ++n)
        for (int m = 0; m <= 15; ++m) {
            (void)ScoreFiles::GrahaPoints(n, m);
            (void)ScoreFiles::RasiPoints(n, m);
            (void)ScoreFiles::YoniPoints(n, m);
        }
}

#define ORBANTA_FUZZ_TARGET(name, function) {#name, function},
#define ORBANTA_FUZZ_DATA_FILE(name, path, ...)                                                                        \
    {#name, [](const std::uint8_t *data, std::size_t size) {                                                           \
         const ScratchDataFile file(path, data, size);                                                                 \
         try {                                                                                                         \
             (void)(__VA_ARGS__);                                                                                      \
         } catch (const FatalMessage &) {                                                                              \
         }                                                                                                             \
     }},

const std::vector<FuzzTarget> &FuzzTargets()
{
    static const std::vector<FuzzTarget> targets{
#include "targets.def"
    };
    return targets;
}

#undef ORBANTA_FUZZ_TARGET
#undef ORBANTA_FUZZ_DATA_FILE

const FuzzTarget *FindFuzzTarget(const QString &name)
{
    for (const FuzzTarget &t : FuzzTargets())
        if (name == QLatin1String(t.name))
            return &t;
    return nullptr;
}

void FuzzSetUp(const QString &stuffFolder)
{
    QLocale::setDefault(QLocale::c());
    // Settings and the user's data folder go to a home of the process's own.
    qputenv("HOME", scratchFolder().filePath(QStringLiteral("home")).toLocal8Bit());
    QStandardPaths::setTestModeEnabled(true);
    qputenv("ORBANTA_STUFF", stuffFolder.toLocal8Bit());
}

void FuzzFail(const char *what, const QString &detail)
{
    std::fprintf(stderr, "fuzz check failed: %s%s%s\n", what, detail.isEmpty() ? "" : ": ", qPrintable(detail));
    std::fflush(stderr);
    std::abort();
}

void ReadLanguageDatabase(const QString &langDir)
{
    QSqlDatabase db;
    if (!OpenTextDB(langDir, db))
        return;
    ClearSymbolCache();
    // Every type with a number key, a word key and a category, as the pages ask.
    for (int type = 0; type <= 13; ++type) {
        GetHeadValue(db, type, 3, QStringLiteral("Rashi"));
        GetHeadValue(db, type, QStringLiteral("Sun-Moon:CNJ"));
        GetHeadValue(db, type, QStringLiteral("YogaHead"), QStringLiteral("Gen"));
    }
    GetGenText(db, QStringLiteral("Predictions"));
    GetConjText(db, QStringLiteral("Sun-Moon:CNJ"));
    GetTextBetween(db, QStringLiteral("CNVT"), QStringLiteral("."), QStringLiteral("Symbols"));
    for (int kind = 0; kind <= 6; ++kind)
        LangSeparator(db, kind);
    LangNumberText(db, QStringLiteral("12.34"));
    ClearSymbolCache();
    CloseTextDB(db);
}

void ReadAtlas(const QString &datFile)
{
    AtlasLookup atlas;
    if (!atlas.LoadDatabase(datFile))
        return;
    atlas.FindPlaces(QStringLiteral("D"));
    atlas.FindPlaces(QString(), QStringLiteral("I"), 20);
    atlas.FindCountries(QStringLiteral("I"), 20);
    for (const QString &text : {QStringLiteral("Delhi"), QStringLiteral("Delhi,India"), QStringLiteral("D"),
                                QStringLiteral(","), QString()})
        atlas.Resolve(text);
    // Every place by its own name and country, the look-up the command line makes.
    for (const AtlasPlace &p : atlas.Places()) {
        atlas.Resolve(p.City + QLatin1Char(',') + p.Country, 5);
        atlas.FindCountry(p.Country);
    }
}
