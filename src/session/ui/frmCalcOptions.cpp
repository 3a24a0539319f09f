// SPDX-License-Identifier: AGPL-3.0-or-later
#include "session/ui/frmCalcOptions.h"

#include "sky/AppSettings.h"

#include <QButtonGroup>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include <algorithm>

namespace {
const QString kSettings = QStringLiteral("Settings");

QRadioButton *option(const char *name, const QString &text, QWidget *parent)
{
    auto *o = new QRadioButton(text, parent);
    o->setObjectName(QLatin1String(name));
    return o;
}
} // namespace

frmCalcOptions::frmCalcOptions(QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmCalcOptions"));
    setWindowTitle(QStringLiteral("Regional Settings"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);

    auto *mang = new QGroupBox(QStringLiteral("Manglik Dosha"));
    optNorthMang = option("optNorthMang", QStringLiteral("North India (1,4,7,8,12)"), mang);
    optSouthMang = option("optSouthMang", QStringLiteral("South India (2,4,7,8,12)"), mang);
    auto *mv = new QVBoxLayout(mang);
    mv->addWidget(optNorthMang);
    mv->addWidget(optSouthMang);

    auto *varna = new QGroupBox(QStringLiteral("Calculation of Varna"));
    optSouthMar = option("optSouthMar", QStringLiteral("South Indian Method"), varna);
    optNorthMar = option("optNorthMar", QStringLiteral("North Indian Method (based on Muhurtha Chintamani)"), varna);
    auto *vv = new QVBoxLayout(varna);
    vv->addWidget(optSouthMar);
    vv->addWidget(optNorthMar);

    auto *annual = new QGroupBox(QStringLiteral("Varshaphala"));
    chkExactReturn = new QCheckBox(QStringLiteral("Begin the year at the exact return of the Sun"), annual);
    chkExactReturn->setObjectName(QStringLiteral("chkExactReturn"));
    auto *av = new QVBoxLayout(annual);
    av->addWidget(chkExactReturn);

    cmdOK = new QPushButton(QStringLiteral("&OK"));
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    cmdOK->setDefault(true);
    cmdClose = new QPushButton(QStringLiteral("&Close"));
    cmdClose->setObjectName(QStringLiteral("cmdClose"));
    auto *buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(cmdOK);
    buttons->addWidget(cmdClose);

    auto *v = new QVBoxLayout(this);
    v->setContentsMargins(14, 14, 14, 12);
    v->setSpacing(10);
    v->addWidget(mang);
    v->addWidget(varna);
    v->addWidget(annual);
    v->addStretch(1);
    v->addLayout(buttons);

    const bool southMang = AppSettings::value(kSettings, QStringLiteral("CalcMangMod"), 1).toInt() == 2;
    (southMang ? optSouthMang : optNorthMang)->setChecked(true);
    const bool southVarna = AppSettings::value(kSettings, QStringLiteral("CalcVarMod"), 1).toInt() == 2;
    (southVarna ? optSouthMar : optNorthMar)->setChecked(true);
    chkExactReturn->setChecked(AppSettings::value(kSettings, QStringLiteral("ExactReturn"), false).toBool());

    connect(cmdOK, &QPushButton::clicked, this, &frmCalcOptions::cmdOK_Click);
    connect(cmdClose, &QPushButton::clicked, this, &QDialog::reject);
    setFixedSize(std::max(400, sizeHint().width()), sizeHint().height());
}

void frmCalcOptions::cmdOK_Click()
{
    AppSettings::setValue(kSettings, QStringLiteral("CalcVarMod"), optNorthMar->isChecked() ? 1 : 2);
    AppSettings::setValue(kSettings, QStringLiteral("CalcMangMod"), optNorthMang->isChecked() ? 1 : 2);
    AppSettings::setValue(kSettings, QStringLiteral("ExactReturn"), chkExactReturn->isChecked());
    accept();
}
