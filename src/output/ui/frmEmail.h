// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The mail screen: an export goes as the zip attachment HORO.ZIP to the address typed, through
// the desktop's mail program. Where that can't take it, the archive is saved, its folder opened,
// and the user told what to attach.

#include "output/MailSender.h"

#include <QDialog>
#include <QStringList>

#include <functional>

class QLabel;
class QLineEdit;
class QPushButton;
class QTextEdit;

class frmEmail : public QDialog
{
    Q_OBJECT
public:
    enum SendMode { Html = 1, Pdf = 2 };

    // mode: what goes; folder: the HTML export's folder, or the PDF file's; files: what goes into
    // the archive, relative to folder (Index.HTML and its pictures, or the PDF file's name).
    frmEmail(SendMode mode, const QString &folder, const QStringList &files, QWidget *parent = nullptr);

    QLineEdit *txtMailTo;
    QLineEdit *txtSubject;
    QTextEdit *txtMailText;
    QLabel *lblStatus;
    QPushButton *cmdSendMail;

    // The subject for the session: "Asha's Horoscope", "Asha's Varshaphala", "Ravi & Sita's Match Details".
    static QString DefaultSubject();
    // The text the mail starts with, naming the session's person or couple.
    static QString DefaultText(SendMode mode);
    // The text the mail carries: the user's words, then the line that names the program.
    static QString MailBody(const QString &text);

    // False, with a message, when the address has no "@" or no ".".
    bool Validated();
    // Zips the export and hands it to the mail program, or saves it for the user; always says
    // which. Returns what happened.
    MailOutcome cmdSendMail_Click();

    // How the mail leaves; the desktop's tools by default.
    void setSender(const MailSender &sender) { m_sender = sender; }
    // Where the archive is saved when the mail program can't take it; the Documents folder by default.
    void setSaveFolder(const QString &folder) { m_saveFolder = folder; }
    // How the user is told (title, text, whether it is a problem) and how a folder is shown; a
    // message box and the desktop's file manager by default.
    std::function<void(const QString &, const QString &, bool)> tell;
    std::function<void(const QString &)> openFolder;

private:
    SendMode m_mode;
    QString m_folder;
    QStringList m_files;
    MailSender m_sender;
    QString m_saveFolder;
};
