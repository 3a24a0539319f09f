// SPDX-License-Identifier: AGPL-3.0-or-later
#include "output/MailSender.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QThread>

namespace {
// Mail programs to which xdg-email hands an attachment; the others get a mailto link, which
// carries no file.
const char *const kAttachingClients[] = {"thunderbird", "icedove", "seamonkey", "evolution", "kmail", "claws-mail", "sylpheed", "balsa"};

constexpr int kWaitMs = 60000;
constexpr int kDetachedWaitMs = 15000;

// A name in folder for file's name that no file has yet: HORO.ZIP, HORO-2.ZIP, ...
QString freeName(const QString &folder, const QString &file)
{
    const QFileInfo f(file);
    const QDir dir(folder);
    QString name = f.fileName();
    for (int n = 2; dir.exists(name); ++n)
        name = QStringLiteral("%1-%2%3").arg(f.completeBaseName()).arg(n).arg(f.suffix().isEmpty() ? QString() : QLatin1Char('.') + f.suffix());
    return dir.filePath(name);
}
} // namespace

MailSender::MailSender(Runner run) : m_run(run ? std::move(run) : Runner(&MailSender::RunProcess)) {}

int MailSender::RunProcess(const QString &program, const QStringList &args, QString *output)
{
    const QString path = QStandardPaths::findExecutable(program);
    if (path.isEmpty())
        return -1;
    if (output) {
        QProcess p;
        p.start(path, args);
        if (!p.waitForStarted() || !p.waitForFinished(kWaitMs) || p.exitStatus() != QProcess::NormalExit)
            return -1;
        *output = QString::fromLocal8Bit(p.readAllStandardOutput());
        return p.exitCode();
    }
    // xdg-email may become the mail program itself (Thunderbird when it wasn't running yet) and
    // last as long as it. So it runs on its own, through a shell that writes its status to a
    // file; a program still running after a while is taken to be the mail program, open.
    QTemporaryDir dir;
    if (!dir.isValid())
        return -1;
    const QString status = dir.filePath(QStringLiteral("status"));
    const QString script = QStringLiteral("\"$0\" \"$@\"; echo $? > '%1'").arg(status);
    if (!QProcess::startDetached(QStringLiteral("/bin/sh"), QStringList{QStringLiteral("-c"), script, path} + args))
        return -1;
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < kDetachedWaitMs) {
        QFile f(status);
        if (f.open(QIODevice::ReadOnly)) {
            const QByteArray text = f.readAll().trimmed();
            if (!text.isEmpty())
                return text.toInt();
        }
        QThread::msleep(100);
    }
    dir.setAutoRemove(false); // the shell still writes there when the mail program ends
    return 0;
}

QString MailSender::MailClient() const
{
    QString out;
    if (m_run(QStringLiteral("xdg-mime"), {QStringLiteral("query"), QStringLiteral("default"), QStringLiteral("x-scheme-handler/mailto")},
              &out) != 0)
        return {};
    return out.trimmed();
}

bool MailSender::TakesAttachments(const QString &desktopFile)
{
    const QString id = desktopFile.toLower();
    for (const char *c : kAttachingClients)
        if (id.contains(QLatin1String(c)))
            return true;
    return false;
}

MailOutcome MailSender::saveForUser(const MailMessage &m, const QString &saveFolder, MailOutcome::Kind kind, const QString &why) const
{
    MailOutcome o;
    if (!QDir().mkpath(saveFolder)) {
        o.Title = QStringLiteral("Error Sending Mail");
        o.Text = QStringLiteral("%1 The horoscope could not be saved either: the folder %2 can't be made.")
                     .arg(why, QDir::toNativeSeparators(saveFolder));
        return o;
    }
    const QString target = freeName(saveFolder, m.Attachment);
    if (!QFile::copy(m.Attachment, target)) {
        o.Title = QStringLiteral("Error Sending Mail");
        o.Text = QStringLiteral("%1 The horoscope could not be saved either: %2 can't be written.").arg(why, QDir::toNativeSeparators(target));
        return o;
    }
    o.kind = kind;
    o.SavedFile = target;
    const QString saved = QFileInfo(target).fileName();
    const QString where = QDir::toNativeSeparators(QFileInfo(target).absolutePath());
    if (kind == MailOutcome::AttachByHand) {
        o.Title = QStringLiteral("Attach the Horoscope");
        o.Text = QStringLiteral("Your mail program has a new message to %1, but it can't take the horoscope from Orbanta. The "
                                "horoscope is saved as %2 in the folder %3, which is now open. Please attach %2 to the message "
                                "before you send it.")
                     .arg(m.To, saved, where);
    } else {
        o.Title = QStringLiteral("Send the Horoscope Yourself");
        o.Text = QStringLiteral("%1\n\nThe horoscope is saved as %2 in the folder %3, which is now open. Please write a mail to %4 "
                                "in your mail program or web mail, with the subject \"%5\", attach %2 and send it.")
                     .arg(why, saved, where, m.To, m.Subject);
    }
    return o;
}

MailOutcome MailSender::Send(const MailMessage &m, const QString &saveFolder) const
{
    if (!QFileInfo(m.Attachment).isFile()) {
        MailOutcome o;
        o.Title = QStringLiteral("Error Sending Mail");
        o.Text = QStringLiteral("The file to attach, %1, is missing.").arg(QDir::toNativeSeparators(m.Attachment));
        return o;
    }
    const QString client = MailClient();
    if (client.isEmpty())
        return saveForUser(m, saveFolder, MailOutcome::Saved, QStringLiteral("No mail program is set up on this computer."));

    const bool attaches = TakesAttachments(client);
    QStringList args{QStringLiteral("--utf8"), QStringLiteral("--subject"), m.Subject, QStringLiteral("--body"), m.Body};
    if (attaches)
        args << QStringLiteral("--attach") << QFileInfo(m.Attachment).absoluteFilePath();
    args << m.To;
    const int status = m_run(QStringLiteral("xdg-email"), args, nullptr);
    if (status == -1)
        return saveForUser(m, saveFolder, MailOutcome::Saved, QStringLiteral("The mail program could not be opened: xdg-email is missing."));
    if (status != 0)
        return saveForUser(m, saveFolder, MailOutcome::Saved,
                           QStringLiteral("The mail program could not be opened (xdg-email ended with status %1).").arg(status));
    if (!attaches)
        return saveForUser(m, saveFolder, MailOutcome::AttachByHand, QStringLiteral("Your mail program can't take the horoscope."));
    MailOutcome o;
    o.kind = MailOutcome::Handed;
    o.Title = QStringLiteral("Mail");
    o.Text = QStringLiteral("Your mail program has a new message to %1 with %2 attached. Please look it over there and send it.")
                 .arg(m.To, QFileInfo(m.Attachment).fileName());
    return o;
}
