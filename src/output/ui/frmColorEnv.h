// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The page designer: the colours of every page and chart and the fonts of the pages, tried on a
// sample page and a sample chart, and named schemes kept in the records. Save makes them the look
// of the pages loaded from then on.

#include "output/Themes.h"

#include <QDialog>

#include <array>

class ColorBox;
class FontBox;
class QFont;
class Kundali;
class QComboBox;
class QPushButton;
class WidthSpin;

class frmColorEnv : public QDialog
{
    Q_OBJECT
public:
    explicit frmColorEnv(QWidget *parent = nullptr);

    // The colours and widths the boxes show now.
    Themes::Scheme scheme() const;
    // Shows scheme in the boxes, the sample page and the sample chart.
    void showScheme(const Themes::Scheme &scheme);

    QComboBox *cmbTheme;
    QPushButton *cmdSaveTheme, *cmdDelTheme, *cmdSaveAyanKundStyle, *cmdCancel;
    // The fifteen page colours, in the order of the scheme's page keys.
    std::array<ColorBox *, Themes::kPageKeys> picPage{};
    ColorBox *picBackColor, *picLineColor, *picBorderColor, *picTxtColor, *picNumberColor;
    WidthSpin *txtLineWidth, *txtBorderWidth;
    // The heading font and the body font.
    FontBox *cmdHeadFont, *cmdBodyFont;
    Kundali *kunDemo;
    QWidget *pagePreview;

private:
    void Form_Load();
    void fillThemeList(const QString &select);
    void cmbTheme_Click(const QString &name);
    void cmdSaveTheme_Click();
    void cmdDelTheme_Click();
    void cmdSaveAyanKundStyle_Click();
    void chartChanged();
    // A font chosen in the dialog for box: shown when a scheme may hold it, else the user is told why not.
    void fontPicked(FontBox *box, const QFont &chosen, bool heading);
    void bodyFontChanged();
    ColorBox *chartBox(ChartLook::Key k) const;
};
