// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// "Regional Settings": the Manglik reckoning (CalcMangMod) and the Varna reckoning (CalcVarMod),
// 1 North and 2 South. OK writes both and closes; Close closes without writing.

#include <QDialog>
#include <QPushButton>
#include <QRadioButton>

class frmCalcOptions : public QDialog
{
    Q_OBJECT
public:
    explicit frmCalcOptions(QWidget *parent = nullptr);

    QRadioButton *optNorthMang;
    QRadioButton *optSouthMang;
    QRadioButton *optSouthMar;
    QRadioButton *optNorthMar;
    QPushButton *cmdOK;
    QPushButton *cmdClose;

private:
    void cmdOK_Click();
};
