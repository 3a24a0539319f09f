// SPDX-License-Identifier: AGPL-3.0-or-later
#include "output/ui/frmStatus.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

frmStatus::frmStatus(QWidget *parent) : QDialog(parent, Qt::Dialog | Qt::WindowStaysOnTopHint)
{
    setObjectName(QStringLiteral("frmStatus"));
    auto *v = new QVBoxLayout(this);
    lblMessage = new QLabel;
    lblMessage->setWordWrap(true);
    // The busy bar runs for as long as the window is up.
    auto *busy = new QProgressBar;
    busy->setRange(0, 0);
    busy->setTextVisible(false);
    busy->setMaximumHeight(8);
    Proggy = new QProgressBar;
    Proggy->setObjectName(QStringLiteral("Proggy"));
    Proggy->setRange(0, 100);
    v->addWidget(lblMessage);
    v->addWidget(busy);
    v->addWidget(Proggy);
    cmdCancel = new QPushButton(QStringLiteral("&Cancel"));
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    cmdCancel->hide();
    v->addWidget(cmdCancel, 0, Qt::AlignRight);
    connect(cmdCancel, &QPushButton::clicked, this, [this] {
        m_cancel = true;
        lblMessage->setText(QStringLiteral("Stopping the search..."));
    });
    setMinimumWidth(380);
}

void frmStatus::set(const QString &caption, const QString &message)
{
    setWindowTitle(caption);
    lblMessage->setText(message);
}

void frmStatus::PrintStatus()
{
    set(QStringLiteral("Printing..."), QStringLiteral("Processing. Please wait. This will take a little while..."));
}

void frmStatus::PDFStatus()
{
    set(QStringLiteral("Exporting PDF..."), QStringLiteral("Exporting PDF File. Please wait, this will take a little while..."));
}

void frmStatus::ExportStatus()
{
    set(QStringLiteral("Exporting HTML"), QStringLiteral("Exporting HTML please wait. This can take a little while..."));
}

void frmStatus::MuhurthaStatus()
{
    set(QStringLiteral("Looking for Muhurtha..."),
        QStringLiteral("Searching for the first best Muhurtha in the time range. Please wait..."));
    cmdCancel->show();
}
