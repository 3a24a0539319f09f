// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// "Yogas & Results": every yoga the chart holds, with its name and reading, in the order of the scan.

#include "output/ui/TextPage.h"
#include "yoga/CheckYogas.h"

class frmPrediYogas : public TextPage, public YogaOutput
{
    Q_OBJECT
public:
    explicit frmPrediYogas(QWidget *parent = nullptr) : TextPage(QStringLiteral("frmPrediYogas"), parent) {}
    // The name keys printed, in order.
    const QStringList &printed() const { return m_printed; }

    void PutYogaHead(const QString &nameKey) override;
    void PutYogaText(const QString &key) override;

protected:
    void fill() override;

private:
    QStringList m_printed;
};
