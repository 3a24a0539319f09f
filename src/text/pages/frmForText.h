// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// "General Predictions": the running report on character, health, education and profession,
// wealth, marriage, travel and gems.

#include "output/ui/TextPage.h"
#include "text/ForText.h"

class frmForText : public TextPage, public PredictionOutput
{
    Q_OBJECT
public:
    explicit frmForText(QWidget *parent = nullptr) : TextPage(QStringLiteral("frmForText"), parent) {}
    void PutHead(const QString &text) override { TextPage::PutHead(text); }
    void PutText(const QString &text) override { TextPage::PutText(text); }

protected:
    void fill() override;
};
