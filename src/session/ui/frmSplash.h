// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The start-up screen: it proves the installation can run, stage by stage, then opens the main
// window with the entry screen.

#include <QLabel>
#include <QWidget>


class frmSplash : public QWidget
{
    Q_OBJECT
public:
    explicit frmSplash(QWidget *parent = nullptr);
    // Runs the stages; false when the program must end (the reason has been shown). The
    // program then makes its main window.
    bool DoLoad();

    QLabel *lblStatus;
    QLabel *lblVerNo;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void stage(const QString &text);
};
