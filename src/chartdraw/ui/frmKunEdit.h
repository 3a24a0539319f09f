// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The chart style editor: the style, the line and border widths and five colours of every chart,
// tried at once on the sample chart kunDemo and saved for all charts by Save.

#include "chartdraw/ChartLook.h"

#include <QDialog>

class ColorBox;
class Kundali;
class QPushButton;
class QRadioButton;
class WidthSpin;

class frmKunEdit : public QDialog
{
    Q_OBJECT
public:
    explicit frmKunEdit(QWidget *parent = nullptr);

    // The look the boxes show now.
    ChartLook look() const;

    QRadioButton *optNorthKun, *optEastKun, *optSouthKun;
    WidthSpin *txtLineWidth, *txtBorderWidth;
    ColorBox *picBackColor, *picLineColor, *picBorderColor, *picTxtColor, *picNumberColor;
    Kundali *kunDemo;
    QPushButton *cmdSaveAyanKundStyle, *cmdCancel;

private:
    void Form_Load();
    void cmdSaveAyanKundStyle_Click();
};
