// SPDX-License-Identifier: AGPL-3.0-or-later
#include "session/ui/frmMessage.h"

#include "session/clsIni.h"

#include <QHBoxLayout>
#include <QStyle>
#include <QVBoxLayout>

namespace {
frmMessage::MessageHook g_hook;
const QString kShowError = QStringLiteral("SHOWERROR");
} // namespace

frmMessage::frmMessage(QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmMessage"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);

    auto *icon = new QLabel;
    icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxInformation).pixmap(32, 32));
    icon->setAlignment(Qt::AlignTop);
    lblMessage = new QLabel;
    lblMessage->setObjectName(QStringLiteral("lblMessage"));
    lblMessage->setWordWrap(true);
    lblMessage->setMinimumWidth(320);
    chkDontShow = new QCheckBox(QStringLiteral("&Don't show this message again"));
    chkDontShow->setObjectName(QStringLiteral("chkDontShow"));
    cmdOK = new QPushButton(QStringLiteral("&OK"));
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    cmdOK->setDefault(true);

    auto *top = new QHBoxLayout;
    top->addWidget(icon);
    top->addSpacing(8);
    top->addWidget(lblMessage, 1);
    auto *bottom = new QHBoxLayout;
    bottom->addWidget(chkDontShow);
    bottom->addStretch(1);
    bottom->addWidget(cmdOK);
    auto *v = new QVBoxLayout(this);
    v->setContentsMargins(14, 14, 14, 12);
    v->addLayout(top);
    v->addSpacing(10);
    v->addLayout(bottom);

    connect(cmdOK, &QPushButton::clicked, this, &frmMessage::cmdOK_Click);
}

void frmMessage::Prepare(int number, const QString &text, const QString &title)
{
    m_number = number;
    lblMessage->setText(text);
    setWindowTitle(title);
    chkDontShow->setChecked(false);
    adjustSize();
    setFixedSize(sizeHint());
}

void frmMessage::ShowMessage(int number, const QString &text, const QString &title)
{
    Prepare(number, text, title);
    exec();
}

void frmMessage::cmdOK_Click()
{
    clsIni::WriteIniString(QString::number(m_number), chkDontShow->isChecked() ? QStringLiteral("False") : QStringLiteral("True"),
                           kShowError);
    accept();
}

bool frmMessage::LowResolutionWanted(int screenWidth)
{
    return screenWidth < 800 && clsIni::ShowError(13);
}

void frmMessage::CheckDisplay(int screenWidth, QWidget *parent)
{
    if (!LowResolutionWanted(screenWidth))
        return;
    const QString text =
        QStringLiteral("Your Screen resolution is low. For best display select a resolution of 800x600 pixels or higher.");
    const QString title = QStringLiteral("Low Resolution");
    if (g_hook) {
        g_hook(QMessageBox::Information, title, text);
        return;
    }
    frmMessage dlg(parent);
    dlg.ShowMessage(13, text, title);
}

void frmMessage::setMessageHook(MessageHook hook)
{
    g_hook = std::move(hook);
}

void frmMessage::Notify(QWidget *parent, QMessageBox::Icon icon, const QString &title, const QString &text)
{
    if (g_hook) {
        g_hook(icon, title, text);
        return;
    }
    QMessageBox box(icon, title, text, QMessageBox::Ok, parent);
    box.exec();
}
