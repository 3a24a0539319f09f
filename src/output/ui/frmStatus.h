// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The small window that stays on top while a long run works: a caption, a message, a busy bar
// and the progress bar of the run.

#include <QDialog>

class QLabel;
class QProgressBar;

class frmStatus : public QDialog
{
    Q_OBJECT
public:
    explicit frmStatus(QWidget *parent = nullptr);
    void PrintStatus();
    void PDFStatus();
    void ExportStatus();
    void MuhurthaStatus();
    QLabel *lblMessage;
    QProgressBar *Proggy;

private:
    void set(const QString &caption, const QString &message);
};
