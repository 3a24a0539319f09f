// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// Mail through the desktop's mail program: xdg-email opens a new message with the archive
// attached. Where no mail program is set up, where it can't take an attachment this way, or where
// xdg-email is missing or fails, the archive is saved where the user can find it, and the outcome
// says in plain words what to attach. A send never fails without saying so.

#include <QString>
#include <QStringList>

#include <functional>

struct MailMessage
{
    QString To;
    QString Subject;
    QString Body;
    QString Attachment; // the archive to send
};

struct MailOutcome
{
    enum Kind {
        Handed,       // the mail program has the message with the archive attached
        AttachByHand, // the mail program has the message; the archive is saved for the user to attach
        Saved,        // no mail program could be opened; the archive is saved for the user to send
        Failed,       // not even the archive could be saved
    };
    Kind kind = Failed;
    QString Title;     // the title of the message to the user
    QString Text;      // what happened, and what the user should do now
    QString SavedFile; // AttachByHand, Saved: the saved archive
    // Whether the user should be shown the folder of SavedFile.
    bool openFolder() const { return kind == AttachByHand || kind == Saved; }
};

class MailSender
{
public:
    // Runs program with args and waits for it: its exit status, or -1 when it can't be found or
    // started. Its standard output goes to *output when given.
    using Runner = std::function<int(const QString &program, const QStringList &args, QString *output)>;

    // run: how the desktop's tools are started; by default found on PATH and run as processes.
    explicit MailSender(Runner run = {});

    // Hands m to the mail program; saveFolder is where the archive is kept when it can't go that way.
    MailOutcome Send(const MailMessage &m, const QString &saveFolder) const;

    // The desktop file of the mail program set up for mailto links, or empty for none.
    QString MailClient() const;
    // Whether xdg-email can give that mail program an attachment.
    static bool TakesAttachments(const QString &desktopFile);
    // Runs a program found on PATH: the default runner. Without output the program runs on its
    // own, and one still running after 15 seconds counts as having succeeded (a mail program that
    // xdg-email started in its place).
    static int RunProcess(const QString &program, const QStringList &args, QString *output);

private:
    MailOutcome saveForUser(const MailMessage &m, const QString &saveFolder, MailOutcome::Kind kind, const QString &why) const;
    Runner m_run;
};
