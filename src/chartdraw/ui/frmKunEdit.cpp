// SPDX-License-Identifier: AGPL-3.0-or-later
#include "chartdraw/ui/frmKunEdit.h"

#include "chartdraw/ui/Kundali.h"
#include "chartdraw/ui/LookControls.h"

#include <QButtonGroup>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

frmKunEdit::frmKunEdit(QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmKunEdit"));
    setWindowTitle(LookText("KunEditTitle", "Kundli Style"));

    auto *styleBox = new QGroupBox(LookText("ChartStyle", "Style of the chart"), this);
    auto *styleLayout = new QVBoxLayout(styleBox);
    const auto option = [&](const char *name, const char *key, const char *text) {
        auto *o = new QRadioButton(LookText(key, text), styleBox);
        o->setObjectName(QString::fromLatin1(name));
        styleLayout->addWidget(o);
        return o;
    };
    optNorthKun = option("optNorthKun", "North", "&North Indian");
    optEastKun = option("optEastKun", "East", "&East Indian");
    optSouthKun = option("optSouthKun", "South", "&South Indian");

    auto *widthBox = new QGroupBox(LookText("Widths", "Widths"), this);
    auto *widthForm = new QFormLayout(widthBox);
    txtLineWidth = new WidthSpin(QStringLiteral("txtLineWidth"), widthBox);
    txtBorderWidth = new WidthSpin(QStringLiteral("txtBorderWidth"), widthBox);
    widthForm->addRow(LookText("LineWidth", "Lines"), txtLineWidth);
    widthForm->addRow(LookText("BorderWidth", "Border"), txtBorderWidth);

    auto *colourBox = new QGroupBox(LookText("Colours", "Colours"), this);
    auto *colourForm = new QFormLayout(colourBox);
    const auto colour = [&](const char *name, const char *key, const char *text) {
        auto *b = new ColorBox(QString::fromLatin1(name), colourBox);
        colourForm->addRow(LookText(key, text), b);
        return b;
    };
    picBackColor = colour("picBackColor", "KunBackColor", "Background");
    picLineColor = colour("picLineColor", "KunLineColor", "Lines");
    picBorderColor = colour("picBorderColor", "KunBorderColor", "Border");
    picTxtColor = colour("picTxtColor", "KunTxtColor", "Planets");
    picNumberColor = colour("picNumberColor", "KunNumColor", "Sign numbers");

    kunDemo = new Kundali(this);
    kunDemo->setObjectName(QStringLiteral("kunDemo"));
    kunDemo->setFixedSize(330, 330);

    cmdSaveAyanKundStyle = new QPushButton(LookText("Save", "&Save"), this);
    cmdSaveAyanKundStyle->setObjectName(QStringLiteral("cmdSaveAyanKundStyle"));
    cmdSaveAyanKundStyle->setDefault(true);
    cmdCancel = new QPushButton(LookText("Cancel", "&Cancel"), this);
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));

    auto *left = new QVBoxLayout;
    left->addWidget(styleBox);
    left->addWidget(widthBox);
    left->addWidget(colourBox);
    left->addStretch();
    auto *top = new QHBoxLayout;
    top->addLayout(left);
    top->addWidget(kunDemo, 0, Qt::AlignTop);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdSaveAyanKundStyle);
    buttons->addWidget(cmdCancel);
    auto *all = new QVBoxLayout(this);
    all->addLayout(top);
    all->addLayout(buttons);

    Form_Load();

    // Every change shows on the sample at once; nothing is stored before Save.
    connect(optNorthKun, &QRadioButton::clicked, this, [this] { kunDemo->setChartStyle(KundaliModel::North); });
    connect(optEastKun, &QRadioButton::clicked, this, [this] { kunDemo->setChartStyle(KundaliModel::East); });
    connect(optSouthKun, &QRadioButton::clicked, this, [this] { kunDemo->setChartStyle(KundaliModel::South); });
    connect(txtLineWidth, &QSpinBox::valueChanged, this, [this](int w) { kunDemo->setLineWidth(static_cast<qint16>(w)); });
    connect(txtBorderWidth, &QSpinBox::valueChanged, this, [this](int w) { kunDemo->setBorderWidth(static_cast<qint16>(w)); });
    connect(picBackColor, &ColorBox::colourChosen, kunDemo, &Kundali::setBackColor);
    connect(picLineColor, &ColorBox::colourChosen, kunDemo, &Kundali::setLineColor);
    connect(picBorderColor, &ColorBox::colourChosen, kunDemo, &Kundali::setBorderColor);
    connect(picTxtColor, &ColorBox::colourChosen, kunDemo, &Kundali::setTextColor);
    connect(picNumberColor, &ColorBox::colourChosen, kunDemo, &Kundali::setNumberColor);
    connect(cmdSaveAyanKundStyle, &QPushButton::clicked, this, &frmKunEdit::cmdSaveAyanKundStyle_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

void frmKunEdit::Form_Load()
{
    const ChartLook saved = ChartLook::Read();
    QRadioButton *opts[] = {optNorthKun, optEastKun, optSouthKun};
    opts[saved.Style]->setChecked(true);
    kunDemo->setChartStyle(saved.Style);

    txtLineWidth->setValue(static_cast<int>(saved[ChartLook::LineWidth]));
    txtBorderWidth->setValue(static_cast<int>(saved[ChartLook::BorderWidth]));
    kunDemo->setLineWidth(txtLineWidth->value());
    kunDemo->setBorderWidth(txtBorderWidth->value());
    const std::pair<ColorBox *, ChartLook::Key> boxes[] = {{picBackColor, ChartLook::BackColor},
                                                           {picLineColor, ChartLook::LineColor},
                                                           {picBorderColor, ChartLook::BorderColor},
                                                           {picTxtColor, ChartLook::TxtColor},
                                                           {picNumberColor, ChartLook::NumColor}};
    for (const auto &[box, key] : boxes)
        box->setValue(saved[key]);
    kunDemo->setBackColor(picBackColor->colour());
    kunDemo->setLineColor(picLineColor->colour());
    kunDemo->setBorderColor(picBorderColor->colour());
    kunDemo->setTextColor(picTxtColor->colour());
    kunDemo->setNumberColor(picNumberColor->colour());

    // A word in every cell, so that the text colour shows everywhere.
    kunDemo->setHouseNumber(1);
    for (int i = 1; i <= 12; ++i)
        kunDemo->PlanetPlace(i, LookText("SamplePlanet", "Planet"));
}

ChartLook frmKunEdit::look() const
{
    ChartLook l;
    l.Style = optEastKun->isChecked() ? 1 : optSouthKun->isChecked() ? 2 : 0;
    l[ChartLook::LineWidth] = txtLineWidth->value();
    l[ChartLook::BorderWidth] = txtBorderWidth->value();
    l[ChartLook::BackColor] = picBackColor->value();
    l[ChartLook::LineColor] = picLineColor->value();
    l[ChartLook::BorderColor] = picBorderColor->value();
    l[ChartLook::TxtColor] = picTxtColor->value();
    l[ChartLook::NumColor] = picNumberColor->value();
    return l;
}

void frmKunEdit::cmdSaveAyanKundStyle_Click()
{
    look().Write();
    accept();
}
