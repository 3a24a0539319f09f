// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The small window that stays on top while a long run works: a caption, a message, a busy bar
// and the progress bar of the run.

#include <QDialog>

class QLabel;
class QProgressBar;
class QPushButton;

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
    // Shown by MuhurthaStatus only: asks the search to stop.
    QPushButton *cmdCancel;
    bool CancelRequested() const { return m_cancel; }

private:
    void set(const QString &caption, const QString &message);
    bool m_cancel = false;
};
