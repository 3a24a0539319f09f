// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// "Regional Settings": the Manglik reckoning (CalcMangMod) and the Varna reckoning (CalcVarMod),
// 1 North and 2 South, and the cast of the annual chart (ExactReturn: the traditional offset, or
// the exact return of the Sun). OK writes them and closes; Close closes without writing.

#include <QCheckBox>
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
    QCheckBox *chkExactReturn;
    QPushButton *cmdOK;
    QPushButton *cmdClose;

private:
    void cmdOK_Click();
};
