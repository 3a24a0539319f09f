// SPDX-License-Identifier: AGPL-3.0-or-later
// The archive that travels by mail, and the mail itself with and without a mail program.
#include "html/HtmlCheck.h"
#include "output/HoroZip.h"
#include "output/MailSender.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <zip.h>

namespace {

void writeFile(const QString &path, const QByteArray &bytes)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile f(path);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(bytes);
}

QByteArray readFile(const QString &path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

// The names and contents of an archive, read with libzip itself.
QList<QPair<QString, QByteArray>> unzip(const QString &file)
{
    QList<QPair<QString, QByteArray>> out;
    int code = 0;
    zip_t *z = zip_open(QFile::encodeName(file).constData(), ZIP_RDONLY, &code);
    if (!z)
        return out;
    for (zip_int64_t i = 0; i < zip_get_num_entries(z, 0); ++i) {
        zip_stat_t st;
        zip_stat_index(z, i, 0, &st);
        QByteArray bytes(static_cast<qsizetype>(st.size), '\0');
        zip_file_t *f = zip_fopen_index(z, i, 0);
        zip_fread(f, bytes.data(), st.size);
        zip_fclose(f);
        out.append({QString::fromUtf8(st.name), bytes});
    }
    zip_close(z);
    return out;
}

// A desktop whose mailto handler and xdg-email answer as told; it records xdg-email's arguments.
struct FakeDesktop
{
    explicit FakeDesktop(const QString &c, int status = 0) : client(c), emailStatus(status) {}
    QString client;
    int emailStatus;
    QStringList emailArgs;
    int emailRuns = 0;
    MailSender::Runner runner()
    {
        return [this](const QString &program, const QStringList &args, QString *output) {
            if (program == QLatin1String("xdg-mime")) {
                if (output)
                    *output = client + QLatin1Char('\n');
                return 0;
            }
            if (program == QLatin1String("xdg-email")) {
                ++emailRuns;
                emailArgs = args;
                return emailStatus;
            }
            return -1;
        };
    }
};

} // namespace

TEST(HoroZip, TheArchiveHoldsTheFilesUnderTheirNamesAndAFailureLeavesTheOldOne)
{
    QTemporaryDir dir;
    const QString site = dir.filePath("site");
    writeFile(site + "/page-002.png", QByteArray("\x89PNG second", 11));
    writeFile(site + "/Index.HTML", "<html>Asha</html>");
    writeFile(site + "/page-001.png", QByteArray(100000, 'x'));
    writeFile(site + "/more/notes.txt", "inside a folder");
    const QList<ZipEntry> entries = HoroZip::FolderEntries(site);
    QStringList names;
    for (const ZipEntry &e : entries)
        names << e.Name;
    EXPECT_EQ(names, (QStringList{"Index.HTML", "more/notes.txt", "page-001.png", "page-002.png"}));

    const QString zip = dir.filePath("HORO.ZIP");
    ASSERT_TRUE(HoroZip::Write(zip, entries));
    const auto stored = unzip(zip);
    ASSERT_EQ(stored.size(), 4);
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(stored[i].first, names[i]);
        EXPECT_EQ(stored[i].second, readFile(entries[i].Path)) << names[i].toStdString();
    }
    EXPECT_EQ(HoroZip::Names(zip), names);

    // A second archive replaces the first: a PDF alone, under its own name.
    writeFile(dir.filePath("Asha-Horoscope.PDF"), "%PDF-1.4");
    ASSERT_TRUE(HoroZip::Write(zip, {{"Asha-Horoscope.PDF", dir.filePath("Asha-Horoscope.PDF")}}));
    EXPECT_EQ(HoroZip::Names(zip), QStringList{"Asha-Horoscope.PDF"});

    // A missing file, nothing to add, or a folder that isn't there: refused, and the archive is as it was.
    QString why;
    EXPECT_FALSE(HoroZip::Write(zip, {{"gone.png", dir.filePath("gone.png")}}, &why));
    EXPECT_TRUE(why.contains("gone.png")) << why.toStdString();
    EXPECT_FALSE(HoroZip::Write(zip, {}, &why));
    EXPECT_EQ(HoroZip::Names(zip), QStringList{"Asha-Horoscope.PDF"});
    EXPECT_FALSE(QFile::exists(zip + ".part"));
    EXPECT_FALSE(HoroZip::Write(dir.filePath("no/such/HORO.ZIP"), entries, &why));
    EXPECT_TRUE(why.contains("can't be written")) << why.toStdString();
    EXPECT_TRUE(HoroZip::Names(dir.filePath("Index.HTML")).isEmpty()) << "not an archive";
}

TEST(MailSender, WithoutAnyMailProgramTheArchiveIsSavedAndTheUserToldWhatToAttach)
{
    QTemporaryDir dir;
    const QString zip = dir.filePath("work/HORO.ZIP");
    writeFile(zip, "PK archive");
    const QString saveTo = dir.filePath("Documents");
    const MailMessage m{"friend@example.org", "Asha's Horoscope", "Here it is.", zip};

    EmptyPath noTools; // neither xdg-mime nor xdg-email can be found
    const MailOutcome first = MailSender().Send(m, saveTo);
    EXPECT_EQ(first.kind, MailOutcome::Saved);
    EXPECT_TRUE(first.openFolder());
    EXPECT_EQ(first.SavedFile, QDir(saveTo).filePath("HORO.ZIP"));
    EXPECT_EQ(readFile(first.SavedFile), "PK archive");
    for (const char *words : {"No mail program", "HORO.ZIP", "friend@example.org", "Asha's Horoscope", "attach"})
        EXPECT_TRUE(first.Text.contains(words)) << words << " in: " << first.Text.toStdString();
    EXPECT_TRUE(first.Text.contains(QDir::toNativeSeparators(saveTo)));

    // A second send keeps the first archive.
    const MailOutcome second = MailSender().Send(m, saveTo);
    EXPECT_EQ(second.SavedFile, QDir(saveTo).filePath("HORO-2.ZIP"));
    EXPECT_TRUE(second.Text.contains("HORO-2.ZIP"));
    EXPECT_EQ(readFile(first.SavedFile), "PK archive");

    // Where even the archive can't be saved, the user still hears why.
    const MailOutcome nowhere = MailSender().Send(m, "/proc/orbanta-nowhere");
    EXPECT_EQ(nowhere.kind, MailOutcome::Failed);
    EXPECT_FALSE(nowhere.openFolder());
    EXPECT_TRUE(nowhere.Text.contains("could not be saved")) << nowhere.Text.toStdString();
    const MailOutcome missing = MailSender().Send({m.To, m.Subject, m.Body, dir.filePath("none.zip")}, saveTo);
    EXPECT_EQ(missing.kind, MailOutcome::Failed);
    EXPECT_TRUE(missing.Text.contains("none.zip"));
}

TEST(MailSender, TheMailProgramGetsTheArchiveOnlyWhereItCanTakeIt)
{
    QTemporaryDir dir;
    const QString zip = dir.filePath("HORO.ZIP");
    writeFile(zip, "PK");
    const MailMessage m{"friend@example.org", "Asha's Horoscope", "Body text", zip};
    const QString saveTo = dir.filePath("saved");

    FakeDesktop thunderbird("thunderbird.desktop");
    const MailOutcome handed = MailSender(thunderbird.runner()).Send(m, saveTo);
    EXPECT_EQ(handed.kind, MailOutcome::Handed);
    EXPECT_FALSE(handed.openFolder());
    EXPECT_EQ(thunderbird.emailArgs,
              (QStringList{"--utf8", "--subject", "Asha's Horoscope", "--body", "Body text", "--attach", zip, "friend@example.org"}));
    EXPECT_FALSE(QDir(saveTo).exists()) << "nothing saved when the mail program has it";

    // A mail program that opens mailto links but takes no file: the message opens, the archive waits in a folder.
    FakeDesktop geary("org.gnome.Geary.desktop");
    const MailOutcome byHand = MailSender(geary.runner()).Send(m, saveTo);
    EXPECT_EQ(byHand.kind, MailOutcome::AttachByHand);
    EXPECT_FALSE(geary.emailArgs.contains("--attach"));
    EXPECT_TRUE(QFile::exists(byHand.SavedFile));
    EXPECT_TRUE(byHand.Text.contains("Please attach HORO.ZIP")) << byHand.Text.toStdString();

    // xdg-email fails (no display, a broken client): the archive is saved as with no mail program.
    FakeDesktop broken("thunderbird.desktop", 4);
    const MailOutcome failed = MailSender(broken.runner()).Send(m, saveTo);
    EXPECT_EQ(failed.kind, MailOutcome::Saved);
    EXPECT_TRUE(failed.Text.contains("status 4")) << failed.Text.toStdString();

    // No handler for mailto links: xdg-email isn't even tried.
    FakeDesktop none("");
    EXPECT_EQ(MailSender(none.runner()).Send(m, saveTo).kind, MailOutcome::Saved);
    EXPECT_EQ(none.emailRuns, 0);
}


// The desktop's own tools, as the program runs them: scripts of those names on PATH stand in for
// them, one recording what it was given.
TEST(MailSender, TheDesktopToolsRunFromPathAndTheirStatusCounts)
{
    QTemporaryDir dir;
    const QString bin = dir.filePath("bin");
    QDir().mkpath(bin);
    const auto script = [&](const QString &name, const QByteArray &body) {
        writeFile(bin + "/" + name, "#!/bin/sh\n" + body);
        QFile::setPermissions(bin + "/" + name, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    };
    script("xdg-mime", "echo evolution.desktop\n");
    const QString record = dir.filePath("args");
    script("xdg-email", "for a in \"$@\"; do echo \"$a\" >> '" + record.toLocal8Bit() + "'; done\nexit 0\n");
    const QString zip = dir.filePath("HORO.ZIP");
    writeFile(zip, "PK");
    const QByteArray oldPath = qgetenv("PATH");
    qputenv("PATH", bin.toLocal8Bit() + ":/usr/bin:/bin");
    const MailMessage m{"friend@example.org", "Asha's Horoscope", "Two words", zip};

    EXPECT_EQ(MailSender().MailClient(), "evolution.desktop");
    const MailOutcome handed = MailSender().Send(m, dir.filePath("saved"));
    EXPECT_EQ(handed.kind, MailOutcome::Handed) << handed.Text.toStdString();
    EXPECT_EQ(QString::fromUtf8(readFile(record)).split('\n', Qt::SkipEmptyParts),
              (QStringList{"--utf8", "--subject", "Asha's Horoscope", "--body", "Two words", "--attach", zip, "friend@example.org"}));

    script("xdg-email", "exit 3\n");
    const MailOutcome failed = MailSender().Send(m, dir.filePath("saved"));
    qputenv("PATH", oldPath);
    EXPECT_EQ(failed.kind, MailOutcome::Saved);
    EXPECT_TRUE(failed.Text.contains("status 3")) << failed.Text.toStdString();
    EXPECT_TRUE(QFile::exists(failed.SavedFile));
}
