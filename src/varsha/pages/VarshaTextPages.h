// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The three text pages of the year: the Mudda periods (frmVarshaText), the Muntha, the lord of the
// year and the annual Lagna (frmVarChartTxt), and the planets by their annual houses
// (frmVarPlHText). Each writes the items of its report into its rich text.

#include "output/ui/TextPage.h"
#include "varsha/VarshaText.h"

#include <functional>

class VarshaTextPage : public TextPage
{
    Q_OBJECT
public:
    using Report = std::function<QList<VarshaTextItem>(const clsVarsha &)>;
    VarshaTextPage(const QString &name, Report report, QWidget *parent = nullptr);

protected:
    void fill() override;

private:
    Report m_report;
};

class frmVarshaText : public VarshaTextPage
{
    Q_OBJECT
public:
    explicit frmVarshaText(QWidget *parent = nullptr) : VarshaTextPage(QStringLiteral("frmVarshaText"), VarshaPredictItems, parent) {}
};

class frmVarChartTxt : public VarshaTextPage
{
    Q_OBJECT
public:
    explicit frmVarChartTxt(QWidget *parent = nullptr) : VarshaTextPage(QStringLiteral("frmVarChartTxt"), VarChartTextItems, parent) {}
};

class frmVarPlHText : public VarshaTextPage
{
    Q_OBJECT
public:
    explicit frmVarPlHText(QWidget *parent = nullptr) : VarshaTextPage(QStringLiteral("frmVarPlHText"), VarPlanetHouseItems, parent) {}
};
