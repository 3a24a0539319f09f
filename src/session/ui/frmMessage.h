// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// A numbered message that the user may silence: its text, its title and a "don't show again"
// box whose answer is kept in section SHOWERROR of GENDAT.INI under the message's number.
// Also the one road by which the settings forms show their message boxes, so that tests can
// answer them.

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

#include <functional>

class frmMessage : public QDialog
{
    Q_OBJECT
public:
    explicit frmMessage(QWidget *parent = nullptr);

    // Fills the form with message `number` and shows it modally.
    void ShowMessage(int number, const QString &text, const QString &title);
    // Fills the form without showing it.
    void Prepare(int number, const QString &text, const QString &title);
    int Number() const { return m_number; }

    // Message 13 of the display check: wanted when SHOWERROR/13 isn't "False" and the screen is
    // narrower than 800 pixels.
    static bool LowResolutionWanted(int screenWidth);
    // The display check of start-up: shows message 13 with the title of message 14 when wanted.
    static void CheckDisplay(int screenWidth, QWidget *parent = nullptr);

    // A message box of the settings forms (information, warning ...). With a hook installed
    // the hook receives it instead and nothing is shown.
    using MessageHook = std::function<void(QMessageBox::Icon icon, const QString &title, const QString &text)>;
    static void setMessageHook(MessageHook hook);
    static void Notify(QWidget *parent, QMessageBox::Icon icon, const QString &title, const QString &text);

    QLabel *lblMessage;
    QCheckBox *chkDontShow;
    QPushButton *cmdOK;

private:
    void cmdOK_Click();
    int m_number = 0;
};
